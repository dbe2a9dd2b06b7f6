// DemoMain.cpp: pelnar-demo, a small real host application of the update checker, for people and for scripts.
// It keeps user defaults of its own, which go with it.

#include "Demo/DemoOptions.h"
#include "Demo/DemoWindow.h"
#include "Demo/DialogGallery.h"
#include "Demo/EngineDefaults.h"
#include "Demo/WindowCamera.h"
#include "Foundation/IsolatedUserDefaults.h"
#include "HostFramework/Reference/ReferenceApplication.h"
#include "HostFramework/Reference/ReferenceNagScreenManager.h"
#include "HostFramework/Reference/ReferenceOSVersion.h"

#include <glog/logging.h>

#include <QDesktopServices>
#include <QTimer>

#include <chrono>
#include <cstdio>
#include <stdexcept>

namespace Pelnar::Demo
{
namespace
{

constexpr int STATUS_BAD_ARGUMENTS = 2;
constexpr std::chrono::seconds NAG_CONTENT_DELAY(3);

using App::NagScreen::MajorUpdate;
using NagScreens = App::NagScreen::ReferenceManager;

void FillNagScreen(std::shared_ptr<NagScreens> const& nagScreens, DemoOptions const& options)
{
    App::NagScreen::Content const content{
        QStringLiteral("A new generation of %1").arg(QString::fromStdString(options.customization.displayName)),
        QStringLiteral("A new major version is out: faster, clearer, and yours at the price of an upgrade."),
        QStringLiteral("See What Is New"), QUrl(QStringLiteral("https://www.example.com/upgrade"))};
    switch (options.nagContent)
    {
    case NagContent::Available:
        nagScreens->SetContent(MajorUpdate, content);
        break;
    case NagContent::None:
        nagScreens->SetUnavailable(MajorUpdate);
        break;
    case NagContent::Later:
        QTimer::singleShot(NAG_CONTENT_DELAY, nagScreens.get(),
                           [manager = nagScreens.get(), content] { manager->SetContent(MajorUpdate, content); });
        break;
    }
    QObject::connect(nagScreens.get(), &NagScreens::LinkRequested, nagScreens.get(),
                     [](QString const&, QUrl const& link) { QDesktopServices::openUrl(link); });
}

void StartScript(App::ReferenceApplication& application, DemoWindow& window, WindowCamera& camera, Script script)
{
    auto const finish = [&application, &window, &camera]
    {
        camera.TakePicture(window);
        application.TryToQuit();
    };
    switch (script)
    {
    case Script::None:
        break;
    case Script::CheckOnce:
        // One more turn of the event loop, for the picture of a window that opened last.
        QObject::connect(&window, &DemoWindow::CheckEnded, &window,
                         [&window, finish] { QTimer::singleShot(0, &window, finish); });
        QTimer::singleShot(0, &window, &DemoWindow::CheckForUpdates);
        break;
    case Script::ShowDialogs:
        QTimer::singleShot(0, &window,
                           [&application, &window, finish]
                           {
                               ShowEveryDialog(application, &window);
                               QTimer::singleShot(0, &window, finish);
                           });
        break;
    }
}

int RunDemo(App::ReferenceApplication& application, DemoOptions const& options)
{
    Util::SetOSVersion(options.systemVersion);
    if (!options.platform.isEmpty())
    {
        SetFeedPlatform(options.platform);
    }
    auto const nagScreens = std::make_shared<NagScreens>();
    FillNagScreen(nagScreens, options);
    application.SetServices({nagScreens, std::make_shared<App::ReferenceCustomizationManager>(options.customization),
                             std::make_shared<App::ReferenceLinksManager>(options.links)});

    WindowCamera camera(options.screenshotFolder, options.script == Script::None
                                                      ? WindowCamera::AfterPicture::LeaveOpen
                                                      : WindowCamera::AfterPicture::DismissDialogs);
    DemoWindow window(options);
    window.show();
    StartScript(application, window, camera, options.script);
    int const status = QCoreApplication::exec();
    return camera.HasWrittenAll() ? status : EXIT_FAILURE;
}

int Main(int argc, char** argv)
{
    Foundation::IsolatedUserDefaults const defaults;
    // Qt gets the program's name only: it would take --platform for an option of its own.
    int qtArgumentCount = 1;
    App::ReferenceApplication application(qtArgumentCount, argv);
    FLAGS_logtostderr = true;
    google::InitGoogleLogging(argv[0]);
    QStringList arguments;
    for (int i = 0; i < argc; ++i)
    {
        arguments.append(QString::fromLocal8Bit(argv[i]));
    }
    try
    {
        return RunDemo(application, ParseDemoOptions(arguments));
    }
    catch (std::runtime_error const& error)
    {
        std::fprintf(stderr, "pelnar-demo: %s; see --help\n", error.what());
        return STATUS_BAD_ARGUMENTS;
    }
}

} // namespace
} // namespace Pelnar::Demo

int main(int argc, char** argv)
{
    return Pelnar::Demo::Main(argc, argv);
}
