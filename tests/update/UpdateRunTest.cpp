// UpdateRunTest.cpp: an update that succeeds, or that a person or the application declines.
#include "Engine/core/bundle/PayloadKind.h"
#include "Engine/core/helper/RelaunchArguments.h"
#include "Engine/core/update/KeptArguments.h"
#include "tests/update/UpdateRunFixture.h"

#include <QDir>

#include <ostream>

#include <sys/stat.h>

namespace
{

using namespace Pelnar::Testing;
using namespace Pelnar::Engine;
using Arguments = std::vector<std::string>;

TEST_F(UpdateRunTest, PersonSeesEachStepAndTheApplicationIsAskedBeforeItIsRestarted)
{
    host.relaunchPath = QStringLiteral("/opt/Other.app");
    mode_t const maskBefore = ::umask(027);
    StartInteractive();
    EXPECT_EQ(Since(), Notes{"window update"});
    Agree();
    EXPECT_EQ(Since(), (Notes{"window download", "download /App-5.1.zip"}));
    parts.FinishDownload();
    EXPECT_EQ(Since(), Notes{"helper prepare"});
    EXPECT_TRUE(HasStaging());
    parts.FinishPreparation();
    EXPECT_EQ(Since(), Notes{"window ready"});
    windows.Choose(ReadyChoice::InstallAndRelaunch);
    EXPECT_EQ(Since(), (Notes{"should relaunch?", "path?", "helper install"}));
    auto const& install = std::get<InstallJob>(parts.jobs.back());
    EXPECT_EQ(install.workingFolder, QDir::currentPath().toStdString());
    EXPECT_EQ(install.creationMask, 027u);
    EXPECT_EQ(::umask(maskBefore), 027u) << "it was read without a change";
    parts.Report(ProgressReport{HelperPhase::Waiting, 0, 0});
    EXPECT_EQ(Since(), Notes{"will relaunch"});
    run.reset();
    EXPECT_EQ(Since(), Notes{}) << "the helper goes on by itself";
    EXPECT_TRUE(HasStaging());
}

TEST_F(UpdateRunTest, NothingHappensBeforeTheBundleIsKnownToBeReplaceable)
{
    parts.isTargetHeld = true;
    StartInteractive();
    EXPECT_EQ(Since(), Notes{"target held"});
    parts.TellTarget();
    EXPECT_EQ(Since(), Notes{"window update"});
}

TEST_F(UpdateRunTest, BundleThatIsKnownWhenTheRunIsGoneIsForgotten)
{
    parts.isTargetHeld = true;
    StartInteractive();
    run.reset();
    parts.TellTarget();
    EXPECT_EQ(Since(), Notes{"target held"});
    EXPECT_FALSE(end);
}

TEST_F(UpdateRunTest, SessionThatEndsWhileTheBundleIsLookedAtInstallsNothingLater)
{
    parts.isTargetHeld = true;
    StartSilent();
    run->GiveUpInstallation();
    parts.TellTarget();
    PrepareUpdate();
    EXPECT_EQ(Notes(notes.end() - 2, notes.end()), (Notes{"cancelled", "end"}));
    EXPECT_EQ(Installed(), Notes{"App.app"});
}

TEST_F(UpdateRunTest, OfferSaysWhatTheFeedAndTheBundleSay)
{
    FeedItem item = Item("5.1");
    item.displayVersionString = QStringLiteral("Five and a bit");
    item.title = QStringLiteral("News");
    item.isCritical = true;
    item.description = QStringLiteral("*much*");
    item.descriptionFormat = QStringLiteral("markdown");
    item.releaseNotesUrl = QUrl(QStringLiteral("https://a.example/notes"));
    Start(CheckKind::Background, {{item, {0, std::nullopt}}});
    EXPECT_EQ(Since(), Notes{"window quiet update"});
    ASSERT_TRUE(windows.offer);
    EXPECT_EQ(windows.offer->applicationName, QStringLiteral("App"));
    EXPECT_EQ(windows.offer->currentVersion, QStringLiteral("Five"));
    EXPECT_EQ(windows.offer->version, QStringLiteral("Five and a bit"));
    EXPECT_EQ(windows.offer->title, QStringLiteral("News"));
    EXPECT_EQ(windows.offer->sizeBytes, 1000u);
    EXPECT_EQ(windows.offer->importance, UpdateImportance::Critical);
    EXPECT_EQ(windows.offer->notes.text, QStringLiteral("*much*"));
    EXPECT_EQ(windows.offer->notes.format, ReleaseNotesFormat::Markdown);
    EXPECT_EQ(windows.offer->notes.address, item.releaseNotesUrl);
}

TEST_F(UpdateRunTest, JobsSayWhatTheItemAndTheBundleSay)
{
    settings.bundle.publicKeys = {GOOD_KEY, GOOD_KEY};
    host.relaunchPath = QStringLiteral("/opt/Other.app");
    StartInteractive();
    EXPECT_EQ(parts.neededBytes, 3000u);
    Agree();
    ASSERT_EQ(parts.requests.size(), 1u);
    EXPECT_EQ(parts.requests[0].declaredBytes, 1000u);
    EXPECT_EQ(parts.requests[0].signature, QString::fromLatin1(GOOD_SIGNATURE));
    EXPECT_EQ(parts.requests[0].folder, settings.downloadFolder);
    EXPECT_EQ(parts.requests[0].purpose, DownloadFor::Person);
    PrepareUpdate();
    windows.Choose(ReadyChoice::InstallAndRelaunch);
    ASSERT_EQ(parts.jobs.size(), 2u);
    auto const& prepare = std::get<PrepareJob>(parts.jobs[0]);
    EXPECT_EQ(prepare.kind, PayloadKind::WholeBundle);
    EXPECT_EQ(prepare.archiveBytes, 1000u);
    EXPECT_EQ(prepare.signature, GOOD_SIGNATURE);
    EXPECT_EQ(prepare.publicKeys.Texts().size(), 2u);
    EXPECT_EQ(prepare.bundleName, "App.app");
    EXPECT_EQ(prepare.bundleIdentifier, "example.app");
    EXPECT_EQ(prepare.expectedVersion, "5.1");
    EXPECT_EQ(prepare.installedVersion, "5.0");
    auto const& install = std::get<InstallJob>(parts.jobs[1]);
    EXPECT_EQ(install.targetName, "App.app");
    EXPECT_EQ(install.stagingName.rfind(".pelnar-", 0), 0u);
    EXPECT_EQ(install.stagedName, "App.app");
    EXPECT_EQ(install.digest, ContentHash{1});
    EXPECT_EQ(install.waitSeconds, 600u) << "a person may keep the application open";
    EXPECT_EQ(install.targetPath, settings.bundle.path.toStdString());
    EXPECT_EQ(install.relaunchPath, "/opt/Other.app");
    EXPECT_FALSE(install.environment.empty());
    EXPECT_TRUE(DecodeUpdateJob(EncodeUpdateJob(install))) << "the helper takes it";
    EXPECT_TRUE(DecodeUpdateJob(EncodeUpdateJob(prepare)));
}

TEST_F(UpdateRunTest, ProgressOfBothHalvesIsShown)
{
    StartInteractive();
    Agree();
    PrepareUpdate();
    ASSERT_EQ(windows.progresses.size(), 2u);
    EXPECT_EQ(windows.progresses[0].phase, UpdatePhase::Downloading);
    EXPECT_EQ(windows.progresses[0].doneBytes, 10u);
    EXPECT_EQ(windows.progresses[0].bytesPerSecond, 5u);
    EXPECT_EQ(windows.progresses[1].phase, UpdatePhase::Preparing);
    EXPECT_EQ(windows.progresses[1].totalBytes, 9u);
}

TEST_F(UpdateRunTest, SkippingIsRememberedAndEndsWithoutAnError)
{
    StartInteractive();
    windows.Choose(UpdateChoice::SkipThisVersion);
    EXPECT_EQ(Since(), (Notes{"window update", "skip 5.1", "end"}));
    EXPECT_FALSE(end->error);
}

TEST_F(UpdateRunTest, PuttingOffEndsWithoutAnError)
{
    StartInteractive();
    windows.Choose(UpdateChoice::RemindMeLater);
    EXPECT_EQ(Since(), (Notes{"window update", "end"}));
    EXPECT_FALSE(end->error);
}
TEST_F(UpdateRunTest, LaterInTheReadyWindowInstallsNothingAndKeepsTheDownload)
{
    StartInteractive();
    Agree();
    PrepareUpdate();
    Since();
    windows.Choose(ReadyChoice::Later);
    EXPECT_EQ(Since(), Notes{"end"}) << "the download is not discarded, and no helper is started";
    EXPECT_EQ(end->error->code, ErrorCode::Cancelled);
    EXPECT_EQ(Installed(), Notes{"App.app"});
}

TEST_F(UpdateRunTest, DownloadCanBeCancelled)
{
    StartInteractive();
    Agree();
    Since();
    windows.Cancel();
    EXPECT_EQ(Since(), (Notes{"download stopped", "end"}));
    EXPECT_EQ(end->error->code, ErrorCode::Cancelled);
}

TEST_F(UpdateRunTest, PreparationCanBeCancelled)
{
    StartInteractive();
    Agree();
    parts.FinishDownload();
    Since();
    windows.Cancel();
    EXPECT_EQ(Since(), (Notes{"helper killed", "end"}));
    EXPECT_EQ(end->error->code, ErrorCode::Cancelled);
    EXPECT_EQ(Installed(), Notes{"App.app"});
}

TEST_F(UpdateRunTest, SilentUpdateIsOfferedOnceWithoutAWindowAndInstalledOnQuit)
{
    StartSilent();
    PrepareUpdate();
    EXPECT_EQ(Since(), (Notes{"download /App-5.1.zip", "helper prepare", "will install on quit", "helper install"}));
    auto const& install = std::get<InstallJob>(parts.jobs[1]);
    EXPECT_EQ(install.waitSeconds, 0u);
    EXPECT_EQ(install.targetPath, "") << "the application is not started again";
    EXPECT_EQ(install.relaunchPath, "");
    EXPECT_TRUE(DecodeUpdateJob(EncodeUpdateJob(install)));
    ASSERT_TRUE(install.record);
    EXPECT_EQ(install.record->wish, InstallWish::Automatic);
    EXPECT_EQ(install.record->attempts, 1u);
    EXPECT_EQ(install.recordName, InstallRecordName(settings.bundle.path.toStdString()));
    auto const record = ReadInstallRecord(OpenRecordFolder(settings.stateFolder).Get(), install.recordName);
    ASSERT_TRUE(record) << "the helper may die before it writes one, and the application end in the same moment";
    EXPECT_EQ(record->state, InstallState::Waiting);
    parts.Report(ProgressReport{HelperPhase::Waiting, 0, 0});
    run.reset();
    EXPECT_EQ(Since(), Notes{});
    EXPECT_TRUE(HasStaging()) << "the helper lives on";
}

TEST_F(UpdateRunTest, InstallationAtOnceFromWithinTheCallbackAsksTheApplicationInOrder)
{
    host.onWillInstall = [this] { host.installNow(RelaunchWish::Relaunch); };
    StartSilent();
    Since();
    PrepareUpdate();
    EXPECT_EQ(Since(),
              (Notes{"helper prepare", "will install on quit", "should relaunch?", "path?", "helper install"}));
    EXPECT_EQ(std::get<InstallJob>(parts.jobs[1]).targetPath, settings.bundle.path.toStdString());
    EXPECT_EQ(std::get<InstallJob>(parts.jobs[1]).record->wish, InstallWish::Person);
    parts.Report(ProgressReport{HelperPhase::Waiting, 0, 0});
    EXPECT_EQ(Since(), Notes{"will relaunch"});
    EXPECT_FALSE(end) << "it is alive until the application is not";
}

TEST_F(UpdateRunTest, RefusedRelaunchDropsTheUpdateAndThenSaysSo)
{
    host.relaunchAnswer = RelaunchAnswer::Refused;
    std::optional<Notes> installedWhenTold;
    host.onNote = [&](std::string const& note)
    {
        if (note == "cancelled")
        {
            installedWhenTold = Installed();
        }
    };
    host.onWillInstall = [this] { host.installNow(RelaunchWish::StayClosed); };
    StartSilent();
    Since();
    PrepareUpdate();
    EXPECT_EQ(Since(), (Notes{"helper prepare", "will install on quit", "should relaunch?", "cancelled", "end"}));
    EXPECT_EQ(installedWhenTold, Notes{"App.app"});
    EXPECT_FALSE(end->error);
}

TEST_F(UpdateRunTest, RefusedRelaunchAfterAPersonsYesInstallsNothingEither)
{
    host.relaunchAnswer = RelaunchAnswer::Refused;
    StartInteractive();
    Agree();
    PrepareUpdate();
    Since();
    windows.Choose(ReadyChoice::InstallAndRelaunch);
    EXPECT_EQ(Since(), (Notes{"should relaunch?", "cancelled", "end"}));
    EXPECT_EQ(Installed(), Notes{"App.app"});
}

TEST_F(UpdateRunTest, InstallationAtOnceWithoutRelaunchIsThatOnQuit)
{
    host.onWillInstall = [this] { host.installNow(RelaunchWish::StayClosed); };
    StartSilent();
    Since();
    PrepareUpdate();
    EXPECT_EQ(Since(), (Notes{"helper prepare", "will install on quit", "should relaunch?", "helper install"}));
    EXPECT_EQ(std::get<InstallJob>(parts.jobs[1]).targetPath, "");
}

TEST_F(UpdateRunTest, InstallationAtOnceAfterTheCallbackTakesThePlaceOfThatOnQuit)
{
    StartSilent();
    PrepareUpdate();
    Since();
    host.installNow(RelaunchWish::Relaunch);
    EXPECT_EQ(Since(), (Notes{"should relaunch?", "path?", "helper killed", "helper install"}));
    EXPECT_FALSE(std::get<InstallJob>(parts.jobs[2]).targetPath.empty());
}

TEST_F(UpdateRunTest, RefusalAfterTheCallbackEndsTheWaitingHelper)
{
    StartSilent();
    PrepareUpdate();
    Since();
    host.relaunchAnswer = RelaunchAnswer::Refused;
    host.installNow(RelaunchWish::StayClosed);
    EXPECT_EQ(Since(), (Notes{"should relaunch?", "helper killed", "attempt taken back", "cancelled", "end"}));
    EXPECT_EQ(Installed(), Notes{"App.app"});
}
TEST_F(UpdateRunTest, InstallationAtOnceHappensOnce)
{
    host.onWillInstall = [this]
    {
        host.installNow(RelaunchWish::Relaunch);
        host.installNow(RelaunchWish::Relaunch);
    };
    // Also from within the application's own answer.
    host.onNote = [this](std::string const& note)
    {
        if (note == "should relaunch?")
        {
            host.installNow(RelaunchWish::StayClosed);
        }
    };
    StartSilent();
    Since();
    PrepareUpdate();
    host.installNow(RelaunchWish::Relaunch);
    EXPECT_EQ(Since(),
              (Notes{"helper prepare", "will install on quit", "should relaunch?", "path?", "helper install"}));
}

TEST_F(UpdateRunTest, ArgumentsOfTheNextStartAreThoseThatWereSaidLast)
{
    ASSERT_TRUE(KeptArguments::OfProcess().Keep({"early"}));
    StartInteractive();
    Agree();
    PrepareUpdate();
    windows.Choose(ReadyChoice::InstallAndRelaunch);
    EXPECT_EQ(ReadRelaunchArguments(parts.arguments.Get()), Arguments{"early"});
    ASSERT_TRUE(KeptArguments::OfProcess().Keep({"late"}));
    run.reset(); // like at the end of the process
    EXPECT_EQ(ReadRelaunchArguments(parts.arguments.Get()), Arguments{"late"});
}

TEST_F(UpdateRunTest, ArgumentsOfTheNextStartAreForgottenWhenNothingIsInstalled)
{
    auto const kept = [] { return ReadRelaunchArguments(KeptArguments::OfProcess().Share().Get()); };
    ASSERT_TRUE(KeptArguments::OfProcess().Keep({"put off"}));
    StartInteractive();
    EXPECT_EQ(kept(), Arguments{"put off"});
    windows.Choose(UpdateChoice::RemindMeLater);
    EXPECT_EQ(kept(), Arguments());

    StartInteractive();
    Agree();
    PrepareUpdate();
    ASSERT_TRUE(KeptArguments::OfProcess().Keep({"not quit in time"}));
    windows.Choose(ReadyChoice::InstallAndRelaunch);
    EXPECT_EQ(kept(), Arguments{"not quit in time"});
    parts.Report(RefusedReport{UpdateFault::HostStillRunning, 0});
    parts.EndHelper(HelperEnd::Refused);
    EXPECT_EQ(kept(), Arguments());
}

TEST_F(UpdateRunTest, InstallationOnQuitStartsNothingAndGetsNoArguments)
{
    ASSERT_TRUE(KeptArguments::OfProcess().Keep({"document"}));
    StartSilent();
    PrepareUpdate();
    EXPECT_TRUE(std::get<InstallJob>(parts.jobs.back()).targetPath.empty());
    EXPECT_FALSE(parts.arguments);
    host.installNow(RelaunchWish::Relaunch);
    EXPECT_EQ(ReadRelaunchArguments(parts.arguments.Get()), Arguments{"document"});
}

TEST_F(UpdateRunTest, InstallationAtOnceAfterTheEndDoesNothing)
{
    host.relaunchAnswer = RelaunchAnswer::Refused;
    host.onWillInstall = [this] { host.installNow(RelaunchWish::Relaunch); };
    StartSilent();
    PrepareUpdate();
    Since();
    host.installNow(RelaunchWish::Relaunch);
    run.reset();
    host.installNow(RelaunchWish::Relaunch);
    EXPECT_EQ(Since(), Notes{});
}

TEST_F(UpdateRunTest, ApplicationThatQuitsMayStillRefuse)
{
    StartSilent();
    PrepareUpdate();
    Since();
    host.relaunchAnswer = RelaunchAnswer::Refused;
    Q_EMIT QCoreApplication::instance()->aboutToQuit({});
    EXPECT_EQ(Since(), (Notes{"should relaunch?", "helper killed", "attempt taken back", "cancelled", "end"}));
    EXPECT_EQ(Installed(), Notes{"App.app"});
}

TEST_F(UpdateRunTest, ApplicationThatQuitsAndAgreesIsUpdated)
{
    StartSilent();
    PrepareUpdate();
    Since();
    Q_EMIT QCoreApplication::instance()->aboutToQuit({});
    EXPECT_EQ(Since(), Notes{"should relaunch?"});
    EXPECT_TRUE(HasStaging());
}

TEST_F(UpdateRunTest, EndOfTheDesktopsSessionInstallsNothing)
{
    StartSilent();
    PrepareUpdate();
    Since();
    run->GiveUpInstallation();
    EXPECT_EQ(Since(), (Notes{"helper killed", "attempt taken back", "cancelled", "end"}));
    EXPECT_EQ(Installed(), Notes{"App.app"});
}

TEST_F(UpdateRunTest, EndOfTheDesktopsSessionDuringTheCallbackInstallsNothing)
{
    for (bool const isInvoked : {false, true})
    {
        host.onWillInstall = [this, isInvoked]
        {
            run->GiveUpInstallation();
            if (isInvoked)
            {
                host.installNow(RelaunchWish::Relaunch);
            }
        };
        StartSilent();
        PrepareUpdate();
        Notes const since = Since();
        EXPECT_EQ(since[since.size() - 2], "cancelled");
        EXPECT_EQ(since.back(), "end");
        EXPECT_EQ(Installed(), Notes{"App.app"});
    }
}

TEST_F(UpdateRunTest, AgreementInAQuietWindowMakesItAPersonsUpdate)
{
    Start(CheckKind::Background, {{Item("5.1"), {0, std::nullopt}}});
    Agree();
    parts.FailDownload(ErrorCause::HostNotFound);
    EXPECT_EQ(end->asked, PersonAsked::Yes);
}

TEST_F(UpdateRunTest, DeltaIsPreparedAgainstTheInstalledBundle)
{
    StartWithDelta(CheckKind::Interactive);
    EXPECT_EQ(windows.offer->sizeBytes, 100u);
    EXPECT_EQ(parts.neededBytes, 3000u) << "for the whole one, too";
    Agree();
    PrepareUpdate();
    EXPECT_EQ(std::get<PrepareJob>(parts.jobs[0]).kind, PayloadKind::Delta);
    EXPECT_EQ(std::get<PrepareJob>(parts.jobs[0]).archiveBytes, 100u);
}

} // namespace
