// ReferenceApplication.h: the application object of the reference host framework.
//
//     Pelnar::App::ReferenceApplication application(argc, argv);
//     QString const settings = QStringLiteral("/opt/notes/settings.ini");
//     application.SetServices(
//         {nullptr,
//          std::make_shared<Pelnar::App::ReferenceCustomizationManager>(Pelnar::App::ReadCustomization(settings)),
//          std::make_shared<Pelnar::App::ReferenceLinksManager>(Pelnar::App::ReadLinks(settings))});
//
// Thread: the Qt main thread. Ownership: made by the host's main function; shares the services with those who ask for
// them and drops its part before QApplication goes, so that services may own windows.
//
// A host family with a framework of its own derives from App::Application in the same way: hand out the three services
// and answer TryToQuit. Nothing else of this folder is then needed.
#pragma once

#include "HostFramework/Application.h"

namespace Pelnar::App
{

/// What a host lends to the updater.
struct ReferenceServices
{
    std::shared_ptr<NagScreen::Manager> nagScreenManager; ///< null: one without content
    std::shared_ptr<ICustomizationManager> customizationManager;
    std::shared_ptr<ILinksManager> linksManager;
};

class PELNAR_EXPORT ReferenceApplication : public Application
{
    Q_OBJECT

public:
    /// Without services: those that own widgets can only be made once this object lives.
    ReferenceApplication(int& argc, char** argv);
    ~ReferenceApplication() override;

    /// Replaces all three services. Call it before the first check; a check that runs keeps those it was started with.
    void SetServices(ReferenceServices const& services);

    /// Never null: a host without nag screens has none available.
    std::shared_ptr<NagScreen::Manager> GetNagScreenManager() const override;
    /// Both throw std::logic_error when the host has not given the service to SetServices.
    std::shared_ptr<ICustomizationManager> GetCustomizationManager() const override;
    std::shared_ptr<ILinksManager> GetLinksManager() const override;

    /// Sends a close event to every visible top-level window, modal ones first. When all accept, the event loops are
    /// left and the answer is true. At the first refusal nothing quits and the answer is false; windows that were asked
    /// before it stay as they are (a dialog counts as rejected). Also false while an earlier call is still asking.
    bool TryToQuit() override;

private:
    ReferenceServices m_services;
    bool m_isAskingWindows = false;
};

} // namespace Pelnar::App
