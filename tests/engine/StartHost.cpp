// StartHost.cpp: a small host application: one start, with one check or none, whose events it prints in a line.
// Usage: run FEED background|interactive|unchecked [confirm] [listen]
// With "listen" it stays until it hears that an installation failed.

#include "Foundation/IsolatedUserDefaults.h"
#include "tests/engine/ScriptedDelegate.h"
#include "tests/support/DialogDriver.h"

#include <Pelnar/HostRequests_p.h>

#include <glog/logging.h>

#include <QCoreApplication>
#include <QUrl>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <vector>

int main(int argc, char** argv)
{
    using namespace Pelnar::Testing;
    QByteArray const state = qgetenv("XDG_STATE_HOME");
    Pelnar::Foundation::IsolatedUserDefaults const defaults;
    qputenv("XDG_STATE_HOME", state); // one start hears of another
    FLAGS_logtostderr = true;
    google::InitGoogleLogging(argv[0]);
    QCoreApplication const application(argc, argv);
    QStringList const arguments = QCoreApplication::arguments();

    DelegateScript script;
    script.choose = [](int, std::vector<QString> const&) { return ScriptedChoice{ScriptedChoice::Kind::Item, 0, {}}; };
    UpdaterDriver driver(script);
    driver.SetFeed(QUrl(arguments.at(1)));
    bool const isUnchecked = arguments.at(2) == QLatin1String("unchecked");
    if (arguments.at(2) == QLatin1String("interactive"))
    {
        driver.CheckInteractively();
    }
    else if (!isUnchecked)
    {
        driver.CheckInBackground();
    }
    if (arguments.contains(QStringLiteral("confirm")))
    {
        Pelnar::Engine::ConfirmStart();
    }
    bool hasEnded = isUnchecked || driver.WaitForEnd();
    if (arguments.contains(QStringLiteral("listen")))
    {
        auto const isInstallation = [](std::string const& event) { return event.rfind("aborted 40", 0) == 0; };
        auto const hasHeard = [&]
        {
            std::vector<std::string> const events = driver.Events();
            return std::any_of(events.begin(), events.end(), isInstallation);
        };
        hasEnded = hasEnded && WaitFor(hasHeard);
    }
    for (std::string const& event : driver.Events())
    {
        std::printf("%s;", event.c_str());
    }
    return hasEnded ? EXIT_SUCCESS : EXIT_FAILURE;
}
