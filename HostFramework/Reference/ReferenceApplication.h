// ReferenceApplication.h: the application object of the reference host framework.
//
//     Pelnar::App::ReferenceApplication application(argc, argv);
//     QString const settings = QStringLiteral("/opt/notes/settings.ini");
//     application.SetServices(
//         {nullptr,
//          std::make_shared<Pelnar::App::ReferenceCustomizationManager>(Pelnar::App::ReadCustomization(settings)),
//          std::make_shared<Pelnar::App::ReferenceLinksManager>(Pelnar::App::ReadLinks(settings))});
//
// Thread: the Qt main thread. Ownership: the host's main function creates it. It shares the services with their users
// and releases its share before QApplication is destroyed, so that services may own windows.
//
// A host family with its own framework derives from App::Application in the same way: it returns the three services and
// implements TryToQuit. It needs nothing else of this folder.
#pragma once

#include "HostFramework/Application.h"

namespace Pelnar::App
{

/// The services that a host lends to the updater.
struct ReferenceServices
{
    std::shared_ptr<NagScreen::Manager> nagScreenManager; ///< null: nag screens without content
    std::shared_ptr<ICustomizationManager> customizationManager;
    std::shared_ptr<ILinksManager> linksManager;
};

class PELNAR_EXPORT ReferenceApplication : public Application
{
    Q_OBJECT

public:
    /// Starts without services: services with widgets can be created only after this object.
    ReferenceApplication(int& argc, char** argv);
    ~ReferenceApplication() override;

    /// Replaces all three services. Call it before the first check; a running check keeps its services.
    void SetServices(ReferenceServices const& services);

    /// Never null. If the host sets none, it returns nag screens without content.
    std::shared_ptr<NagScreen::Manager> GetNagScreenManager() const override;
    /// Both throw std::logic_error if SetServices did not get the service.
    std::shared_ptr<ICustomizationManager> GetCustomizationManager() const override;
    std::shared_ptr<ILinksManager> GetLinksManager() const override;

    /// Sends a close event to every visible top-level window, modal ones first. If all accept, it leaves the event
    /// loops and returns true. At the first refusal it stops and returns false, and the application does not quit;
    /// windows that were asked earlier keep their new state (a dialog counts as rejected). It also returns false while
    /// an earlier call is still asking.
    bool TryToQuit() override;

private:
    ReferenceServices m_services;
    bool m_isAskingWindows = false;
};

} // namespace Pelnar::App
