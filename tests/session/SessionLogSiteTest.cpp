// Every log record of the session: its text, severity, file and line. Each test causes one of them.

#include "tests/session/SessionFixture.h"

#include <sstream>

namespace
{

using namespace Pelnar::Testing;

constexpr State STRANGE = static_cast<State>(17);

class SessionLogSite;

struct Row
{
    char const* name;
    google::LogSeverity severity;
    int line;
    char const* text;
    void (SessionLogSite::*provoke)();
};

void PrintTo(Row const& row, std::ostream* out)
{
    *out << row.name;
}

class SessionLogSite : public SessionTest, public ::testing::WithParamInterface<Row>
{
public:
    void GetInstance() { (void)Pelnar::App::SparkleManager::GetInstance(); }
    void Lock()
    {
        SetState(State::SILENT_ABORTING);
        EXPECT_TRUE(Session().LockUpdater(SharedContext()));
    }
    void LockRefused()
    {
        Lock();
        EXPECT_FALSE(Session().LockUpdater(SharedContext()));
    }
    void UnlockWhenPossible()
    {
        LendIn(State::WAITING);
        Session().UnlockUpdaterWhenPossible();
    }
    void SetTheState()
    {
        SetState(State::SILENT_INSTALLING);
        SessionSteps::SetState(State::SILENT_ABORTING);
    }
    void UnlockIfRequested() { SessionSteps::UnlockIfRequested(); }
    void Notify() { SessionSteps::NotifyCheckFinished(); }
    void NotifyWithoutCallback()
    {
        Context().checkFinishedCallback = nullptr;
        LendIn(State::WAITING);
        SessionSteps::NotifyCheckFinished();
    }
    void LocalInvalid()
    {
        Context().localVersion = Version();
        LendIn(State::WAITING);
        EXPECT_FALSE(SessionSteps::EnsureLocalVersion());
    }
    void RemoteInvalid()
    {
        LendIn(State::WAITING);
        EXPECT_FALSE(SessionSteps::EnsureRemoteVersion());
    }
    void RemoteNotGreater()
    {
        LendWithRemote(State::WAITING, Version(5, 0));
        EXPECT_FALSE(SessionSteps::EnsureRemoteVersionIsGreaterThanLocal());
    }
    void OperatorsInvalid()
    {
        Context().versionLess = nullptr;
        LendIn(State::WAITING);
        EXPECT_FALSE(SessionSteps::EnsureVersionOperators());
    }
    void Check()
    {
        LendIn(State::WAITING);
        Session().CheckForUpdates();
    }
    void CheckRaises()
    {
        Updater().onCheck = [] { RaiseException(QStringLiteral("r\u00e9ason")); };
        Check();
    }
    void Show()
    {
        LendWithRemote(State::WAITING);
        Session().ShowUpdateDialog();
    }
    void ShowRaises()
    {
        Updater().onCheck = [] { RaiseException(QStringLiteral("r\u00e9ason")); };
        Show();
    }
    void ShowInBackgroundRaises()
    {
        Context().inBackground = true;
        ShowRaises();
    }
    void Reject() { Session().RejectUpdateAndHideDialog(); }
    void Find()
    {
        LendIn(State::FETCHING_INFO);
        Callbacks::DidFind(MakeItem(QStringLiteral("6.1")));
    }
    void FindWithExtension()
    {
        LendIn(State::SILENT_DOWNLOADING);
        ScriptedItem const item = MakeItem(QStringLiteral("6.1"));
        item.Properties().properties[QStringLiteral("pelnar1_Note")] = QStringLiteral("v\u00e9");
        Callbacks::DidFind(item);
    }
    void FindUnreadable()
    {
        LendIn(State::FETCHING_INFO);
        Callbacks::DidFind(MakeItem(QStringLiteral("six")));
    }
    void FindInStrangeState()
    {
        LendIn(STRANGE);
        Callbacks::DidFind(MakeItem(QStringLiteral("6.1")));
    }
    void FindNothing()
    {
        LendIn(State::SILENT_DOWNLOADING);
        Callbacks::DidNotFind();
    }
    void FindNothingInStrangeState()
    {
        LendIn(STRANGE);
        Callbacks::DidNotFind();
    }
    void Abort()
    {
        LendIn(State::WAITING);
        Callbacks::DidAbort({QStringLiteral("D"), 1, QStringLiteral("The disk is full.")});
    }
    void AbortInStrangeState()
    {
        LendIn(STRANGE);
        Callbacks::DidAbort({QStringLiteral("D"), 1, QStringLiteral("The disk is full.")});
    }
    void WillInstall()
    {
        LendIn(State::SILENT_DOWNLOADING);
        Callbacks::WillInstallOnQuit(MakeItem(QStringLiteral("6.1")), ScriptedInvocation(true, false));
    }
    void ShouldRelaunch()
    {
        LendIn(State::PREPARING_TO_SHOW_CHANGELOG);
        EXPECT_TRUE(Callbacks::ShouldRelaunch());
    }
    void WillRelaunch()
    {
        LendIn(State::FETCHING_INFO);
        Callbacks::WillRelaunch();
    }
    void Cancel()
    {
        LendIn(State::WAITING);
        Callbacks::DidCancelInstall(MakeItem(QStringLiteral("6.1")));
    }
    void RelaunchPath()
    {
        LendWithRemote(State::SILENT_INSTALLING);
        (void)Callbacks::PathToRelaunch();
    }
    void RelaunchPathOfInstaller()
    {
        LendWithRemote(State::SILENT_INSTALLING);
        SessionFields fields = GetFields();
        fields.updateType = UpdateType::INSTALLER;
        SetFields(fields);
        (void)Callbacks::PathToRelaunch();
    }
    void CompareUnreadable()
    {
        LendIn(State::WAITING);
        (void)Callbacks::CompareVersions(QStringLiteral("six"), QStringLiteral("5.1"));
    }
};

TEST_P(SessionLogSite, IsWrittenWordForWord)
{
    Row const& row = GetParam();
    Log().Clear();
    (this->*row.provoke)();
    LogRecord const expected =
        row.severity == google::GLOG_INFO ? Progress(row.line, row.text) : Error(row.line, row.text);
    EXPECT_EQ(expected.severity, row.severity);
    std::string written;
    for (LogRecord const& record : Log().Records())
    {
        std::ostringstream line;
        line << record;
        written += line.str() + '\n';
    }
    EXPECT_TRUE(Log().Has(expected)) << expected << "\nis not among\n" << written;
}

using S = SessionLogSite;
constexpr auto INFO = google::GLOG_INFO;
constexpr auto ERR = google::GLOG_ERROR;

Row const ROWS[] = {
    {"GetInstance", INFO, 560,
     "static Pelnar::App::SparkleManager &Pelnar::App::SparkleManager::GetInstance(): ", &S::GetInstance},
    {"LockUpdater", INFO, 567,
     "bool Pelnar::App::SparkleManager::LockUpdater(const SharedNotNullPtr<Pelnar::App::SparkleUpdateContext> &): "
     "Current state = SILENT_ABORTING",
     &S::Lock},
    {"LockUpdaterRefused", ERR, 570,
     "bool Pelnar::App::SparkleManager::LockUpdater(const SharedNotNullPtr<Pelnar::App::SparkleUpdateContext> &): "
     "Can't lock updater",
     &S::LockRefused},
    {"UnlockUpdaterWhenPossible", INFO, 579,
     "void Pelnar::App::SparkleManager::UnlockUpdaterWhenPossible(): Current state = WAITING", &S::UnlockWhenPossible},
    {"Lock", INFO, 280, "bool Pelnar::App::SparkleManager::Impl::Lock(): Current state = SILENT_ABORTING", &S::Lock},
    {"Unlock", INFO, 292, "void Pelnar::App::SparkleManager::Impl::Unlock(): Current state = WAITING",
     &S::UnlockWhenPossible},
    {"SetContext", INFO, 302,
     "void Pelnar::App::SparkleManager::Impl::SetContext(const SharedNotNullPtr<Pelnar::App::SparkleUpdateContext> "
     "&): Current state = SILENT_ABORTING",
     &S::Lock},
    {"SetContextFeed", INFO, 312, "FeedURL = https://feeds.example.com/appcast.xml?a=1", &S::Lock},
    {"SetState", INFO, 318,
     "void Pelnar::App::SparkleManager::Impl::SetState((anonymous namespace)::State): Switch from SILENT_INSTALLING to "
     "SILENT_ABORTING",
     &S::SetTheState},
    {"UnlockIfRequested", INFO, 526,
     "void Pelnar::App::SparkleManager::Impl::UnlockIfRequested(): Current state = WAITING", &S::UnlockIfRequested},
    {"NotifyCheckFinished", INFO, 533,
     "void Pelnar::App::SparkleManager::Impl::NotifyCheckFinished(): Current state = WAITING", &S::Notify},
    {"EnsureContext", ERR, 475, "bool Pelnar::App::SparkleManager::Impl::EnsureContext() const: Update context is NULL",
     &S::Notify},
    {"EnsureCheckFinishedCallback", ERR, 484,
     "bool Pelnar::App::SparkleManager::Impl::EnsureCheckFinishedCallback() const: CheckFinishedCallback is NULL",
     &S::NotifyWithoutCallback},
    {"EnsureLocalVersion", ERR, 493,
     "bool Pelnar::App::SparkleManager::Impl::EnsureLocalVersion() const: Invalid local version", &S::LocalInvalid},
    {"EnsureRemoteVersion", ERR, 502,
     "bool Pelnar::App::SparkleManager::Impl::EnsureRemoteVersion() const: Invalid remote version", &S::RemoteInvalid},
    {"EnsureRemoteVersionIsGreaterThanLocal", ERR, 511,
     "bool Pelnar::App::SparkleManager::Impl::EnsureRemoteVersionIsGreaterThanLocal() const: Remote version is not "
     "greater than local version",
     &S::RemoteNotGreater},
    {"EnsureVersionOperators", ERR, 520,
     "bool Pelnar::App::SparkleManager::Impl::EnsureVersionOperators() const: Invalid version operators",
     &S::OperatorsInvalid},
    {"CheckForUpdates", INFO, 597, "void Pelnar::App::SparkleManager::CheckForUpdates(): Current state = WAITING",
     &S::Check},
    {"CheckForUpdatesRaised", ERR, 614,
     "void Pelnar::App::SparkleManager::CheckForUpdates(): Exception while checkForUpdateInformation: r\u00e9ason",
     &S::CheckRaises},
    {"ShowUpdateDialog", INFO, 625, "void Pelnar::App::SparkleManager::ShowUpdateDialog(): Current state = WAITING",
     &S::Show},
    {"ShowUpdateDialogRaised", ERR, 654,
     "void Pelnar::App::SparkleManager::ShowUpdateDialog(): Exception while checkForUpdates: r\u00e9ason",
     &S::ShowRaises},
    {"ShowUpdateDialogInBackgroundRaised", ERR, 654,
     "void Pelnar::App::SparkleManager::ShowUpdateDialog(): Exception while checkForUpdatesInBackground: r\u00e9ason",
     &S::ShowInBackgroundRaises},
    {"RejectUpdateAndHideDialog", INFO, 665,
     "void Pelnar::App::SparkleManager::RejectUpdateAndHideDialog(): Current state = WAITING", &S::Reject},
    {"Found", INFO, 727, "-[PelnarSparkleUpdaterDelegate updater:didFindValidUpdate:]: Current state = FETCHING_INFO",
     &S::Find},
    {"FoundUpdateType", INFO, 730,
     "-[PelnarSparkleUpdaterDelegate updater:didFindValidUpdate:]: SUAppcastItem contains update with UpdateType = "
     "BUNDLE",
     &S::Find},
    {"FoundExtensions", INFO, 735, "Extensions:", &S::FindWithExtension},
    {"FoundExtension", INFO, 738, "  * PELNAR1_NOTE = \"v\u00e9\"", &S::FindWithExtension},
    {"FoundBadVersion", ERR, 762, "-[PelnarSparkleUpdaterDelegate updater:didFindValidUpdate:]: item version=\"six\"",
     &S::FindUnreadable},
    {"FoundUnspecified", ERR, 783,
     "-[PelnarSparkleUpdaterDelegate updater:didFindValidUpdate:]: !!! ACHTUNG !!! This function is not specified for "
     "State = Unknown State",
     &S::FindInStrangeState},
    {"NotFound", INFO, 794,
     "-[PelnarSparkleUpdaterDelegate updaterDidNotFindUpdate:]: Current state = SILENT_DOWNLOADING", &S::FindNothing},
    {"NotFoundUnspecified", ERR, 823,
     "-[PelnarSparkleUpdaterDelegate updaterDidNotFindUpdate:]: !!! ACHTUNG !!! This function is not specified for "
     "State = Unknown State",
     &S::FindNothingInStrangeState},
    {"Aborted", INFO, 835, "-[PelnarSparkleUpdaterDelegate updater:didAbortWithError:]: Current state = WAITING",
     &S::Abort},
    {"AbortedUnspecified", ERR, 888,
     "-[PelnarSparkleUpdaterDelegate updater:didAbortWithError:]: !!! ACHTUNG !!! This function is not specified for "
     "State = Unknown State",
     &S::AbortInStrangeState},
    {"WillInstall", INFO, 903,
     "-[PelnarSparkleUpdaterDelegate updater:willInstallUpdateOnQuit:immediateInstallationInvocation:]: Current state "
     "= SILENT_DOWNLOADING",
     &S::WillInstall},
    {"ShouldRelaunch", INFO, 974,
     "-[PelnarSparkleUpdaterDelegate updaterShouldRelaunchApplication:]: Current state = PREPARING_TO_SHOW_CHANGELOG",
     &S::ShouldRelaunch},
    {"ShouldRelaunchUnspecified", ERR, 986,
     "-[PelnarSparkleUpdaterDelegate updaterShouldRelaunchApplication:]: !!! ACHTUNG !!! This function is not "
     "specified for State = PREPARING_TO_SHOW_CHANGELOG",
     &S::ShouldRelaunch},
    {"WillRelaunch", INFO, 996,
     "-[PelnarSparkleUpdaterDelegate updaterWillRelaunchApplication:]: Current state = FETCHING_INFO",
     &S::WillRelaunch},
    {"WillRelaunchUnspecified", ERR, 1017,
     "-[PelnarSparkleUpdaterDelegate updaterWillRelaunchApplication:]: !!! ACHTUNG !!! This function is not specified "
     "for State = FETCHING_INFO",
     &S::WillRelaunch},
    {"DidCancel", INFO, 1028,
     "-[PelnarSparkleUpdaterDelegate updater:didCancelInstallUpdateOnQuit:]: Current state = WAITING", &S::Cancel},
    {"DidCancelUnspecified", ERR, 1044,
     "-[PelnarSparkleUpdaterDelegate updater:didCancelInstallUpdateOnQuit:]: !!! ACHTUNG !!! This function is not "
     "specified for State = WAITING",
     &S::Cancel},
    {"RelaunchPath", INFO, 1055,
     "-[PelnarSparkleUpdaterDelegate pathToRelaunchForUpdater:]: Current state = SILENT_INSTALLING", &S::RelaunchPath},
    {"RelaunchPathType", ERR, 1063, "-[PelnarSparkleUpdaterDelegate pathToRelaunchForUpdater:]: Invalid UpdateType",
     &S::RelaunchPath},
    {"RelaunchPathAnswer", INFO, 1074,
     "-[PelnarSparkleUpdaterDelegate pathToRelaunchForUpdater:]: Relaunch path = /Applications/Pelnar Studio 6.app",
     &S::RelaunchPathOfInstaller},
    {"CompareVersions", ERR, 1174,
     "-[PelnarSparkleVersionComparator compareVersion:toVersion:]: versionA=\"six\", versionB=\"5.1\"",
     &S::CompareUnreadable},
};

INSTANTIATE_TEST_SUITE_P(Sites, SessionLogSite, ::testing::ValuesIn(ROWS),
                         [](auto const& info) { return std::string(info.param.name); });

} // namespace
