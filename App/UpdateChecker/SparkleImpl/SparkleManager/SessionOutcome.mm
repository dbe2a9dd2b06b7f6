#include "App/UpdateChecker/SparkleImpl/Choice/CallbackRules.h"
#include "App/UpdateChecker/SparkleImpl/Choice/LogSites.h"
#include "App/UpdateChecker/SparkleImpl/Choice/SessionRecords.h"
#include "App/UpdateChecker/SparkleImpl/SparkleManager/GuardedCall_p.h"
#include "App/UpdateChecker/SparkleImpl/SparkleManager/SessionDialogs.h"
#include "App/UpdateChecker/SparkleImpl/SparkleManager/SparkleManager_p.h"
#include "App/UpdateChecker/SparkleImpl/UpdaterSparkle/SparkleUpdateContext.h"
#include "Foundation/FoundationText.h"
#include "HostFramework/VersionText.h"
#include "common/ScopedFunctionCall.h"

namespace Pelnar::App
{

using Session::AbortReaction;
using Session::CheckReaction;
using Session::State;

void SparkleManager::Impl::DidFindValidUpdate(SUAppcastItem* item)
{
    Session::WriteCurrentState(Session::Sites::FOUND, state);
    updateType = DetectUpdateType(item);
    Core::Write(Session::Sites::FOUND_UPDATE_TYPE,
                std::string("SUAppcastItem contains update with UpdateType = ") + Session::UpdateTypeName(updateType));
    extensions = DetectExtensions(item);
    WriteExtensions();
    if (!TakeResult([this, item] { ReportFoundVersion(item); }))
    {
        Session::WriteUnspecifiedState(Session::Sites::FOUND_UNSPECIFIED, state);
    }
}

bool SparkleManager::Impl::TakeResult(std::function<void()> const& report)
{
    switch (Session::ReactionToResult(state))
    {
    case CheckReaction::Nothing:
        return true;
    case CheckReaction::Idle:
        SwitchToIdle();
        return true;
    case CheckReaction::ReportAndIdle:
        if (EnsureContext() && EnsureCheckFinishedCallback())
        {
            report();
        }
        return true;
    case CheckReaction::Unspecified:
        break;
    }
    return false;
}

void SparkleManager::Impl::WriteExtensions() const
{
    if (extensions.isEmpty() || !Core::IsEnabled(Session::Sites::FOUND_EXTENSIONS))
    {
        return;
    }
    Core::Write(Session::Sites::FOUND_EXTENSIONS, "Extensions:");
    for (auto entry = extensions.cbegin(); entry != extensions.cend(); ++entry)
    {
        QString const value = entry->canConvert<QString>() ? entry->toString() : QStringLiteral("<NOT A STRING>");
        Core::Write(Session::Sites::FOUND_EXTENSION,
                    QStringLiteral("  * %1 = \"%2\"").arg(entry.key(), value).toStdString());
    }
}

void SparkleManager::Impl::ReportFoundVersion(SUAppcastItem* item)
{
    QString versionText;
    std::optional<std::string> const failure = Session::DiagnosticOf(
        [this, item, &versionText]
        {
            versionText = Foundation::ToQString([item versionString]);
            context->remoteVersion = Util::VersionFromString(versionText, QStringLiteral("."));
            if (!EnsureVersionOperators() || !EnsureRemoteVersionIsGreaterThanLocal())
            {
                context->remoteVersion = context->localVersion;
            }
        });
    if (failure)
    {
        Core::Write(Session::Sites::FOUND_DIAGNOSTIC, *failure);
        Core::Write(Session::Sites::FOUND_BAD_VERSION, "item version=\"" + versionText.toStdString() + "\"");
        context->remoteVersion = context->localVersion;
    }
    SetState(State::WAITING);
    NotifyCheckFinished();
    UnlockIfRequested();
}

void SparkleManager::Impl::DidNotFindUpdate()
{
    Session::WriteCurrentState(Session::Sites::NOT_FOUND, state);
    if (!TakeResult([this] { ReportNoNewerVersion(); }))
    {
        Session::WriteUnspecifiedState(Session::Sites::NOT_FOUND_UNSPECIFIED, state);
    }
}

void SparkleManager::Impl::DidAbort(NSError* error)
{
    Session::WriteCurrentState(Session::Sites::ABORTED, state);
    Core::Write(Session::Sites::ABORTED_ERROR, Foundation::ToUtf8([error description]));
    switch (Session::ReactionToAbort(state))
    {
    case AbortReaction::Nothing:
        return;
    case AbortReaction::ReportAndIdle:
        // No guard: CheckForUpdates enters this state only with a context, and a context is never removed.
        ReportNoNewerVersion();
        return;
    case AbortReaction::ShowErrorAndIdle:
    {
        // At every exit: an error that cannot be shown must not leave the session locked.
        Core::ScopedFunctionCall const idle(
            nullptr, [this] { SwitchToIdle(); }, true);
        Session::ShowUpdateError(Foundation::ToQString([error localizedDescription]), DialogParent(), closeDialog);
        return;
    }
    case AbortReaction::Idle:
        SwitchToIdle();
        return;
    case AbortReaction::Unspecified:
        break;
    }
    Session::WriteUnspecifiedState(Session::Sites::ABORTED_UNSPECIFIED, state);
}

QWidget* SparkleManager::Impl::DialogParent() const
{
    // A copy: the getter may replace itself or the whole context.
    std::function<QWidget*()> const getter = context ? context->parentWidgetGetter : nullptr;
    if (!getter)
    {
        return nullptr;
    }
    QWidget* parent = nullptr;
    std::optional<std::string> const failure = Session::DiagnosticOf([&getter, &parent] { parent = getter(); });
    if (failure)
    {
        Core::Write(Session::Sites::DIALOG_PARENT_FAILED, *failure);
    }
    return parent;
}

} // namespace Pelnar::App
