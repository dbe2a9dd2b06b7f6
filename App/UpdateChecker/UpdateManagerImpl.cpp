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
    // From now on no notification of the services, the gateway or the back end reaches an observer.
    m_isEnding = true;
    if (updater)
    {
        updater->disconnect(this);
    }
    if (nagScreenManager)
    {
        nagScreenManager->disconnect(this);
    }
}

void UpdateManager::Impl::InitializeUpdater()
{
    NotNull<std::shared_ptr<ILinksManager>> const links(linksManager);
    QPointer<Impl> const self(this);
    auto backEnd =
        std::make_unique<UpdaterSparkle>(customizationManager, links, checkMode != UpdateCheckMode::UserInitiated);
    if (!self)
    {
        return;
    }
    updater = std::move(backEnd);
    connect(updater.get(), &AbstractUpdaterImpl::NotifyCheckFinished, this, &Impl::CheckFinished);
    connect(updater.get(), &AbstractUpdaterImpl::NotifyUserAcceptUpdate, this, &Impl::UserAcceptUpdate);
}

void UpdateManager::Impl::CheckFinished(UpdateCheckResult result)
{
    if (result < UpdateCheckResult::UpdateAvailable)
    {
        // A check that the user requested always leads to the dialog, which then says that nothing is newer.
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
    QPointer<Impl> const self(this);
    std::shared_ptr<NagScreen::Manager> const service = nagScreenManager;
    int const contentState =
        service ? service->GetContentState(NagScreen::MajorUpdate) : NagScreen::CONTENT_UNAVAILABLE;
    if (!self)
    {
        return;
    }
    switch (contentState)
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
    // Deliberate: like an unknown result, a host's own state ends nothing.
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
        if (self && !self->m_isEnding)
        {
            self->RunDialog();
        }
    };
    std::shared_ptr<ExternalStimulus::IGateway> const host = gateway;
    host->ProposeAction(action);
}

void UpdateManager::Impl::RunDialog()
{
    QPointer<Impl> const self(this);
    // From now on every exit, including an exception, ends the flow. The manager's Qt parent may end it earlier.
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

    if (!TellVersions(&IUpdateManagerObserver::OnUpdateFound) || checkMode == UpdateCheckMode::Silent)
    {
        return;
    }
    observers.PerformForEachEventHandler(&IUpdateManagerObserver::OnUpdateDialogOpening);
    if (!self)
    {
        return;
    }
    updater->ExecUpdateDialog(
        [hostParentGetter] { return hostParentGetter ? hostParentGetter() : Util::SpontaneousDialog::findParent(); });
    if (self)
    {
        observers.PerformForEachEventHandler(&IUpdateManagerObserver::OnUpdateDialogClosed);
    }
}

void UpdateManager::Impl::UserAcceptUpdate()
{
    (void)TellVersions(&IUpdateManagerObserver::OnUpdateAccepted);
}

bool UpdateManager::Impl::TellVersions(VersionsEvent event)
{
    QPointer<Impl> const self(this);
    Core::Version const current = GetCurrentVersion();
    if (!self)
    {
        return false;
    }
    Core::Version const remote = GetRemoteVersion();
    observers.PerformForEachEventHandler([event, &current, &remote](IUpdateManagerObserver* observer)
                                         { (observer->*event)(current, remote); });
    return !self.isNull();
}

void UpdateManager::Impl::ProposeNag()
{
    QPointer<Impl> const self(this);
    if (checkMode != UpdateCheckMode::Silent)
    {
        std::shared_ptr<NagScreen::Manager> const service = nagScreenManager;
        service->Show(NagScreen::MajorUpdate);
    }
    if (self)
    {
        DeleteManager();
    }
}

Core::Version UpdateManager::Impl::GetCurrentVersion() const
{
    std::shared_ptr<ICustomizationManager> const service = customizationManager;
    return service->GetApplicationVersion();
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
