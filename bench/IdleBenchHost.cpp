// IdleBenchHost.cpp: a Qt program that prints its idle cost: the number of loaded shared libraries, their size in MiB,
// its processor time in milliseconds and its memory in MiB. With a feed's address as its argument it then makes one
// check. It prints the longest event of its event loop in milliseconds, and whether it found an update. Built with
// PELNAR_PLAIN_HOST, it is the same program without the update checker.

#include "bench/ProcessMemory.h"

#ifdef PELNAR_PLAIN_HOST
#include <QApplication>
#else
#include "App/UpdateChecker/IUpdateManagerObserver.h"
#include "App/UpdateChecker/UpdateManager.h"
#include "Foundation/IsolatedUserDefaults.h"
#include "HostFramework/Reference/ReferenceApplication.h"
#include "HostFramework/Reference/ReferenceCustomizationManager.h"
#include "HostFramework/Reference/ReferenceLinksManager.h"
#include "HostFramework/Reference/ReferenceNagScreenManager.h"
#include "bench/MeteredApplication.h"

#include <QTimer>
#endif

#include <cstdio>
#include <ctime>
#include <filesystem>
#include <fstream>
#include <set>
#include <string>

namespace
{

using namespace Pelnar;

void PrintIdleCost()
{
    timespec used{};
    ::clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &used);
    double const memory = static_cast<double>(Bench::KibibytesOf("VmRSS:")) / 1024;

    std::ifstream maps("/proc/self/maps");
    std::set<std::string> libraries;
    double bytes = 0;
    for (std::string line; std::getline(maps, line);)
    {
        std::size_t const path = line.find('/');
        if (path != std::string::npos && line.find(".so", path) != std::string::npos &&
            libraries.insert(line.substr(path)).second)
        {
            bytes += static_cast<double>(std::filesystem::file_size(line.substr(path)));
        }
    }
    std::printf("%zu %f %f %f\n", libraries.size(), bytes / (1 << 20),
                static_cast<double>(used.tv_sec) * 1e3 + static_cast<double>(used.tv_nsec) / 1e6, memory);
}

#ifndef PELNAR_PLAIN_HOST

class FindingObserver : public App::IUpdateManagerObserver
{
public:
    void OnUpdateFound(Core::Version const&, Core::Version const&) override { hasFound = true; }
    void OnUpdateAccepted(Core::Version const&, Core::Version const&) override {}
    void OnUpdateDialogOpening() override {}
    void OnUpdateDialogClosed() override {}

    bool hasFound = false;
};

using HostApplication = Bench::Metered<App::ReferenceApplication>;

App::ReferenceServices ServicesFor(QString const& feed)
{
    App::ReferenceServices services;
    services.nagScreenManager = std::make_shared<App::NagScreen::ReferenceManager>();
    services.customizationManager = std::make_shared<App::ReferenceCustomizationManager>(
        App::Customization{"Idle", Core::Version(5, 9), "Idle", "Host"});
    services.linksManager =
        std::make_shared<App::ReferenceLinksManager>(App::Links{{URLKeys::SPARKLE_APPCAST_URL, feed}});
    return services;
}

/// The call itself counts as an event.
void CheckOnce(HostApplication& application)
{
    FindingObserver observer;
    App::UpdateManager::Initializer initializer(&application);
    initializer.checkMode = App::UpdateCheckMode::Silent;
    initializer.observers = {&observer};
    QTimer::singleShot(0, &application,
                       [&initializer]
                       {
                           App::UpdateManager::CheckForUpdates(initializer);
                           QObject::connect(dynamic_cast<QObject*>(App::UpdateManager::GetCurrentUpdateManager()),
                                            &QObject::destroyed, QCoreApplication::instance(), &QCoreApplication::quit);
                       });
    application.Restart();
    QApplication::exec();
    std::printf("%f %d\n", application.LongestStallMilliseconds(), observer.hasFound);
}

#endif

} // namespace

int main(int argc, char** argv)
{
#ifdef PELNAR_PLAIN_HOST
    QApplication const application(argc, argv);
#else
    Foundation::IsolatedUserDefaults const defaults;
    HostApplication application(argc, argv);
    application.SetServices(ServicesFor(QString::fromLocal8Bit(argv[argc - 1])));
#endif
    QCoreApplication::processEvents();
    PrintIdleCost();
#ifndef PELNAR_PLAIN_HOST
    if (argc > 1)
    {
        CheckOnce(application);
    }
#endif
}
