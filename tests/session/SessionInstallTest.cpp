#include "tests/session/SessionFixture.h"

#include <functional>
#include <stdexcept>

namespace
{

using namespace Pelnar::Testing;
using Records = std::vector<LogRecord>;
using Calls = std::vector<std::pair<bool, bool>>;

std::string const PATH = "-[PelnarSparkleUpdaterDelegate pathToRelaunchForUpdater:]: ";
QString const OVERRIDE = QStringLiteral("PELNAR1_OVERRIDEPATHTORELAUNCH");

class SessionInstall : public SessionTest
{
protected:
    /// The error records of an installation on quit whose checks fail.
    Records ErrorsOfRefusedInstall()
    {
        ScriptedInvocation const invocation(true, true);
        Callbacks::WillInstallOnQuit(MakeItem(QStringLiteral("6.1")), invocation);
        EXPECT_EQ(invocation.Calls(), (Calls{{false, true}})) << "argument 2 alone";
        EXPECT_EQ(GetFields().state, State::SILENT_ABORTING);
        return Log().Of(google::GLOG_ERROR);
    }
    void SetUpdate(UpdateType type, QVariantMap const& extensions)
    {
        SessionFields fields = GetFields();
        fields.updateType = type;
        fields.extensions = extensions;
        SetFields(fields);
    }
};

TEST_F(SessionInstall, ChecksStopAtTheFirstFailureInTheirOrder)
{
    SetState(State::SILENT_DOWNLOADING);
    EXPECT_EQ(
        ErrorsOfRefusedInstall(),
        (Records{Error(475, "bool Pelnar::App::SparkleManager::Impl::EnsureContext() const: Update context is NULL")}));

    Context().versionLess = nullptr;
    Context().localVersion = Version();
    LendIn(State::SILENT_DOWNLOADING);
    EXPECT_EQ(ErrorsOfRefusedInstall(), (Records{Error(493, "bool Pelnar::App::SparkleManager::Impl::"
                                                            "EnsureLocalVersion() const: Invalid local version")}));

    Context().localVersion = Version(5, 0);
    LendIn(State::SILENT_DOWNLOADING);
    EXPECT_EQ(ErrorsOfRefusedInstall(), (Records{Error(502, "bool Pelnar::App::SparkleManager::Impl::"
                                                            "EnsureRemoteVersion() const: Invalid remote version")}));

    LendWithRemote(State::SILENT_DOWNLOADING);
    EXPECT_EQ(ErrorsOfRefusedInstall(),
              (Records{Error(520, "bool Pelnar::App::SparkleManager::Impl::EnsureVersionOperators() const: Invalid "
                                  "version operators")}));

    Context().versionLess = Context().versionEqual;
    LendWithRemote(State::SILENT_DOWNLOADING);
    EXPECT_EQ(ErrorsOfRefusedInstall(),
              (Records{Error(511, "bool Pelnar::App::SparkleManager::Impl::EnsureRemoteVersionIsGreaterThanLocal() "
                                  "const: Remote version is not greater than local version")}));
}

TEST_F(SessionInstall, CancelledInDownloadingLeavesTheState)
{
    LendIn(State::SILENT_DOWNLOADING);
    Callbacks::DidCancelInstall(MakeItem(QStringLiteral("6.1")));
    EXPECT_EQ(GetFields().state, State::SILENT_DOWNLOADING);
}

TEST_F(SessionInstall, QuittingIsPostedOnTheApplicationAndGoesWithIt)
{
    LendIn(State::SILENT_INSTALLING);
    Callbacks::WillRelaunch();
    Callbacks::WillRelaunch();
    EXPECT_EQ(Host().triesToQuit, 0);
    QCoreApplication::processEvents();
    QCoreApplication::processEvents();
    EXPECT_EQ(Host().triesToQuit, 2) << "each callback asks once; the refusal is ignored";
}

TEST_F(SessionInstall, RelaunchPathNeedsAContextAndThenARemoteVersion)
{
    EXPECT_EQ(Callbacks::PathToRelaunch(), MainBundlePath());
    EXPECT_EQ(
        Log().Of(google::GLOG_ERROR),
        (Records{Error(475, "bool Pelnar::App::SparkleManager::Impl::EnsureContext() const: Update context is NULL")}));
    LendIn(State::SILENT_INSTALLING);
    EXPECT_EQ(Callbacks::PathToRelaunch(), MainBundlePath());
    EXPECT_EQ(Log().Of(google::GLOG_ERROR),
              (Records{Error(502, "bool Pelnar::App::SparkleManager::Impl::EnsureRemoteVersion() const: Invalid "
                                  "remote version")}))
        << "the update type is not looked at";
}

struct PathRow
{
    char const* name;
    UpdateType type;
    QVariantMap extensions;
    bool hasRule;
    char const* path; ///< null: the running bundle's
};

void PrintTo(PathRow const& row, std::ostream* out)
{
    *out << row.name;
}

class RelaunchPath : public SessionInstall, public ::testing::WithParamInterface<PathRow>
{
};

TEST_P(RelaunchPath, OfAnInstalledUpdate)
{
    PathRow const& row = GetParam();
    if (!row.hasRule)
    {
        Context().relaunchPathGetter = nullptr;
    }
    LendWithRemote(State::SILENT_INSTALLING);
    SetUpdate(row.type, row.extensions);
    QString const path = row.path ? QString::fromUtf8(row.path) : MainBundlePath();
    EXPECT_EQ(Callbacks::PathToRelaunch(), path);
    Records expected = {Progress(1055, PATH + "Current state = SILENT_INSTALLING")};
    if (row.type == UpdateType::UNKNOWN)
    {
        expected.push_back(Error(1063, PATH + "Invalid UpdateType"));
    }
    if (row.path)
    {
        expected.push_back(Progress(1074, PATH + "Relaunch path = " + row.path));
    }
    EXPECT_EQ(Log().Records(), expected);
}

QVariantMap Override(QVariant const& value)
{
    return {{OVERRIDE, value}};
}

constexpr char const* RULE = "/Applications/Pelnar Studio 6.app";

INSTANTIATE_TEST_SUITE_P(
    Table, RelaunchPath,
    ::testing::Values(
        PathRow{"InstallerByRule", UpdateType::INSTALLER, {}, true, RULE},
        PathRow{"InstallerByAbsoluteOverride", UpdateType::INSTALLER,
                Override(QStringLiteral("/opt/Studio \u00e9.app")), true, "/opt/Studio \u00e9.app"},
        PathRow{"InstallerByOverrideThatQtCallsAbsolute", UpdateType::INSTALLER,
                Override(QStringLiteral(":/Studio.app")), true, ":/Studio.app"},
        PathRow{"InstallerIgnoresRelativeOverride", UpdateType::INSTALLER, Override(QStringLiteral("Studio.app")), true,
                RULE},
        PathRow{"InstallerIgnoresDottedOverride", UpdateType::INSTALLER, Override(QStringLiteral("../Studio.app")),
                true, RULE},
        PathRow{"InstallerIgnoresEmptyOverride", UpdateType::INSTALLER, Override(QStringLiteral("")), true, RULE},
        PathRow{"InstallerIgnoresOverrideThatIsNoText", UpdateType::INSTALLER, Override(QVariant()), true, RULE},
        PathRow{"InstallerIgnoresOtherExtensions",
                UpdateType::INSTALLER,
                {{QStringLiteral("PELNAR1_OTHER"), QStringLiteral("/opt/Studio.app")}},
                true,
                RULE},
        PathRow{"InstallerWithoutRule", UpdateType::INSTALLER, {}, false, nullptr},
        PathRow{"InstallerWithOverrideButWithoutRule", UpdateType::INSTALLER, Override(QStringLiteral("/opt/S.app")),
                false, nullptr},
        PathRow{"Bundle", UpdateType::BUNDLE, Override(QStringLiteral("/opt/S.app")), true, nullptr},
        PathRow{"Delta", UpdateType::DELTA, Override(QStringLiteral("/opt/S.app")), true, nullptr},
        PathRow{"Unknown", UpdateType::UNKNOWN, Override(QStringLiteral("/opt/S.app")), true, nullptr},
        PathRow{"OutsideTheEnumeration", static_cast<UpdateType>(9), Override(QStringLiteral("/opt/S.app")), true,
                nullptr}),
    [](auto const& info) { return std::string(info.param.name); });

TEST_F(SessionInstall, RelaunchRuleGetsTheRemoteVersion)
{
    Version asked;
    Context().relaunchPathGetter = [&asked](Version const& version)
    {
        asked = version;
        return Pelnar::ioPath("relative from the rule");
    };
    LendWithRemote(State::WAITING, Version(21, 3));
    SetUpdate(UpdateType::INSTALLER, {});
    EXPECT_EQ(Callbacks::PathToRelaunch(), QStringLiteral("relative from the rule"))
        << "the rule's answer is not judged";
    EXPECT_EQ(asked, Version(21, 3));
}

TEST_F(SessionInstall, OverrideDoesNotAskTheRule)
{
    Context().relaunchPathGetter = [](Version const&) -> Pelnar::ioPath { throw std::logic_error("asked"); };
    LendWithRemote(State::WAITING);
    SetUpdate(UpdateType::INSTALLER, Override(QStringLiteral("/opt/S.app")));
    EXPECT_EQ(Callbacks::PathToRelaunch(), QStringLiteral("/opt/S.app"));
}

struct FailingRule
{
    char const* name;
    std::function<Pelnar::ioPath(Version const&)> rule;
    char const* reason;
};

void PrintTo(FailingRule const& row, std::ostream* out)
{
    *out << row.name;
}

class FailingRelaunchRule : public SessionInstall, public ::testing::WithParamInterface<FailingRule>
{
};

TEST_P(FailingRelaunchRule, YieldsTheRunningBundlesPath)
{
    Context().relaunchPathGetter = GetParam().rule;
    LendWithRemote(State::SILENT_INSTALLING);
    SetUpdate(UpdateType::INSTALLER, {});
    EXPECT_EQ(Callbacks::PathToRelaunch(), MainBundlePath());
    ASSERT_EQ(Log().Of(google::GLOG_ERROR).size(), 1U);
    LogRecord const record = Log().Of(google::GLOG_ERROR).front();
    EXPECT_EQ(record.line, 1068);
    EXPECT_EQ(record.text.find(PATH), 0U) << record.text;
    EXPECT_NE(record.text.find(GetParam().reason), std::string::npos) << record.text;
    EXPECT_EQ(GetFields().state, State::SILENT_INSTALLING);
}

INSTANTIATE_TEST_SUITE_P(
    Table, FailingRelaunchRule,
    ::testing::Values(
        FailingRule{"Throws", [](Version const&) -> Pelnar::ioPath { throw std::runtime_error("no rule"); }, "no rule"},
        FailingRule{"ThrowsNoStandardException", [](Version const&) -> Pelnar::ioPath { throw 7; }, ""},
        FailingRule{"Raises", [](Version const&) -> Pelnar::ioPath { RaiseException(QStringLiteral("raised")); },
                    "raised"},
        FailingRule{"CallsAnEmptyFunction",
                    [](Version const& version) { return std::function<Pelnar::ioPath(Version const&)>()(version); },
                    "bad_function_call"}),
    [](auto const& info) { return std::string(info.param.name); });

TEST_F(SessionInstall, RelaunchRuleMayReplaceItsOwnContext)
{
    auto own = std::make_shared<Pelnar::App::SparkleUpdateContext>(Context());
    own->remoteVersion = Version(6, 1);
    own->relaunchPathGetter =
        [this, name = std::string("/opt/a path that is long enough to be on the heap.app")](Version const& version)
    {
        Session().UnlockUpdaterWhenPossible();
        EXPECT_TRUE(Session().LockUpdater(SharedContext()));
        EXPECT_EQ(version, Version(6, 1));
        return Pelnar::ioPath(name);
    };
    SetFields({own, true, false, State::WAITING, UpdateType::INSTALLER, {}, false});
    own.reset();
    EXPECT_EQ(Callbacks::PathToRelaunch(), QStringLiteral("/opt/a path that is long enough to be on the heap.app"));
    EXPECT_EQ(GetFields().context, SharedContext());
}

TEST_F(SessionInstall, OperatorThatThrowsIsAFailedCheck)
{
    Context().versionLess = [](Version const&, Version const&) -> bool { throw std::runtime_error("no order"); };
    LendWithRemote(State::SILENT_DOWNLOADING);
    Records const errors = ErrorsOfRefusedInstall();
    ASSERT_EQ(errors.size(), 1U);
    EXPECT_EQ(errors[0].line, 917);
    EXPECT_NE(errors[0].text.find("no order"), std::string::npos) << errors[0].text;
}

TEST_F(SessionInstall, OperatorThatRaisesIsAFailedCheck)
{
    Context().versionEqual = [](Version const&, Version const&) -> bool { RaiseException(QStringLiteral("raised")); };
    LendWithRemote(State::SILENT_DOWNLOADING);
    EXPECT_EQ(ErrorsOfRefusedInstall().size(), 1U);
}

TEST_F(SessionInstall, WholeSilentUpdateReturnsTheSessionToIdle)
{
    Context().inBackground = true;
    Updater().automaticallyDownloadsUpdates = true;
    ASSERT_TRUE(Session().LockUpdater(SharedContext()));
    Session().CheckForUpdates();
    Callbacks::DidFind(MakeItem(QStringLiteral("6.1")));
    ASSERT_EQ(Notifications(), 1);
    Session().ShowUpdateDialog();
    Callbacks::DidFind(MakeItem(QStringLiteral("6.1")));
    Context().versionEqual = nullptr;
    ScriptedInvocation const invocation(true, false);
    Callbacks::WillInstallOnQuit(MakeItem(QStringLiteral("6.1")), invocation);
    EXPECT_FALSE(Callbacks::ShouldRelaunch());
    Session().UnlockUpdaterWhenPossible();
    Callbacks::DidCancelInstall(MakeItem(QStringLiteral("6.1")));
    EXPECT_EQ(GetFields().state, State::WAITING);
    EXPECT_FALSE(GetFields().locked);
}

} // namespace
