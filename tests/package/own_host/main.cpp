// main.cpp: Notely opens one document, and comes back with it after an update.
#include "App/UpdateChecker/UpdateManager.h"
#include "HostFramework/Application.h"
#include "HostFramework/ICustomizationManager.h"
#include "HostFramework/ILinksManager.h"
#include "HostFramework/NagScreenManager.h"

#include <Pelnar/LogHandler.h>
#include <Pelnar/RelaunchArguments.h>

#include <QLabel>

#include <cstdio>

using namespace Pelnar;

class Names : public App::ICustomizationManager
{
public:
    std::string GetDisplayName() const override { return "Notely"; }
    Core::Version GetApplicationVersion() const override { return Core::Version(NOTELY_VERSION, 0); }
    std::string GetBundleNameFirstPart() const override { return "Notely"; }
    std::string GetBundleNameSecondPart() const override { return "Notes"; }
};

class Links : public App::ILinksManager
{
public:
    QString GetLink(URLKeys) const override { return {}; } // the bundle's information file names the feed
};

class NoNagScreens : public App::NagScreen::Manager
{
public:
    int GetContentState(QString const&) const override { return App::NagScreen::CONTENT_UNAVAILABLE; }
    void Show(QString const&) override {}
};

class Notely : public App::Application
{
public:
    Notely(int& argc, char** argv) : Application(argc, argv), m_document(argc > 1 ? argv[1] : "") {}

    std::shared_ptr<App::NagScreen::Manager> GetNagScreenManager() const override { return m_nagScreens; }
    std::shared_ptr<App::ICustomizationManager> GetCustomizationManager() const override { return m_names; }
    std::shared_ptr<App::ILinksManager> GetLinksManager() const override { return m_links; }
    bool TryToQuit() override
    {
        bool const comesBack = m_document.empty() || SetRelaunchArguments({m_document});
        std::printf("Notely %d quits%s\n", NOTELY_VERSION, comesBack ? "" : ", and forgets its document");
        quit();
        return true;
    }
    std::string const& Document() const { return m_document; }

private:
    std::string m_document; // as the file system has it
    std::shared_ptr<NoNagScreens> m_nagScreens = std::make_shared<NoNagScreens>();
    std::shared_ptr<Names> m_names = std::make_shared<Names>();
    std::shared_ptr<Links> m_links = std::make_shared<Links>();
};

int main(int argc, char** argv)
{
    std::setvbuf(stdout, nullptr, _IOLBF, 0);
    SetLogHandler([](LogRecord const& record) { std::printf("log: %s\n", std::string(record.text).c_str()); });
    Notely notely(argc, argv);
    QLabel window(QString::fromLocal8Bit(notely.Document().c_str()));
    window.show();
    std::printf("Notely %d shows \"%s\"\n", NOTELY_VERSION, notely.Document().c_str());
    App::UpdateManager::CheckForUpdates(&notely, true, [&window] { return &window; }, {});
    return notely.exec();
}
