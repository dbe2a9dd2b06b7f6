#include "Foundation/RaisedException.h"
#include "tests/session/SessionFixture.h"

#include <stdexcept>

namespace
{

using namespace Pelnar::Testing;
using Records = std::vector<LogRecord>;

std::string const FOUND = "-[PelnarSparkleUpdaterDelegate updater:didFindValidUpdate:]: ";
LogRecord const NO_CONTEXT =
    Error(475, "bool Pelnar::App::SparkleManager::Impl::EnsureContext() const: Update context is NULL");
LogRecord const NO_CALLBACK = Error(484, "bool Pelnar::App::SparkleManager::Impl::EnsureCheckFinishedCallback() const: "
                                         "CheckFinishedCallback is NULL");

class SessionOutcome : public SessionTest
{
protected:
    /// The error records of a found update of \a version in FETCHING_INFO.
    Records ErrorsAfterFinding(QString const& version)
    {
        LendIn(State::FETCHING_INFO);
        Callbacks::DidFind(MakeItem(version));
        return Log().Of(google::GLOG_ERROR);
    }
    void ExpectNoNewerVersion()
    {
        EXPECT_EQ(Context().remoteVersion, Context().localVersion);
        EXPECT_EQ(GetFields().state, State::WAITING);
        EXPECT_EQ(Notifications(), 1);
    }
};

TEST_F(SessionOutcome, NewerVersionIsReported)
{
    EXPECT_TRUE(ErrorsAfterFinding(QStringLiteral("5.10.2")).empty());
    EXPECT_EQ(Context().remoteVersion, Version(5, 10, 2));
    EXPECT_EQ(Notifications(), 1);
}

TEST_F(SessionOutcome, EqualVersionIsNoUpdateButReported)
{
    EXPECT_EQ(ErrorsAfterFinding(QStringLiteral("5.0.0")),
              (Records{Error(511, "bool Pelnar::App::SparkleManager::Impl::EnsureRemoteVersionIsGreaterThanLocal() "
                                  "const: Remote version is not greater than local version")}));
    ExpectNoNewerVersion();
}

TEST_F(SessionOutcome, OlderVersionIsNoUpdateButReported)
{
    EXPECT_EQ(ErrorsAfterFinding(QStringLiteral("4.9")).size(), 1U);
    ExpectNoNewerVersion();
}

TEST_F(SessionOutcome, MissingOperatorsAreNoUpdateButReported)
{
    Context().versionEqual = nullptr;
    EXPECT_EQ(ErrorsAfterFinding(QStringLiteral("6.0")),
              (Records{Error(520, "bool Pelnar::App::SparkleManager::Impl::EnsureVersionOperators() const: Invalid "
                                  "version operators")}))
        << "the order is not asked any more";
    ExpectNoNewerVersion();
}

TEST_F(SessionOutcome, UnreadableVersionIsDiagnosedAndNoUpdate)
{
    Records const errors = ErrorsAfterFinding(QStringLiteral("six\u00e9"));
    ASSERT_EQ(errors.size(), 2U);
    EXPECT_EQ(errors[0].line, 761);
    EXPECT_EQ(errors[0].file, errors[1].file);
    EXPECT_EQ(errors[0].text.find(FOUND), 0U);
    EXPECT_NE(errors[0].text.find("std::invalid_argument"), std::string::npos) << errors[0].text;
    EXPECT_EQ(errors[1], Error(762, FOUND + "item version=\"six\u00e9\""));
    ExpectNoNewerVersion();
}

TEST_F(SessionOutcome, MissingVersionIsDiagnosedAndNoUpdate)
{
    Records const errors = ErrorsAfterFinding(QString());
    ASSERT_EQ(errors.size(), 2U);
    EXPECT_EQ(errors[1], Error(762, FOUND + "item version=\"\""));
    ExpectNoNewerVersion();
}

TEST_F(SessionOutcome, FailingOperatorIsDiagnosedAndNoUpdate)
{
    Context().versionLess = [](Version const&, Version const&) -> bool { throw std::runtime_error("operator"); };
    Records const errors = ErrorsAfterFinding(QStringLiteral("6.0"));
    ASSERT_EQ(errors.size(), 2U);
    EXPECT_NE(errors[0].text.find("operator"), std::string::npos);
    EXPECT_EQ(errors[1], Error(762, FOUND + "item version=\"6.0\""));
    ExpectNoNewerVersion();
}

TEST_F(SessionOutcome, RaisedExceptionOfAnOperatorIsDiagnosedWithItsReason)
{
    Context().versionLess = [](Version const&, Version const&) -> bool { RaiseException(QStringLiteral("raised")); };
    Records const errors = ErrorsAfterFinding(QStringLiteral("6.0"));
    ASSERT_EQ(errors.size(), 2U);
    EXPECT_NE(errors[0].text.find("raised"), std::string::npos) << errors[0].text;
    ExpectNoNewerVersion();
}

TEST_F(SessionOutcome, GetterThatRaisesIsDiagnosedAndNoUpdate)
{
    LendIn(State::FETCHING_INFO);
    ScriptedItem const item = MakeItem(QStringLiteral("6.0"));
    item.Properties().onRead["versionString"] = [] { RaiseException(QStringLiteral("no version")); };
    Callbacks::DidFind(item);
    Records const errors = Log().Of(google::GLOG_ERROR);
    ASSERT_EQ(errors.size(), 2U);
    EXPECT_NE(errors[0].text.find("no version"), std::string::npos);
    EXPECT_EQ(errors[1], Error(762, FOUND + "item version=\"\""));
    ExpectNoNewerVersion();
}

TEST_F(SessionOutcome, GetterThatFailsBeforeTheVersionIsReadLeavesTheState)
{
    LendIn(State::FETCHING_INFO);
    ScriptedItem const item = MakeItem(QStringLiteral("6.0"));
    item.Properties().onRead["isDeltaUpdate"] = [] { RaiseException(QStringLiteral("no kind")); };
    EXPECT_EQ(Pelnar::Foundation::ReasonRaisedBy([&] { Callbacks::DidFind(item); }), "no kind");
    EXPECT_EQ(GetFields().state, State::FETCHING_INFO);
    item.Properties().onRead["isDeltaUpdate"] = [] { throw std::out_of_range("no kind"); };
    EXPECT_THROW(Callbacks::DidFind(item), std::out_of_range);
    EXPECT_EQ(Notifications(), 0);
}

TEST_F(SessionOutcome, FoundWithoutContextThenCallbackStaysWhereItIs)
{
    SetState(State::FETCHING_INFO);
    Callbacks::DidFind(MakeItem(QStringLiteral("6.0")));
    EXPECT_EQ(Log().Of(google::GLOG_ERROR), (Records{NO_CONTEXT}));
    EXPECT_EQ(GetFields().state, State::FETCHING_INFO);

    Context().checkFinishedCallback = nullptr;
    LendIn(State::FETCHING_INFO);
    Callbacks::DidFind(MakeItem(QStringLiteral("6.0")));
    EXPECT_EQ(Log().Of(google::GLOG_ERROR), (Records{NO_CALLBACK}));
    EXPECT_EQ(GetFields().state, State::FETCHING_INFO);
    EXPECT_EQ(Context().remoteVersion, Version());
}

TEST_F(SessionOutcome, NotFoundWithoutContextThenCallbackStaysWhereItIs)
{
    SetState(State::FETCHING_INFO);
    Callbacks::DidNotFind();
    EXPECT_EQ(Log().Of(google::GLOG_ERROR), (Records{NO_CONTEXT}));
    EXPECT_EQ(GetFields().state, State::FETCHING_INFO);

    Context().checkFinishedCallback = nullptr;
    LendIn(State::FETCHING_INFO);
    SessionFields fields = GetFields();
    fields.unlockRequested = true;
    SetFields(fields);
    Callbacks::DidNotFind();
    EXPECT_EQ(Log().Of(google::GLOG_ERROR), (Records{NO_CALLBACK}));
    EXPECT_EQ(GetFields().state, State::FETCHING_INFO);
    EXPECT_TRUE(GetFields().locked);
}

TEST_F(SessionOutcome, FoundForTheFrameworksWindowsLeavesTheRemoteVersion)
{
    LendWithRemote(State::PREPARING_TO_SHOW_CHANGELOG);
    Callbacks::DidFind(MakeItem(QStringLiteral("7.0")));
    EXPECT_EQ(GetFields().state, State::WAITING);
    EXPECT_EQ(Context().remoteVersion, Version(6, 1));
    EXPECT_EQ(Notifications(), 0);
}

TEST_F(SessionOutcome, UpdateTypeAndExtensionsAreTakenInEveryState)
{
    for (NamedState const& named : ALL_STATES)
    {
        LendIn(named.state);
        ScriptedItem const item = MakeItem(QStringLiteral("6.0"));
        item.Properties().isDelta = true;
        item.Properties().properties[QStringLiteral("pelnar1_Note")] = QStringLiteral("a");
        Callbacks::DidFind(item);
        EXPECT_EQ(GetFields().updateType, UpdateType::DELTA) << named.name;
        EXPECT_EQ(GetFields().extensions, (QVariantMap{{QStringLiteral("PELNAR1_NOTE"), QStringLiteral("a")}}));
        EXPECT_TRUE(Log().Has(Progress(730, FOUND + "SUAppcastItem contains update with UpdateType = DELTA")));
    }
}

TEST_F(SessionOutcome, InstallerIsRecordedByName)
{
    LendIn(State::SILENT_DOWNLOADING);
    ScriptedItem const item = MakeItem(QStringLiteral("6.0"));
    item.Properties().fileUrl = QStringLiteral("https://a.example/Studio.sparkle_guided.pkg");
    Callbacks::DidFind(item);
    EXPECT_TRUE(Log().Has(Progress(730, FOUND + "SUAppcastItem contains update with UpdateType = INSTALLER")));
}

TEST_F(SessionOutcome, ExtensionsAreRecordedInKeyOrder)
{
    LendIn(State::SILENT_DOWNLOADING);
    ScriptedItem const item = MakeItem(QStringLiteral("6.0"));
    item.Properties().properties = {{QStringLiteral("pelnar1_zeta"), QStringLiteral("%1 \"z\"")},
                                    {QStringLiteral("pelnar1_Alpha"), 7},
                                    {QStringLiteral("pelnar1_%2"), QStringLiteral("a mark in the name")},
                                    {QStringLiteral("title"), QStringLiteral("no extension")}};
    Callbacks::DidFind(item);
    EXPECT_EQ(Log().Of(google::GLOG_INFO),
              (Records{Progress(727, FOUND + "Current state = SILENT_DOWNLOADING"),
                       Progress(730, FOUND + "SUAppcastItem contains update with UpdateType = BUNDLE"),
                       Progress(735, "Extensions:"), Progress(738, "  * PELNAR1_%2 = \"a mark in the name\""),
                       Progress(738, "  * PELNAR1_ALPHA = \"<NOT A STRING>\""),
                       Progress(738, "  * PELNAR1_ZETA = \"%1 \"z\"\"")}));
}

TEST_F(SessionOutcome, NoExtensionsAreNotAnnouncedAndReplaceEarlierOnes)
{
    LendIn(State::SILENT_DOWNLOADING);
    SessionFields fields = GetFields();
    fields.extensions = {{QStringLiteral("PELNAR1_OLD"), QStringLiteral("a")}};
    SetFields(fields);
    Callbacks::DidFind(MakeItem(QStringLiteral("6.0")));
    EXPECT_EQ(Log().Records().size(), 2U);
    EXPECT_TRUE(GetFields().extensions.isEmpty());
}

TEST_F(SessionOutcome, AbortRecordsTheErrorInEveryState)
{
    ScriptedError const error{QStringLiteral("SUSparkleErrorDomain"), 1001, QStringLiteral("D\u00e9j\u00e0 vu")};
    for (NamedState const& named : ALL_STATES)
    {
        if (named.state == State::SILENT_INSTALLING)
        {
            continue; // shows a dialog; see the dialog's own tests
        }
        LendIn(named.state);
        Callbacks::DidAbort(error);
        EXPECT_TRUE(Log().Has(
            Error(837, "-[PelnarSparkleUpdaterDelegate updater:didAbortWithError:]: " + DescriptionOf(error))))
            << named.name;
    }
    EXPECT_NE(DescriptionOf(error).find("D\u00e9j\u00e0 vu"), std::string::npos);
}

TEST_F(SessionOutcome, AbortInWaitingChangesNothing)
{
    LendWithRemote(State::WAITING);
    Callbacks::DidAbort({});
    EXPECT_EQ(Log().Records().size(), 2U);
    EXPECT_EQ(GetFields().state, State::WAITING);
    EXPECT_EQ(Context().remoteVersion, Version(6, 1));
}

TEST_F(SessionOutcome, AbortOfAProbeWithoutCallbackStillFreesTheSession)
{
    Context().checkFinishedCallback = nullptr;
    LendWithRemote(State::FETCHING_INFO);
    Callbacks::DidAbort({});
    EXPECT_EQ(GetFields().state, State::WAITING);
    EXPECT_EQ(Context().remoteVersion, Version(5, 0));
    EXPECT_TRUE(Log().Has(NO_CALLBACK));
}

TEST_F(SessionOutcome, NotFoundInInstallingIsUnspecified)
{
    LendIn(State::SILENT_INSTALLING);
    Callbacks::DidNotFind();
    EXPECT_EQ(Log().Of(google::GLOG_ERROR),
              (Records{Error(823, "-[PelnarSparkleUpdaterDelegate updaterDidNotFindUpdate:]: !!! ACHTUNG !!! This "
                                  "function is not specified for State = SILENT_INSTALLING")}));
    EXPECT_EQ(GetFields().state, State::SILENT_INSTALLING);
}

} // namespace
