// DemoMain.cpp: pelnar-demo, a small real host application of the update checker, for people and for scripts. In a
// bundle it is an ordinary application with the bundle's name and version. Elsewhere it uses temporary user defaults,
// which are removed at its end.

#include "Demo/DemoBundle.h"
#include "Demo/DemoOptions.h"
#include "Demo/DemoWindow.h"
#include "Demo/EngineDefaults.h"
#include "Demo/HostOptions.h"
#include "Demo/NamedAuthorities.h"
#include "Demo/ScriptRun.h"
#include "Demo/WindowCamera.h"
#include "Foundation/IsolatedUserDefaults.h"
#include "HostFramework/Reference/ReferenceApplication.h"
#include "HostFramework/Reference/ReferenceNagScreenManager.h"
#include "HostFramework/Reference/ReferenceOSVersion.h"

#include <Pelnar/GoodStart.h>

#include <glog/logging.h>

#include <QDesktopServices>
#include <QTimer>

#include <chrono>
#include <cstdio>
#include <optional>
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
        nagScreens->ExpectContent(MajorUpdate);
        QTimer::singleShot(NAG_CONTENT_DELAY, nagScreens.get(),
                           [manager = nagScreens.get(), content] { manager->SetContent(MajorUpdate, content); });
        break;
    }
    QObject::connect(nagScreens.get(), &NagScreens::LinkRequested, nagScreens.get(),
                     [](QString const&, QUrl const& link) { QDesktopServices::openUrl(link); });
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

    bool const isDismissing = options.script == Script::CheckOnce || options.script == Script::ShowDialogs;
    WindowCamera camera(options.screenshotFolder, isDismissing ? WindowCamera::AfterPicture::DismissDialogs
                                                               : WindowCamera::AfterPicture::LeaveOpen);
    // Dialogs without a title use it.
    QGuiApplication::setApplicationDisplayName(QString::fromStdString(options.customization.displayName));
    DemoWindow window(options);
    window.show();
    // When the event loop runs, the window is drawn and reacts: this is a good start.
    QTimer::singleShot(0, &window, [] { ConfirmGoodStart(); });
    ScriptRun script(application, window, camera, options);
    script.Start();
    int const status = QCoreApplication::exec();
    return camera.HasWrittenAll() && script.IsComplete() ? status : EXIT_FAILURE;
}

int Main(int argc, char** argv)
{
    std::optional<Foundation::IsolatedUserDefaults> defaults;
    if (!RunsFromBundle())
    {
        defaults.emplace();
    }
    // Qt gets only the program's name: it would take --platform for its own option.
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
        TrustNamedAuthorities();
        return RunDemo(application, ParseDemoOptions(ArgumentsOrEnvironment(arguments),
                                                     ReadBundle().value_or(UnbundledApplication())));
    }
    catch (HelpRequest const& help)
    {
        std::printf("%s\n", help.text.toUtf8().constData());
        return EXIT_SUCCESS;
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
