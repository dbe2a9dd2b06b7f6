#include "App/UpdateChecker/SparkleImpl/Choice/CallbackRules.h"
#include "App/UpdateChecker/SparkleImpl/Choice/LogSites.h"
#include "App/UpdateChecker/SparkleImpl/Choice/RelaunchTarget.h"
#include "App/UpdateChecker/SparkleImpl/Choice/SessionRecords.h"
#include "App/UpdateChecker/SparkleImpl/SparkleManager/GuardedCall_p.h"
#include "App/UpdateChecker/SparkleImpl/SparkleManager/HostQuit_p.h"
#include "App/UpdateChecker/SparkleImpl/SparkleManager/SessionDialogs.h"
#include "App/UpdateChecker/SparkleImpl/SparkleManager/SparkleManager_p.h"
#include "App/UpdateChecker/SparkleImpl/UpdaterSparkle/SparkleUpdateContext.h"
#include "Foundation/FoundationText.h"
#include "Settings/UpdateDefaults.h"

namespace Pelnar::App
{
namespace
{

using Session::ReadyToInstallAnswer;
using Session::RelaunchReaction;
using Session::State;

// The positions of "relaunch" and "show user interface" among the arguments of the framework's immediate installation.
constexpr NSInteger RELAUNCH_ARGUMENT = 2;
constexpr NSInteger USER_INTERFACE_ARGUMENT = 3;

/// Runs \a invocation with this one argument replaced; the other keeps the framework's preset value.
void InvokeWith(NSInvocation* invocation, NSInteger argument, BOOL value)
{
    [invocation setArgument:&value atIndex:argument];
    [invocation invoke];
}

/// Runs \a call and logs its exception, which does not propagate.
void RecordFailure(std::function<void()> const& call)
{
    std::optional<std::string> const failure = Session::DiagnosticOf(call);
    if (failure)
    {
        Core::Write(Session::Sites::WILL_INSTALL_FAILED, *failure);
    }
}

/// In the shared defaults, where the framework and the host read it, and in the update checker's own defaults, which
/// are in another file on Linux.
void StoreSkippedVersion(NSString* version)
{
    Core::SettingKey const& key = Core::KeyOf(Core::Setting::SkippedVersion);
    NSUserDefaults* const shared = [NSUserDefaults standardUserDefaults];
    [shared setObject:version forKey:[NSString stringWithUTF8String:key.name.data()]];
    [shared synchronize];
    Settings::UpdateDefaults own(Foundation::ToQString([[NSBundle mainBundle] bundleIdentifier]));
    own.Remember({{key.setting, Foundation::ToQString(version)}});
    (void)own.Save(); // the log has the failure
}

} // namespace

void SparkleManager::Impl::WillInstallOnQuit(SUAppcastItem* item, NSInvocation* invocation)
{
    Session::WriteCurrentState(Session::Sites::WILL_INSTALL, state);
    // The framework may release both while the dialog's event loop runs.
    auto const keptItem = Foundation::Retained<SUAppcastItem>::Share(item);
    auto const keptInvocation = Foundation::Retained<NSInvocation>::Share(invocation);
    // The invocation runs once on every path: a failure before it, such as of an operator of the context, declines.
    ReadyToInstallAnswer answer = ReadyToInstallAnswer::RemindLater;
    RecordFailure(
        [this, &answer]
        {
            if (IsInstallable())
            {
                // Read first: the parent's getter may replace the context.
                QString const name = InstalledApplicationName();
                Core::Version const version = context->remoteVersion;
                answer = Session::AskReadyToInstall(name, version, DialogParent(), closeDialog);
            }
        });
    if (answer == ReadyToInstallAnswer::InstallAndRelaunch)
    {
        SetState(State::SILENT_INSTALLING);
        InvokeWith(invocation, USER_INTERFACE_ARGUMENT, YES);
        return;
    }
    SetState(State::SILENT_ABORTING);
    if (answer == ReadyToInstallAnswer::SkipThisVersion)
    {
        // Before the invocation: it may end the process.
        RecordFailure([item] { StoreSkippedVersion([item versionString]); });
    }
    InvokeWith(invocation, RELAUNCH_ARGUMENT, NO);
}

bool SparkleManager::Impl::IsInstallable() const
{
    return EnsureContext() && EnsureLocalVersion() && EnsureRemoteVersion() && EnsureVersionOperators() &&
           EnsureRemoteVersionIsGreaterThanLocal();
}

QString SparkleManager::Impl::InstalledApplicationName() const
{
    char const* const key = Core::KeyOf(Core::Setting::BundleName).name.data();
    id const name = [[[NSBundle mainBundle] infoDictionary] objectForKey:[NSString stringWithUTF8String:key]];
    QString const bundleName = [name isKindOfClass:[NSString class]] ? Foundation::ToQString(name) : QString();
    return bundleName.isEmpty() ? context->applicationName : bundleName;
}

bool SparkleManager::Impl::ShouldRelaunch()
{
    Session::WriteCurrentState(Session::Sites::SHOULD_RELAUNCH, state);
    switch (Session::ReactionToRelaunch(state))
    {
    case RelaunchReaction::Allowed:
        return true;
    case RelaunchReaction::Refused:
        return false;
    case RelaunchReaction::Unspecified:
        break;
    }
    Session::WriteUnspecifiedState(Session::Sites::SHOULD_RELAUNCH_UNSPECIFIED, state);
    return true;
}

void SparkleManager::Impl::WillRelaunch()
{
    Session::WriteCurrentState(Session::Sites::WILL_RELAUNCH, state);
    switch (Session::ReactionToRelaunch(state))
    {
    case RelaunchReaction::Allowed:
        Session::PostTryToQuit();
        return;
    case RelaunchReaction::Refused:
        return;
    case RelaunchReaction::Unspecified:
        break;
    }
    Session::WriteUnspecifiedState(Session::Sites::WILL_RELAUNCH_UNSPECIFIED, state);
}

void SparkleManager::Impl::DidCancelInstallOnQuit()
{
    Session::WriteCurrentState(Session::Sites::DID_CANCEL, state);
    if (!Session::IsCancelledInstallExpected(state))
    {
        Session::WriteUnspecifiedState(Session::Sites::DID_CANCEL_UNSPECIFIED, state);
        return;
    }
    SwitchToIdle();
}

NSString* SparkleManager::Impl::PathToRelaunch()
{
    Session::WriteCurrentState(Session::Sites::RELAUNCH_PATH, state);
    if (EnsureContext() && EnsureRemoteVersion())
    {
        // Held during the call: the rule may replace the context.
        std::shared_ptr<SparkleUpdateContext> const lent = context;
        std::optional<QString> path;
        std::optional<std::string> const failure = Session::DiagnosticOf(
            [this, &lent, &path] {
                path =
                    Session::RelaunchPathAfter(updateType, extensions, lent->relaunchPathGetter, lent->remoteVersion);
            });
        if (failure)
        {
            Core::Write(Session::Sites::RELAUNCH_PATH_FAILED, *failure);
        }
        if (path)
        {
            return Foundation::ToNSString(*path);
        }
    }
    return [[NSBundle mainBundle] bundlePath];
}

} // namespace Pelnar::App
