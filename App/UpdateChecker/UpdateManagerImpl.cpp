#include "App/UpdateChecker/UpdateManagerImpl_p.h"

#include "App/UpdateChecker/SparkleImpl/UpdaterSparkle/UpdaterSparkle.h"
#include "HostFramework/ICustomizationManager.h"
#include "HostFramework/NagScreenManager.h"
#include "HostFramework/SpontaneousDialog.h"
#include "common/IGateway.h"
#include "common/NotNull.h"
#include "common/ScopedFunctionCall.h"

#include <QPointer>

namespace Pelnar::App
{
namespace
{

char const ACTION_ID[] = "REQUEST_CHECK_AUTO_UPDATE";

} // namespace

UpdateManager::Impl::Impl(UpdateManager& owner, std::shared_ptr<ExternalStimulus::IGateway> const& proposalGateway)
    : QObject(&owner), manager(owner), gateway(proposalGateway)
{
}

UpdateManager::Impl::~Impl()
{
    // The back end is destroyed after the services below it: what it emits on its way out must find nobody here.
    if (updater)
    {
        updater->disconnect(this);
    }
}

void UpdateManager::Impl::InitializeUpdater()
{
    NotNull<std::shared_ptr<ILinksManager>> const links(linksManager);
    updater =
        std::make_unique<UpdaterSparkle>(customizationManager, links, checkMode != UpdateCheckMode::UserInitiated);
    connect(updater.get(), &AbstractUpdaterImpl::NotifyCheckFinished, this, &Impl::CheckFinished);
    connect(updater.get(), &AbstractUpdaterImpl::NotifyUserAcceptUpdate, this, &Impl::UserAcceptUpdate);
}

void UpdateManager::Impl::CheckFinished(UpdateCheckResult result)
{
    if (result < UpdateCheckResult::UpdateAvailable)
    {
        // A check that the user asked for always leads to the dialog, which then tells that nothing is newer.
        if (checkMode == UpdateCheckMode::UserInitiated)
        {
            ProposeDialog();
        }
        else
        {
            DeleteManager();
        }
        return;
    }
    if (result == UpdateCheckResult::UpdateAvailable)
    {
        ProposeDialog();
    }
    else if (result == UpdateCheckResult::MajorUpdateAvailable)
    {
        ProposeNagOrDialog();
    }
    // Deliberate: any greater value ends nothing; the manager stays current until its Qt parent destroys it.
}

void UpdateManager::Impl::ProposeNagOrDialog()
{
    switch (nagScreenManager->GetContentState(NagScreen::MajorUpdate))
    {
    case NagScreen::CONTENT_UNKNOWN:
        WaitForNag();
        return;
    case NagScreen::CONTENT_UNAVAILABLE:
        ProposeDialog();
        return;
    case NagScreen::CONTENT_AVAILABLE:
        ProposeNag();
        return;
    }
    // Deliberate: as for an unknown result, a state of the host's own ends nothing.
}

void UpdateManager::Impl::WaitForNag()
{
    connect(nagScreenManager.get(), &NagScreen::Manager::NagAvailable, this,
            [this](QString const& name, bool available)
            {
                if (name != NagScreen::MajorUpdate)
                {
                    return;
                }
                if (available)
                {
                    ProposeNag();
                }
                else
                {
                    ProposeDialog();
                }
            });
}

void UpdateManager::Impl::ProposeDialog()
{
    QPointer<Impl> const self(this);
    ExternalStimulus::Action action;
    action.id = ACTION_ID;
    action.callback = [self]
    {
        if (self)
        {
            self->RunDialog();
        }
    };
    gateway->ProposeAction(action);
}

void UpdateManager::Impl::RunDialog()
{
    QPointer<Impl> const self(this);
    // From here on every way out, an exception included, ends the flow. The manager's Qt parent may end it even sooner:
    // the dialog runs an event loop.
    Core::ScopedFunctionCall const deleteOnExit(
        nullptr,
        [self]
        {
            if (self)
            {
                self->DeleteManager();
            }
        },
        true);
    std::function<QWidget*()> const hostParentGetter = parentWidgetGetter;

    Core::Version const current = GetCurrentVersion();
    Core::Version const remote = GetRemoteVersion();
    observers.PerformForEachEventHandler([&current, &remote](IUpdateManagerObserver* observer)
                                         { observer->OnUpdateFound(current, remote); });
    if (checkMode == UpdateCheckMode::Silent)
    {
        return;
    }
    observers.PerformForEachEventHandler(&IUpdateManagerObserver::OnUpdateDialogOpening);
    updater->ExecUpdateDialog(
        [hostParentGetter] { return hostParentGetter ? hostParentGetter() : Util::SpontaneousDialog::findParent(); });
    if (self)
    {
        observers.PerformForEachEventHandler(&IUpdateManagerObserver::OnUpdateDialogClosed);
    }
}

void UpdateManager::Impl::UserAcceptUpdate()
{
    Core::Version const current = GetCurrentVersion();
    Core::Version const remote = GetRemoteVersion();
    observers.PerformForEachEventHandler([&current, &remote](IUpdateManagerObserver* observer)
                                         { observer->OnUpdateAccepted(current, remote); });
}

void UpdateManager::Impl::ProposeNag()
{
    if (checkMode != UpdateCheckMode::Silent)
    {
        nagScreenManager->Show(NagScreen::MajorUpdate);
    }
    DeleteManager();
}

Core::Version UpdateManager::Impl::GetCurrentVersion() const
{
    return customizationManager->GetApplicationVersion();
}

Core::Version UpdateManager::Impl::GetRemoteVersion() const
{
    return updater->GetRemoteVersion();
}

void UpdateManager::Impl::DeleteManager()
{
    manager.deleteLater();
}

} // namespace Pelnar::App
