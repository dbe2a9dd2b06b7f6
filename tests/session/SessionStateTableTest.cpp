// Every callback and every command in every state and in an invalid one: the next state, the records, the lock and the
// notifications.

#include "tests/session/SessionFixture.h"
#include "tests/support/DialogDriver.h"

namespace
{

using namespace Pelnar::Testing;
using Records = std::vector<LogRecord>;

constexpr State WAITING = State::WAITING;
constexpr State FETCHING = State::FETCHING_INFO;
constexpr State PREPARING = State::PREPARING_TO_SHOW_CHANGELOG;
constexpr State DOWNLOADING = State::SILENT_DOWNLOADING;
constexpr State INSTALLING = State::SILENT_INSTALLING;
constexpr State ABORTING = State::SILENT_ABORTING;
constexpr State OUTSIDE = static_cast<State>(17);

enum class Ends
{
    Nothing,      // the request continues, or nothing happens
    Idle,         // WAITING, and the deferred unlock
    IdleNotified, // WAITING, the notification, and the deferred unlock
    Achtung,      // the error record only
};

struct Row
{
    char const* callback;
    State state;
    Ends ends;
};

void PrintTo(Row const& row, std::ostream* out)
{
    *out << row.callback;
}

std::string const FOUND = "-[PelnarSparkleUpdaterDelegate updater:didFindValidUpdate:]: ";
std::string const NOT_FOUND = "-[PelnarSparkleUpdaterDelegate updaterDidNotFindUpdate:]: ";
std::string const ABORTED = "-[PelnarSparkleUpdaterDelegate updater:didAbortWithError:]: ";
std::string const CANCELLED = "-[PelnarSparkleUpdaterDelegate updater:didCancelInstallUpdateOnQuit:]: ";
std::string const NOTIFY = "void Pelnar::App::SparkleManager::Impl::NotifyCheckFinished(): ";
std::string const ACHTUNG = "!!! ACHTUNG !!! This function is not specified for State = ";
std::string const CURRENT = "Current state = ";

void Append(Records& records, Records const& more)
{
    records.insert(records.end(), more.begin(), more.end());
}

Records EndingRecords(Row const& row, int achtungLine, std::string const& prefix)
{
    Records records;
    switch (row.ends)
    {
    case Ends::Nothing:
        break;
    case Ends::Achtung:
        records.push_back(Error(achtungLine, prefix + ACHTUNG + NameOf(row.state)));
        break;
    case Ends::IdleNotified:
        records.push_back(Switch(row.state, WAITING));
        records.push_back(Progress(533, NOTIFY + CURRENT + "WAITING"));
        Append(records, RequestedUnlock());
        break;
    case Ends::Idle:
        records.push_back(Switch(row.state, WAITING));
        Append(records, RequestedUnlock());
        break;
    }
    return records;
}

bool IsIdleAfter(Row const& row)
{
    return row.ends == Ends::Idle || row.ends == Ends::IdleNotified;
}

class OutcomeTable : public SessionTest, public ::testing::WithParamInterface<Row>
{
};

TEST_P(OutcomeTable, CallbackInState)
{
    Row const& row = GetParam();
    LendWithRemote(row.state);
    SessionFields fields = GetFields();
    fields.unlockRequested = true;
    SetFields(fields);
    Log().Clear();

    Records expected;
    std::string const callback = row.callback;
    if (callback == "DidFind")
    {
        Callbacks::DidFind(MakeItem(QStringLiteral("5.9")));
        expected = {Progress(727, FOUND + CURRENT + NameOf(row.state)),
                    Progress(730, FOUND + "SUAppcastItem contains update with UpdateType = BUNDLE")};
        Append(expected, EndingRecords(row, 783, FOUND));
    }
    else if (callback == "DidNotFind")
    {
        Callbacks::DidNotFind();
        expected = {Progress(794, NOT_FOUND + CURRENT + NameOf(row.state))};
        Append(expected, EndingRecords(row, 823, NOT_FOUND));
    }
    else if (callback == "DidAbort")
    {
        ScriptedError const error{QStringLiteral("Domain"), 7, QStringLiteral("The disk is full.")};
        std::unique_ptr<DialogDriver> driver;
        if (row.state == INSTALLING)
        {
            driver = std::make_unique<DialogDriver>(QStringLiteral("SparkleUpdater_updateErrorDialog"),
                                                    [](QWidget* box) { ClickButton(box, QStringLiteral("OK")); });
        }
        Callbacks::DidAbort(error);
        expected = {Progress(835, ABORTED + CURRENT + NameOf(row.state)), Error(837, ABORTED + DescriptionOf(error))};
        Append(expected, EndingRecords(row, 888, ABORTED));
    }
    else
    {
        Callbacks::DidCancelInstall(MakeItem(QStringLiteral("5.9")));
        expected = {Progress(1028, CANCELLED + CURRENT + NameOf(row.state))};
        Append(expected, EndingRecords(row, 1044, CANCELLED));
    }

    EXPECT_EQ(Log().Records(), expected);
    SessionFields const after = GetFields();
    EXPECT_EQ(after.state, IsIdleAfter(row) ? WAITING : row.state);
    EXPECT_EQ(after.locked, !IsIdleAfter(row));
    EXPECT_EQ(after.unlockRequested, !IsIdleAfter(row));
    EXPECT_EQ(Notifications(), row.ends == Ends::IdleNotified ? 1 : 0);
    EXPECT_EQ(after.context, SharedContext());
    Version const reported = callback == "DidFind" ? Version(5, 9) : Version(5, 0);
    EXPECT_EQ(Context().remoteVersion, row.ends == Ends::IdleNotified ? reported : Version(6, 1));
}

constexpr Row OUTCOME_ROWS[] = {
    {"DidFind", WAITING, Ends::Achtung},       {"DidFind", FETCHING, Ends::IdleNotified},
    {"DidFind", PREPARING, Ends::Idle},        {"DidFind", DOWNLOADING, Ends::Nothing},
    {"DidFind", INSTALLING, Ends::Achtung},    {"DidFind", ABORTING, Ends::Achtung},
    {"DidFind", OUTSIDE, Ends::Achtung},

    {"DidNotFind", WAITING, Ends::Achtung},    {"DidNotFind", FETCHING, Ends::IdleNotified},
    {"DidNotFind", PREPARING, Ends::Idle},     {"DidNotFind", DOWNLOADING, Ends::Nothing},
    {"DidNotFind", INSTALLING, Ends::Achtung}, {"DidNotFind", ABORTING, Ends::Achtung},
    {"DidNotFind", OUTSIDE, Ends::Achtung},

    {"DidAbort", WAITING, Ends::Nothing},      {"DidAbort", FETCHING, Ends::IdleNotified},
    {"DidAbort", PREPARING, Ends::Idle},       {"DidAbort", DOWNLOADING, Ends::Idle},
    {"DidAbort", INSTALLING, Ends::Idle},      {"DidAbort", ABORTING, Ends::Nothing},
    {"DidAbort", OUTSIDE, Ends::Achtung},

    {"DidCancel", WAITING, Ends::Achtung},     {"DidCancel", FETCHING, Ends::Achtung},
    {"DidCancel", PREPARING, Ends::Achtung},   {"DidCancel", DOWNLOADING, Ends::Achtung},
    {"DidCancel", INSTALLING, Ends::Idle},     {"DidCancel", ABORTING, Ends::Idle},
    {"DidCancel", OUTSIDE, Ends::Achtung},
};

INSTANTIATE_TEST_SUITE_P(AllStates, OutcomeTable, ::testing::ValuesIn(OUTCOME_ROWS),
                         [](auto const& info)
                         { return std::string(info.param.callback) + "_" + TestNameOf(info.param.state); });

// The callbacks and commands that keep the state, or set it independently of its old value.

class InState : public SessionTest, public ::testing::WithParamInterface<NamedState>
{
protected:
    State Given() const { return GetParam().state; }
    std::string Name() const { return GetParam().name; }

    void ExpectUntouched()
    {
        SessionFields const after = GetFields();
        EXPECT_EQ(after.state, Given());
        EXPECT_TRUE(after.locked);
        EXPECT_FALSE(after.unlockRequested);
        EXPECT_EQ(Notifications(), 0);
    }
};

INSTANTIATE_TEST_SUITE_P(AllStates, InState, ::testing::ValuesIn(ALL_STATES),
                         [](auto const& info) { return TestNameOf(info.param.state); });

TEST_P(InState, ShouldRelaunch)
{
    std::string const prefix = "-[PelnarSparkleUpdaterDelegate updaterShouldRelaunchApplication:]: ";
    LendIn(Given());
    EXPECT_EQ(Callbacks::ShouldRelaunch(), Given() != ABORTING);
    Records expected = {Progress(974, prefix + CURRENT + Name())};
    if (Given() == FETCHING || Given() == PREPARING || Given() == DOWNLOADING || Given() == OUTSIDE)
    {
        expected.push_back(Error(986, prefix + ACHTUNG + Name()));
    }
    EXPECT_EQ(Log().Records(), expected);
    ExpectUntouched();
}

TEST_P(InState, WillRelaunch)
{
    std::string const prefix = "-[PelnarSparkleUpdaterDelegate updaterWillRelaunchApplication:]: ";
    LendIn(Given());
    Callbacks::WillRelaunch();
    Records expected = {Progress(996, prefix + CURRENT + Name())};
    bool const quits = Given() == WAITING || Given() == INSTALLING;
    if (!quits && Given() != ABORTING)
    {
        expected.push_back(Error(1017, prefix + ACHTUNG + Name()));
    }
    EXPECT_EQ(Log().Records(), expected);
    EXPECT_EQ(Host().triesToQuit, 0) << "asked within the callback";
    QCoreApplication::processEvents();
    QCoreApplication::processEvents();
    EXPECT_EQ(Host().triesToQuit, quits ? 1 : 0);
    ExpectUntouched();
}

TEST_P(InState, PathToRelaunch)
{
    LendWithRemote(Given());
    EXPECT_EQ(Callbacks::PathToRelaunch(), MainBundlePath());
    EXPECT_EQ(Log().Records(),
              (Records{Progress(1055, "-[PelnarSparkleUpdaterDelegate pathToRelaunchForUpdater:]: " + CURRENT + Name()),
                       Error(1063, "-[PelnarSparkleUpdaterDelegate pathToRelaunchForUpdater:]: Invalid UpdateType")}));
    ExpectUntouched();
}

TEST_P(InState, BestValidUpdate)
{
    LendIn(Given());
    EXPECT_EQ(Callbacks::BestValidUpdate(std::nullopt), std::nullopt);
    EXPECT_EQ(Log().Records(),
              (Records{Progress(
                  1086, "-[PelnarSparkleUpdaterDelegate bestValidUpdateInAppcast:forUpdater:]: " + CURRENT + Name())}));
    ExpectUntouched();
}

TEST_P(InState, WillInstallAccepted)
{
    LendWithRemote(Given());
    DialogDriver driver(QStringLiteral("SparkleUpdater_updateIsReadyToInstallDialog"),
                        [](QWidget* box) { ClickButton(box, QStringLiteral("Install and Relaunch")); });
    ScriptedInvocation const invocation(true, false);
    Callbacks::WillInstallOnQuit(MakeItem(QStringLiteral("6.1")), invocation);
    EXPECT_EQ(Log().Records(),
              (Records{Progress(903, "-[PelnarSparkleUpdaterDelegate "
                                     "updater:willInstallUpdateOnQuit:immediateInstallationInvocation:]: " +
                                         CURRENT + Name()),
                       Switch(Given(), INSTALLING)}));
    EXPECT_EQ(GetFields().state, INSTALLING);
    EXPECT_TRUE(GetFields().locked);
    EXPECT_EQ(Notifications(), 0);
    EXPECT_EQ(invocation.Calls(), (std::vector<std::pair<bool, bool>>{{true, true}}));
}

TEST_P(InState, WillInstallWithFailedChecks)
{
    LendIn(Given());
    ScriptedInvocation const invocation(true, false);
    Callbacks::WillInstallOnQuit(MakeItem(QStringLiteral("6.1")), invocation);
    EXPECT_EQ(Log().Records(),
              (Records{Progress(903, "-[PelnarSparkleUpdaterDelegate "
                                     "updater:willInstallUpdateOnQuit:immediateInstallationInvocation:]: " +
                                         CURRENT + Name()),
                       Error(502, "bool Pelnar::App::SparkleManager::Impl::EnsureRemoteVersion() const: "
                                  "Invalid remote version"),
                       Switch(Given(), ABORTING)}));
    EXPECT_EQ(GetFields().state, ABORTING);
    EXPECT_TRUE(GetFields().locked);
    EXPECT_EQ(Notifications(), 0);
    EXPECT_EQ(invocation.Calls(), (std::vector<std::pair<bool, bool>>{{false, false}}));
}

TEST_P(InState, VersionComparator)
{
    LendIn(Given());
    EXPECT_EQ(Callbacks::CompareVersions(QStringLiteral("5.1"), QStringLiteral("5.2")), -1);
    EXPECT_TRUE(Log().Records().empty());
    ExpectUntouched();
}

TEST_P(InState, LockUpdaterIgnoresTheState)
{
    SetState(Given());
    EXPECT_TRUE(Session().LockUpdater(SharedContext()));
    EXPECT_EQ(Log().Records(),
              (Records{Progress(567, "bool Pelnar::App::SparkleManager::LockUpdater(const "
                                     "SharedNotNullPtr<Pelnar::App::SparkleUpdateContext> &): " +
                                         CURRENT + Name()),
                       Progress(280, "bool Pelnar::App::SparkleManager::Impl::Lock(): " + CURRENT + Name()),
                       Progress(302, "void Pelnar::App::SparkleManager::Impl::SetContext(const "
                                     "SharedNotNullPtr<Pelnar::App::SparkleUpdateContext> &): " +
                                         CURRENT + Name()),
                       Progress(312, "FeedURL = https://feeds.example.com/appcast.xml?a=1")}));
    ExpectUntouched();
    EXPECT_EQ(GetFields().context, SharedContext());
}

TEST_P(InState, UnlockUpdaterWhenPossible)
{
    LendIn(Given());
    Session().UnlockUpdaterWhenPossible();
    Records expected = {
        Progress(579, "void Pelnar::App::SparkleManager::UnlockUpdaterWhenPossible(): " + CURRENT + Name())};
    bool const atOnce = Given() == WAITING;
    if (atOnce)
    {
        expected.push_back(Progress(292, "void Pelnar::App::SparkleManager::Impl::Unlock(): " + CURRENT + "WAITING"));
    }
    EXPECT_EQ(Log().Records(), expected);
    EXPECT_EQ(GetFields().locked, !atOnce);
    EXPECT_EQ(GetFields().unlockRequested, !atOnce);
    EXPECT_EQ(GetFields().state, Given());
    EXPECT_EQ(GetFields().context, SharedContext()) << "unlocking keeps the context";
}

TEST_P(InState, CheckForUpdates)
{
    LendIn(Given());
    Session().CheckForUpdates();
    EXPECT_EQ(Log().Records(),
              (Records{Progress(597, "void Pelnar::App::SparkleManager::CheckForUpdates(): " + CURRENT + Name()),
                       Switch(Given(), FETCHING)}));
    EXPECT_EQ(GetFields().state, FETCHING);
    EXPECT_EQ(Updater().calls, (std::vector<std::string>{"checkForUpdateInformation"}));
    EXPECT_EQ(Notifications(), 0);
    EXPECT_TRUE(GetFields().locked);
}

TEST_P(InState, ShowUpdateDialog)
{
    LendWithRemote(Given());
    Session().ShowUpdateDialog();
    EXPECT_EQ(Log().Records(),
              (Records{Progress(625, "void Pelnar::App::SparkleManager::ShowUpdateDialog(): " + CURRENT + Name()),
                       Switch(Given(), PREPARING)}));
    EXPECT_EQ(GetFields().state, PREPARING);
    EXPECT_EQ(Updater().calls, (std::vector<std::string>{"checkForUpdates:nil"}));
    EXPECT_EQ(Notifications(), 0);
    EXPECT_TRUE(GetFields().locked);
}

TEST_P(InState, RejectUpdateAndHideDialogWithoutDialog)
{
    LendIn(Given());
    Session().RejectUpdateAndHideDialog();
    EXPECT_EQ(
        Log().Records(),
        (Records{Progress(665, "void Pelnar::App::SparkleManager::RejectUpdateAndHideDialog(): " + CURRENT + Name())}));
    EXPECT_TRUE(Updater().calls.empty());
    ExpectUntouched();
}

TEST_P(InState, DownloadSettingIsPassedOnWithoutRecord)
{
    LendIn(Given());
    EXPECT_FALSE(Session().AutomaticallyDownloadsUpdates());
    Session().SetAutomaticallyDownloadsUpdates(true);
    EXPECT_TRUE(Session().AutomaticallyDownloadsUpdates());
    Session().SetAutomaticallyDownloadsUpdates(false);
    EXPECT_FALSE(Session().AutomaticallyDownloadsUpdates());
    EXPECT_EQ(Updater().calls, (std::vector<std::string>{"setAutomaticallyDownloadsUpdates:YES",
                                                         "setAutomaticallyDownloadsUpdates:NO"}));
    EXPECT_TRUE(Log().Records().empty());
    ExpectUntouched();
}

} // namespace
