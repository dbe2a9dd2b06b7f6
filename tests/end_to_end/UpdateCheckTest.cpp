// UpdateCheckTest.cpp: whole checks, from the host's call to its observers, with the real session, the real engine and
// a local server.
#include "App/UpdateChecker/IUpdateManagerObserver.h"
#include "App/UpdateChecker/UpdateManager.h"
#include "HostFramework/Reference/ReferenceApplication.h"
#include "HostFramework/Reference/ReferenceCustomizationManager.h"
#include "HostFramework/Reference/ReferenceLinksManager.h"
#include "HostFramework/Reference/ReferenceNagScreenManager.h"
#include "HostFramework/VersionText.h"
#include "tests/end_to_end/EngineState.h"
#include "tests/engine/FeedText.h"
#include "tests/support/DialogDriver.h"
#include "tests/support/LoopbackServer.h"
#include "tests/support/TestCertificates.h"

#include <gtest/gtest.h>

#include <memory>
#include <ostream>
#include <string>
#include <vector>

namespace
{

using namespace Pelnar::Testing;
using Pelnar::App::UpdateCheckMode;
using Pelnar::App::UpdateManager;
using Notes = std::vector<std::string>;

std::string asText(Pelnar::Core::Version const& version)
{
    return Pelnar::Util::VersionToString(version, Pelnar::Util::VersionToStringDetail::PresentComponents,
                                         QStringLiteral("."))
        .toStdString();
}

/// Records the notifications to a host.
class NotingObserver : public Pelnar::App::IUpdateManagerObserver
{
public:
    void OnUpdateFound(Pelnar::Core::Version const& current, Pelnar::Core::Version const& remote) override
    {
        notes.push_back("found " + asText(current) + " -> " + asText(remote));
    }
    void OnUpdateAccepted(Pelnar::Core::Version const&, Pelnar::Core::Version const&) override
    {
        notes.push_back("accepted");
    }
    void OnUpdateDialogOpening() override { notes.push_back("opening"); }
    void OnUpdateDialogClosed() override { notes.push_back("closed"); }

    Notes notes;
};

class UpdateCheck : public ::testing::Test
{
protected:
    UpdateCheck() : nagScreens(std::make_shared<Pelnar::App::NagScreen::ReferenceManager>())
    {
        nagScreens->SetUnavailable(Pelnar::App::NagScreen::MajorUpdate);
    }

    ~UpdateCheck() override
    {
        application.SetServices({});
        nagScreens.reset();
    }

    void UseFeed(QUrl const& url)
    {
        Pelnar::App::Customization customization;
        customization.displayName = "Pelnar Test Host";
        customization.applicationVersion = Pelnar::Util::VersionFromString(QStringLiteral("5.0"), QStringLiteral("."));
        customization.bundleNameFirstPart = "Pelnar";
        customization.bundleNameSecondPart = "Host";
        application.SetServices({nagScreens,
                                 std::make_shared<Pelnar::App::ReferenceCustomizationManager>(customization),
                                 std::make_shared<Pelnar::App::ReferenceLinksManager>(
                                     Pelnar::App::Links{{Pelnar::URLKeys::SPARKLE_APPCAST_URL, url.toString()}})});
    }

    /// Runs one check until its manager ends. Then runs the engine's own check, which the dialog of the first one
    /// starts.
    Notes Check(UpdateCheckMode mode)
    {
        NotingObserver observer;
        UpdateManager::Initializer initializer(nullptr);
        initializer.checkMode = mode;
        initializer.observers = {&observer};
        UpdateManager::CheckForUpdates(initializer);
        EXPECT_NE(UpdateManager::GetCurrentUpdateManager(), nullptr);
        EXPECT_TRUE(WaitFor([] { return UpdateManager::GetCurrentUpdateManager() == nullptr; }));
        EXPECT_TRUE(WaitFor([] { return !IsEngineBusy(); }));
        return observer.notes;
    }

    int argc = 1;
    char name[5] = "test";
    char* argv[2] = {name, nullptr};
    Pelnar::App::ReferenceApplication application{argc, argv};
    std::shared_ptr<Pelnar::App::NagScreen::ReferenceManager> nagScreens;
};

struct ModeRow
{
    char const* name;
    UpdateCheckMode mode;
    Notes update;   ///< the notifications if 5.1 is available
    Notes noUpdate; ///< and if nothing is newer
};

void PrintTo(ModeRow const& row, std::ostream* out)
{
    *out << row.name;
}

class EveryMode : public UpdateCheck, public ::testing::WithParamInterface<ModeRow>
{
};

INSTANTIATE_TEST_SUITE_P(
    Modes, EveryMode,
    ::testing::Values(ModeRow{"UserInitiated",
                              UpdateCheckMode::UserInitiated,
                              {"found 5.0 -> 5.1", "opening", "closed"},
                              {"found 5.0 -> 5.0", "opening", "closed"}},
                      ModeRow{"Automatic", UpdateCheckMode::Automatic, {"found 5.0 -> 5.1", "opening", "closed"}, {}},
                      ModeRow{"Silent", UpdateCheckMode::Silent, {"found 5.0 -> 5.1"}, {}}),
    [](auto const& row) { return row.param.name; });

TEST_P(EveryMode, TellsAnUpdateInOrder)
{
    LoopbackServer server(Answering(OkAnswer(FeedWith(ItemOf("4.9") + ItemOf("5.1") + ItemOf("5.0")))));
    UseFeed(server.Url());
    EXPECT_EQ(Check(GetParam().mode), GetParam().update);
}

TEST_P(EveryMode, TellsNoUpdateAsItsRulesSay)
{
    LoopbackServer server(Answering(OkAnswer(FeedWith(ItemOf("4.9") + ItemOf("5.0")))));
    UseFeed(server.Url());
    EXPECT_EQ(Check(GetParam().mode), GetParam().noUpdate);
}

TEST_P(EveryMode, FailureIsNoUpdate)
{
    for (QByteArray const& answer : {QByteArray("HTTP/1.1 500 Broken\r\n\r\n"), OkAnswer("<rss><channel>"),
                                     OkAnswer("<html></html>"), QByteArray()})
    {
        LoopbackServer server(Answering(answer));
        UseFeed(server.Url());
        EXPECT_EQ(Check(GetParam().mode), GetParam().noUpdate) << answer.toStdString();
        EXPECT_FALSE(server.Requests().empty());
    }
}

TEST_P(EveryMode, ForbiddenAddressIsNoUpdate)
{
    UseFeed(QUrl(QStringLiteral("http://feeds.example.com/feed.xml")));
    EXPECT_EQ(Check(GetParam().mode), GetParam().noUpdate);
}

TEST_P(EveryMode, SecondCheckSeesTheNewFeed)
{
    LoopbackServer before(Answering(OkAnswer(FeedWith(ItemOf("5.0")))));
    LoopbackServer after(Answering(OkAnswer(FeedWith(ItemOf("5.1")))));
    UseFeed(before.Url());
    EXPECT_EQ(Check(GetParam().mode), GetParam().noUpdate);
    UseFeed(after.Url());
    EXPECT_EQ(Check(GetParam().mode), GetParam().update);
    EXPECT_EQ(Check(GetParam().mode), GetParam().update);
}

TEST_P(EveryMode, MajorUpdateWithoutANagScreenIsAnUpdate)
{
    LoopbackServer server(Answering(OkAnswer(FeedWith(ItemOf("6.0")))));
    UseFeed(server.Url());
    Notes expected = GetParam().update;
    expected.front() = "found 5.0 -> 6.0";
    EXPECT_EQ(Check(GetParam().mode), expected);
}

TEST_P(EveryMode, MajorUpdateWithANagScreenIsTheNagsAffair)
{
    LoopbackServer server(Answering(OkAnswer(FeedWith(ItemOf("6.0")))));
    UseFeed(server.Url());
    nagScreens->SetContent(Pelnar::App::NagScreen::MajorUpdate,
                           {QStringLiteral("Six"), QStringLiteral("Version six is here."), {}, {}});
    EXPECT_EQ(Check(GetParam().mode), Notes{});
    EXPECT_EQ(nagScreens->Window(Pelnar::App::NagScreen::MajorUpdate) != nullptr,
              GetParam().mode != UpdateCheckMode::Silent);
}

TEST_P(EveryMode, DeltaCountsAsItsVersion)
{
    LoopbackServer server(Answering(OkAnswer(FeedWith(ItemOf("5.1", DeltaOf("5.1", "5.0"))))));
    UseFeed(server.Url());
    EXPECT_EQ(Check(GetParam().mode), GetParam().update);
}

TEST_P(EveryMode, FeedOverHttpsAndARedirectIsRead)
{
    TestCertificates certificates;
    TrustedAuthority const trusted(certificates.Authority());
    ServerIdentity const identity = certificates.Signed("127.0.0.1");
    LoopbackServer feed(Answering(OkAnswer(FeedWith(ItemOf("5.1")))), identity);
    LoopbackServer server(Answering(RedirectAnswer(302, feed.Url().toEncoded())), identity);
    UseFeed(server.Url());
    EXPECT_EQ(Check(GetParam().mode), GetParam().update);
}

TEST_F(UpdateCheck, WhatTheUserAskedForMakesTheEnginesOwnCheckToo)
{
    LoopbackServer server(Answering(OkAnswer(FeedWith(ItemOf("5.1")))));
    UseFeed(server.Url());
    (void)Check(UpdateCheckMode::UserInitiated);
    EXPECT_EQ(server.Requests().size(), 2u) << "the probe, then the dialog's check";
}

TEST_F(UpdateCheck, CheckWhileOneRunsIsDropped)
{
    LoopbackServer server(Answering(OkAnswer(FeedWith(ItemOf("5.1")))));
    UseFeed(server.Url());
    NotingObserver second;
    UpdateManager::Initializer initializer(nullptr);
    initializer.checkMode = UpdateCheckMode::Silent;
    UpdateManager::CheckForUpdates(initializer);
    initializer.observers = {&second};
    UpdateManager::CheckForUpdates(initializer);
    ASSERT_TRUE(WaitFor([] { return UpdateManager::GetCurrentUpdateManager() == nullptr; }));
    EXPECT_EQ(second.notes, Notes{});
    EXPECT_EQ(server.Requests().size(), 1u);
}

} // namespace
