#include "Foundation/RaisedException.h"
#include "tests/session/SessionFixture.h"

#include <stdexcept>

namespace
{

using namespace Pelnar::Testing;
using Records = std::vector<LogRecord>;

std::string const CHECK = "void Pelnar::App::SparkleManager::CheckForUpdates(): ";
std::string const SHOW = "void Pelnar::App::SparkleManager::ShowUpdateDialog(): ";
LogRecord const NO_CONTEXT =
    Error(475, "bool Pelnar::App::SparkleManager::Impl::EnsureContext() const: Update context is NULL");
LogRecord const NO_CALLBACK = Error(484, "bool Pelnar::App::SparkleManager::Impl::EnsureCheckFinishedCallback() const: "
                                         "CheckFinishedCallback is NULL");
LogRecord const BAD_LOCAL =
    Error(493, "bool Pelnar::App::SparkleManager::Impl::EnsureLocalVersion() const: Invalid local version");
LogRecord const BAD_REMOTE =
    Error(502, "bool Pelnar::App::SparkleManager::Impl::EnsureRemoteVersion() const: Invalid remote version");

class SessionCommand : public SessionTest
{
protected:
    /// Values of an earlier update, which a new check clears.
    void LeaveLeftovers()
    {
        SessionFields fields = GetFields();
        fields.updateType = UpdateType::DELTA;
        fields.extensions = {{QStringLiteral("PELNAR1_A"), QStringLiteral("b")}};
        fields.bestItemIsDelta = true;
        SetFields(fields);
    }
    void RequestUnlock()
    {
        SessionFields fields = GetFields();
        fields.unlockRequested = true;
        SetFields(fields);
    }
};

TEST_F(SessionCommand, CheckClearsWhatTheLastUpdateLeft)
{
    LendIn(State::WAITING);
    LeaveLeftovers();
    Session().CheckForUpdates();
    EXPECT_EQ(GetFields().updateType, UpdateType::UNKNOWN);
    EXPECT_TRUE(GetFields().extensions.isEmpty());
    EXPECT_TRUE(GetFields().bestItemIsDelta) << "the selection's own";
}

TEST_F(SessionCommand, CheckSetsTheStateBeforeTheFrameworkIsCalled)
{
    LendIn(State::WAITING);
    State during = State::WAITING;
    Updater().onCheck = [&during] { during = GetFields().state; };
    Session().CheckForUpdates();
    EXPECT_EQ(during, State::FETCHING_INFO);
}

TEST_F(SessionCommand, CheckWithoutContextRecordsItAndDoesNothingElse)
{
    LeaveLeftovers();
    Session().CheckForUpdates();
    EXPECT_EQ(Log().Records(), (Records{Progress(597, CHECK + "Current state = WAITING"), NO_CONTEXT}));
    EXPECT_EQ(GetFields().updateType, UpdateType::DELTA);
    EXPECT_TRUE(Updater().calls.empty());
}

TEST_F(SessionCommand, CheckWithoutCallbackRecordsItAndLeavesTheState)
{
    Context().checkFinishedCallback = nullptr;
    LendIn(State::SILENT_ABORTING);
    LeaveLeftovers();
    Session().CheckForUpdates();
    EXPECT_EQ(Log().Records(), (Records{Progress(597, CHECK + "Current state = SILENT_ABORTING"), NO_CALLBACK}));
    EXPECT_EQ(GetFields().state, State::SILENT_ABORTING);
    EXPECT_FALSE(GetFields().extensions.isEmpty());
    EXPECT_TRUE(Updater().calls.empty());
}

TEST_F(SessionCommand, ExceptionOfTheProbeIsReportedAsNoNewerVersion)
{
    LendWithRemote(State::WAITING);
    RequestUnlock();
    Updater().onCheck = [] { RaiseException(QStringLiteral("no network")); };
    Version remoteAtNotification;
    State stateAtNotification = State::FETCHING_INFO;
    Context().checkFinishedCallback = [&]
    {
        remoteAtNotification = Context().remoteVersion;
        stateAtNotification = GetFields().state;
        EXPECT_TRUE(GetFields().locked) << "unlocked after the notification";
    };
    Session().CheckForUpdates();
    Records expected = {Progress(597, CHECK + "Current state = WAITING"), Switch(State::WAITING, State::FETCHING_INFO),
                        Error(614, CHECK + "Exception while checkForUpdateInformation: no network"),
                        Switch(State::FETCHING_INFO, State::WAITING),
                        Progress(533, "void Pelnar::App::SparkleManager::Impl::NotifyCheckFinished(): Current state = "
                                      "WAITING")};
    for (LogRecord const& record : RequestedUnlock())
    {
        expected.push_back(record);
    }
    EXPECT_EQ(Log().Records(), expected);
    EXPECT_EQ(remoteAtNotification, Version(5, 0));
    EXPECT_EQ(stateAtNotification, State::WAITING);
    EXPECT_FALSE(GetFields().locked);
}

TEST_F(SessionCommand, ExceptionWithoutReasonPrintsNothingAfterTheColon)
{
    for (QString const& reason : {QStringLiteral(""), QString()})
    {
        LendIn(State::WAITING);
        Updater().onCheck = [&reason] { RaiseException(reason); };
        Session().CheckForUpdates();
        EXPECT_TRUE(Log().Has(Error(614, CHECK + "Exception while checkForUpdateInformation: ")))
            << (reason.isNull() ? "nil" : "empty");
    }
}

TEST_F(SessionCommand, OtherExceptionOfTheProbePropagates)
{
    LendIn(State::WAITING);
    Updater().onCheck = [] { throw std::out_of_range("other"); };
    EXPECT_THROW(Session().CheckForUpdates(), std::out_of_range);
    EXPECT_EQ(GetFields().state, State::FETCHING_INFO);
    EXPECT_EQ(Notifications(), 0);
    EXPECT_TRUE(Log().Of(google::GLOG_ERROR).empty());
}

struct DialogRow
{
    char const* name;
    bool inBackground;
    bool downloadsAutomatically;
    State state;
    char const* call;
};

void PrintTo(DialogRow const& row, std::ostream* out)
{
    *out << row.name;
}

class UpdateDialog : public SessionCommand, public ::testing::WithParamInterface<DialogRow>
{
};

TEST_P(UpdateDialog, StateAndCall)
{
    DialogRow const& row = GetParam();
    Context().inBackground = row.inBackground;
    LendWithRemote(State::WAITING);
    LeaveLeftovers();
    Updater().automaticallyDownloadsUpdates = row.downloadsAutomatically;
    State during = State::WAITING;
    Updater().onCheck = [&during] { during = GetFields().state; };
    Session().ShowUpdateDialog();
    EXPECT_EQ(during, row.state);
    EXPECT_EQ(GetFields().state, row.state);
    EXPECT_EQ(GetFields().updateType, UpdateType::UNKNOWN);
    EXPECT_TRUE(GetFields().extensions.isEmpty());
    EXPECT_EQ(Updater().calls, (std::vector<std::string>{row.call}));
    EXPECT_EQ(Log().Records(),
              (Records{Progress(625, SHOW + "Current state = WAITING"), Switch(State::WAITING, row.state)}));
}

TEST_P(UpdateDialog, ExceptionReturnsTheSessionToIdleAndNotifiesNobody)
{
    DialogRow const& row = GetParam();
    Context().inBackground = row.inBackground;
    LendWithRemote(State::WAITING);
    RequestUnlock();
    Updater().automaticallyDownloadsUpdates = row.downloadsAutomatically;
    Updater().onCheck = [] { RaiseException(QStringLiteral("no screen")); };
    Session().ShowUpdateDialog();
    std::string const call = row.inBackground ? "checkForUpdatesInBackground" : "checkForUpdates";
    Records expected = {Progress(625, SHOW + "Current state = WAITING"), Switch(State::WAITING, row.state),
                        Error(654, SHOW + "Exception while " + call + ": no screen"),
                        Switch(row.state, State::WAITING)};
    for (LogRecord const& record : RequestedUnlock())
    {
        expected.push_back(record);
    }
    EXPECT_EQ(Log().Records(), expected);
    EXPECT_EQ(Notifications(), 0);
    EXPECT_EQ(Context().remoteVersion, Version(6, 1));
    EXPECT_FALSE(GetFields().locked);
}

TEST_P(UpdateDialog, OtherExceptionPropagates)
{
    DialogRow const& row = GetParam();
    Context().inBackground = row.inBackground;
    LendWithRemote(State::WAITING);
    Updater().automaticallyDownloadsUpdates = row.downloadsAutomatically;
    Updater().onCheck = [] { throw std::out_of_range("other"); };
    EXPECT_THROW(Session().ShowUpdateDialog(), std::out_of_range);
    EXPECT_EQ(GetFields().state, row.state);
}

INSTANTIATE_TEST_SUITE_P(Modes, UpdateDialog,
                         ::testing::Values(DialogRow{"ByUser", false, false, State::PREPARING_TO_SHOW_CHANGELOG,
                                                     "checkForUpdates:nil"},
                                           DialogRow{"ByUserWhateverTheDownloadSetting", false, true,
                                                     State::PREPARING_TO_SHOW_CHANGELOG, "checkForUpdates:nil"},
                                           DialogRow{"InBackgroundWithoutDownload", true, false,
                                                     State::PREPARING_TO_SHOW_CHANGELOG, "checkForUpdatesInBackground"},
                                           DialogRow{"InBackgroundWithDownload", true, true, State::SILENT_DOWNLOADING,
                                                     "checkForUpdatesInBackground"}),
                         [](auto const& info) { return std::string(info.param.name); });

TEST_F(SessionCommand, DialogGuardsStopAtTheFirstFailure)
{
    LogRecord const entry = Progress(625, SHOW + "Current state = WAITING");
    Session().ShowUpdateDialog();
    EXPECT_EQ(Log().Records(), (Records{entry, NO_CONTEXT}));

    Context().localVersion = Version();
    LendIn(State::WAITING);
    Session().ShowUpdateDialog();
    EXPECT_EQ(Log().Records(), (Records{entry, BAD_LOCAL}));

    Context().localVersion = Version(5, 0);
    LendIn(State::WAITING);
    LeaveLeftovers();
    Session().ShowUpdateDialog();
    EXPECT_EQ(Log().Records(), (Records{entry, BAD_REMOTE})) << "no earlier check";
    EXPECT_EQ(GetFields().updateType, UpdateType::DELTA);
    EXPECT_EQ(GetFields().state, State::WAITING);
    EXPECT_TRUE(Updater().calls.empty());
}

TEST_F(SessionCommand, DialogNeedsNoCallback)
{
    Context().checkFinishedCallback = nullptr;
    LendWithRemote(State::WAITING);
    Session().ShowUpdateDialog();
    EXPECT_EQ(GetFields().state, State::PREPARING_TO_SHOW_CHANGELOG);
}

TEST_F(SessionCommand, CommandsDoNotAskForTheLock)
{
    SetFields({SharedContext(), false, false, State::WAITING, UpdateType::UNKNOWN, {}, false});
    Session().CheckForUpdates();
    EXPECT_EQ(GetFields().state, State::FETCHING_INFO);
    EXPECT_FALSE(GetFields().locked);
}

TEST_F(SessionCommand, FrameworkMayAnswerWithinTheCall)
{
    LendIn(State::WAITING);
    Updater().onCheck = [] { Callbacks::DidNotFind(); };
    Session().CheckForUpdates();
    EXPECT_EQ(GetFields().state, State::WAITING);
    EXPECT_EQ(Notifications(), 1);
}

} // namespace
