// GoodStartTest.cpp: new versions that must confirm a good start, and the return to the previous version without it.

#include "Engine/core/archive/TreeManifest.h"
#include "Engine/core/helper/NoteFile.h"
#include "Engine/core/helper/SwapJournal.h"
#include "tests/installer/FaultChecks.h"
#include "tests/installer/GoodStartScene.h"
#include "tests/installer/InstallerFixture.h"

#include <gtest/gtest.h>

#include <algorithm>

#include <fcntl.h>
#include <signal.h>
#include <sys/syscall.h>
#include <unistd.h>

namespace
{

using namespace Pelnar::Engine;
using namespace Pelnar::Testing;

TEST(GoodStart, ThirdStartWithoutAConfirmationBringsThePreviousVersionBack)
{
    InstalledScene installed;
    EXPECT_EQ(installed.Version(), "2.0");
    EXPECT_EQ(installed.Start("2.0"), RecoveryAction::CountedStart);
    EXPECT_EQ(installed.Version(), "2.0");
    EXPECT_EQ(installed.Start("2.0"), RecoveryAction::CountedStart);
    EXPECT_EQ(installed.Version(), "2.0");
    EXPECT_EQ(installed.Start("2.0"), RecoveryAction::RolledBack);
    EXPECT_EQ(installed.Version(), "1.0");
    EXPECT_EQ(installed.failedVersion, "");
    // The version that was taken back is kept until the previous version starts, because it may still run from there.
    EXPECT_EQ(installed.scene.Place().Names(installed.Names()[0]), ONLY_THE_APP);

    for (int start = 0; start < 2; ++start)
    {
        EXPECT_EQ(installed.Start("1.0"), RecoveryAction::Nothing);
        EXPECT_EQ(installed.failedVersion, "2.0");
        EXPECT_EQ(installed.Names(), (std::vector<std::string>{FailedVersionName(APP), APP}));
        EXPECT_EQ(installed.Version(), "1.0");
    }
    EXPECT_EQ(installed.Start("3.0"), RecoveryAction::Nothing); // installed in some other way
    EXPECT_EQ(installed.failedVersion, "");
    EXPECT_EQ(installed.Names(), ONLY_THE_APP);
}

TEST(GoodStart, OneConfirmationKeepsTheNewVersion)
{
    for (int starts = 0; starts <= 2; ++starts)
    {
        InstalledScene installed;
        for (int start = 0; start < starts; ++start)
        {
            EXPECT_EQ(installed.Start("2.0"), RecoveryAction::CountedStart);
        }
        EXPECT_EQ(installed.Confirm("1.0"), RecoveryAction::KeptPrevious); // the confirmation of another version
        EXPECT_EQ(installed.Confirm("2.0"), RecoveryAction::ConfirmedNew);
        EXPECT_EQ(installed.Names(), ONLY_THE_APP);
        EXPECT_EQ(installed.Confirm("2.0"), RecoveryAction::Nothing);
        EXPECT_EQ(installed.Start("2.0"), RecoveryAction::Nothing);
        EXPECT_EQ(installed.Version(), "2.0");
    }
}

TEST(GoodStart, InstancesBesideARunningOneAreNoStartsOfTheirOwn)
{
    InstalledScene installed;
    auto const pid = static_cast<std::uint64_t>(::getpid());
    for (int start = 0; start < 4; ++start)
    {
        RecoverJob const job{APP, "2.0", RecoverPurpose::Start, pid};
        EXPECT_EQ(installed.Recover(job), start == 0 ? RecoveryAction::CountedStart : RecoveryAction::KeptPrevious);
        RecoverJob const other{APP, "2.0", RecoverPurpose::Start, 1};
        EXPECT_EQ(installed.Recover(other), RecoveryAction::KeptPrevious);
    }
    EXPECT_EQ(installed.Version(), "2.0");
    EXPECT_EQ(installed.Recover({APP, "2.0", RecoverPurpose::Confirmation, pid}), RecoveryAction::ConfirmedNew);
}

TEST(GoodStart, ProcessThatHasEndedIsNotTheOneThatHasItsNumberNow)
{
    InstalledScene installed;
    SwapJournal journal{installed.scene.Place().Names()[0], APP, "1.0", "2.0", StartConfirmation::ByHost, 2, {}};
    for (std::string const& name : installed.Names())
    {
        journal.stagingName =
            name.compare(0, UpdateFilePrefix(APP).size(), UpdateFilePrefix(APP)) == 0 ? name : journal.stagingName;
    }
    journal.lastStarted = {static_cast<std::uint64_t>(::getpid()), 1}; // another start time
    WriteNote(installed.scene.Place().Descriptor(), SwapJournalName(APP), EncodeSwapJournal(journal));
    EXPECT_EQ(installed.Start("2.0"), RecoveryAction::RolledBack);
    EXPECT_EQ(installed.Version(), "1.0");
}

TEST(GoodStart, WithoutAnExchangeThePreviousVersionComesBackByTwoRenames)
{
    InstalledScene installed;
    installed.Start("2.0");
    installed.Start("2.0");
    HelperStart start;
    start.atEveryCall = [](CallStop const& stop)
    { return stop.call == SYS_renameat2 ? CallVerdict::Fail(EINVAL) : CallVerdict::GoOn(); };
    HelperOutcome const outcome = installed.scene.Recover("2.0", start);
    EXPECT_EQ(outcome.traced.faulted.size(), 1u) << "it was exchanged";
    ASSERT_NE(outcome.Find<RecoveredReport>(), nullptr);
    EXPECT_EQ(outcome.Find<RecoveredReport>()->action, RecoveryAction::RolledBack);
    EXPECT_EQ(installed.Version(), "1.0");
}

/// Each rename and each sync of the recovery fails, with an exchange and with two renames.
TEST(GoodStart, RollBackThatFailsAnywhereIsFinishedByALaterStart)
{
    for (bool const hasExchange : {true, false})
    {
        for (long const call : {long{SYS_renameat}, long{SYS_fsync}})
        {
            bool wasFailed = true;
            for (int nth = 1; wasFailed && nth <= 20; ++nth)
            {
                SCOPED_TRACE(testing::Message() << hasExchange << ' ' << CallName(call) << ' ' << nth);
                InstalledScene installed;
                installed.Start("2.0");
                installed.Start("2.0");
                int calls = 0;
                HelperStart start;
                start.atEveryCall = [&](CallStop const& stop)
                {
                    bool const isRefused = !hasExchange && stop.call == SYS_renameat2;
                    calls += stop.call == call ? 1 : 0;
                    bool const isFailed = stop.call == call && calls == nth;
                    return isRefused  ? CallVerdict::Fail(EINVAL)
                           : isFailed ? CallVerdict::Fail(EIO)
                                      : CallVerdict::GoOn();
                };
                HelperOutcome const outcome = installed.scene.Recover("2.0", start);
                wasFailed = calls >= nth;
                EXPECT_EQ(outcome.exitStatus, wasFailed ? 1 : 0) << FaultName(outcome.Fault());
                EXPECT_FALSE(installed.Version().empty()) << "a failure leaves a bundle in its place";
                ExpectPreviousSettles(installed.scene);
            }
            EXPECT_FALSE(wasFailed);
        }
    }
}

/// Kills the recovery at each of the calls that take a version back.
void SweepRollBack(std::vector<std::string> const& calls, std::vector<std::string> const& options)
{
    for (std::string const& call : calls)
    {
        bool wasKilled = true;
        int kills = 0;
        for (int nth = 1; wasKilled && nth <= MOST_CALLS; ++nth)
        {
            SCOPED_TRACE(testing::Message() << call << " number " << nth);
            InstalledScene installed;
            installed.Start("2.0");
            installed.Start("2.0");
            wasKilled = installed.scene.Recover("2.0", KilledAt(call, nth, options)).signal == SIGKILL;
            kills += wasKilled ? 1 : 0;
            EXPECT_TRUE(!options.empty() || !installed.Version().empty()); // with an exchange, at every moment
            ExpectPreviousSettles(installed.scene);
            EXPECT_EQ(installed.Names().size(), 2u); // the record of the failed version is there
        }
        EXPECT_FALSE(wasKilled) << call;
        EXPECT_GT(kills, 0) << call;
    }
}

TEST(GoodStart, RollBackKilledAnywhereIsFinishedByTheNextStart)
{
    SweepRollBack({"unlinkat", "write", "fsync", "renameat", "renameat2", "flock"}, {});
}

TEST(GoodStart, RollBackWithoutAnExchangeKilledAnywhereIsFinishedByTheNextStart)
{
    // The call that fails and the call at which it is killed must differ.
    SweepRollBack({"unlinkat", "fsync", "renameat"}, {"-e", "inject=renameat2:error=EINVAL"});
}

TEST(GoodStart, NextUpdateOfAnUnconfirmedVersionConfirmsIt)
{
    InstalledScene installed;
    EXPECT_EQ(installed.Start("2.0"), RecoveryAction::CountedStart);
    UpdateScene& scene = installed.scene;
    StagingFolder const staging = StagingFolder::Create(scene.Place().Descriptor(), APP);
    scene.Place().Put(MakeBundle("3.0"), staging.Name() + '/');
    UniqueFd const staged(::openat(staging.Descriptor(), APP, O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    InstallJob job;
    job.targetName = APP;
    job.stagingName = staging.Name();
    job.stagedName = APP;
    job.digest = DigestTree(staged.Get());
    job.bundleIdentifier = IDENTIFIER;
    job.expectedVersion = "3.0";
    job.installedVersion = "2.0";
    HelperOutcome const outcome = RunHelper("install", EncodeUpdateJob(job),
                                            {{HelperDescriptors::PARENT, scene.Place().Descriptor()},
                                             {HelperDescriptors::STAGING, staging.Descriptor()},
                                             {HelperDescriptors::HOST, scene.Host().ProcessDescriptor()}});
    EXPECT_EQ(outcome.exitStatus, 0) << FaultName(outcome.Fault());
    EXPECT_EQ(installed.Version(), "3.0");
    EXPECT_EQ(installed.Names().size(), 3u); // the app, one journal, one staging folder
}

} // namespace
