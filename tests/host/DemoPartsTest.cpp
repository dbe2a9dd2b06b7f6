// DemoPartsTest.cpp: the parts of the demo hosts that need no check: command lines, reports, the reading of the log.

#include "Demo/CheckFailureLog.h"
#include "Demo/CheckRun.h"
#include "Demo/DemoOptions.h"
#include "Demo/HostOptions.h"
#include "Demo/UpdateCheckOptions.h"
#include "Demo/UpdateCheckReport.h"
#include "common/LogSite.h"
#include "tests/host/TestHost.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QJsonDocument>
#include <QTemporaryDir>

#include <ostream>
#include <stdexcept>

namespace Pelnar::Demo
{
namespace
{

using Core::Version;

QStringList Words(char const* line)
{
    return QString::fromLatin1(line).split(QLatin1Char(' '), Qt::SkipEmptyParts);
}

// --- pelnar-update-check's command line ---

struct BadLine
{
    char const* name;
    char const* arguments;
    char const* message;
};

std::ostream& operator<<(std::ostream& out, BadLine const& row)
{
    return out << row.name;
}

class BadUpdateCheckLine : public testing::TestWithParam<BadLine>
{
};

TEST_P(BadUpdateCheckLine, IsRefusedWithASentence)
{
    std::string said = "nothing was thrown";
    try
    {
        ParseUpdateCheckOptions(Words("pelnar-update-check") + Words(GetParam().arguments));
    }
    catch (std::runtime_error const& error)
    {
        said = error.what();
    }
    EXPECT_EQ(said, GetParam().message);
}

INSTANTIATE_TEST_SUITE_P(
    Table, BadUpdateCheckLine,
    testing::Values(BadLine{"Nothing", "", "--feed is required"},
                    BadLine{"NoFeed", "--local-version 1.0", "--feed is required"},
                    BadLine{"EmptyFeed", "--feed= --local-version 1.0", "--feed is required"},
                    BadLine{"NoLocalVersion", "--feed a.xml", "--local-version is required"},
                    BadLine{"BadFeed", "--feed http://[ --local-version 1.0",
                            "--feed: \"http://[\" is not an address or a path"},
                    BadLine{"BadLocalVersion", "--feed a.xml --local-version 1.x",
                            "--local-version: \"1.x\" is not a version such as 5.10"},
                    BadLine{"BadSystemVersion", "--feed a.xml --local-version 1 --system-version new",
                            "--system-version: \"new\" is not a version such as 5.10"},
                    BadLine{"BadPlatform", "--feed a.xml --local-version 1 --platform windows",
                            "--platform: \"windows\" is not one of macos|linux"},
                    BadLine{"EmptyPlatform",
                            "--feed a.xml --local-version 1 --platform=", "--platform: \"\" is not one of macos|linux"},
                    BadLine{"BadMode", "--feed a.xml --local-version 1 --mode loud",
                            "--mode: \"loud\" is not one of user|automatic|silent"},
                    BadLine{"ZeroTimeout", "--feed a.xml --local-version 1 --timeout 0",
                            "--timeout: \"0\" is not a number of seconds from 1 to 3600"},
                    BadLine{"HugeTimeout", "--feed a.xml --local-version 1 --timeout 3601",
                            "--timeout: \"3601\" is not a number of seconds from 1 to 3600"},
                    BadLine{"TextTimeout", "--feed a.xml --local-version 1 --timeout soon",
                            "--timeout: \"soon\" is not a number of seconds from 1 to 3600"},
                    BadLine{"Positional", "--feed a.xml --local-version 1 more", "unexpected argument \"more\""},
                    BadLine{"UnknownOption", "--feed a.xml --local-version 1 --no-such", "Unknown option 'no-such'."},
                    BadLine{"MissingValue", "--local-version 1 --feed", "Missing value after '--feed'."}),
    [](auto const& info) { return std::string(info.param.name); });

UpdateCheckOptions Parsed(char const* arguments)
{
    return ParseUpdateCheckOptions(Words("pelnar-update-check --feed https://localhost/f.xml --local-version 5.9") +
                                   Words(arguments));
}

TEST(UpdateCheckLine, HasDefaults)
{
    UpdateCheckOptions const options = Parsed("");
    EXPECT_EQ(options.feed, QUrl(QStringLiteral("https://localhost/f.xml")));
    EXPECT_TRUE(options.localVersion == Version(5, 9));
    EXPECT_TRUE(options.systemVersion.isNull());
    EXPECT_TRUE(options.platform.isNull());
    EXPECT_EQ(options.mode, App::UpdateCheckMode::UserInitiated);
    EXPECT_EQ(options.timeout.count(), 120);
    EXPECT_FALSE(options.json);
    EXPECT_FALSE(options.verbose);
    EXPECT_FALSE(options.outcomeInExitStatus);
}

TEST(UpdateCheckLine, TakesEveryOption)
{
    UpdateCheckOptions const options = Parsed("--system-version 10.15.7 --platform macos --mode silent --timeout 3600 "
                                              "--json --verbose --exit-code");
    EXPECT_EQ(options.systemVersion, QStringLiteral("10.15.7"));
    EXPECT_EQ(options.platform, QStringLiteral("macos"));
    EXPECT_EQ(options.mode, App::UpdateCheckMode::Silent);
    EXPECT_EQ(options.timeout.count(), 3600);
    EXPECT_TRUE(options.json);
    EXPECT_TRUE(options.verbose);
    EXPECT_TRUE(options.outcomeInExitStatus);
    EXPECT_EQ(Parsed("--platform linux").platform, QStringLiteral("linux"));
    EXPECT_EQ(Parsed("--mode automatic").mode, App::UpdateCheckMode::Automatic);
    EXPECT_EQ(Parsed("--mode user").mode, App::UpdateCheckMode::UserInitiated);
}

TEST(UpdateCheckLine, HelpNamesTheExitStatus)
{
    Testing::TestHost const host;
    QString text;
    try
    {
        ParseUpdateCheckOptions(Words("pelnar-update-check --help"));
    }
    catch (HelpRequest const& help)
    {
        text = help.text;
    }
    EXPECT_TRUE(text.contains(QLatin1String("--feed")));
    EXPECT_TRUE(text.contains(QLatin1String("Exit status")));
}

TEST(FeedAddress, IsAFileAddressForAPath)
{
    EXPECT_EQ(FeedAddress(QStringLiteral("https://localhost/a b.xml")),
              QUrl(QStringLiteral("https://localhost/a b.xml")));
    EXPECT_EQ(FeedAddress(QStringLiteral("file:///tmp/a.xml")), QUrl(QStringLiteral("file:///tmp/a.xml")));
    EXPECT_EQ(FeedAddress(QStringLiteral("FILE:/tmp/a.xml")).scheme(), QStringLiteral("file"));
    EXPECT_EQ(FeedAddress(QStringLiteral("/tmp/a#b%20.xml")).toLocalFile(), QStringLiteral("/tmp/a#b%20.xml"));
    EXPECT_EQ(FeedAddress(QStringLiteral("a.xml")),
              QUrl::fromLocalFile(QDir::current().absoluteFilePath(QStringLiteral("a.xml"))));
    EXPECT_EQ(FeedAddress(QStringLiteral("c:a.xml")).scheme(), QStringLiteral("file"));
}

// --- reports ---

struct OutcomeRow
{
    char const* name;
    Version current;
    Version remote;
    char const* failure;
    CheckOutcome expected;
    char const* summary;
};

std::ostream& operator<<(std::ostream& out, OutcomeRow const& row)
{
    return out << row.name;
}

UpdateCheckReport ReportOf(OutcomeRow const& row)
{
    return {row.current, {{QStringLiteral("OnUpdateFound"), Versions{row.current, row.remote}}}, row.failure};
}

class Report : public testing::TestWithParam<OutcomeRow>
{
};

TEST_P(Report, TellsTheOutcomeByTheVersions)
{
    EXPECT_EQ(OutcomeOf(ReportOf(GetParam())), GetParam().expected);
    EXPECT_EQ(SummaryOf(ReportOf(GetParam())).toStdString(), GetParam().summary);
}

INSTANTIATE_TEST_SUITE_P(
    Table, Report,
    testing::Values(
        OutcomeRow{"Newer", Version(5, 9), Version(5, 10), "", CheckOutcome::Update, "update available: 5.9 -> 5.10"},
        OutcomeRow{"NewMajor", Version(5, 9), Version(6), "", CheckOutcome::MajorUpdate,
                   "major update available: 5.9 -> 6"},
        OutcomeRow{"Equal", Version(5, 9), Version(5, 9), "", CheckOutcome::NoUpdate, "no update: 5.9"},
        OutcomeRow{"EqualButForZeros", Version(5, 9), Version(5, 9, 0), "", CheckOutcome::NoUpdate, "no update: 5.9"},
        OutcomeRow{"Older", Version(5, 9), Version(5, 8), "", CheckOutcome::NoUpdate, "no update: 5.9"},
        OutcomeRow{"NoVersion", Version(5, 9), Version(), "", CheckOutcome::NoUpdate, "no update: 5.9"},
        OutcomeRow{"Failed", Version(5, 9), Version(5, 9), "the network is down", CheckOutcome::Failed,
                   "the check could not be completed: the network is down"},
        OutcomeRow{"FailedAfterAll", Version(5, 9), Version(6), "x", CheckOutcome::Failed,
                   "the check could not be completed: x"}),
    [](auto const& info) { return std::string(info.param.name); });

TEST(ReportWithoutNotifications, HasNoUpdate)
{
    EXPECT_EQ(OutcomeOf({Version(5, 9), {}, ""}), CheckOutcome::NoUpdate);
}

TEST(ReportAsJson, HoldsTheOutcomeAndEveryNotification)
{
    UpdateCheckReport const report{Version(5, 9),
                                   {{QStringLiteral("OnUpdateFound"), Versions{Version(5, 9), Version(6, 0)}},
                                    {QStringLiteral("OnUpdateDialogOpening"), std::nullopt}},
                                   ""};
    EXPECT_EQ(JsonOf(report).toStdString(),
              R"({"current":"5.9","notifications":[{"current":"5.9","name":"OnUpdateFound","remote":"6.0"},)"
              R"({"name":"OnUpdateDialogOpening"}],"outcome":"major-update","remote":"6.0"})");
    EXPECT_EQ(JsonOf({Version(5, 9), {}, "say \"why\""}).toStdString(),
              R"({"current":"5.9","error":"say \"why\"","notifications":[],"outcome":"failed"})");
    EXPECT_EQ(JsonOf({Version(5, 9), {}, ""}).toStdString(),
              R"({"current":"5.9","notifications":[],"outcome":"no-update"})");
}

TEST(ExitStatus, CarriesTheOutcomeOnlyWhenAsked)
{
    EXPECT_EQ(ExitStatusOf(CheckOutcome::Failed, false), 1);
    EXPECT_EQ(ExitStatusOf(CheckOutcome::NoUpdate, false), 0);
    EXPECT_EQ(ExitStatusOf(CheckOutcome::Update, false), 0);
    EXPECT_EQ(ExitStatusOf(CheckOutcome::MajorUpdate, false), 0);
    EXPECT_EQ(ExitStatusOf(CheckOutcome::Failed, true), 1);
    EXPECT_EQ(ExitStatusOf(CheckOutcome::NoUpdate, true), 0);
    EXPECT_EQ(ExitStatusOf(CheckOutcome::Update, true), 10);
    EXPECT_EQ(ExitStatusOf(CheckOutcome::MajorUpdate, true), 11);
}

TEST(Recorder, PassesEveryNotificationOn)
{
    QStringList lines;
    NotificationRecorder recorder([&](Notification const& notification) { lines.append(TextOf(notification)); });
    recorder.OnUpdateFound(Version(5, 9), Version());
    recorder.OnUpdateDialogOpening();
    recorder.OnUpdateAccepted(Version(5, 9), Version(5, 10));
    recorder.OnUpdateDialogClosed();
    EXPECT_EQ(lines, (QStringList{QStringLiteral("OnUpdateFound current=5.9 remote=none"),
                                  QStringLiteral("OnUpdateDialogOpening"),
                                  QStringLiteral("OnUpdateAccepted current=5.9 remote=5.10"),
                                  QStringLiteral("OnUpdateDialogClosed")}));
}

// --- the reading of the log ---

Core::LogFile const SESSION("App/UpdateChecker/SparkleImpl/SparkleManager");
Core::LogFile const OTHER("App/UpdateChecker/SparkleImpl/UpdaterSparkle");

void WriteRecord(Core::LogFile const& file, Core::LogSeverity severity, int line, char const* prefix, char const* text)
{
    Core::LogSite const site{severity, file, line, prefix};
    Core::Write(site, text);
}

void WriteAbort(char const* text)
{
    WriteRecord(SESSION, Core::LogSeverity::Error, 837, "-[PelnarSparkleUpdaterDelegate updater:didAbortWithError:]",
                text);
}

TEST(FailureLog, KeepsTheFirstFailureWithoutItsSignature)
{
    CheckFailureLog const log;
    EXPECT_EQ(log.FirstFailure(), "");
    WriteAbort("cannot connect to f(x): refused");
    WriteAbort("second");
    EXPECT_EQ(log.FirstFailure(), "cannot connect to f(x): refused");
}

TEST(FailureLog, KnowsTheSignaturesOfFunctions)
{
    {
        CheckFailureLog const log;
        WriteRecord(SESSION, Core::LogSeverity::Error, 475,
                    "bool Pelnar::App::SparkleManager::Impl::EnsureContext() const", "Context is NULL");
        EXPECT_EQ(log.FirstFailure(), "Context is NULL");
    }
    {
        CheckFailureLog const log;
        WriteRecord(SESSION, Core::LogSeverity::Error, 614, "void Pelnar::App::SparkleManager::CheckForUpdates()",
                    "Exception while checkForUpdateInformation: why");
        EXPECT_EQ(log.FirstFailure(), "Exception while checkForUpdateInformation: why");
    }
}

TEST(FailureLog, TakesNoOtherRecordForAFailure)
{
    CheckFailureLog const log;
    WriteRecord(OTHER, Core::LogSeverity::Error, 837, "f()", "another file");
    WriteRecord(SESSION, Core::LogSeverity::Error, 440, "f()", "two items of the same rank");
    WriteRecord(SESSION, Core::LogSeverity::Error, 511, "f()", "not newer");
    WriteRecord(SESSION, Core::LogSeverity::Warning, 837, "f()", "another severity");
    EXPECT_EQ(log.FirstFailure(), "");
}

TEST(FailureLog, HearsNothingAfterTheSearch)
{
    CheckFailureLog log;
    log.StopListening();
    WriteAbort("no update");
    EXPECT_EQ(log.FirstFailure(), "");
}

// --- pelnar-demo's command line ---

std::string DemoFailure(QStringList const& arguments)
{
    try
    {
        ParseDemoOptions(Words("pelnar-demo") + arguments, UnbundledApplication());
    }
    catch (std::runtime_error const& error)
    {
        return error.what();
    }
    return "nothing was thrown";
}

DemoOptions Options(char const* arguments)
{
    return ParseDemoOptions(Words("pelnar-demo") + Words(arguments), UnbundledApplication());
}

TEST(DemoLine, HasDefaults)
{
    DemoOptions const options = Options("");
    EXPECT_EQ(options.customization.displayName, "Pelnar Demo");
    EXPECT_TRUE(options.customization.applicationVersion == Version(5, 9));
    EXPECT_TRUE(options.links.empty());
    EXPECT_EQ(options.mode, App::UpdateCheckMode::UserInitiated);
    EXPECT_EQ(options.nagContent, NagContent::Available);
    EXPECT_EQ(options.script, Script::None);
    EXPECT_TRUE(options.screenshotFolder.isEmpty());
}

TEST(DemoLine, TakesEveryOption)
{
    DemoOptions const options =
        Options("--feed https://localhost/f.xml --local-version 6.1 --system-version 12 --platform macos "
                "--mode automatic --nag later --scenario check --screenshot-dir /tmp/x");
    EXPECT_EQ(options.links.at(URLKeys::SPARKLE_APPCAST_URL), QStringLiteral("https://localhost/f.xml"));
    EXPECT_TRUE(options.customization.applicationVersion == Version(6, 1));
    EXPECT_EQ(options.systemVersion, QStringLiteral("12"));
    EXPECT_EQ(options.platform, QStringLiteral("macos"));
    EXPECT_EQ(options.mode, App::UpdateCheckMode::Automatic);
    EXPECT_EQ(options.nagContent, NagContent::Later);
    EXPECT_EQ(options.script, Script::CheckOnce);
    EXPECT_EQ(options.screenshotFolder, QStringLiteral("/tmp/x"));
    EXPECT_EQ(Options("--scenario dialogs --nag none").script, Script::ShowDialogs);
    EXPECT_EQ(Options("--scenario start").script, Script::Start);
    EXPECT_TRUE(Options("--scenario start").clicks.empty());
}

TEST(DemoLine, TakesClicksInTheirOrder)
{
    DemoOptions const options = Options("--scenario update --click first/a/b --click second/c");
    EXPECT_EQ(options.script, Script::Update);
    ASSERT_EQ(options.clicks.size(), 2u);
    EXPECT_EQ(options.clicks[0].window, QStringLiteral("first"));
    EXPECT_EQ(options.clicks[0].button, QStringLiteral("a/b"));
    EXPECT_EQ(options.clicks[1].window, QStringLiteral("second"));
    EXPECT_EQ(Options("--scenario answer --click a/b").script, Script::Answer);
}

TEST(DemoLine, IsWhatTheBundleSaysWithoutOptions)
{
    App::Customization bundled;
    bundled.displayName = "Bundled";
    bundled.applicationVersion = Version(7, 1);
    DemoOptions const options = ParseDemoOptions(Words("pelnar-demo"), bundled);
    EXPECT_EQ(options.customization.displayName, "Bundled");
    EXPECT_TRUE(options.customization.applicationVersion == Version(7, 1));
}

TEST(DemoLine, ComesFromTheEnvironmentWhenNobodyGivesOne)
{
    qputenv("PELNAR_DEMO_OPTIONS", "--scenario start --screenshot-dir \"/tmp/a b\"");
    EXPECT_EQ(ArgumentsOrEnvironment(Words("pelnar-demo")),
              Words("pelnar-demo --scenario start --screenshot-dir") + QStringList{QStringLiteral("/tmp/a b")});
    EXPECT_EQ(ArgumentsOrEnvironment(Words("pelnar-demo --nag none")), Words("pelnar-demo --nag none"));
    qunsetenv("PELNAR_DEMO_OPTIONS");
    EXPECT_EQ(ArgumentsOrEnvironment(Words("pelnar-demo")), Words("pelnar-demo"));
}

TEST(DemoLine, OptionsGoBeforeTheSettingsFile)
{
    QTemporaryDir const folder;
    QFile file(folder.filePath(QStringLiteral("host.ini")));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("[Application]\nDisplayName=From File\nVersion=4.0\nBundleNameFirstPart=A\nBundleNameSecondPart=B\n"
               "[Links]\nSPARKLE_APPCAST_URL=https://localhost/file.xml\n");
    file.close();
    QStringList const fromFile = Words("pelnar-demo --settings") + QStringList{file.fileName()};
    EXPECT_EQ(ParseDemoOptions(fromFile, UnbundledApplication()).customization.displayName, "From File");
    EXPECT_TRUE(ParseDemoOptions(fromFile, UnbundledApplication()).customization.applicationVersion == Version(4, 0));
    EXPECT_EQ(ParseDemoOptions(fromFile, UnbundledApplication()).links.at(URLKeys::SPARKLE_APPCAST_URL),
              QStringLiteral("https://localhost/file.xml"));
    QStringList const both = fromFile + Words("--local-version 5.0 --feed https://localhost/line.xml");
    EXPECT_TRUE(ParseDemoOptions(both, UnbundledApplication()).customization.applicationVersion == Version(5, 0));
    EXPECT_EQ(ParseDemoOptions(both, UnbundledApplication()).links.at(URLKeys::SPARKLE_APPCAST_URL),
              QStringLiteral("https://localhost/line.xml"));
}

TEST(DemoLine, BadOnesAreRefusedWithASentence)
{
    EXPECT_EQ(DemoFailure(Words("--settings /no/such.ini")), "cannot read the settings file /no/such.ini");
    EXPECT_EQ(DemoFailure(Words("--local-version x")), "--local-version: \"x\" is not a version such as 5.10");
    EXPECT_EQ(DemoFailure(Words("--system-version x")), "--system-version: \"x\" is not a version such as 5.10");
    EXPECT_EQ(DemoFailure(Words("--platform x")), "--platform: \"x\" is not one of macos|linux");
    EXPECT_EQ(DemoFailure(Words("--mode x")), "--mode: \"x\" is not one of user|automatic|silent");
    EXPECT_EQ(DemoFailure(Words("--nag x")), "--nag: \"x\" is not one of available|none|later");
    EXPECT_EQ(DemoFailure(Words("--scenario x")), "--scenario: \"x\" is not one of check|dialogs|start|answer|update");
    EXPECT_EQ(DemoFailure(Words("--scenario update --click x/")), "--click: \"x/\" is not window/button");
    for (char const* const line : {"--scenario update", "--scenario start --click a/b", "--click a/b"})
    {
        EXPECT_EQ(DemoFailure(Words(line)), "--click requires --scenario answer or update, and these require --click");
    }
    EXPECT_EQ(DemoFailure(Words("more")), "unexpected argument \"more\"");
    EXPECT_EQ(DemoFailure(Words("--none")), "Unknown option 'none'.");
}

} // namespace
} // namespace Pelnar::Demo
