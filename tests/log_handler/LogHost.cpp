// LogHost.cpp: a host that makes one check of a missing feed and writes the records of its log handler to standard
// output. Its arguments say what else it does: "own-glog" initializes glog first, "handler" sets a handler, "replaced"
// replaces it, "removed" removes it, "refused-arguments" sets arguments with which no program can be started.

#include "App/UpdateChecker/UpdateManager.h"
#include "Foundation/IsolatedUserDefaults.h"
#include "HostFramework/Reference/ReferenceApplication.h"
#include "HostFramework/Reference/ReferenceCustomizationManager.h"
#include "HostFramework/Reference/ReferenceLinksManager.h"

#include <Pelnar/LogHandler.h>
#include <Pelnar/RelaunchArguments.h>

#include <glog/logging.h>

#include <QTimer>

#include <cstdio>
#include <string>

namespace
{

using namespace Pelnar;

LogHandler Printer(char const* name)
{
    return [name](LogRecord const& record)
    {
        std::string const file(record.file);
        std::string const text(record.text);
        std::printf("%s|%d|%s:%d|%s\n", name, static_cast<int>(record.severity), file.c_str(), record.line,
                    text.c_str());
    };
}

void Obey(std::string const& word, char const* program)
{
    if (word == "own-glog")
    {
        FLAGS_logtostderr = true;
        google::InitGoogleLogging(program);
    }
    else if (word == "handler")
    {
        SetLogHandler(Printer("first"));
    }
    else if (word == "replaced")
    {
        SetLogHandler(Printer("second"));
    }
    else if (word == "removed")
    {
        SetLogHandler({});
    }
    else if (word == "refused-arguments")
    {
        (void)SetRelaunchArguments({std::string("a\0b", 3)});
    }
}

} // namespace

int main(int argc, char** argv)
{
    for (int i = 1; i < argc; ++i)
    {
        Obey(argv[i], argv[0]);
    }
    qputenv("QT_QPA_PLATFORM", "offscreen");
    Foundation::IsolatedUserDefaults const defaults;
    int count = 1;
    App::ReferenceApplication application(count, argv);
    application.SetServices({nullptr,
                             std::make_shared<App::ReferenceCustomizationManager>(
                                 App::Customization{"Log Host", Core::Version(1, 0), "Log", "Host"}),
                             std::make_shared<App::ReferenceLinksManager>(App::Links{
                                 {URLKeys::SPARKLE_APPCAST_URL, QStringLiteral("file:///nonexistent/appcast.xml")}})});
    App::UpdateManager::CheckForUpdates(&application, true, nullptr, {});
    QTimer ended;
    QObject::connect(&ended, &QTimer::timeout, &application,
                     []
                     {
                         if (!App::UpdateManager::GetCurrentUpdateManager())
                         {
                             QCoreApplication::quit();
                         }
                     });
    ended.start(10);
    return QCoreApplication::exec();
}
