#include "App/UpdateChecker/UpdateManager.h"

#include "App/UpdateChecker/UpdateManagerImpl_p.h"
#include "HostFramework/Application.h"
#include "common/DirectCallGateway.h"
#include "common/LogReadiness.h"
#include "common/ScopedFunctionCall.h"

#include <QPointer>

#include <stdexcept>
#include <utility>

namespace Pelnar::App
{
namespace
{

/// The only record of the current manager.
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

void RequireHostApplication()
{
    if (!qobject_cast<Application*>(QCoreApplication::instance()))
    {
        throw std::logic_error("A check for updates needs a Pelnar::App::Application: make one in main() in place of "
                               "QApplication, before the first check.");
    }
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
    RequireHostApplication();
    (void)Core::ReadyLog();
    // Separate from the construction: from here on the host is called and may destroy the manager. An exception from
    // the constructor would then destroy it a second time.
    QPointer<UpdateManager> const manager(new UpdateManager(initializer)); // deletes itself
    bool hasStarted = false;
    Core::ScopedFunctionCall const freeUnlessStarted(
        nullptr,
        [&manager, &hasStarted]
        {
            if (manager && !hasStarted)
            {
                // Deliberate: s_updateManager stays set, and the process makes no further checks.
                IUpdateManager* const failed = s_updateManager;
                delete manager.data();
                s_updateManager = failed;
            }
        },
        true);
    manager->Start(QList<IUpdateManagerObserver*>(initializer.observers));
    hasStarted = true;
}

IUpdateManager* UpdateManager::GetCurrentUpdateManager()
{
    return s_updateManager;
}

UpdateManager::UpdateManager(Initializer const& initializer)
    : QObject(initializer.parent), impl(std::make_unique<Impl>(*this, initializer.gateway))
{
    s_updateManager = this;
    impl->parentWidgetGetter = initializer.parentWidgetGetter;
    impl->checkMode = initializer.checkMode;
}

void UpdateManager::Start(QList<IUpdateManagerObserver*> const& firstObservers)
{
    QPointer<UpdateManager> const self(this);
    Application const* const application = Application::Instance();
    std::shared_ptr<NagScreen::Manager> const nagScreenManager = application->GetNagScreenManager();
    std::shared_ptr<ICustomizationManager> const customizationManager = application->GetCustomizationManager();
    std::shared_ptr<ILinksManager> const linksManager = application->GetLinksManager();
    if (!self)
    {
        return;
    }
    impl->nagScreenManager = nagScreenManager;
    impl->customizationManager = customizationManager;
    impl->linksManager = linksManager;
    for (IUpdateManagerObserver* const observer : firstObservers)
    {
        RegisterObserver(observer);
    }
    impl->InitializeUpdater();
    if (self)
    {
        // Last: the whole flow may run inside this call.
        impl->updater->CheckForUpdates();
    }
}

UpdateManager::~UpdateManager()
{
    // Before the back end is destroyed, so that none of its last notifications reaches an observer.
    impl->observers.PerformForEachEventHandler([this](IUpdateManagerObserver* observer)
                                               { UnregisterObserver(observer); });
    s_updateManager = nullptr;
    // Now and not with the QObject children: they are destroyed when this object is no longer an UpdateManager.
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
    // The host may call this before the back end exists: its services are taken first.
    if (impl->updater)
    {
        impl->updater->RejectUpdateAndHideDialog();
    }
}

} // namespace Pelnar::App
