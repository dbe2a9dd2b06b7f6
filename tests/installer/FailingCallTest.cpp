// FailingCallTest.cpp: failing system calls of the helper, injected by strace.

#include "Engine/core/helper/NoteFile.h"
#include "Engine/core/helper/SwapJournal.h"
#include "tests/installer/FaultChecks.h"
#include "tests/installer/TracedHelper.h"
#include "tests/support/Sanitizers.h"

#include <gtest/gtest.h>

namespace
{

using namespace Pelnar::Engine;
using namespace Pelnar::Testing;

struct FailingCall
{
    char const* call;
    char const* error;
    int most; ///< this many of them are tried
};

TEST(Faults, FailingCallsOfThePreparationAreRefusedCleanly)
{
    Versions const versions;
    struct Row
    {
        FailingCall failing;
        UpdateFault fault;
    };
    for (Row const& row :
         {Row{{"write", "ENOSPC", 9}, UpdateFault::NoSpace}, Row{{"write", "EIO", 9}, UpdateFault::DiskError},
          Row{{"write", "EDQUOT", 9}, UpdateFault::NoSpace}, Row{{"openat2", "ENOSPC", 5}, UpdateFault::NoSpace},
          Row{{"openat2", "EMFILE", 5}, UpdateFault::SystemLimitReached},
          Row{{"mkdirat", "ENOSPC", 2}, UpdateFault::NoSpace}, Row{{"symlinkat", "EIO", 1}, UpdateFault::DiskError},
          Row{{"utimensat", "EIO", 2}, UpdateFault::DiskError}, Row{{"syncfs", "EIO", 1}, UpdateFault::SyncFailed},
          Row{{"syncfs", "ENOSPC", 1}, UpdateFault::NoSpace},
          Row{{"landlock_restrict_self", "E2BIG", 1}, UpdateFault::ConfinementFailed}})
    {
        int refused = 0;
        for (int nth = 1; nth <= row.failing.most; ++nth)
        {
            SCOPED_TRACE(testing::Message() << row.failing.call << " " << row.failing.error << " " << nth);
            UpdateScene scene;
            Traced const failing(Join({}, std::string(row.failing.call) + ":error=" + row.failing.error +
                                              ":when=" + std::to_string(nth)));
            HelperOutcome const outcome = scene.Prepare(scene.MakePrepareJob(), failing.Start());
            if (failing.Errors() == 0)
            {
                EXPECT_EQ(outcome.exitStatus, 0) << "it makes fewer such calls";
                break;
            }
            // Some writes are reports; only the reader loses something.
            EXPECT_TRUE(outcome.Fault() == row.fault || outcome.exitStatus == 0) << FaultName(outcome.Fault());
            refused += outcome.Fault() == row.fault ? 1 : 0;
            ExpectRecovered(scene, versions);
        }
        EXPECT_GT(refused, 0) << row.failing.call;
    }
}

TEST(Faults, FailingCallsOfTheInstallationLeaveThePreviousVersion)
{
    Versions const versions;
    struct Row
    {
        std::string injection;
        UpdateFault fault;
    };
    for (Row const& row : {
             Row{"renameat2:error=EXDEV", UpdateFault::OtherFileSystem},
             Row{"renameat2:error=EACCES", UpdateFault::NotPermitted},
             Row{"renameat2:error=EIO", UpdateFault::SwapFailed},
             Row{"fsync:error=EIO:when=1", UpdateFault::SyncFailed}, // the journal
             Row{"fsync:error=EIO:when=2", UpdateFault::SyncFailed}, // its folder
             Row{"fsync:error=EIO:when=3", UpdateFault::SyncFailed}, // the staging folder, after the exchange
             Row{"fsync:error=EIO:when=4", UpdateFault::SyncFailed}, // the bundle's folder, after the exchange
             Row{"fsync:error=ENOSPC:when=1", UpdateFault::NoSpace},
             Row{"flock:error=ENOLCK:when=1", UpdateFault::LocksUnavailable},
             Row{"flock:error=EOPNOTSUPP:when=1", UpdateFault::LocksUnavailable},
             Row{"flock:error=ENOSYS:when=1", UpdateFault::LocksUnavailable},
         })
    {
        SCOPED_TRACE(row.injection);
        UpdateScene scene;
        InstallJob const job = scene.PrepareForInstall();
        scene.Host().End();
        Traced const failing(Join({}, row.injection));
        HelperOutcome const outcome = scene.Install(job, failing.Start());
        EXPECT_GT(failing.Errors(), 0);
        EXPECT_EQ(outcome.exitStatus, 1);
        EXPECT_EQ(outcome.Fault(), row.fault);
        EXPECT_EQ(outcome.Find<InstalledReport>(), nullptr);
        EXPECT_EQ(outcome.output.substr(0, 3), "1.0");
        EXPECT_EQ(ExpectWhole(scene, versions), "1.0");
        ExpectRecovered(scene, versions);
    }
}

TEST(Faults, FileSystemsWithoutExchangeGetTwoRenames)
{
    Versions const versions;
    for (char const* const error : {"EINVAL", "ENOSYS", "EOPNOTSUPP"})
    {
        UpdateScene scene;
        InstallJob const job = scene.PrepareForInstall();
        scene.Host().End();
        Traced const failing({"-e", std::string("inject=renameat2:error=") + error});
        HelperOutcome const outcome = scene.Install(job, failing.Start());
        EXPECT_GT(failing.Errors(), 0);
        EXPECT_EQ(outcome.exitStatus, 0);
        EXPECT_EQ(outcome.output.substr(0, 3), "2.0");
        EXPECT_EQ(ExpectWhole(scene, versions), "2.0");
        EXPECT_EQ(scene.Place().StartedVersion(scene.StagingName() + "/previous"), "1.0");
        ExpectRecovered(scene, versions);
    }
}

TEST(Faults, FailingRenamesAreUndone)
{
    Versions const versions;
    // The first plain rename is the journal's, the next two belong to the swap.
    for (int nth = 1; nth <= 3; ++nth)
    {
        SCOPED_TRACE(nth);
        UpdateScene scene;
        InstallJob const job = scene.PrepareForInstall();
        scene.Host().End();
        Traced const failing(Join(NO_EXCHANGE, "renameat:error=EIO:when=" + std::to_string(nth)));
        HelperOutcome const outcome = scene.Install(job, failing.Start());
        EXPECT_GT(failing.Errors(), nth > 1 ? 1 : 0) << "the exchange comes after the journal";
        EXPECT_EQ(outcome.exitStatus, 1);
        EXPECT_EQ(outcome.output.substr(0, 3), "1.0");
        EXPECT_EQ(ExpectWhole(scene, versions), "1.0");
        ExpectRecovered(scene, versions);
    }
}

TEST(Faults, ParentThatCannotWaitForItsChildTriesAgain)
{
    Versions const versions;
    UpdateScene scene;
    InstallJob const job = scene.PrepareForInstall();
    scene.Host().End();
    Traced const failing(Join({}, "wait4:error=EIO:when=1"));
    HelperOutcome const outcome = scene.Install(job, failing.Start());
    EXPECT_GT(failing.Errors(), 0);
    EXPECT_EQ(outcome.exitStatus, 0);
    EXPECT_EQ(outcome.output.substr(0, 3), "2.0");
    EXPECT_EQ(ExpectWhole(scene, versions), "2.0");
    ExpectRecovered(scene, versions);
}

TEST(Faults, ParentThatCanNeverWaitForItsChildLeavesOneOfTheVersions)
{
    Versions const versions;
    UpdateScene scene;
    InstallJob const job = scene.PrepareForInstall();
    scene.Host().End();
    Traced const trace(Join({}, "wait4:error=EIO"));
    HelperStart start = trace.Start();
    start.before.insert(start.before.begin(), {"/usr/bin/timeout", "-s", "KILL", "60"});
    HelperOutcome const outcome = scene.Install(job, start);
    EXPECT_EQ(outcome.signal, 0) << "it never stopped asking";
    EXPECT_GT(trace.Errors(), 1);
    ExpectWhole(scene, versions);
    ExpectRecovered(scene, versions);
}

TEST(Faults, ChildKilledBetweenTheRenamesIsRepairedByItsParent)
{
    Versions const versions;
    UpdateScene scene;
    InstallJob const job = scene.PrepareForInstall();
    scene.Host().End();
    Traced const killed(KillAt({"renameat", 3}, NO_EXCHANGE));
    HelperOutcome const outcome = scene.Install(job, killed.Start());
    EXPECT_EQ(killed.Kills(), 1);
    EXPECT_EQ(outcome.exitStatus, 1);
    auto const* recovered = outcome.Find<RecoveredReport>();
    ASSERT_NE(recovered, nullptr);
    EXPECT_EQ(recovered->action, RecoveryAction::RestoredPrevious);
    EXPECT_EQ(outcome.output.substr(0, 3), "1.0");
    EXPECT_EQ(ExpectWhole(scene, versions), "1.0");
    EXPECT_EQ(scene.Place().Names(), std::vector<std::string>{APP});
}

} // namespace
