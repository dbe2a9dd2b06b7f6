// IdleHost.cpp: a Qt program that does what it is told, and prints what happens in a line each.
// Usage: idle_host [WORD...]
//   libraries      the shared libraries that are loaded, by their paths
//   feed=ADDRESS   of the checks that follow
//   check, ask     a check that shows nothing; one that a person asks for, whose first dialog is printed and closed
//   confirm        says that this start went well
//   days           asks for how long the feed has not changed
//   relaunch=TEXT  says what the next version is started with; two words when the text has a comma
//   cd=FOLDER      changes the working directory
//   move=FROM:TO   renames a file
//   memory=BYTES   from now on the process gets at most so many more
//   scarce=NUMBER  the request for memory with this number, from 0, in other threads than the main one is refused
//   main           whether Foundation takes this thread for the main one
// Built with PELNAR_OPENED_HOST it is a library of this; with PELNAR_PLAIN_HOST it is the same program without the
// update checker, and knows the first word only.

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
#include "HostFramework/VersionText.h"
#include "tests/support/ScarceMemory.h"

#include <Pelnar/FeedAge.h>
#include <Pelnar/GoodStart.h>
#include <Pelnar/RelaunchArguments.h>

#include <glog/logging.h>

#include <QDir>
#include <QMessageBox>
#include <QTimer>
#endif

#include <cstdio>
#include <fstream>
#include <optional>
#include <set>
#include <string>
#ifndef PELNAR_PLAIN_HOST
#include <dlfcn.h>
#include <sys/resource.h>
#include <unistd.h>
#endif

namespace
{

void PrintLibraries()
{
    std::ifstream maps("/proc/self/maps");
    std::set<std::string> paths;
    for (std::string line; std::getline(maps, line);)
    {
        std::size_t const path = line.find('/');
        if (path != std::string::npos && line.find(".so", path) != std::string::npos)
        {
            paths.insert(line.substr(path));
        }
    }
    for (std::string const& path : paths)
    {
        std::printf("library %s\n", path.c_str());
    }
}

#ifndef PELNAR_PLAIN_HOST

using namespace Pelnar;

/// Asks Foundation as Objective-C would: this host is not linked with it.
void PrintWhetherThreadIsMain()
{
    void* const runtime = ::dlopen("libobjc.so.4", RTLD_LAZY | RTLD_NOLOAD);
    if (!runtime)
    {
        std::puts("main: no Foundation");
        return;
    }
    auto const classNamed = reinterpret_cast<void* (*)(char const*)>(::dlsym(runtime, "objc_lookUpClass"));
    auto const selector = reinterpret_cast<void* (*)(char const*)>(::dlsym(runtime, "sel_registerName"));
    using Method = signed char (*)(void*, void*);
    auto const methodOf = reinterpret_cast<Method (*)(void*, void*)>(::dlsym(runtime, "objc_msg_lookup"));
    void* const thread = classNamed("NSThread");
    void* const question = selector("isMainThread");
    std::printf("main %d\n", methodOf(thread, question)(thread, question));
}

std::string TextOf(Core::Version const& version)
{
    return Util::VersionToString(version, Util::VersionToStringDetail::PresentComponents, QStringLiteral("."))
        .toStdString();
}

class Printer : public App::IUpdateManagerObserver
{
public:
    void OnUpdateFound(Core::Version const& current, Core::Version const& remote) override
    {
        std::printf("found %s %s\n", TextOf(current).c_str(), TextOf(remote).c_str());
    }
    void OnUpdateAccepted(Core::Version const&, Core::Version const&) override {}
    void OnUpdateDialogOpening() override { std::puts("opening"); }
    void OnUpdateDialogClosed() override { std::puts("closed"); }
};

class Host
{
public:
    Host(int& argc, char** argv) : application(argc, argv) {}

    void Check(App::UpdateCheckMode mode)
    {
        App::ReferenceServices services;
        services.nagScreenManager = std::make_shared<App::NagScreen::ReferenceManager>();
        services.customizationManager = std::make_shared<App::ReferenceCustomizationManager>(
            App::Customization{"Idle", Core::Version(5, 9), "Idle", "Host"});
        services.linksManager =
            std::make_shared<App::ReferenceLinksManager>(App::Links{{URLKeys::SPARKLE_APPCAST_URL, feed}});
        application.SetServices(services);
        App::UpdateManager::Initializer initializer(&application);
        initializer.checkMode = mode;
        initializer.observers = {&printer};
        App::UpdateManager::CheckForUpdates(initializer);
        std::printf("returned %s\n", App::UpdateManager::GetCurrentUpdateManager() ? "running" : "over");

        QTimer watch;
        QObject::connect(&watch, &QTimer::timeout,
                         []
                         {
                             if (auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget()))
                             {
                                 std::printf("dialog %s: %s\n", qPrintable(box->objectName()), qPrintable(box->text()));
                                 box->close();
                             }
                             if (!App::UpdateManager::GetCurrentUpdateManager())
                             {
                                 QCoreApplication::quit();
                             }
                         });
        watch.start(5);
        QApplication::exec();
        std::puts("ended");
    }

    App::ReferenceApplication application;
    QString feed;
    std::optional<Testing::ScarceMemory> memory;
    Printer printer;
};

void Obey(Host& host, QString const& word)
{
    QString const value = word.section(QLatin1Char('='), 1);
    if (word == QLatin1String("check"))
    {
        host.Check(App::UpdateCheckMode::Silent);
    }
    else if (word == QLatin1String("ask"))
    {
        host.Check(App::UpdateCheckMode::UserInitiated);
    }
    else if (word == QLatin1String("confirm"))
    {
        ConfirmGoodStart();
    }
    else if (word == QLatin1String("days"))
    {
        std::printf("days %d\n", UnchangedFeedDays());
    }
    else if (word.startsWith(QLatin1String("feed=")))
    {
        host.feed = value;
    }
    else if (word.startsWith(QLatin1String("relaunch=")))
    {
        std::vector<std::string> arguments;
        for (QString const& argument : value.split(QLatin1Char(',')))
        {
            arguments.push_back(argument.toStdString());
        }
        std::printf("relaunch %d\n", SetRelaunchArguments(arguments));
    }
    else if (word == QLatin1String("main"))
    {
        PrintWhetherThreadIsMain();
    }
    else if (word.startsWith(QLatin1String("memory=")))
    {
        std::size_t pages = 0;
        std::ifstream("/proc/self/statm") >> pages;
        rlim_t const most = pages * static_cast<std::size_t>(::sysconf(_SC_PAGESIZE)) + value.toULongLong();
        rlimit const limit{most, most};
        std::printf("memory %d\n", ::setrlimit(RLIMIT_AS, &limit));
    }
    else if (word.startsWith(QLatin1String("scarce=")))
    {
        host.memory.emplace(Testing::ScarceIn::OtherThreads, value.toLong(), 1);
    }
    else if (word.startsWith(QLatin1String("cd=")))
    {
        QDir::setCurrent(value);
    }
    else if (word.startsWith(QLatin1String("move=")))
    {
        std::printf("moved %d\n",
                    QFile::rename(value.section(QLatin1Char(':'), 0, 0), value.section(QLatin1Char(':'), 1)));
    }
}

#endif

} // namespace

#ifdef PELNAR_OPENED_HOST
extern "C" __attribute__((visibility("default"))) int RunHost(int argc, char** argv)
#else
int main(int argc, char** argv)
#endif
{
    std::setvbuf(stdout, nullptr, _IOLBF, 0);
#ifdef PELNAR_PLAIN_HOST
    QApplication const application(argc, argv);
    QStringList const words = QCoreApplication::arguments();
#else
    Foundation::IsolatedUserDefaults const defaults;
    FLAGS_logtostderr = true;
    google::InitGoogleLogging(argv[0]);
    Host host(argc, argv);
    QStringList const words = QCoreApplication::arguments();
#endif
    for (QString const& word : words.mid(1))
    {
        if (word == QLatin1String("libraries"))
        {
            PrintLibraries();
        }
#ifndef PELNAR_PLAIN_HOST
        Obey(host, word);
#endif
    }
    return 0;
}
