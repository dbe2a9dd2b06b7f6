// A whole check with the update checker's own objects and the engine. The host framework has only the operations that
// the update checker calls.
#include "tests/minimal_host/MinimalHost.h"
#include "App/UpdateChecker/IUpdateManagerObserver.h"
#include "App/UpdateChecker/UpdateManager.h"
#include "HostFramework/Application.h"
#include "HostFramework/ICustomizationManager.h"
#include "HostFramework/ILinksManager.h"
#include "HostFramework/NagScreenManager.h"
#include "tests/support/DialogDriver.h"
#include "tests/support/LoopbackServer.h"

#include <gtest/gtest.h>

#include <link.h>

#include <algorithm>
#include <functional>

namespace
{

using namespace Pelnar::App;
using namespace Pelnar::Testing;
using Pelnar::URLKeys;
using Pelnar::Core::Version;

/// The test's action at each call of the host.
std::function<void()> hostHook;

void Reach()
{
    // A copy: the hook may remove itself.
    std::function<void()> const hook = hostHook;
    if (hook)
    {
        hook();
    }
}

class NagScreens : public NagScreen::Manager
{
public:
    int GetContentState(QString const&) const override { return state; }
    void Show(QString const& name) override { shown.push_back(name); }

    int state = NagScreen::CONTENT_UNAVAILABLE;
    std::vector<QString> shown;
};

class Names : public ICustomizationManager
{
public:
    std::string GetDisplayName() const override
    {
        Reach();
        return "Minimal";
    }
    Version GetApplicationVersion() const override
    {
        Reach();
        return Version(5, 9);
    }
    std::string GetBundleNameFirstPart() const override { return "First"; }
    std::string GetBundleNameSecondPart() const override { return "Second"; }
};

class Links : public ILinksManager
{
public:
    QString GetLink(URLKeys) const override
    {
        Reach();
        return feed;
    }
    QString feed;
};

class Host : public Application
{
public:
    using Application::Application;
    std::shared_ptr<NagScreen::Manager> GetNagScreenManager() const override
    {
        Reach();
        return nagScreens;
    }
    std::shared_ptr<ICustomizationManager> GetCustomizationManager() const override { return names; }
    std::shared_ptr<ILinksManager> GetLinksManager() const override { return links; }
    bool TryToQuit() override { return false; }

    std::shared_ptr<NagScreens> nagScreens = std::make_shared<NagScreens>();
    std::shared_ptr<Names> names = std::make_shared<Names>();
    std::shared_ptr<Links> links = std::make_shared<Links>();
};

class Listener : public IUpdateManagerObserver
{
public:
    void OnUpdateFound(Version const& current, Version const& remote) override
    {
        found = {current.Major(), current.Minor(), remote.Major(), remote.Minor()};
        Reach();
    }
    void OnUpdateAccepted(Version const&, Version const&) override {}
    void OnUpdateDialogOpening() override {}
    void OnUpdateDialogClosed() override {}

    std::vector<int> found;
};

class MinimalHost : public ::testing::Test
{
protected:
    /// Runs a silent check of a feed with these two versions. The first one needs a newer system than this one may be.
    void Check(std::string const& refused, std::string const& offered)
    {
        UpdateManager::Initializer initializer(&host);
        initializer.checkMode = UpdateCheckMode::Silent;
        initializer.observers = {&listener};
        Run(refused, offered, initializer);
    }
    void Run(std::string const& refused, std::string const& offered, UpdateManager::Initializer const& initializer)
    {
        LoopbackServer const server(Answering(OkAnswer(QByteArray::fromStdString(Feed(refused, offered)))));
        host.links->feed = server.Url().toString();
        UpdateManager::CheckForUpdates(initializer);
        EXPECT_TRUE(WaitFor([] { return UpdateManager::GetCurrentUpdateManager() == nullptr; }));
    }
    static std::string Item(std::string const& version, std::string const& minimumSystem)
    {
        return "<item><title>t</title><sparkle:minimumSystemVersion>" + minimumSystem +
               "</sparkle:minimumSystemVersion><enclosure url=\"https://downloads.test/" + version +
               ".zip\" length=\"1000\" sparkle:version=\"" + version + "\"/></item>";
    }
    static std::string Feed(std::string const& refused, std::string const& offered)
    {
        return "<?xml version=\"1.0\"?><rss version=\"2.0\" "
               "xmlns:sparkle=\"http://www.andymatuschak.org/xml-namespaces/sparkle\"><channel>" +
               Item(refused, "v11.3") + Item(offered, "v11.2") + "</channel></rss>";
    }

    int argc = 1;
    char name[8] = "minimal";
    char* argv[2] = {name, nullptr};
    Host host{argc, argv};
    Listener listener;
};

TEST_F(MinimalHost, IsTheOnlyHostFrameworkOfTheProgram)
{
    std::vector<std::string> libraries;
    dl_iterate_phdr(
        [](dl_phdr_info* library, std::size_t, void* names)
        {
            static_cast<std::vector<std::string>*>(names)->emplace_back(library->dlpi_name);
            return 0;
        },
        &libraries);
    auto const loaded = [&libraries](char const* part)
    {
        return std::any_of(libraries.begin(), libraries.end(),
                           [part](std::string const& path) { return path.find(part) != std::string::npos; });
    };
    EXPECT_TRUE(loaded("libpelnar_minimal_host"));
    EXPECT_FALSE(loaded("libPelnarHostFramework"));
}

TEST_F(MinimalHost, ItsParserSaysWhatAVersionIs)
{
    Check("v5.12", "v5.11");
    EXPECT_EQ(listener.found, (std::vector<int>{5, 9, 5, 11})) << "the newer one is for newer systems";
    for (char const* const text : {"v5.11", "v11.3", "v11.2"})
    {
        EXPECT_TRUE(std::count(AskedVersions().begin(), AskedVersions().end(), QString::fromLatin1(text))) << text;
    }
}

TEST_F(MinimalHost, WhatOnlyAnotherParserTakesIsNoVersion)
{
    Check("v5.12", "5.11");
    EXPECT_TRUE(listener.found.empty());
    EXPECT_TRUE(std::count(AskedVersions().begin(), AskedVersions().end(), QStringLiteral("5.11"))) << "it was asked";
}

TEST_F(MinimalHost, ParentThatGoesInAnyCallOfTheHostLeavesTheNextCheckPossible)
{
    int places = 0;
    for (bool isReached = true; isReached; ++places)
    {
        SCOPED_TRACE(places);
        isReached = false;
        auto parent = std::make_unique<QObject>();
        int calls = 0;
        hostHook = [&]
        {
            if (calls++ == places)
            {
                isReached = true;
                parent.reset();
                EXPECT_EQ(UpdateManager::GetCurrentUpdateManager(), nullptr);
            }
        };
        UpdateManager::Initializer initializer(parent.get());
        initializer.checkMode = UpdateCheckMode::Silent;
        initializer.observers = {&listener};
        Run("v5.12", "v5.11", initializer);
        hostHook = nullptr;
        listener.found.clear();
        Check("v5.12", "v5.11");
        EXPECT_EQ(listener.found, (std::vector<int>{5, 9, 5, 11})) << "the session is free";
    }
    EXPECT_EQ(places, 7) << "nag screens, name, link, version; version and observer when there is a result; none";
}

TEST_F(MinimalHost, ItsNagScreensAnnounceAMajorUpdate)
{
    host.nagScreens->state = NagScreen::CONTENT_AVAILABLE;
    UpdateManager::Initializer initializer(&host);
    initializer.observers = {&listener};
    Run("v7.0", "v6.0", initializer);
    EXPECT_EQ(host.nagScreens->shown, std::vector<QString>{QStringLiteral("major_update")});
    EXPECT_TRUE(listener.found.empty());
}

} // namespace
