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
// Thread: the Qt main thread. Ownership: the host's main function creates it; it owns the services that it lends.
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
    /// As for QApplication: \a argc and \a argv must stay valid while the object lives.
    Application(int& argc, char** argv);
    ~Application() override;

    /// The process's application object. REQUIRES: it is a Pelnar::App::Application. (A check for updates that finds
    /// another object does not start and throws std::logic_error.)
    static Application* Instance() { return static_cast<Application*>(QCoreApplication::instance()); }

    /// The three services of a check. The updater takes them once for each check, in this order. Without a
    /// customization or a links service the check does not start and throws std::logic_error. Without nag screens
    /// (null) a major update is offered in the update dialog.
    virtual std::shared_ptr<NagScreen::Manager> GetNagScreenManager() const = 0;
    virtual std::shared_ptr<ICustomizationManager> GetCustomizationManager() const = 0;
    virtual std::shared_ptr<ILinksManager> GetLinksManager() const = 0;

    /// Asks the application to quit so that an update can be installed. Returns false if something, such as unsaved
    /// work, prevents this.
    virtual bool TryToQuit() = 0;
};

} // namespace Pelnar::App
