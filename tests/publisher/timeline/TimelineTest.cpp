// TimelineTest.cpp: the events of a session, read from its records. Every impossible order is flagged. The records are
// made with the session's own table of sites, so each log here fits this version.

#include "Publisher/timeline/Timeline.h"
#include "tests/publisher/support/AppcastTool.h"

#include <gtest/gtest.h>

#include <QJsonArray>
#include <QJsonObject>

#include <sstream>

namespace Pelnar::Testing
{
namespace
{

using Publisher::EventKind;
using Publisher::Timeline;
namespace Sites = App::Session::Sites;

/// One line of a log.
std::string Line(Core::LogSite const& site, std::string const& text = {})
{
    std::string const prefix = site.prefix;
    return "I20261121 06:41:22.123456 777 SparkleManager:" + std::to_string(site.line) + "] " +
           (prefix.empty() ? text : prefix + ": " + text) + "\n";
}

std::string In(Core::LogSite const& site, char const* state)
{
    return Line(site, std::string("Current state = ") + state);
}

std::string Switch(char const* from, char const* to)
{
    return Line(Sites::SET_STATE, std::string("Switch from ") + from + " to " + to);
}

std::string Lock()
{
    return In(Sites::LOCK_UPDATER, "WAITING") + In(Sites::LOCK, "WAITING") + In(Sites::SET_CONTEXT, "WAITING") +
           Line(Sites::SET_CONTEXT_FEED, "FeedURL = https://a.example/appcast.xml");
}

std::string Begin()
{
    return Line(Sites::GET_INSTANCE) + Line(Sites::CREATE_UPDATER) + Lock();
}

std::string Check()
{
    return In(Sites::CHECK, "WAITING") + Switch("WAITING", "FETCHING_INFO");
}

std::string Found()
{
    return In(Sites::FOUND, "FETCHING_INFO") +
           Line(Sites::FOUND_UPDATE_TYPE, "SUAppcastItem contains update with UpdateType = BUNDLE") +
           Switch("FETCHING_INFO", "WAITING") + In(Sites::NOTIFY_CHECK_FINISHED, "WAITING") +
           In(Sites::UNLOCK_IF_REQUESTED, "WAITING");
}

std::string Leave()
{
    return In(Sites::UNLOCK_WHEN_POSSIBLE, "WAITING") + In(Sites::UNLOCK, "WAITING");
}

std::string End()
{
    return Switch("WAITING", "WAITING") + In(Sites::UNLOCK, "WAITING") + Line(Sites::DESTROY_UPDATER);
}

std::string SilentDownload()
{
    return In(Sites::SHOW_DIALOG, "WAITING") + Switch("WAITING", "SILENT_DOWNLOADING");
}

Timeline Rebuild(std::string const& log)
{
    std::istringstream stream(log);
    return Publisher::RebuildTimeline(Publisher::ReadSessionLog(stream));
}

std::vector<std::string> Of(Timeline const& timeline, EventKind kind)
{
    std::vector<std::string> texts;
    for (Publisher::TimelineEvent const& event : timeline.events)
    {
        if (event.kind == kind)
        {
            texts.push_back(event.text.toStdString());
        }
    }
    return texts;
}

using Texts = std::vector<std::string>;

struct Row
{
    char const* name;
    std::string log;
    char const* wrong; ///< the impossible event; null for a possible order
};

void PrintTo(Row const& row, std::ostream* out)
{
    *out << row.name;
}

std::vector<Row> PossibleRows()
{
    return {
        {"FoundUpdate", Begin() + Check() + Found() + Leave() + End(), nullptr},
        {"NoUpdate",
         Begin() + Check() + In(Sites::NOT_FOUND, "FETCHING_INFO") + Switch("FETCHING_INFO", "WAITING") +
             In(Sites::NOTIFY_CHECK_FINISHED, "WAITING") + In(Sites::UNLOCK_IF_REQUESTED, "WAITING"),
         nullptr},
        {"AbortOfAnIdleSession", Begin() + In(Sites::ABORTED, "WAITING") + Line(Sites::ABORTED_ERROR, "e"), nullptr},
        {"RaisedException",
         Begin() + Check() + Line(Sites::CHECK_RAISED, "Exception while checkForUpdateInformation: r") +
             Switch("FETCHING_INFO", "WAITING") + In(Sites::NOTIFY_CHECK_FINISHED, "WAITING"),
         nullptr},
        {"CheckOverACheck",
         Begin() + Check() + In(Sites::CHECK, "FETCHING_INFO") + Switch("FETCHING_INFO", "FETCHING_INFO"), nullptr},
        {"GuardThatFails",
         Begin() + In(Sites::SHOW_DIALOG, "WAITING") + Line(Sites::ENSURE_REMOTE_VERSION, "Invalid remote version"),
         nullptr},
        {"HolderLeavesDuringACheck",
         Begin() + Check() + In(Sites::UNLOCK_WHEN_POSSIBLE, "FETCHING_INFO") + Found() + In(Sites::UNLOCK, "WAITING"),
         nullptr},
        {"SilentInstallation",
         Begin() + SilentDownload() + In(Sites::FOUND, "SILENT_DOWNLOADING") +
             In(Sites::WILL_INSTALL, "SILENT_DOWNLOADING") + Switch("SILENT_DOWNLOADING", "SILENT_INSTALLING") +
             In(Sites::SHOULD_RELAUNCH, "SILENT_INSTALLING") + In(Sites::RELAUNCH_PATH, "SILENT_INSTALLING") +
             In(Sites::WILL_RELAUNCH, "SILENT_INSTALLING"),
         nullptr},
        {"DialogThatIsRejected",
         Begin() + SilentDownload() + In(Sites::WILL_INSTALL, "SILENT_DOWNLOADING") +
             In(Sites::REJECT, "SILENT_DOWNLOADING") + In(Sites::UNLOCK_WHEN_POSSIBLE, "SILENT_DOWNLOADING") +
             Switch("SILENT_DOWNLOADING", "SILENT_ABORTING") + In(Sites::DID_CANCEL, "SILENT_ABORTING") +
             Switch("SILENT_ABORTING", "WAITING") + In(Sites::UNLOCK_IF_REQUESTED, "WAITING") +
             In(Sites::UNLOCK, "WAITING"),
         nullptr},
        {"LogThatBeginsInTheMiddle", Switch("FETCHING_INFO", "WAITING") + In(Sites::NOTIFY_CHECK_FINISHED, "WAITING"),
         nullptr},
        {"AnotherProcessInTheSameLog", Begin() + Check() + Begin() + Check(), nullptr},
        {"RefusedLock",
         Begin() + In(Sites::LOCK_UPDATER, "WAITING") + In(Sites::LOCK, "WAITING") +
             Line(Sites::LOCK_UPDATER_REFUSED, "Can't lock updater"),
         nullptr},
    };
}

std::vector<Row> ImpossibleRows()
{
    return {
        {"CallbackWithoutRequest", Begin() + In(Sites::FOUND, "WAITING"),
         "updater:didFindValidUpdate: cannot occur in WAITING"},
        {"OutcomeTwice", Begin() + Check() + Found() + In(Sites::NOT_FOUND, "WAITING"),
         "updaterDidNotFindUpdate: cannot occur in WAITING"},
        {"ChoiceWithoutRequest", Begin() + In(Sites::BEST_ITEM, "WAITING"),
         "bestValidUpdateInAppcast:forUpdater: cannot occur in WAITING"},
        {"RelaunchOfARunningCheck", Begin() + Check() + In(Sites::SHOULD_RELAUNCH, "FETCHING_INFO"),
         "updaterShouldRelaunchApplication: cannot occur in FETCHING_INFO"},
        {"CancelOfNoInstallation", Begin() + In(Sites::DID_CANCEL, "WAITING"),
         "updater:didCancelInstallUpdateOnQuit: cannot occur in WAITING"},
        {"StateThatWasNotLeft", Begin() + Check() + In(Sites::ABORTED, "SILENT_DOWNLOADING"),
         "the state is SILENT_DOWNLOADING, but the last change led to FETCHING_INFO"},
        {"SwitchFromAnotherState", Begin() + In(Sites::CHECK, "WAITING") + Switch("SILENT_ABORTING", "FETCHING_INFO"),
         "the change starts from SILENT_ABORTING, but the state was WAITING"},
        {"SwitchWithoutCause", Begin() + Switch("WAITING", "SILENT_INSTALLING"),
         "no running operation leads from WAITING to SILENT_INSTALLING"},
        {"IdleWithoutCause", Begin() + Check() + Switch("FETCHING_INFO", "WAITING") + In(Sites::REJECT, "WAITING"),
         "no running operation ends in WAITING here"},
        {"IdleWithoutCauseAtTheEnd", Begin() + Check() + Switch("FETCHING_INFO", "WAITING"),
         "no running operation ends in WAITING here"},
        {"SwitchAfterAFailedGuard",
         Begin() + In(Sites::CHECK, "WAITING") + Line(Sites::ENSURE_CONTEXT, "Update context is NULL") +
             Switch("WAITING", "FETCHING_INFO"),
         "no running operation leads from WAITING to FETCHING_INFO"},
        {"DownloadThatFoundEnds",
         Begin() + SilentDownload() + In(Sites::FOUND, "SILENT_DOWNLOADING") + Switch("SILENT_DOWNLOADING", "WAITING"),
         "no running operation ends in WAITING here"},
        {"LockTakenTwice", Begin() + Lock(), "the lock is taken while holder 1 has it"},
        {"ContextWithoutLock", Begin() + Leave() + In(Sites::SET_CONTEXT, "WAITING"),
         "the session is used without its lock"},
        {"CheckWithoutLock", Begin() + Leave() + Check(), "a check starts while nobody holds the lock"},
        {"LeaverKeepsTheLock", Begin() + In(Sites::UNLOCK_WHEN_POSSIBLE, "WAITING") + In(Sites::REJECT, "WAITING"),
         "the lock should have been released here, because its holder had left"},
        {"DeferredUnlockThatIsMissing",
         Begin() + Check() + In(Sites::UNLOCK_WHEN_POSSIBLE, "FETCHING_INFO") + Found() + In(Sites::REJECT, "WAITING"),
         "the lock should have been released here, because its holder had left"},
        {"UnlockThatNobodyAskedFor", Begin() + In(Sites::UNLOCK, "WAITING"), "the lock is released without a request"},
        {"ToldTooEarly", Begin() + Check() + In(Sites::NOTIFY_CHECK_FINISHED, "FETCHING_INFO"),
         "the holder is notified before the state is WAITING"},
        {"UnknownState", Begin() + In(Sites::REJECT, "Unknown State"), "Unknown State is not a state"},
        {"BrokenSwitch", Begin() + Line(Sites::SET_STATE, "Switch from WAITING"),
         "not a change between two states: Switch from WAITING"},
        {"RecordOfAnotherVersion", Begin() + "I1121 06:41:22 777 SparkleManager:318] something else\n",
         "line 318 of the session's source does not write this record in this version: something else"},
    };
}

class SessionOrder : public ::testing::TestWithParam<Row>
{
};

} // namespace

TEST_P(SessionOrder, IsFlaggedWhenItCannotHappen)
{
    Row const& row = GetParam();
    EXPECT_EQ(Of(Rebuild(row.log), EventKind::Wrong), row.wrong ? Texts{row.wrong} : Texts{});
}

INSTANTIATE_TEST_SUITE_P(Possible, SessionOrder, ::testing::ValuesIn(PossibleRows()),
                         [](auto const& row) { return std::string(row.param.name); });
INSTANTIATE_TEST_SUITE_P(Impossible, SessionOrder, ::testing::ValuesIn(ImpossibleRows()),
                         [](auto const& row) { return std::string(row.param.name); });

TEST(Timeline, TellsStatesHolderAndCallbacksOfACheck)
{
    Timeline const timeline = Rebuild(Begin() + Check() + Found() + Leave() + End());
    EXPECT_EQ(Of(timeline, EventKind::State),
              (Texts{"WAITING -> FETCHING_INFO", "FETCHING_INFO -> WAITING", "WAITING -> WAITING"}));
    EXPECT_EQ(Of(timeline, EventKind::Callback), (Texts{"updater:didFindValidUpdate:"}));
    EXPECT_EQ(Of(timeline, EventKind::Choice), (Texts{"SUAppcastItem contains update with UpdateType = BUNDLE"}));
    EXPECT_EQ(Of(timeline, EventKind::Lock), (Texts{"taken by holder 1, FeedURL = https://a.example/appcast.xml",
                                                    "the holder leaves", "free", "free"}));
    EXPECT_EQ(Of(timeline, EventKind::Process), (Texts{"the session starts", "the session ends"}));
    for (Publisher::TimelineEvent const& event : timeline.events)
    {
        bool const isCallback = event.kind == EventKind::Callback;
        EXPECT_TRUE(!isCallback || (event.holder == 1 && event.check == 1)) << event.text.toStdString();
    }
}

TEST(Timeline, CountsHoldersAndChecks)
{
    Timeline const timeline = Rebuild(Begin() + Check() + Found() + Leave() + Lock() + Check() + Found());
    EXPECT_EQ(timeline.events.back().holder, 2);
    EXPECT_EQ(timeline.events.back().check, 2);
}

TEST(SessionLog, PassesOverWhatIsNotTheSessions)
{
    std::istringstream log("plain text\nI20261121 06:41:22.1 7 Other.cpp:318] Switch from A to B\n"
                           "I20261121 06:41:22.1 7 SparkleManager:579] void "
                           "Pelnar::App::SparkleManager::UnlockUpdaterWhenPossible(): Current state = WAITING\r\n");
    Publisher::SessionLog const read = Publisher::ReadSessionLog(log);
    ASSERT_EQ(read.records.size(), 1u);
    EXPECT_EQ(read.records[0].logLine, 3);
    EXPECT_EQ(read.records[0].time.toStdString(), "06:41:22.1");
    EXPECT_EQ(read.records[0].text.toStdString(), "Current state = WAITING");
    EXPECT_EQ(Publisher::OperationName(*read.records[0].site).toStdString(), "UnlockUpdaterWhenPossible");
    EXPECT_TRUE(read.strangers.empty());
}

TEST(TimelineVerb, ReadsAsOneLineAnEvent)
{
    ToolRun const run = RunAppcastProgram({QStringLiteral("timeline"), QStringLiteral("-")},
                                          QByteArray::fromStdString(Begin() + Check()));
    EXPECT_EQ(run.status, 0);
    EXPECT_EQ(
        run.out,
        "    2:  06:41:22.123456  -          process   the session starts\n"
        "    6:  06:41:22.123456  holder 1   lock      taken by holder 1, FeedURL = https://a.example/appcast.xml\n"
        "    7:  06:41:22.123456  holder 1   command   check 1: information only\n"
        "    8:  06:41:22.123456  holder 1   state     WAITING -> FETCHING_INFO\n"
        "<stdin>: every sequence is possible\n");
}

TEST(TimelineVerb, AnOrderThatCannotHappenIsAFinding)
{
    QByteArray const log = QByteArray::fromStdString(Begin() + In(Sites::FOUND, "WAITING"));
    ToolRun const run = RunTool({QStringLiteral("timeline"), QStringLiteral("-")}, log);
    EXPECT_EQ(run.status, 1);
    EXPECT_NE(run.out.find("WRONG     updater:didFindValidUpdate: cannot occur in WAITING\n"), std::string::npos)
        << run.out;
    EXPECT_NE(run.out.find("<stdin>: 1 place with an impossible sequence\n"), std::string::npos) << run.out;
    QJsonObject const object =
        RunTool({QStringLiteral("timeline"), QStringLiteral("-"), QStringLiteral("--json")}, log).Json();
    EXPECT_EQ(object[QStringLiteral("wrong")], 1);
    QJsonObject const last = object[QStringLiteral("events")].toArray().last().toObject();
    EXPECT_EQ(last[QStringLiteral("kind")], QStringLiteral("wrong"));
    EXPECT_EQ(last[QStringLiteral("line")], 7);
    EXPECT_EQ(last[QStringLiteral("state")], QStringLiteral("WAITING"));
}

TEST(TimelineVerb, ALogWithoutTheSessionIsRefused)
{
    ToolRun const run = RunTool({QStringLiteral("timeline"), QStringLiteral("-")}, "nothing\n");
    EXPECT_EQ(run.status, 2);
    EXPECT_EQ(run.err, "error: <stdin>: contains no record of the update session; run the application with "
                       "log level 30 "
                       "(--v=30)\n");
    EXPECT_EQ(RunTool({QStringLiteral("timeline"), QStringLiteral("/nowhere.log")}).status, 2);
}

class UnusableLog : public ::testing::TestWithParam<char const*>
{
};

TEST_P(UnusableLog, IsRefusedAtOnce)
{
    ToolRun const run = RunTool({QStringLiteral("timeline"), QString::fromLatin1(GetParam())});
    EXPECT_EQ(run.status, 2);
    EXPECT_NE(run.err.find(GetParam()), std::string::npos) << run.err;
    EXPECT_NE(run.err.find("; "), std::string::npos) << run.err;
}

INSTANTIATE_TEST_SUITE_P(Every, UnusableLog,
                         ::testing::Values("/dev/zero", "/dev/full", "/dev/tty", "/proc/self/mem", "/"));

TEST(EndlessLog, IsRefusedAtItsFirstLine)
{
    ToolRun const run = RunTool({QStringLiteral("timeline"), QStringLiteral("-")}, QByteArray(2 << 20, '\0'));
    EXPECT_EQ(run.status, 2);
    EXPECT_EQ(run.err, "error: <stdin>: has a line of more than a mebibyte, or too many lines; give the log of an "
                       "application\n");
}

} // namespace Pelnar::Testing
