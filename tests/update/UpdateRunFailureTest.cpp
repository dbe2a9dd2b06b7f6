// UpdateRunFailureTest.cpp: an update with every failure on its way, and its destruction.
#include "Engine/core/bundle/PayloadKind.h"
#include "Engine/core/faults/EngineError.h"
#include "tests/support/LogCapture.h"
#include "tests/update/UpdateRunFixture.h"

#include <QDir>
#include <QFile>

#include <ostream>

#include <sys/stat.h>

namespace
{

using namespace Pelnar::Testing;
using namespace Pelnar::Engine;

struct Refusal
{
    char const* name;
    std::function<void(UpdateSettings&, FeedItem&, ScriptedParts&)> spoil;
    ErrorCause cause;
    UpdateFault fault;
};

void PrintTo(Refusal const& row, std::ostream* out)
{
    *out << row.name;
}

class RefusedBeforehand : public UpdateRunTest, public ::testing::WithParamInterface<Refusal>
{
};
INSTANTIATE_TEST_SUITE_P(
    Reasons, RefusedBeforehand,
    ::testing::Values(Refusal{"NoKey", [](auto& settings, auto&, auto&) { settings.bundle.publicKeys = {}; },
                              ErrorCause::Fault, UpdateFault::KeyMissing},
                      Refusal{"BrokenKey", [](auto& settings, auto&, auto&) { settings.bundle.publicKeys = {"AAAA"}; },
                              ErrorCause::Fault, UpdateFault::KeyMalformed},
                      Refusal{"BrokenSecondKey",
                              [](auto& settings, auto&, auto&) {
                                  settings.bundle.publicKeys = {GOOD_KEY, "?"};
                              },
                              ErrorCause::Fault, UpdateFault::KeyMalformed},
                      Refusal{"NoIdentifier", [](auto& settings, auto&, auto&) { settings.bundle.identifier.clear(); },
                              ErrorCause::BundleUnnamed, UpdateFault::None},
                      Refusal{"NoVersion", [](auto& settings, auto&, auto&) { settings.bundle.version.clear(); },
                              ErrorCause::BundleUnnamed, UpdateFault::None},
                      Refusal{"NoBundle", [](auto& settings, auto&, auto&) { settings.bundle.path.clear(); },
                              ErrorCause::BundleUnnamed, UpdateFault::None},
                      Refusal{"NoLength", [](auto&, auto& item, auto&) { item.contentLength = 0; },
                              ErrorCause::DownloadLengthInvalid, UpdateFault::None},
                      Refusal{"NoSignature", [](auto&, auto& item, auto&) { item.edSignature.clear(); },
                              ErrorCause::Fault, UpdateFault::SignatureMissing},
                      Refusal{"BrokenSignature",
                              [](auto&, auto& item, auto&) { item.edSignature = QStringLiteral("AAAA"); },
                              ErrorCause::Fault, UpdateFault::SignatureMalformed},
                      Refusal{"TargetNotWritable",
                              [](auto&, auto&, auto& parts)
                              { parts.targetError = MakeFaultError(UpdateFault::NotPermitted); },
                              ErrorCause::Fault, UpdateFault::NotPermitted},
                      Refusal{"RecordsBelowAFile",
                              [](auto& settings, auto&, auto&)
                              {
                                  QFile file(settings.stateFolder);
                                  ASSERT_TRUE(file.open(QIODevice::WriteOnly));
                                  settings.stateFolder += QStringLiteral("/org.example/updates");
                              },
                              ErrorCause::Fault, UpdateFault::RecordFolderUnusable},
                      Refusal{"RecordsBehindALink",
                              [](auto& settings, auto&, auto&)
                              { ASSERT_TRUE(QFile::link(QStringLiteral("/tmp"), settings.stateFolder)); },
                              ErrorCause::Fault, UpdateFault::RecordFolderUnusable},
                      Refusal{"RecordsOpenToOthers",
                              [](auto& settings, auto&, auto&)
                              {
                                  ASSERT_TRUE(QDir().mkpath(settings.stateFolder));
                                  ASSERT_EQ(::chmod(QFile::encodeName(settings.stateFolder).constData(), 0777), 0);
                              },
                              ErrorCause::Fault, UpdateFault::RecordFolderUnusable}),
    [](auto const& row) { return row.param.name; });

TEST_P(RefusedBeforehand, NothingIsShownAndNothingFetched)
{
    FeedItem item = Item("5.1");
    GetParam().spoil(settings, item, parts);
    for (CheckKind const kind : {CheckKind::Interactive, CheckKind::Background})
    {
        for (AutomaticDownload const automatic : {AutomaticDownload::Off, AutomaticDownload::On})
        {
            settings.automaticDownload = automatic;
            Start(kind, {{item, {0, std::nullopt}}});
            EXPECT_EQ(Since(), Notes{"end"});
            ASSERT_TRUE(end->error);
            EXPECT_EQ(end->error->cause, GetParam().cause);
            EXPECT_EQ(end->error->fault, GetParam().fault);
        }
    }
}

TEST_F(UpdateRunTest, KeyErrorsNameTheKey)
{
    for (TrustedKeys const& keys : {TrustedKeys(), TrustedKeys{"AAAA"}})
    {
        settings.bundle.publicKeys = keys;
        StartInteractive();
        EXPECT_TRUE(end->error->sentence.English().contains(QLatin1String("SUPublicEDKey")))
            << end->error->sentence.English().toStdString();
    }
}

TEST_F(UpdateRunTest, DeltaThatCannotBeVerifiedIsNotFetched)
{
    FeedItem delta = Delta("5.1");
    delta.edSignature.clear();
    Start(CheckKind::Interactive, {{delta, {0, 0}}, {Item("5.1"), {0, std::nullopt}}});
    EXPECT_EQ(windows.offer->sizeBytes, 1000u);
    Agree();
    EXPECT_EQ(Since().back(), "download /App-5.1.zip");
}

TEST_F(UpdateRunTest, FailedDownloadEndsTheUpdate)
{
    StartInteractive();
    Agree();
    Since();
    parts.FailDownload(ErrorCause::HostNotFound);
    EXPECT_EQ(Since(), Notes{"end"});
    EXPECT_EQ(end->error->cause, ErrorCause::HostNotFound);
    EXPECT_EQ(end->asked, PersonAsked::Yes);
    EXPECT_EQ(windows.open, "");
}

struct Verdict
{
    UpdateFault fault;
    bool isDiscarded;
};

// The downloads that are repeated the next time, and those that are not.
TEST_F(UpdateRunTest, ArchiveIsDiscardedWhenItIsToBlame)
{
    for (Verdict const& row : {Verdict{UpdateFault::SignatureMismatch, true},
                               Verdict{UpdateFault::ContainerDamaged, true}, Verdict{UpdateFault::VersionDiffers, true},
                               Verdict{UpdateFault::NoSpace, false}, Verdict{UpdateFault::ConfinementFailed, false}})
    {
        StartInteractive();
        Agree();
        parts.FinishDownload();
        Since();
        parts.RefusePreparation(row.fault);
        EXPECT_EQ(Since(), (row.isDiscarded ? Notes{"discard /App-5.1.zip", "end"} : Notes{"end"}))
            << FaultName(row.fault);
        EXPECT_EQ(end->error->fault, row.fault);
        EXPECT_EQ(Installed(), Notes{"App.app"});
    }
}

/// The space was there before the download, but no longer.
TEST_F(UpdateRunTest, LackOfRoomWhileItIsUnpackedIsToldInNumbers)
{
    FeedItem item = Item("5.1");
    item.contentLength = quint64{1} << 50;
    Start(CheckKind::Interactive, {{item, {0, std::nullopt}}});
    Agree();
    parts.FinishDownload();
    parts.RefusePreparation(UpdateFault::NoSpace);
    ASSERT_TRUE(end && end->error);
    EXPECT_EQ(end->error->cause, ErrorCause::NoRoomForUpdate);
    QString const sentence = end->error->sentence.English();
    EXPECT_TRUE(sentence.contains(QStringLiteral("The update needs 3.4 PB of disk space, "))) << sentence.toStdString();
    EXPECT_TRUE(sentence.contains(QStringLiteral(" are free"))) << sentence.toStdString();
}

TEST_F(UpdateRunTest, CrashedHelperIsAnErrorOfItsOwn)
{
    for (HelperEnd const how : {HelperEnd::Crashed, HelperEnd::Done, HelperEnd::Refused})
    {
        StartInteractive();
        Agree();
        parts.FinishDownload();
        parts.EndHelper(how); // without a report about its work
        EXPECT_EQ(end->error->cause, ErrorCause::HelperFailed);
        EXPECT_EQ(Installed(), Notes{"App.app"});
    }
}

TEST_F(UpdateRunTest, MissingHelperIsAnError)
{
    parts.isHelperMissing = true;
    StartInteractive();
    Agree();
    parts.FinishDownload();
    EXPECT_EQ(end->error->fault, UpdateFault::DescriptorUnusable);
    EXPECT_EQ(Installed(), Notes{"App.app"});
}

TEST_F(UpdateRunTest, HelperThatDisappearsBetweenPreparationAndInstallationIsAnError)
{
    StartInteractive();
    Agree();
    PrepareUpdate();
    parts.isHelperMissing = true;
    Since();
    windows.Choose(ReadyChoice::InstallAndRelaunch);
    EXPECT_EQ(Since(), (Notes{"should relaunch?", "path?", "attempt taken back", "end"}))
        << "the relaunch is not announced";
    EXPECT_EQ(end->error->fault, UpdateFault::DescriptorUnusable);
    EXPECT_EQ(Installed(), Notes{"App.app"});
}
TEST_F(UpdateRunTest, ApplicationThatStaysOpenIsToldThatNothingWasInstalled)
{
    StartInteractive();
    Agree();
    PrepareUpdate();
    windows.Choose(ReadyChoice::InstallAndRelaunch);
    parts.Report(ProgressReport{HelperPhase::Waiting, 0, 0});
    Since();
    parts.RefusePreparation(UpdateFault::HostStillRunning);
    EXPECT_EQ(Since(), (Notes{"attempt taken back", "end"}));
    EXPECT_EQ(end->error->code, ErrorCode::Relaunch);
    EXPECT_EQ(Installed(), Notes{"App.app"});
}

TEST_F(UpdateRunTest, InstallingHelperThatDiesEarlyIsAnErrorAndWillRelaunchIsNotTold)
{
    host.onWillInstall = [this] { host.installNow(RelaunchWish::Relaunch); };
    StartSilent();
    PrepareUpdate();
    Since();
    parts.EndHelper(HelperEnd::Crashed);
    EXPECT_EQ(Since(), (Notes{"attempt taken back", "end"}));
    EXPECT_EQ(end->error->cause, ErrorCause::HelperFailed);
    EXPECT_EQ(Installed(), Notes{"App.app"});
}

TEST_F(UpdateRunTest, HelperThatWaitsForTheQuitAndDiesIsAnError)
{
    StartSilent();
    PrepareUpdate();
    Since();
    parts.RefusePreparation(UpdateFault::JobMalformed);
    EXPECT_EQ(Since(), (Notes{"attempt taken back", "end"}));
    EXPECT_EQ(end->error->fault, UpdateFault::JobMalformed);
    EXPECT_EQ(Installed(), Notes{"App.app"});
}

TEST_F(UpdateRunTest, HelperThatDiesUnheardBeforeTheApplicationQuitsIsAnError)
{
    StartSilent();
    PrepareUpdate();
    Since();
    parts.unheardEnd = HelperEnd::Crashed;
    LogCapture log;
    Q_EMIT QCoreApplication::instance()->aboutToQuit({});
    EXPECT_EQ(Since(), (Notes{"attempt taken back", "end"}));
    ASSERT_TRUE(end && end->error);
    EXPECT_EQ(end->error->cause, ErrorCause::HelperFailed);
    EXPECT_EQ(log.Texts(), std::vector<std::string>{
                               "The helper ended before the application, so the update is not installed"});
    EXPECT_EQ(Installed(), Notes{"App.app"});
}

TEST_F(UpdateRunTest, DeltaThatFailsIsReplacedByTheWholeOnceSilently)
{
    StartWithDelta(CheckKind::Interactive);
    Agree();
    Since();
    parts.FinishDownload();
    parts.RefusePreparation(UpdateFault::DeltaBaseDiffers);
    EXPECT_EQ(Since(), (Notes{"helper prepare", "window download", "download /App-5.1.zip"}));
    PrepareUpdate();
    EXPECT_EQ(Since(), (Notes{"helper prepare", "window ready"}));
    EXPECT_EQ(std::get<PrepareJob>(parts.jobs[1]).kind, PayloadKind::WholeBundle);
    EXPECT_EQ(Installed(), (Notes{"staging", "App.app"})) << "the delta's leftovers are removed";
}

TEST_F(UpdateRunTest, EveryFailureOfADeltaLeadsToTheWhole)
{
    settings.automaticDownload = AutomaticDownload::On;
    std::vector<std::function<void()>> const failures = {
        [this] { parts.FailDownload(ErrorCause::HttpStatus); },
        [this]
        {
            parts.FinishDownload();
            parts.EndHelper(HelperEnd::Crashed);
        },
        [this]
        {
            parts.FinishDownload();
            parts.RefusePreparation(UpdateFault::SignatureMismatch);
        },
    };
    for (auto const& fail : failures)
    {
        StartWithDelta(CheckKind::Background);
        fail();
        EXPECT_EQ(Since().back(), "download /App-5.1.zip");
        PrepareUpdate();
        Notes const since = Since();
        EXPECT_EQ(since[since.size() - 2], "will install on quit") << "the whole item, not the delta";
    }
}

TEST_F(UpdateRunTest, WholeThatFailsTooEndsTheUpdate)
{
    StartWithDelta(CheckKind::Interactive);
    Agree();
    parts.FailDownload(ErrorCause::HttpStatus);
    parts.FailDownload(ErrorCause::ConnectionRefused);
    EXPECT_EQ(end->error->cause, ErrorCause::ConnectionRefused);
    EXPECT_EQ(notes.back(), "end");
}

struct Raising
{
    char const* name;
    char const* note;
    bool isSilent;
};

void PrintTo(Raising const& row, std::ostream* out)
{
    *out << row.name;
}

class DelegateThatFails : public UpdateRunTest, public ::testing::WithParamInterface<Raising>
{
};

INSTANTIATE_TEST_SUITE_P(Callbacks, DelegateThatFails,
                         ::testing::Values(Raising{"WillInstall", "will install on quit", true},
                                           Raising{"ShouldRelaunch", "should relaunch?", true},
                                           Raising{"Path", "path?", true}, Raising{"Cancelled", "cancelled", true},
                                           Raising{"ShouldRelaunchOfAPerson", "should relaunch?", false},
                                           Raising{"Skip", "skip 5.1", false}),
                         [](auto const& row) { return row.param.name; });

TEST_P(DelegateThatFails, EndsTheUpdateAndNothingIsInstalled)
{
    host.throwsIn = GetParam().note;
    if (GetParam().isSilent)
    {
        host.relaunchAnswer = host.throwsIn == "cancelled" ? RelaunchAnswer::Refused : RelaunchAnswer::Allowed;
        host.onWillInstall = [this] { host.installNow(RelaunchWish::Relaunch); };
        StartSilent();
        PrepareUpdate();
    }
    else
    {
        StartInteractive();
        if (host.throwsIn == "skip 5.1")
        {
            windows.Choose(UpdateChoice::SkipThisVersion);
        }
        else
        {
            Agree();
            PrepareUpdate();
            windows.Choose(ReadyChoice::InstallAndRelaunch);
        }
    }
    ASSERT_TRUE(end);
    EXPECT_EQ(end->error->cause, ErrorCause::DelegateRaised);
    EXPECT_EQ(notes.back(), "end");
    EXPECT_EQ(Installed(), Notes{"App.app"});
    EXPECT_EQ(std::count(notes.begin(), notes.end(), "helper install"), 0);
}

TEST_F(UpdateRunTest, FailureOfTheDelegateAtTheRelaunchDoesNotStopTheUpdate)
{
    host.throwsIn = "will relaunch";
    StartInteractive();
    Agree();
    PrepareUpdate();
    windows.Choose(ReadyChoice::InstallAndRelaunch);
    parts.Report(ProgressReport{HelperPhase::Waiting, 0, 0});
    EXPECT_FALSE(end);
    EXPECT_TRUE(HasStaging());
}

TEST_F(UpdateRunTest, DestroyedInAnyPhaseItLeavesNothingAndTellsNobody)
{
    std::vector<std::function<void()>> const steps = {[this] { Agree(); }, [this] { parts.FinishDownload(); },
                                                      [this] { parts.FinishPreparation(); }};
    for (std::size_t count = 0; count <= steps.size(); ++count)
    {
        StartInteractive();
        for (std::size_t step = 0; step < count; ++step)
        {
            steps[step]();
        }
        run.reset();
        EXPECT_FALSE(end) << count;
        EXPECT_EQ(Installed(), Notes{"App.app"}) << count;
        windows.Close();
    }
}

TEST_F(UpdateRunTest, DestroyedBeforeItBeginsItDoesNothing)
{
    run = std::make_unique<UpdateRun>(CheckKind::Interactive,
                                      std::vector<UpdateCandidate>{{Item("5.1"), {0, std::nullopt}}}, settings, host,
                                      windows, parts, [](UpdateEnd const&) { ADD_FAILURE(); });
    run->Start();
    run.reset();
    QCoreApplication::processEvents();
    EXPECT_EQ(Since(), Notes{});
}

TEST_F(UpdateRunTest, AnswersOfWindowsThatOutliveItAreDropped)
{
    StartInteractive();
    run.reset();
    windows.Choose(UpdateChoice::InstallUpdate);
    EXPECT_EQ(Since(), Notes{"window update"});
}
TEST_F(UpdateRunTest, DestroyedFromWithinTheApplicationsCallbacksItTouchesNothing)
{
    for (char const* const when : {"will install on quit", "should relaunch?", "path?"})
    {
        host.onNote = [this, when](std::string const& note)
        {
            if (note == when)
            {
                run.reset();
            }
        };
        host.onWillInstall = [this] { host.installNow(RelaunchWish::Relaunch); };
        StartSilent();
        PrepareUpdate();
        EXPECT_FALSE(end);
        EXPECT_EQ(notes.back(), when);
        EXPECT_EQ(Installed(), Notes{"App.app"});
    }
}

} // namespace
