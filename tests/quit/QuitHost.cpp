// QuitHost.cpp: a host application with windows. It prepares an update silently and keeps it until it quits. It prints
// each notification of the engine on a line, and quits at the end of its input. Usage: run FEED [approve]
// approve: the update is installed immediately, but the application does not quit for it.

#include "Foundation/IsolatedUserDefaults.h"
#include "tests/engine/ScriptedDelegate.h"

#include <glog/logging.h>

#include <QApplication>
#include <QSocketNotifier>
#include <QUrl>

#include <cstdio>

#include <unistd.h>

int main(int argc, char** argv)
{
    using namespace Pelnar::Testing;
    QByteArray const state = qgetenv("XDG_STATE_HOME");
    Pelnar::Foundation::IsolatedUserDefaults const defaults;
    qputenv("XDG_STATE_HOME", state); // the helper still writes there when this process has ended
    FLAGS_logtostderr = true;
    google::InitGoogleLogging(argv[0]);
    QApplication const application(argc, argv);
    // Only the end of the input or the session manager ends this application.
    QApplication::setQuitOnLastWindowClosed(false);

    DelegateScript script;
    script.choose = [](int, std::vector<QString> const&) { return ScriptedChoice{ScriptedChoice::Kind::Item, 0, {}}; };
    script.onEvent = [](std::string const& event)
    {
        std::printf("%s\n", event.c_str());
        std::fflush(stdout);
    };
    if (QCoreApplication::arguments().contains(QStringLiteral("approve")))
    {
        script.onWillInstall = [](HeldInvocation installation) { installation.Invoke(); };
    }
    UpdaterDriver driver(script);
    driver.SetFeed(QUrl(QCoreApplication::arguments().at(1)));
    driver.SetDownloadsAutomatically(true);
    driver.CheckInBackground();

    QSocketNotifier const input(STDIN_FILENO, QSocketNotifier::Read);
    QObject::connect(&input, &QSocketNotifier::activated, &application, [] { QCoreApplication::quit(); });
    return QCoreApplication::exec();
}
