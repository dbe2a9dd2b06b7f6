// UpdateManagerImpl_p.h: the flow controller: runs one check from its start to the end of its manager.
// Thread: the Qt main thread. Ownership: the manager deletes it explicitly and is its Qt parent too; it owns the back
// end and shares the host's services. The fields are destroyed in reverse order: the services, the observer list, and
// only then the back end. Wherever the host is called it may destroy this object, by way of the manager's Qt parent:
// what follows such a call looks at a guarded pointer first, and a service is held for the length of its call.
#pragma once

#include "App/UpdateChecker/AbstractUpdaterImpl.h"
#include "App/UpdateChecker/IUpdateManagerObserver.h"
#include "App/UpdateChecker/UpdateManager.h"
#include "common/EventHandlerList.h"

#include <functional>
#include <memory>

namespace Pelnar::App
{

class ICustomizationManager;
class ILinksManager;
namespace NagScreen
{
class Manager;
}

class UpdateManager::Impl : public QObject
{
    Q_OBJECT

public:
    Impl(UpdateManager& owner, std::shared_ptr<ExternalStimulus::IGateway> const& proposalGateway);
    ~Impl() override;

    /// Makes the back end and connects it. Throws std::logic_error, with nothing changed, when there is no links
    /// or no customization service. REQUIRES: the services and checkMode are set.
    void InitializeUpdater();

    /// The back end's check has an outcome: ends the flow, shows the nag or proposes the dialog.
    void CheckFinished(UpdateCheckResult result);
    /// The user accepted the update; quitting and installing are the back end's business.
    void UserAcceptUpdate();
    /// Asks the gateway to run the dialog; what it is given does nothing once this object is on its way out.
    void ProposeDialog();
    /// Shows the nag of a major update, unless the check is silent, and ends the flow.
    void ProposeNag();
    Core::Version GetCurrentVersion() const;
    Core::Version GetRemoteVersion() const;
    /// The only way in which the flow ends. Harmless when repeated.
    void DeleteManager();

    UpdateManager& manager;
    std::function<QWidget*()> parentWidgetGetter; ///< may be empty
    UpdateCheckMode checkMode = UpdateCheckMode::UserInitiated;
    std::unique_ptr<AbstractUpdaterImpl> updater;
    Core::EventHandlerList<IUpdateManagerObserver, Core::SyncExecutePolicy> observers;
    std::shared_ptr<NagScreen::Manager> nagScreenManager;
    std::shared_ptr<ICustomizationManager> customizationManager;
    std::shared_ptr<ILinksManager> linksManager;
    std::shared_ptr<ExternalStimulus::IGateway> gateway;

private:
    void ProposeNagOrDialog();
    void WaitForNag();
    void RunDialog();
    using VersionsEvent = void (IUpdateManagerObserver::*)(Core::Version const& current, Core::Version const& remote);
    /// False when the host has destroyed this object meanwhile.
    [[nodiscard]] bool TellVersions(VersionsEvent event);

    bool m_isEnding = false; ///< the fields are being destroyed
};

} // namespace Pelnar::App
