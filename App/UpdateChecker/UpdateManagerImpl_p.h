// UpdateManagerImpl_p.h: the flow controller: it runs one check from its start to the end of its manager.
// Thread: the Qt main thread. Ownership: the manager deletes it explicitly and is also its Qt parent. It owns the back
// end and shares the host's services. The fields are destroyed in reverse order: the services, the observer list, then
// the back end. Every call of the host may destroy this object through the manager's Qt parent. So code after such a
// call first checks a guarded pointer, and a service is held during its call.
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

    /// Creates the back end and connects it. Throws std::logic_error, with nothing changed, if there is no links or no
    /// customization service. REQUIRES: the services and checkMode are set.
    void InitializeUpdater();

    /// The back end's check has a result: ends the flow, shows the nag screen or proposes the dialog.
    void CheckFinished(UpdateCheckResult result);
    /// The user accepted the update; the back end handles quitting and installing.
    void UserAcceptUpdate();
    /// Asks the gateway to run the dialog. The callback does nothing once this object is being destroyed.
    void ProposeDialog();
    /// Shows the nag screen of a major update, unless the check is silent, and ends the flow.
    void ProposeNag();
    Core::Version GetCurrentVersion() const;
    Core::Version GetRemoteVersion() const;
    /// The only way in which the flow ends. A second call has no effect.
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
    /// False if the host has destroyed this object meanwhile.
    [[nodiscard]] bool TellVersions(VersionsEvent event);

    bool m_isEnding = false; ///< the fields are being destroyed
};

} // namespace Pelnar::App
