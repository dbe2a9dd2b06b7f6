// Application.h: the host's application object, the one QCoreApplication of the process.
//
//     using namespace Pelnar::App;
//     class Notes : public Application
//     {
//     public:
//         using Application::Application;
//
//         std::shared_ptr<NagScreen::Manager> GetNagScreenManager() const override { return nullptr; }
//         std::shared_ptr<ICustomizationManager> GetCustomizationManager() const override { return names; }
//         std::shared_ptr<ILinksManager> GetLinksManager() const override { return links; }
//         bool TryToQuit() override
//         {
//             bool const isClosed = window->close(); // the window asks what to do with unsaved work
//             if (isClosed)
//             {
//                 quit();
//             }
//             return isClosed;
//         }
//
//         std::shared_ptr<ICustomizationManager> names;
//         std::shared_ptr<ILinksManager> links;
//         QWidget* window = nullptr;
//     };
//
// Thread: the Qt main thread. Ownership: made by the host's main function; it owns the services it lends.
#pragma once

#include "common/Export.h"

#include <QApplication>

#include <memory>

namespace Pelnar::App
{

class ICustomizationManager;
class ILinksManager;
namespace NagScreen
{
class Manager;
}

class PELNAR_EXPORT Application : public QApplication
{
    Q_OBJECT

public:
    /// As for QApplication: \a argc and \a argv must stay valid as long as the object.
    Application(int& argc, char** argv);
    ~Application() override;

    /// The process's application object. REQUIRES: it is a Pelnar::App::Application. (A check for updates that finds
    /// another one does not start: std::logic_error.)
    static Application* Instance() { return static_cast<Application*>(QCoreApplication::instance()); }

    /// The three services of a check; the updater takes them once for each check, in this order. A check without a
    /// customization or a links service does not start: std::logic_error. Without nag screens (null) a major update is
    /// offered in the update dialog.
    virtual std::shared_ptr<NagScreen::Manager> GetNagScreenManager() const = 0;
    virtual std::shared_ptr<ICustomizationManager> GetCustomizationManager() const = 0;
    virtual std::shared_ptr<ILinksManager> GetLinksManager() const = 0;

    /// Asks the application to quit so that an update can be installed; false when something (unsaved work, say) holds
    /// it back.
    virtual bool TryToQuit() = 0;
};

} // namespace Pelnar::App
