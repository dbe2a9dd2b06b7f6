// SettingsHost.cpp: a host application that has the engine read or change one user default, and says it.
// Usage: Notely get | on | off

#include "tests/engine/ScriptedDelegate.h"

#include <glog/logging.h>

#include <QCoreApplication>

#include <cstdio>
#include <cstdlib>

int main(int argc, char** argv)
{
    using namespace Pelnar::Testing;
    FLAGS_logtostderr = true;
    google::InitGoogleLogging(argv[0]);
    QCoreApplication const application(argc, argv);
    UpdaterDriver driver({});
    QString const wish = QCoreApplication::arguments().at(1);
    if (wish != QLatin1String("get"))
    {
        driver.SetDownloadsAutomatically(wish == QLatin1String("on"));
    }
    std::printf("%s", driver.DownloadsAutomatically() ? "on" : "off");
    return EXIT_SUCCESS;
}
