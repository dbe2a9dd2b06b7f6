// UpdateCheckProgramTest.cpp: pelnar-update-check as a whole: real checks of feeds in files and on a loopback server.

#include "tests/host/DemoFeeds.h"
#include "tests/host/DemoProgram.h"
#include "tests/support/ServerThread.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <pwd.h>
#include <unistd.h>

#include <algorithm>
#include <ostream>

namespace Pelnar::Testing
{
namespace
{

QString const PROGRAM = QStringLiteral(PELNAR_UPDATE_CHECK_PROGRAM);

enum class Feed
{
    Same,
    Older,
    Empty,
    Newer,
    NewMajor,
    Malformed,
    Absent,
};

QString Write(FeedFolder const& folder, Feed feed)
{
    switch (feed)
    {
    case Feed::Same:
        return folder.Write(FeedOf({{"5.9.0", "", ""}}));
    case Feed::Older:
        return folder.Write(FeedOf({{"5.8", "", ""}, {"4.0", "", ""}}));
    case Feed::Empty:
        return folder.Write(FeedOf({}));
    case Feed::Newer:
        return folder.Write(FeedOf({{"5.10", "", ""}, {"5.9", "", ""}}));
    case Feed::NewMajor:
        return folder.Write(FeedOf({{"5.10", "", ""}, {"6.0.1", "", ""}}));
    case Feed::Malformed:
        return folder.Write("<rss><channel><item>");
    case Feed::Absent:
        break;
    }
    return folder.Path(QStringLiteral("absent.xml"));
}

ProgramResult Check(QString const& feed, QStringList const& more = {})
{
    return RunProgram(
        PROGRAM,
        QStringList{QStringLiteral("--feed"), feed, QStringLiteral("--local-version"), QStringLiteral("5.9")} + more);
}

using Lines = std::vector<std::string>;

std::string const ERROR_START = "pelnar-update-check: ";
std::string const FAILURE_START = ERROR_START + "the check could not be completed: ";

// --- modes and outcomes ---

struct CheckRow
{
    char const* name;
    Feed feed;
    char const* mode;
    Lines lines;
    int status;          ///< without --exit-code
    int statusByOutcome; ///< with it
};

std::ostream& operator<<(std::ostream& out, CheckRow const& row)
{
    return out << row.name;
}

constexpr char const* FOUND_NOTHING = "OnUpdateFound current=5.9 remote=5.9";
constexpr char const* FOUND_NEWER = "OnUpdateFound current=5.9 remote=5.10";
constexpr char const* FOUND_MAJOR = "OnUpdateFound current=5.9 remote=6.0.1";
constexpr char const* OPENING = "OnUpdateDialogOpening";
constexpr char const* CLOSED = "OnUpdateDialogClosed";
constexpr char const* NO_UPDATE = "no update: 5.9";
constexpr char const* UPDATE = "update available: 5.9 -> 5.10";
constexpr char const* MAJOR = "major update available: 5.9 -> 6.0.1";

class CheckProgram : public testing::TestWithParam<CheckRow>
{
};

/// A command line or an environment with texts in no encoding.
class OddTexts : public testing::TestWithParam<char const*>
{
};

TEST_P(OddTexts, ChangeNothing)
{
    FeedFolder const folder;
    ProgramResult const result = RunProgram(
        QStringLiteral("/bin/bash"),
        {QStringLiteral("-c"), QStringLiteral("odd=$(printf 'caf\\351'); ") + QString::fromLatin1(GetParam()), PROGRAM,
         QStringLiteral("--local-version=5.9"), QStringLiteral("--mode=automatic"), QStringLiteral("--feed"),
         Write(folder, Feed::Newer)});
    EXPECT_EQ(result.status, 0) << result.errors;
    EXPECT_EQ(std::count(result.lines.begin(), result.lines.end(), "OnUpdateFound current=5.9 remote=5.10"), 1);
}

INSTANTIATE_TEST_SUITE_P(Rows, OddTexts,
                         testing::Values("export ODD=\"$odd\"; exec \"$0\" \"$@\"", "exec env \"$odd=1\" \"$0\" \"$@\"",
                                         "exec -a \"$odd\" \"$0\" \"$@\"",
                                         "exec \"$0\" \"$@\" --local-version=\"$odd\" --local-version=5.9",
                                         "export HOME=\"/tmp/$odd\"; exec \"$0\" \"$@\""));

TEST_P(CheckProgram, PrintsTheNotificationsAndTheOutcome)
{
    FeedFolder const folder;
    CheckRow const& row = GetParam();
    QStringList const mode{QStringLiteral("--mode"), QString::fromLatin1(row.mode)};
    ProgramResult const result = Check(Write(folder, row.feed), mode);
    EXPECT_EQ(result.lines, row.lines);
    EXPECT_EQ(result.status, row.status);
    if (row.status == 0)
    {
        EXPECT_EQ(result.errors, "");
    }
    else
    {
        EXPECT_EQ(result.errors.compare(0, FAILURE_START.size(), FAILURE_START), 0) << result.errors;
        EXPECT_EQ(result.errors.find('\n'), result.errors.size() - 1) << result.errors;
    }
    ProgramResult const byOutcome = Check(Write(folder, row.feed), mode + QStringList{QStringLiteral("--exit-code")});
    EXPECT_EQ(byOutcome.status, row.statusByOutcome);
}

INSTANTIATE_TEST_SUITE_P(
    Table, CheckProgram,
    testing::Values(CheckRow{"UserSame", Feed::Same, "user", {FOUND_NOTHING, OPENING, CLOSED, NO_UPDATE}, 0, 0},
                    CheckRow{"UserOlder", Feed::Older, "user", {FOUND_NOTHING, OPENING, CLOSED, NO_UPDATE}, 0, 0},
                    CheckRow{"UserEmpty", Feed::Empty, "user", {FOUND_NOTHING, OPENING, CLOSED, NO_UPDATE}, 0, 0},
                    CheckRow{"UserNewer", Feed::Newer, "user", {FOUND_NEWER, OPENING, CLOSED, UPDATE}, 0, 10},
                    CheckRow{"UserMajor", Feed::NewMajor, "user", {FOUND_MAJOR, OPENING, CLOSED, MAJOR}, 0, 11},
                    CheckRow{"UserMalformed", Feed::Malformed, "user", {FOUND_NOTHING, OPENING, CLOSED}, 1, 1},
                    CheckRow{"UserAbsent", Feed::Absent, "user", {FOUND_NOTHING, OPENING, CLOSED}, 1, 1},
                    CheckRow{"AutomaticSame", Feed::Same, "automatic", {NO_UPDATE}, 0, 0},
                    CheckRow{"AutomaticNewer", Feed::Newer, "automatic", {FOUND_NEWER, OPENING, CLOSED, UPDATE}, 0, 10},
                    CheckRow{
                        "AutomaticMajor", Feed::NewMajor, "automatic", {FOUND_MAJOR, OPENING, CLOSED, MAJOR}, 0, 11},
                    CheckRow{"AutomaticMalformed", Feed::Malformed, "automatic", {}, 1, 1},
                    CheckRow{"AutomaticAbsent", Feed::Absent, "automatic", {}, 1, 1},
                    CheckRow{"SilentSame", Feed::Same, "silent", {NO_UPDATE}, 0, 0},
                    CheckRow{"SilentNewer", Feed::Newer, "silent", {FOUND_NEWER, UPDATE}, 0, 10},
                    CheckRow{"SilentMajor", Feed::NewMajor, "silent", {FOUND_MAJOR, MAJOR}, 0, 11},
                    CheckRow{"SilentMalformed", Feed::Malformed, "silent", {}, 1, 1},
                    CheckRow{"SilentAbsent", Feed::Absent, "silent", {}, 1, 1}),
    [](auto const& info) { return std::string(info.param.name); });

// --- options ---

TEST(CheckProgramOptions, JsonIsOneObjectWithTheNotifications)
{
    FeedFolder const folder;
    ProgramResult const result = Check(Write(folder, Feed::Newer), {QStringLiteral("--json")});
    EXPECT_EQ(result.status, 0);
    ASSERT_EQ(result.lines.size(), 1U);
    QJsonObject const object = QJsonDocument::fromJson(QByteArray::fromStdString(result.lines[0])).object();
    EXPECT_EQ(object[QStringLiteral("outcome")].toString(), QStringLiteral("update"));
    EXPECT_EQ(object[QStringLiteral("current")].toString(), QStringLiteral("5.9"));
    EXPECT_EQ(object[QStringLiteral("remote")].toString(), QStringLiteral("5.10"));
    EXPECT_EQ(object[QStringLiteral("notifications")].toArray().size(), 3);
}

TEST(CheckProgramOptions, JsonCarriesTheSentenceOfAFailure)
{
    FeedFolder const folder;
    ProgramResult const result = Check(Write(folder, Feed::Malformed),
                                       {QStringLiteral("--json"), QStringLiteral("--mode"), QStringLiteral("silent")});
    EXPECT_EQ(result.status, 1);
    ASSERT_EQ(result.lines.size(), 1U);
    QJsonObject const object = QJsonDocument::fromJson(QByteArray::fromStdString(result.lines[0])).object();
    EXPECT_EQ(object[QStringLiteral("outcome")].toString(), QStringLiteral("failed"));
    EXPECT_FALSE(object[QStringLiteral("error")].toString().isEmpty());
    EXPECT_EQ(result.errors, FAILURE_START + object[QStringLiteral("error")].toString().toStdString() + '\n');
}

TEST(CheckProgramOptions, VerboseWritesTheLogAtLevel30)
{
    FeedFolder const folder;
    ProgramResult const result = Check(Write(folder, Feed::Newer), {QStringLiteral("--verbose")});
    EXPECT_EQ(result.status, 0);
    EXPECT_NE(result.errors.find("SparkleManager:597]"), std::string::npos) << result.errors;
    EXPECT_NE(result.errors.find("SetState"), std::string::npos) << result.errors;
}

TEST(CheckProgramOptions, VerboseLogHoldsNoLineNorEscapeSequenceOfAFeed)
{
    // Control characters that XML allows. An escape character itself makes a feed malformed.
    QByteArray const forged = "5.10&#10;E0101 forged&#13;&#x9B;31m&#x85;&#x2028;&#x202E;&#127;";
    FeedFolder const folder;
    QString const feed = folder.Write(
        "<rss xmlns:sparkle='http://www.andymatuschak.org/xml-namespaces/sparkle'><channel><item><title>" + forged +
        "</title><pubDate>" + forged + "</pubDate><sparkle:minimumSystemVersion>" + forged +
        "</sparkle:minimumSystemVersion><description>&#x9B;31m&#x202E;&#127;</description><pelnar1_Note>" + forged +
        "</pelnar1_Note><enclosure length='1' type='a' url='https://files.example.com/App_" + forged +
        "%0AE0101%20forged%1B%5B31m.zip' sparkle:version='" + forged + "' sparkle:edSignature='" + forged +
        "'/></item><item><title>x</title><pelnar1_Note>" + forged +
        "</pelnar1_Note><enclosure length='1' url='https://files.example.com/App.zip' sparkle:version='5.11'/></item>"
        "</channel></rss>");
    ProgramResult const result = Check(feed, {QStringLiteral("--verbose")});
    EXPECT_EQ(result.status, 0);
    EXPECT_NE(result.errors.find("E0101 forged"), std::string::npos) << "the texts are not logged at all";
    EXPECT_EQ(result.errors.find("\nE0101"), std::string::npos) << result.errors;
    for (char const* const bytes : {"\r", "\x1B", "\x7F", "\xC2\x85", "\xC2\x9B", "\xE2\x80\xA8", "\xE2\x80\xAE"})
    {
        EXPECT_EQ(result.errors.find(bytes), std::string::npos) << result.errors;
    }
}

TEST(CheckProgramOptions, PlatformChoosesTheItems)
{
    FeedFolder const folder;
    QString const feed = folder.Write(FeedOf({{"5.10", "linux", ""}, {"5.11", "macos", ""}}));
    QString const platform = QStringLiteral("--platform");
    QString const silent = QStringLiteral("--mode=silent");
    EXPECT_EQ(Check(feed, {platform, QStringLiteral("linux"), silent}).lines.back(), "update available: 5.9 -> 5.10");
    EXPECT_EQ(Check(feed, {platform, QStringLiteral("macos"), silent}).lines.back(), "update available: 5.9 -> 5.11");
}

TEST(CheckProgramOptions, SystemVersionBoundsTheItems)
{
    FeedFolder const folder;
    QString const feed = folder.Write(FeedOf({{"5.10", "", "11.0"}, {"5.11", "", "12.0"}}));
    QString const system = QStringLiteral("--system-version");
    QString const silent = QStringLiteral("--mode=silent");
    EXPECT_EQ(Check(feed, {system, QStringLiteral("12.0"), silent}).lines.back(), "update available: 5.9 -> 5.11");
    EXPECT_EQ(Check(feed, {system, QStringLiteral("11.7"), silent}).lines.back(), "update available: 5.9 -> 5.10");
    EXPECT_EQ(Check(feed, {system, QStringLiteral("10.15"), silent}).lines, (Lines{NO_UPDATE}));
}

TEST(CheckProgramOptions, BadOnesEndWith2AndASentence)
{
    for (QStringList const& arguments :
         {QStringList{}, QStringList{QStringLiteral("--feed"), QStringLiteral("x.xml")},
          QStringList{QStringLiteral("--feed"), QStringLiteral("x.xml"), QStringLiteral("--local-version"),
                      QStringLiteral("1"), QStringLiteral("--mode"), QStringLiteral("loud")},
          QStringList{QStringLiteral("--unknown")}})
    {
        ProgramResult const result = RunProgram(PROGRAM, arguments);
        EXPECT_EQ(result.status, 2);
        EXPECT_EQ(result.lines, Lines());
        EXPECT_EQ(result.errors.compare(0, ERROR_START.size(), ERROR_START), 0) << result.errors;
        EXPECT_EQ(result.errors.find("; see --help\n"), result.errors.size() - 13) << result.errors;
    }
}

TEST(CheckProgramOptions, HelpIsNoError)
{
    ProgramResult const result = RunProgram(PROGRAM, {QStringLiteral("--help")});
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.errors, "");
    EXPECT_TRUE(std::any_of(result.lines.begin(), result.lines.end(),
                            [](std::string const& line) { return line.find("--local-version") != std::string::npos; }));
}

#if defined(Q_OS_LINUX)
/// The entry that the program would leave in the person's user defaults; null if there is none.
QByteArray PersonalDefaults()
{
    QFile file(QString::fromLocal8Bit(getpwuid(getuid())->pw_dir) +
               QStringLiteral("/GNUstep/Defaults/pelnar-update-check.plist"));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

TEST(CheckProgramOptions, APersonsUserDefaultsAreNotTouched)
{
    FeedFolder const folder;
    QByteArray const before = PersonalDefaults();
    EXPECT_EQ(Check(Write(folder, Feed::Newer)).status, 0);
    EXPECT_EQ(PersonalDefaults(), before);
    for (char const* const variable : {"XDG_CONFIG_HOME", "XDG_STATE_HOME"})
    {
        QString const own = QString::fromLocal8Bit(qgetenv(variable));
        ASSERT_FALSE(own.isEmpty());
        EXPECT_FALSE(QFileInfo::exists(own)) << "the program has one of its own";
    }
}
#endif

// --- over the network ---

/// The servers of these tests run in threads of their own, which need an application.
class CheckProgramOverTheNetwork : public ::testing::Test
{
    int m_argumentCount = 0;
    QCoreApplication m_application{m_argumentCount, nullptr};
};

TEST_F(CheckProgramOverTheNetwork, ReadsTheFeedOfALoopbackServer)
{
    ServerThread const server(Answering(OkAnswer(FeedOf({{"6.0.1", "", ""}}))));
    ProgramResult const result = Check(server.Url().toString(), {QStringLiteral("--exit-code")});
    EXPECT_EQ(result.lines, (Lines{FOUND_MAJOR, OPENING, CLOSED, MAJOR})) << result.errors;
    EXPECT_EQ(result.status, 11);
}

TEST_F(CheckProgramOverTheNetwork, AnErrorOfTheServerIsAFailure)
{
    ServerThread const server(Answering("HTTP/1.1 503 Busy\r\nContent-Length: 0\r\n\r\n"));
    ProgramResult const result = Check(server.Url().toString(), {QStringLiteral("--mode=silent")});
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.lines, Lines());
    EXPECT_NE(result.errors.find("503"), std::string::npos) << result.errors;
}

TEST_F(CheckProgramOverTheNetwork, AServerThatDoesNotAnswerEndsWithTheTimeout)
{
    ServerThread const server(Silent());
    ProgramResult const result =
        Check(server.Url().toString(), {QStringLiteral("--mode=silent"), QStringLiteral("--timeout=1")});
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.errors, FAILURE_START + "no answer within 1 s\n");
}

} // namespace
} // namespace Pelnar::Testing
