#include "App/UpdateChecker/UpdateManager.h"

#include "App/UpdateChecker/UpdateManagerImpl_p.h"
#include "HostFramework/Application.h"
#include "common/DirectCallGateway.h"

#include <utility>

namespace Pelnar::App
{
namespace
{

/// The only record of the live manager.
IUpdateManager* s_updateManager = nullptr;

UpdateManager::Initializer MakeInitializer(QObject* parent, bool automatic,
                                           std::function<QWidget*()> parentWidgetGetter,
                                           QList<IUpdateManagerObserver*> const& observers)
{
    UpdateManager::Initializer initializer(parent);
    initializer.checkMode = static_cast<UpdateCheckMode>(automatic);
    initializer.parentWidgetGetter = std::move(parentWidgetGetter);
    initializer.observers = observers;
    return initializer;
}

} // namespace

UpdateManager::Initializer::Initializer(QObject* parentOfManager)
    : parent(parentOfManager), gateway(std::make_shared<ExternalStimulus::DirectCallGateway>())
{
}

void UpdateManager::CheckForUpdates(QObject* parent, bool automatic, std::function<QWidget*()> parentWidgetGetter,
                                    QList<IUpdateManagerObserver*> const& observers)
{
    CheckForUpdates(MakeInitializer(parent, automatic, std::move(parentWidgetGetter), observers));
}

void UpdateManager::CheckForUpdates(std::shared_ptr<ExternalStimulus::IGateway> const& gateway, QObject* parent,
                                    bool automatic, std::function<QWidget*()> parentWidgetGetter,
                                    QList<IUpdateManagerObserver*> const& observers)
{
    Initializer initializer = MakeInitializer(parent, automatic, std::move(parentWidgetGetter), observers);
    initializer.gateway = gateway;
    CheckForUpdates(initializer);
}

void UpdateManager::CheckForUpdates(Initializer const& initializer)
{
    if (s_updateManager)
    {
        return;
    }
    new UpdateManager(initializer); // deletes itself
}

IUpdateManager* UpdateManager::GetCurrentUpdateManager()
{
    return s_updateManager;
}

UpdateManager::UpdateManager(Initializer const& initializer)
    : QObject(initializer.parent), impl(std::make_unique<Impl>(*this, initializer.gateway))
{
    // Deliberate: when something below throws, s_updateManager stays set, and the process makes no further checks.
    s_updateManager = this;
    impl->parentWidgetGetter = initializer.parentWidgetGetter;
    impl->checkMode = initializer.checkMode;

    Application const* const application = Application::Instance();
    impl->nagScreenManager = application->GetNagScreenManager();
    impl->customizationManager = application->GetCustomizationManager();
    impl->linksManager = application->GetLinksManager();

    for (IUpdateManagerObserver* const observer : initializer.observers)
    {
        RegisterObserver(observer);
    }
    impl->InitializeUpdater();
    // Last: the whole flow may run inside this call, and a dialog of it may see this object deleted by its parent.
    impl->updater->CheckForUpdates();
}

UpdateManager::~UpdateManager()
{
    // Before the back end goes, so that nothing it does on its way out reaches an observer.
    impl->observers.PerformForEachEventHandler([this](IUpdateManagerObserver* observer)
                                               { UnregisterObserver(observer); });
    s_updateManager = nullptr;
    // Now rather than with the QObject children, which go only when this is no UpdateManager any more.
    impl.reset();
}

void UpdateManager::RegisterObserver(IUpdateManagerObserver* observer)
{
    impl->observers.RegisterEventHandler(observer);
}

void UpdateManager::UnregisterObserver(IUpdateManagerObserver* observer)
{
    impl->observers.UnregisterEventHandler(observer);
}

void UpdateManager::RejectUpdateAndHideDialog()
{
    impl->updater->RejectUpdateAndHideDialog();
}

} // namespace Pelnar::App
