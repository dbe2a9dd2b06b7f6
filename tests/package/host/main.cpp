// main.cpp: a host that makes one check, of the feed file in its argument or the feed that its bundle names, and prints
// the notifications.

#include "App/UpdateChecker/IUpdateManagerObserver.h"
#include "App/UpdateChecker/UpdateManager.h"
#include "HostFramework/Application.h"
#include "HostFramework/ICustomizationManager.h"
#include "HostFramework/ILinksManager.h"
#include "HostFramework/NagScreenManager.h"
#include "HostFramework/VersionText.h"

#include <Pelnar/FeedAge.h>
#include <Pelnar/GoodStart.h>

#include <QTextStream>
#include <QTimer>
#include <QUrl>

#include <cstdlib>

namespace
{

using Pelnar::Core::Version;

class Links : public Pelnar::App::ILinksManager
{
public:
    explicit Links(QString feed) : m_feed(std::move(feed)) {}
    QString GetLink(Pelnar::URLKeys key) const override
    {
        return key == Pelnar::URLKeys::SPARKLE_APPCAST_URL ? m_feed : QString();
    }

private:
    QString m_feed;
};

class Customization : public Pelnar::App::ICustomizationManager
{
public:
    std::string GetDisplayName() const override { return "Tiny Host"; }
    Version GetApplicationVersion() const override { return Version(1, 0); }
    std::string GetBundleNameFirstPart() const override { return "Tiny"; }
    std::string GetBundleNameSecondPart() const override { return "Host"; }
};

class NoNags : public Pelnar::App::NagScreen::Manager
{
public:
    int GetContentState(QString const&) const override { return Pelnar::App::NagScreen::CONTENT_UNAVAILABLE; }
    void Show(QString const&) override {}
};

class TinyHost : public Pelnar::App::Application
{
public:
    TinyHost(int& argc, char** argv, QString const& feed)
        : Application(argc, argv), m_links(std::make_shared<Links>(feed))
    {
    }
    std::shared_ptr<Pelnar::App::NagScreen::Manager> GetNagScreenManager() const override { return m_nags; }
    std::shared_ptr<Pelnar::App::ICustomizationManager> GetCustomizationManager() const override { return m_names; }
    std::shared_ptr<Pelnar::App::ILinksManager> GetLinksManager() const override { return m_links; }
    bool TryToQuit() override
    {
        quit();
        return true;
    }

private:
    std::shared_ptr<NoNags> m_nags = std::make_shared<NoNags>();
    std::shared_ptr<Customization> m_names = std::make_shared<Customization>();
    std::shared_ptr<Links> m_links;
};

class Printer : public Pelnar::App::IUpdateManagerObserver
{
public:
    void OnUpdateFound(Version const& current, Version const& remote) override
    {
        auto const text = [](Version const& version)
        {
            return Pelnar::Util::VersionToString(version, Pelnar::Util::VersionToStringDetail::PresentComponents,
                                                 QStringLiteral("."));
        };
        QTextStream(stdout) << "found " << text(remote) << " for " << text(current) << '\n';
    }
    void OnUpdateAccepted(Version const&, Version const&) override {}
    void OnUpdateDialogOpening() override {}
    void OnUpdateDialogClosed() override {}
};

} // namespace

int main(int argc, char** argv)
{
    QString const feed = argc > 1 ? QUrl::fromLocalFile(QString::fromLocal8Bit(argv[1])).toString() : QString();
    TinyHost host(argc, argv, feed);
    Pelnar::ConfirmGoodStart();
    Printer printer;
    Pelnar::App::UpdateManager::Initializer initializer(&host);
    initializer.checkMode = Pelnar::App::UpdateCheckMode::Silent;
    initializer.observers = {&printer};
    Pelnar::App::UpdateManager::CheckForUpdates(initializer);

    QTimer ended;
    QObject::connect(&ended, &QTimer::timeout, &host,
                     [&host]
                     {
                         if (!Pelnar::App::UpdateManager::GetCurrentUpdateManager())
                         {
                             host.quit();
                         }
                     });
    ended.start(10);
    int const status = host.exec();
    return Pelnar::UnchangedFeedDays() >= 0 ? status : EXIT_FAILURE;
}
