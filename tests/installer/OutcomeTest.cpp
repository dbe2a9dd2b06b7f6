// OutcomeTest.cpp: the record of an installation whose host has ended.

#include "tests/installer/OutcomeScene.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <utility>

#include <fcntl.h>
#include <signal.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <sys/syscall.h>

namespace
{

using namespace Pelnar::Engine;
using namespace Pelnar::Testing;

constexpr char STRACE[] = "/usr/bin/strace";

HelperStart Injecting(std::string const& fault)
{
    HelperStart start;
    start.before = {STRACE, "-f", "-qq", "-o", "/dev/null", "-e", "inject=" + fault};
    return start;
}

struct FaultRow
{
    char const* name;
    char const* injected;
    UpdateFault fault;
    int errorNumber;
};

class OutcomeOfAFault : public Outcome, public testing::WithParamInterface<FaultRow>
{
};

TEST_P(OutcomeOfAFault, IsKeptAndTheOldVersionStartsAgain)
{
    InstallJob const job = Job();
    // The version that starts again must find it.
    std::string const seen = scene.Downloads().Path() + "/seen";
    std::ofstream(scene.Place().Path() + '/' + APP + "/run", std::ios::app)
        << "cp '" << RecordPath() << "' '" << seen << "'\n";
    scene.Host().End();
    HelperOutcome const outcome = scene.Install(job, Injecting(GetParam().injected));
    EXPECT_EQ(outcome.exitStatus, 1);
    EXPECT_EQ(outcome.output.substr(0, 4), "1.0|");
    auto const record = Record();
    ASSERT_TRUE(record);
    EXPECT_EQ(record->state, InstallState::Failed);
    EXPECT_EQ(record->fault, GetParam().fault);
    EXPECT_EQ(record->errorNumber, GetParam().errorNumber);
    EXPECT_EQ(record->attempts, 3u);
    EXPECT_EQ(record->toVersion, "2.0");
    EXPECT_NEAR(static_cast<double>(record->secondsSinceEpoch), static_cast<double>(::time(nullptr)), 60);
    EXPECT_EQ(JudgePastInstallation(*record, "1.0", HelperLife::Ended), PastInstallation::Failed);
    std::ifstream seenFile(seen, std::ios::binary);
    auto const seenRecord = DecodeInstallRecord(std::string(std::istreambuf_iterator<char>(seenFile), {}));
    ASSERT_TRUE(seenRecord);
    EXPECT_EQ(seenRecord->fault, GetParam().fault);
}

INSTANTIATE_TEST_SUITE_P(
    Table, OutcomeOfAFault,
    testing::Values(FaultRow{"LowerLayerOfAnOverlay", "renameat2:error=EXDEV", UpdateFault::OtherFileSystem, EXDEV},
                    FaultRow{"NoLocks", "flock:error=ENOLCK", UpdateFault::LocksUnavailable, ENOLCK},
                    FaultRow{"RenameNotPermitted", "renameat2:error=EPERM", UpdateFault::NotPermitted, EPERM},
                    FaultRow{"FolderThatCannotBeSynced", "fsync:error=EINVAL:when=3", UpdateFault::SyncFailed, EINVAL},
                    FaultRow{"FullDisk", "renameat2:error=ENOSPC", UpdateFault::NoSpace, ENOSPC},
                    FaultRow{"KilledChild", "renameat2:signal=KILL", UpdateFault::InstallationInterrupted, 0}),
    [](testing::TestParamInfo<FaultRow> const& info) { return info.param.name; });

TEST_F(Outcome, OfALockThatSomebodyHoldsIsKeptAndTheOldVersionStartsAgain)
{
    InstallJob const job = Job();
    UniqueFd const file(
        ::openat(scene.Place().Descriptor(), LockFileName(APP).c_str(), O_RDWR | O_CREAT | O_EXCL | O_CLOEXEC, 0600));
    ASSERT_EQ(::flock(file.Get(), LOCK_EX), 0);
    scene.Host().End();
    HelperStart start;
    start.atEveryCall = [](CallStop const& stop)
    {
        // The minute of waiting has passed at once.
        bool const isLocking = stop.call == SYS_flock && (stop.arguments[1] & LOCK_EX) != 0;
        static_cast<void>(isLocking && ::kill(stop.process, SIGALRM) == 0);
        return CallVerdict::GoOn();
    };
    HelperOutcome const outcome = scene.Install(job, start);
    EXPECT_EQ(outcome.output.substr(0, 4), "1.0|");
    auto const record = Record();
    ASSERT_TRUE(record);
    EXPECT_EQ(record->fault, UpdateFault::LockTimedOut);
}

TEST_F(Outcome, OfASuccessIsKept)
{
    InstallJob const job = Job();
    scene.Host().End();
    EXPECT_EQ(scene.Install(job).exitStatus, 0);
    auto const record = Record();
    ASSERT_TRUE(record);
    EXPECT_EQ(record->state, InstallState::Installed);
    EXPECT_EQ(record->fault, UpdateFault::None);
    EXPECT_EQ(JudgePastInstallation(*record, "2.0", HelperLife::Ended), PastInstallation::Over);
    struct stat status;
    ASSERT_EQ(::stat(RecordPath().c_str(), &status), 0);
    EXPECT_EQ(status.st_mode & 07777u, 0600u);
    EXPECT_EQ(status.st_nlink, 1u);
}

/// The update is installed. The record also says why it did not start.
TEST_F(Outcome, OfASuccessWhoseNewVersionCannotBeStartedSaysSo)
{
    InstallJob job = Job();
    job.relaunchPath = scene.Downloads().Path() + "/none.app";
    scene.Host().End();
    HelperStart start;
    start.atEveryCall = [](CallStop const& stop)
    { return stop.call == SYS_vfork || stop.call == SYS_clone3 ? CallVerdict::Fail(EAGAIN) : CallVerdict::GoOn(); };
    HelperOutcome const outcome = scene.Install(job, start);
    EXPECT_EQ(outcome.Find<RelaunchedReport>(), nullptr);
    EXPECT_EQ(scene.Place().StartedVersion(), "2.0");
    auto const record = Record();
    ASSERT_TRUE(record);
    EXPECT_EQ(record->state, InstallState::Installed);
    EXPECT_EQ(record->fault, UpdateFault::RelaunchFailed);
    EXPECT_EQ(record->errorNumber, EAGAIN);
    EXPECT_EQ(JudgePastInstallation(*record, "2.0", HelperLife::Ended), PastInstallation::Over);
}

TEST_F(Outcome, OfAHelperThatIsKilledCanBeTold)
{
    InstallJob const job = Job();
    scene.Host().End();
    HelperStart start;
    start.atEveryCall = [](CallStop const& stop)
    { return stop.call == SYS_renameat2 ? CallVerdict::KillAll() : CallVerdict::GoOn(); };
    EXPECT_EQ(scene.Install(job, start).signal, SIGKILL);
    auto const record = Record();
    ASSERT_TRUE(record);
    EXPECT_EQ(record->state, InstallState::Installing);
    EXPECT_FALSE(IsRunning(record->helper));
    EXPECT_EQ(JudgePastInstallation(*record, "1.0", HelperLife::Ended), PastInstallation::Failed);
    EXPECT_EQ(JudgePastInstallation(*record, "2.0", HelperLife::Ended), PastInstallation::Over);
}

TEST_F(Outcome, OfAHelperThatIsKilledWhileItWaitsCanBeTold)
{
    InstallJob const job = Job();
    HelperStart start;
    ProcessMark helper;
    start.atEveryCall = [this, &helper](CallStop const& stop)
    {
        if (stop.call != SYS_poll)
        {
            return CallVerdict::GoOn();
        }
        auto const record = Record();
        EXPECT_TRUE(record && record->state == InstallState::Waiting && IsRunning(record->helper));
        helper = record ? record->helper : ProcessMark();
        return CallVerdict::KillAll();
    };
    EXPECT_EQ(scene.Install(job, start).signal, SIGKILL);
    EXPECT_NE(helper.number, 0u);
    auto const record = Record();
    ASSERT_TRUE(record);
    EXPECT_EQ(record->helper.number, helper.number);
    EXPECT_EQ(record->helper.startTime, helper.startTime);
    EXPECT_FALSE(IsRunning(helper));
    EXPECT_EQ(JudgePastInstallation(*record, "1.0", HelperLife::Ended), PastInstallation::Failed);
}

/// The helper that waits gets \a signal.
CallVisitor SignalledWhileItWaits(int signal)
{
    return [signal, isSent = false](CallStop const& stop) mutable
    {
        if (stop.call != SYS_poll || std::exchange(isSent, true))
        {
            return CallVerdict::GoOn();
        }
        return CallVerdict::SignalAll(signal);
    };
}

TEST_F(Outcome, OfAnAutomaticInstallationThatTheSessionEndedIsThatBefore)
{
    for (int const signal : {SIGTERM, SIGHUP, SIGINT, SIGQUIT})
    {
        SCOPED_TRACE(signal);
        InstallJob job = Job();
        job.record->wish = InstallWish::Automatic;
        HelperStart start;
        start.atEveryCall = SignalledWhileItWaits(signal);
        EXPECT_EQ(scene.Install(job, start).signal, signal);
        auto const record = Record();
        ASSERT_TRUE(record);
        EXPECT_EQ(record->state, InstallState::Failed);
        EXPECT_EQ(record->attempts, 2u);
        EXPECT_EQ(record->told, FailureTold::Yes);

        job.record->attempts = 1;
        start.atEveryCall = SignalledWhileItWaits(signal);
        EXPECT_EQ(scene.Install(job, start).signal, signal);
        EXPECT_FALSE(std::filesystem::exists(RecordPath()));
        std::filesystem::remove_all(scene.StagingPath() + '/' + APP);
    }
}

TEST_F(Outcome, OfAnInstallationThatAPersonWaitsForStaysIfTheSessionEndsIt)
{
    InstallJob const job = Job();
    HelperStart start;
    start.atEveryCall = SignalledWhileItWaits(SIGTERM);
    EXPECT_EQ(scene.Install(job, start).signal, SIGTERM);
    auto const record = Record();
    ASSERT_TRUE(record);
    EXPECT_EQ(record->state, InstallState::Waiting);
    EXPECT_EQ(JudgePastInstallation(*record, "1.0", HelperLife::Ended), PastInstallation::Failed);
}

TEST_F(Outcome, OfAHelperThatCannotTakeSignalsOtherwiseIsLeftToTheNextStart)
{
    InstallJob job = Job();
    job.record->wish = InstallWish::Automatic;
    HelperStart start;
    start.atEveryCall = [sent = SignalledWhileItWaits(SIGTERM)](CallStop const& stop)
    { return stop.call == SYS_signalfd4 ? CallVerdict::Fail(ENOSYS) : sent(stop); };
    EXPECT_EQ(scene.Install(job, start).signal, SIGTERM);
    auto const record = Record();
    ASSERT_TRUE(record);
    EXPECT_EQ(record->state, InstallState::Waiting);
}

TEST_F(Outcome, OfAHostThatStaysIsKept)
{
    InstallJob job = Job();
    job.waitSeconds = 1;
    EXPECT_EQ(scene.Install(job).Fault(), UpdateFault::HostStillRunning);
    auto const record = Record();
    ASSERT_TRUE(record);
    EXPECT_EQ(record->fault, UpdateFault::HostStillRunning);
}

TEST_F(Outcome, ThatCannotBeKeptIsToldWhileTheHostStillRuns)
{
    for (char const* const fault :
         {"fsync:error=EIO:when=1", "fsync:error=EINVAL:when=2", "renameat:error=ENOSPC", "write:error=ENOSPC:when=1"})
    {
        SCOPED_TRACE(fault);
        InstallJob const job = Job();
        HelperOutcome const outcome = scene.Install(job, Injecting(fault));
        EXPECT_EQ(outcome.exitStatus, 1);
        EXPECT_NE(outcome.Fault(), UpdateFault::None);
        EXPECT_TRUE(outcome.progress.empty()) << "it does not say that it waits";
        EXPECT_EQ(scene.Place().StartedVersion(), "1.0");
        std::filesystem::remove_all(scene.StagingPath() + '/' + APP);
    }
}

TEST_F(Outcome, InAFolderThatMayNotBeChangedIsNotBlamedOnTheApplicationsFolder)
{
    for (char const* const error : {"EACCES", "EPERM", "EROFS"})
    {
        SCOPED_TRACE(error);
        InstallJob const job = Job();
        HelperOutcome const outcome = scene.Install(job, Injecting(std::string("renameat:error=") + error));
        EXPECT_EQ(outcome.Fault(), UpdateFault::RecordFolderUnusable);
        EXPECT_TRUE(outcome.progress.empty()) << "it does not say that it waits";
        std::filesystem::remove_all(scene.StagingPath() + '/' + APP);
    }
}

/// Every write of the record: a new file, synced before it gets the record's name, then a sync of the folder.
TEST_F(Outcome, IsSyncedBeforeItHasItsName)
{
    InstallJob const job = Job();
    scene.Host().End();
    std::string order;
    HelperStart start;
    start.atEveryCall = [this, &order](CallStop const& stop)
    {
        std::string const folder = scene.Downloads().Path();
        if (stop.call == SYS_fsync && DescriptorPath(stop) == folder + '/' + RECORD_NAME + ".new")
        {
            order += "file ";
        }
        else if (stop.call == SYS_fsync && DescriptorPath(stop) == folder)
        {
            order += "folder ";
        }
        else if (stop.call == SYS_renameat && DescriptorPath(stop) == folder)
        {
            order += "name ";
        }
        return CallVerdict::GoOn();
    };
    EXPECT_EQ(scene.Install(job, start).exitStatus, 0);
    EXPECT_EQ(order, "file name folder file name folder file name folder ") << "waiting, installing, installed";
}

class OutcomeOfABadStart : public Outcome
{
protected:
    OutcomeOfABadStart() : Outcome(Archive()) {}

    static std::string Archive()
    {
        std::vector<ForgedEntry> entries = MakeBundle("2.0");
        entries[1].content = "#!/bin/sh\nexit 1\n";
        std::string& information = entries[3].content;
        information.insert(information.find('{') + 1, "PelnarConfirmsGoodStart = YES;");
        return MakeArchive(Container::Zip, entries);
    }
};

TEST_F(OutcomeOfABadStart, IsKeptBeforeThePreviousVersionStarts)
{
    InstallJob const job = Job();
    std::string const seen = scene.Downloads().Path() + "/seen";
    std::ofstream(scene.Place().Path() + '/' + APP + "/run", std::ios::app)
        << "cp '" << RecordPath() << "' '" << seen << "'\n";
    scene.Host().End();
    HelperOutcome const outcome = scene.Install(job);
    EXPECT_EQ(outcome.output.substr(0, 4), "1.0|");
    auto const record = Record();
    ASSERT_TRUE(record);
    EXPECT_EQ(record->fault, UpdateFault::NewVersionFailed);
    std::ifstream seenFile(seen, std::ios::binary);
    auto const seenRecord = DecodeInstallRecord(std::string(std::istreambuf_iterator<char>(seenFile), {}));
    ASSERT_TRUE(seenRecord);
    EXPECT_EQ(seenRecord->fault, UpdateFault::NewVersionFailed);
}

InstallRecord RecordOf(InstallState state, InstallWish wish)
{
    InstallRecord record;
    record.fromVersion = "1.0";
    record.toVersion = "2.0";
    record.wish = wish;
    record.state = state;
    record.fault = state == InstallState::Failed ? UpdateFault::SwapFailed : UpdateFault::None;
    return record;
}

TEST(InstallRecord, MeansOneThingToAnybodyWhoFindsIt)
{
    struct Row
    {
        InstallState state;
        InstallWish wish;
        HelperLife helper;
        char const* running;
        PastInstallation expected;
    };
    auto const automatic = InstallWish::Automatic;
    auto const person = InstallWish::Person;
    auto const runs = HelperLife::Runs;
    auto const ended = HelperLife::Ended;
    Row const rows[] = {
        {InstallState::Waiting, automatic, runs, "1.0", PastInstallation::UnderWay},
        {InstallState::Waiting, person, runs, "1.0", PastInstallation::UnderWay},
        {InstallState::Waiting, automatic, ended, "1.0", PastInstallation::Dropped},
        {InstallState::Waiting, person, ended, "1.0", PastInstallation::Failed},
        {InstallState::Installing, automatic, runs, "1.0", PastInstallation::UnderWay},
        {InstallState::Installing, automatic, ended, "1.0", PastInstallation::Failed},
        {InstallState::Installing, person, ended, "1.0", PastInstallation::Failed},
        {InstallState::Failed, automatic, runs, "1.0", PastInstallation::Failed},
        {InstallState::Failed, automatic, ended, "1.0", PastInstallation::Failed},
        {InstallState::Installed, automatic, ended, "1.0", PastInstallation::Over},
        {InstallState::Failed, person, ended, "2.0", PastInstallation::Over},
        {InstallState::Installing, person, ended, "2.0", PastInstallation::Over},
        {InstallState::Failed, person, ended, "3.0", PastInstallation::Over},
    };
    for (Row const& row : rows)
    {
        EXPECT_EQ(JudgePastInstallation(RecordOf(row.state, row.wish), row.running, row.helper), row.expected)
            << static_cast<int>(row.state) << ' ' << static_cast<int>(row.wish) << ' ' << row.running;
    }
}

} // namespace
