// UpdateScenarioTest.cpp: whole updates of an installed application by real processes: the host, its helper, the server
// and the new version. The demo application makes the checks through UpdateManager, and the clicks.
#include "tests/end_to_end/UpdateScenario.h"
#include "tests/support/JapaneseLocale.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <ostream>

namespace Pelnar::Testing
{
namespace
{

TEST_F(UpdateScenario, APersonInstallsAndTheNewVersionRuns)
{
    UpdateServer server;
    DemoOutput const output = Run(server, WHOLE_FEED, Script("user", "update", {INSTALL, RELAUNCH}));
    EXPECT_TRUE(output.Says(FOUND)) << output.Text();
    ExpectUpdated(output);
    EXPECT_EQ(demo.Pictures(), (Names{"PelnarDemoWindow", "PelnarEngine_checkingWindow", "PelnarEngine_progressWindow",
                                      "PelnarEngine_readyWindow", "PelnarEngine_updateWindow"}));
}

struct FolderName
{
    char const* name;
    char const* bytes;
};

std::string const LONGEST_NAME(255, 'n');

class FolderOfAnyName : public UpdateScenario, public testing::WithParamInterface<FolderName>
{
};

TEST_P(FolderOfAnyName, HoldsAnApplicationThatStartsAndIsUpdated)
{
    demo.MoveApplications(GetParam().bytes);
    UpdateServer server;
    ExpectUpdated(Run(server, WHOLE_FEED, Script("user", "update", {INSTALL, RELAUNCH})));
}

INSTANTIATE_TEST_SUITE_P(Table, FolderOfAnyName,
                         testing::Values(FolderName{"NoUtf8", "a\xff\xfe\xc3"}, FolderName{"Backslash", "back\\slash"},
                                         FolderName{"QuotesAndALinesEnd", "it's \"one\"\nfolder"},
                                         FolderName{"BeyondAscii", "\xc3\xa4\xe2\x82\xac"},
                                         FolderName{"Of255Bytes", LONGEST_NAME.c_str()}),
                         [](testing::TestParamInfo<FolderName> const& info) { return info.param.name; });

/// A text in no encoding, in the environment of this process and its children.
class OddVariable
{
public:
    explicit OddVariable(char const* name, std::string const& value = "caf\xe9\xff") : m_name(name)
    {
        ::setenv(name, value.c_str(), 1);
    }
    ~OddVariable() { ::unsetenv(m_name); }
    OddVariable(OddVariable const&) = delete;
    OddVariable& operator=(OddVariable const&) = delete;

private:
    char const* m_name;
};

TEST_F(UpdateScenario, AnEnvironmentThatIsNotUtf8ChangesNothing)
{
    OddVariable const value("ODD");
    OddVariable const name("ODD\xff");
    UpdateServer server;
    ExpectUpdated(Run(server, WHOLE_FEED, Script("user", "update", {INSTALL, RELAUNCH})));
}

struct HomeName
{
    char const* name;
    char const* bytes;
    char const* locale;
};

class HomeOfAnyName : public UpdateScenario, public testing::WithParamInterface<HomeName>
{
};

TEST_P(HomeOfAnyName, HoldsAllFilesOfAnUpdate)
{
    QTemporaryDir const above;
    std::filesystem::path const home = above.path().toStdString() + '/' + GetParam().bytes;
    std::filesystem::create_directory(home);
    {
        OddVariable const cache("XDG_CACHE_HOME", home / "cache");
        OddVariable const config("XDG_CONFIG_HOME", home / "config");
        OddVariable const state("XDG_STATE_HOME", home / "state");
        demo.UseHomeOfThisProcess();
        demo.SetVariables({GetParam().locale});
        UpdateServer server;
        ExpectUpdated(Run(server, WHOLE_FEED, Script("user", "update", {INSTALL, RELAUNCH})));
    }
    EXPECT_TRUE(std::filesystem::exists(home / "state/com.example.pelnar-demo/updates/feed"));
    EXPECT_TRUE(std::filesystem::exists(home / "cache/com.example.pelnar-demo/updates"));
    std::filesystem::remove_all(home);
    EXPECT_TRUE(std::filesystem::is_empty(above.path().toStdString())) << "files in another folder";
}

INSTANTIATE_TEST_SUITE_P(Table, HomeOfAnyName,
                         testing::Values(HomeName{"NoUtf8", "caf\xe9", "LC_ALL=C.UTF-8"},
                                         HomeName{"NoUtf8WithoutALocale", "caf\xe9", "LC_ALL=C"},
                                         HomeName{"BeyondAsciiWithoutALocale", "caf\xc3\xa9", "LC_ALL=C"}),
                         [](testing::TestParamInfo<HomeName> const& info) { return info.param.name; });

/// The published bundles contain names beyond ASCII. Here the application's path has one, too.
TEST_F(UpdateScenario, AnApplicationOfAnyLocaleIsUpdatedToNamesAsTheyAre)
{
    std::vector<std::vector<std::string>> locales{{"LC_ALL=C"}, {"LC_ALL=", "LANG=POSIX"}};
    if (std::vector<std::string> const japanese = JapaneseVariables(); !japanese.empty())
    {
        locales.push_back(japanese);
    }
    for (std::vector<std::string> const& variables : locales)
    {
        for (char const* const feed : {WHOLE_FEED, DELTA_FEED})
        {
            SCOPED_TRACE(variables.back() + ' ' + feed);
            InstalledDemo application;
            application.SetVariables(variables);
            application.MoveApplications(u8"\u00e4 \u304b\u3099");
            UpdateServer server;
            DemoOutput const output =
                application.Run(server.Url(QString::fromLatin1(feed)), Script("user", "update", {INSTALL, RELAUNCH}));
            EXPECT_TRUE(output.hasEnded) << output.Text();
            EXPECT_TRUE(application.Tree() == NewTree()) << output.Text();
        }
    }
}

TEST_F(UpdateScenario, ASilentDownloadEndsInTheDialogAndTheNewVersionRuns)
{
    UpdateServer server;
    demo.WriteDefaults(DOWNLOADS_SILENTLY);
    DemoOutput const output = Run(server, WHOLE_FEED, Script("automatic", "update", {SESSION_RELAUNCH}));
    EXPECT_TRUE(output.Says(FOUND)) << output.Text();
    ExpectUpdated(output);
    EXPECT_EQ(demo.Pictures(), (Names{"PelnarDemoWindow", "SparkleUpdater_updateIsReadyToInstallDialog"}))
        << "no window of the engine";
}

TEST_F(UpdateScenario, ASettingOfAnEarlierVersionIsCopied)
{
    UpdateServer server;
    demo.WriteEarlierDefaults(DOWNLOADS_SILENTLY);
    ExpectUpdated(Run(server, WHOLE_FEED, Script("automatic", "update", {SESSION_RELAUNCH})));
    EXPECT_TRUE(demo.ReadDefaults().contains("SUAutomaticallyUpdate = YES;")) << demo.ReadDefaults().toStdString();
    EXPECT_EQ(demo.ReadEarlierDefaults().toStdString(), DOWNLOADS_SILENTLY) << "it is left as it is";
}

TEST_F(UpdateScenario, AVersionSkippedInTheDialogIsSkippedAfterwards)
{
    UpdateServer server;
    demo.WriteDefaults(DOWNLOADS_SILENTLY);
    ExpectUntouched(Run(server, WHOLE_FEED, Script("automatic", "answer", {SESSION_SKIP})));
    EXPECT_TRUE(demo.ReadDefaults().contains("SUSkippedVersion = 5.10;")) << demo.ReadDefaults().toStdString();
    EXPECT_FALSE(Run(server, WHOLE_FEED, Script("automatic", "check")).Says(FOUND));
}

TEST_F(UpdateScenario, ADeltaIsAllThatIsDownloaded)
{
    UpdateServer server;
    ExpectUpdated(Run(server, DELTA_FEED, Script("user", "update", {INSTALL, RELAUNCH})));
    Names const served = server.EndAndListServedFiles();
    EXPECT_EQ(std::count(served.begin(), served.end(), DELTA_ARCHIVE), 1);
    EXPECT_EQ(std::count(served.begin(), served.end(), WHOLE_ARCHIVE), 0);
}

TEST_F(UpdateScenario, ASilentDeltaIsInstalledAsWell)
{
    UpdateServer server;
    demo.WriteDefaults(DOWNLOADS_SILENTLY);
    ExpectUpdated(Run(server, DELTA_FEED, Script("automatic", "update", {SESSION_RELAUNCH})));
    Names const served = server.EndAndListServedFiles();
    EXPECT_EQ(std::count(served.begin(), served.end(), WHOLE_ARCHIVE), 0);
}

TEST_F(UpdateScenario, DeltaThatCannotBeFetchedIsReplacedByTheWholeSilently)
{
    UpdateServer server({QStringLiteral("status:PelnarDemo-5.9-5.10.delta:404")});
    ExpectUpdated(Run(server, DELTA_FEED, Script("user", "update", {INSTALL, RELAUNCH})));
    Names const served = server.EndAndListServedFiles();
    EXPECT_EQ(std::count(served.begin(), served.end(), WHOLE_ARCHIVE), 1);
}

TEST_F(UpdateScenario, ASkippedVersionIsOfferedOnlyToAPersonWhoAsks)
{
    UpdateServer server;
    DemoOutput const skipping = Run(server, WHOLE_FEED, Script("automatic", "answer", {SKIP}));
    EXPECT_TRUE(skipping.Says(FOUND)) << skipping.Text();
    EXPECT_TRUE(demo.ReadDefaults().contains("SUSkippedVersion")) << demo.ReadDefaults().toStdString();

    DemoOutput const background = Run(server, WHOLE_FEED, Script("automatic", "check"));
    EXPECT_FALSE(background.Says(FOUND)) << background.Text();

    ExpectUntouched(Run(server, WHOLE_FEED, Script("user", "answer", {REMIND})));
}

TEST_F(UpdateScenario, ATamperedArchiveIsRefusedAndTheOldVersionStarts)
{
    UpdateServer server;
    ExpectUntouched(Run(server, TAMPERED_FEED, Script("user", "answer", {INSTALL, CLOSE_ERROR})));
    Names const pictures = demo.Pictures();
    EXPECT_EQ(std::count(pictures.begin(), pictures.end(), "PelnarEngine_errorWindow"), 1);
}

TEST_F(UpdateScenario, AVersionThatFailsToStartTwiceIsRolledBackAndOfferedOnlyToAPersonWhoAsks)
{
    UpdateServer server;
    DemoOutput const output = Run(server, BROKEN_FEED, Script("user", "update", {INSTALL, RELAUNCH}));
    EXPECT_TRUE(output.Says(FOUND_BROKEN)) << output.Text();
    EXPECT_EQ(output.RunningVersions(), (Names{"5.9", "5.9"})) << output.Text();
    EXPECT_EQ(output.Count("error while loading shared libraries"), 2) << output.Text();
    EXPECT_TRUE(demo.Tree() == OldTree());

    DemoOutput const background = Run(server, BROKEN_FEED, Script("automatic", "check"));
    EXPECT_FALSE(background.Says(FOUND_BROKEN)) << background.Text();
    DemoOutput const asked = Run(server, BROKEN_FEED, Script("user", "answer", {REMIND}));
    EXPECT_TRUE(asked.Says(std::string("Clicking ") + REMIND)) << asked.Text();
    EXPECT_TRUE(demo.Tree() == OldTree());
}

TEST_F(UpdateScenario, AnUpdateThatIsInstalledIsNotOfferedAgain)
{
    UpdateServer server;
    ExpectUpdated(Run(server, WHOLE_FEED, Script("user", "update", {INSTALL, RELAUNCH})));
    DemoOutput const output = Run(server, WHOLE_FEED, Script("user", "answer", {CLOSE_UP_TO_DATE}));
    EXPECT_EQ(output.RunningVersions(), Names{"5.10"}) << output.Text();
}

TEST_F(UpdateScenario, AVersionThatWasOfferedAndRefusedDoesNotBlockTheNext)
{
    PublishedSite const site;
    QByteArray feed = site.Read(TAMPERED_FEED);
    feed.replace("sparkle:version=\"5.10\"", "sparkle:version=\"2147483647\"");
    site.Write("appcast-forward.xml", feed);
    UpdateServer server(site);
    QStringList const aPersonInstalls = Script("user", "answer", {INSTALL, CLOSE_ERROR});
    DemoOutput const forward = Run(server, "appcast-forward.xml",
                                   aPersonInstalls + QStringList{QStringLiteral("--nag"), QStringLiteral("none")});
    EXPECT_TRUE(forward.Says("OnUpdateFound current=5.9 remote=2147483647")) << forward.Text();
    ExpectUntouched(forward);
    EXPECT_FALSE(demo.ReadDefaults().contains("2147483647")) << demo.ReadDefaults().toStdString();

    DemoOutput const honest = Run(server, WHOLE_FEED, Script("user", "update", {INSTALL, RELAUNCH}));
    EXPECT_TRUE(honest.Says(FOUND)) << honest.Text();
    ExpectUpdated(honest);
}

TEST_F(UpdateScenario, AnApplicationThatRequiresItUpdatesByASignedFeedOnly)
{
    PublishedSite const site;
    UpdateServer server(site);
    demo.AddInformation("PelnarRequiresSignedFeed = YES;");
    DemoOutput const refusing = Run(server, WHOLE_FEED, Script("user", "check"));
    EXPECT_FALSE(refusing.Says(FOUND)) << refusing.Text();

    site.Run("sign-feed", WHOLE_FEED, {QStringLiteral("--serial"), QStringLiteral("2")});
    QByteArray const replayed = site.Read(WHOLE_FEED);
    site.Run("sign-feed", WHOLE_FEED);
    DemoOutput const reminded = Run(server, WHOLE_FEED, Script("user", "answer", {REMIND}));
    EXPECT_TRUE(reminded.Says(FOUND)) << reminded.Text();

    QByteArray const newest = site.Read(WHOLE_FEED);
    site.Write(WHOLE_FEED, replayed);
    DemoOutput const replaying = Run(server, WHOLE_FEED, Script("user", "check"));
    EXPECT_FALSE(replaying.Says(FOUND)) << replaying.Text();

    site.Write(WHOLE_FEED, newest);
    ExpectUpdated(Run(server, WHOLE_FEED, Script("user", "update", {INSTALL, RELAUNCH})));
}

/// The start of a check, and the windows that follow.
struct ModeRow
{
    char const* name;
    char const* mode;
    char const* scenario;
    std::vector<char const*> clicks;
    Names windows;
};

std::ostream& operator<<(std::ostream& out, ModeRow const& row)
{
    return out << row.name;
}

class EveryModeOfTheInstalledDemo : public UpdateScenario, public testing::WithParamInterface<ModeRow>
{
};

TEST_P(EveryModeOfTheInstalledDemo, TellsItsObserversAndShowsItsWindows)
{
    UpdateServer server;
    DemoOutput const output = Run(server, WHOLE_FEED, Script(GetParam().mode, GetParam().scenario, GetParam().clicks));
    EXPECT_TRUE(output.Says(FOUND)) << output.Text();
    EXPECT_EQ(output.Says("OnUpdateDialogOpening"), !GetParam().clicks.empty()) << output.Text();
    EXPECT_EQ(demo.Pictures(), GetParam().windows);
}

INSTANTIATE_TEST_SUITE_P(
    Modes, EveryModeOfTheInstalledDemo,
    testing::Values(
        ModeRow{"UserInitiated",
                "user",
                "answer",
                {REMIND},
                {"PelnarDemoWindow", "PelnarEngine_checkingWindow", "PelnarEngine_updateWindow"}},
        ModeRow{"Automatic", "automatic", "answer", {REMIND}, {"PelnarDemoWindow", "PelnarEngine_updateWindow"}},
        ModeRow{"Silent", "silent", "check", {}, {"PelnarDemoWindow"}}),
    [](auto const& info) { return std::string(info.param.name); });

/// The ways to decline: nothing is installed and nothing stays behind.
struct Refusal
{
    char const* name;
    char const* mode;
    char const* defaults;
    std::vector<char const*> clicks;
};

std::ostream& operator<<(std::ostream& out, Refusal const& row)
{
    return out << row.name;
}

class RefusedUpdate : public UpdateScenario, public testing::WithParamInterface<Refusal>
{
};

TEST_P(RefusedUpdate, LeavesTheOldVersionAsItWas)
{
    UpdateServer server;
    demo.WriteDefaults(GetParam().defaults);
    ExpectUntouched(Run(server, WHOLE_FEED, Script(GetParam().mode, "answer", GetParam().clicks)));
}

INSTANTIATE_TEST_SUITE_P(Table, RefusedUpdate,
                         testing::Values(Refusal{"Reminded", "user", "{}", {REMIND}},
                                         Refusal{"Skipped", "user", "{}", {SKIP}},
                                         Refusal{"CancelledDownload", "user", "{}", {INSTALL, CANCEL_DOWNLOAD}},
                                         Refusal{"LaterWhenReady", "user", "{}", {INSTALL, LATER}},
                                         Refusal{"SilentThenLater", "automatic", DOWNLOADS_SILENTLY, {SESSION_LATER}},
                                         Refusal{"SilentThenSkipped", "automatic", DOWNLOADS_SILENTLY, {SESSION_SKIP}}),
                         [](auto const& info) { return std::string(info.param.name); });

TEST_F(UpdateScenario, MissingArchiveIsReportedInOneWindow)
{
    UpdateServer server({QStringLiteral("status:PelnarDemo-5.10.tar.zst:404")});
    ExpectUntouched(Run(server, WHOLE_FEED, Script("user", "answer", {INSTALL, CLOSE_ERROR})));
}

} // namespace
} // namespace Pelnar::Testing
