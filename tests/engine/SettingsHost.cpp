// SettingsHost.cpp: a host application that lets the engine read or change one user default, and prints it.
// Usage: Notely get | on | off [OWN]
// With OWN, it also stores that text in its own defaults, before and after, and prints what it reads there.

#include "tests/engine/ScriptedDelegate.h"
#include "tests/engine/StoredDefaults.h"

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
    QStringList const words = QCoreApplication::arguments().mid(1);
    bool const hasOwn = words.size() == 2;
    if (hasOwn)
    {
        StoreOwnDefault(QStringLiteral("Before"), words[1]);
    }
    if (words[0] != QLatin1String("get"))
    {
        driver.SetDownloadsAutomatically(words[0] == QLatin1String("on"));
    }
    std::printf("%s", driver.DownloadsAutomatically() ? "on" : "off");
    if (hasOwn)
    {
        StoreOwnDefault(QStringLiteral("After"), words[1]);
        std::printf(" %s %s %s", qUtf8Printable(OwnDefault(QStringLiteral("Before"))),
                    qUtf8Printable(OwnDefault(QStringLiteral("After"))),
                    qUtf8Printable(OwnDefault(QStringLiteral("SUAutomaticallyUpdate"))));
    }
    return EXIT_SUCCESS;
}
