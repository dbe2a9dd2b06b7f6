// main.cpp: Notely opens one document, and comes back with it after an update.
#include "App/UpdateChecker/UpdateManager.h"
#include "HostFramework/Application.h"
#include "HostFramework/ICustomizationManager.h"
#include "HostFramework/ILinksManager.h"

#include <Pelnar/LogHandler.h>
#include <Pelnar/RelaunchArguments.h>

#include <QLabel>

#include <cstdio>

using namespace Pelnar;

class NamesAndLinks : public App::ICustomizationManager, public App::ILinksManager
{
public:
    std::string GetDisplayName() const override { return "Notely"; }
    Core::Version GetApplicationVersion() const override { return Core::Version(NOTELY_VERSION, 0); }
    std::string GetBundleNameFirstPart() const override { return "Notely"; }
    std::string GetBundleNameSecondPart() const override { return "Notes"; }
    QString GetLink(URLKeys) const override { return {}; } // the bundle's information file names the feed
};

class Notely : public App::Application
{
public:
    Notely(int& argc, char** argv) : Application(argc, argv), document(argc > 1 ? argv[1] : "") {}

    std::shared_ptr<App::NagScreen::Manager> GetNagScreenManager() const override { return nullptr; } // it has none
    std::shared_ptr<App::ICustomizationManager> GetCustomizationManager() const override { return m_services; }
    std::shared_ptr<App::ILinksManager> GetLinksManager() const override { return m_services; }
    bool TryToQuit() override
    {
        bool const comesBack = document.empty() || SetRelaunchArguments({document});
        std::printf("Notely %d quits%s\n", NOTELY_VERSION, comesBack ? "" : ", and forgets its document");
        quit();
        return true;
    }

    std::string const document; // as the file system has it

private:
    std::shared_ptr<NamesAndLinks> m_services = std::make_shared<NamesAndLinks>();
};

int main(int argc, char** argv)
{
    std::setvbuf(stdout, nullptr, _IOLBF, 0);
    SetLogHandler([](LogRecord const& record) { std::printf("log: %s\n", std::string(record.text).c_str()); });
    Notely notely(argc, argv);
    QLabel window(QString::fromLocal8Bit(notely.document.c_str()));
    window.show();
    std::printf("Notely %d shows \"%s\"\n", NOTELY_VERSION, notely.document.c_str());
    App::UpdateManager::CheckForUpdates(&notely, true, [&window] { return &window; }, {});
    return notely.exec();
}
