// DurabilityTest.cpp: the files that are on the disk before the helper reports them.

#include "Engine/core/helper/SwapJournal.h"
#include "tests/installer/FaultChecks.h"
#include "tests/installer/faults/HelperSteps.h"
#include "tests/support/Sanitizers.h"

#include <gtest/gtest.h>

#include <fstream>
#include <iterator>

#include <sys/syscall.h>

namespace
{

using namespace Pelnar::Engine;
using namespace Pelnar::Testing;

/// The folder that a call of fsync is about, and the calls that change names.
std::vector<std::string> DurabilityOrder(Step step)
{
    std::vector<std::string> order;
    Subject subject(step, InstallOutcome::NotKept);
    std::string const place = subject.scene.Place().Path();
    std::string const staging = subject.scene.StagingPath();
    subject.Run(
        [&](CallStop const& stop)
        {
            if (stop.call == SYS_fsync)
            {
                std::string const path = DescriptorPath(stop);
                order.push_back(path == place     ? "sync bundle's folder"
                                : path == staging ? "sync staging"
                                                  : "sync file");
            }
            else if (stop.call == SYS_renameat || stop.call == SYS_renameat2)
            {
                order.push_back(CallName(stop.call));
            }
            else if (stop.call == SYS_write && stop.arguments[0] == HelperDescriptors::REPORT &&
                     PathArgument(stop, 1).substr(0, 9) == "installed")
            {
                order.push_back("told");
            }
            return CallVerdict::GoOn();
        });
    return order;
}

TEST(Durability, SwapIsToldOnlyWhenBothFoldersAreOnTheDisk)
{
    EXPECT_EQ(DurabilityOrder(Step::Installation),
              (std::vector<std::string>{"sync file", "renameat", "sync bundle's folder", "renameat2", "sync staging",
                                        "sync bundle's folder", "told"}));
    // No call is between the two renames, because the bundle is missing then.
    EXPECT_EQ(DurabilityOrder(Step::InstallationWithoutExchange),
              (std::vector<std::string>{"sync file", "renameat", "sync bundle's folder", "renameat2", "renameat",
                                        "renameat", "sync staging", "sync bundle's folder", "told"}));
}

TEST(Durability, PreparationThatCouldNotBeSyncedIsThrownAwayAndNeverTriedAgain)
{
    Versions const versions;
    Subject subject(Step::Preparation);
    int syncs = 0;
    HelperOutcome const outcome =
        subject.Run([&syncs](CallStop const& stop)
                    { return stop.call == SYS_syncfs && ++syncs == 1 ? CallVerdict::Fail(EIO) : CallVerdict::GoOn(); });
    EXPECT_EQ(syncs, 1);
    EXPECT_EQ(outcome.Fault(), UpdateFault::SyncFailed);
    EXPECT_EQ(outcome.Find<PreparedReport>(), nullptr);
    ExpectRecovered(subject.scene, versions);
}

class UnsyncedSwap : public testing::TestWithParam<Step>
{
};

TEST_P(UnsyncedSwap, IsUndoneAndTheStagedBundleThrownAway)
{
    Versions const versions;
    // Of the journal, its folder, the staging folder, the bundle's folder.
    for (int nth = 1; nth <= 4; ++nth)
    {
        SCOPED_TRACE(nth);
        Subject subject(GetParam(), InstallOutcome::NotKept);
        int syncs = 0;
        HelperOutcome const outcome = subject.Run(
            [&syncs, nth](CallStop const& stop)
            { return stop.call == SYS_fsync && ++syncs == nth ? CallVerdict::Fail(EIO) : CallVerdict::GoOn(); });
        EXPECT_GE(syncs, nth);
        EXPECT_EQ(outcome.Fault(), UpdateFault::SyncFailed);
        EXPECT_EQ(outcome.Find<InstalledReport>(), nullptr);
        EXPECT_EQ(ExpectWhole(subject.scene, versions), "1.0");
        EXPECT_EQ(outcome.output.substr(0, 3), "1.0");
        EXPECT_EQ(subject.scene.Place().Names(), std::vector<std::string>{APP});
    }
}

INSTANTIATE_TEST_SUITE_P(Steps, UnsyncedSwap, testing::Values(Step::Installation, Step::InstallationWithoutExchange),
                         [](testing::TestParamInfo<Step> const& info) { return StepName(info.param); });

/// The undo does this, not the recovery after it: the recovery finds nothing to restore.
TEST(Durability, TwoRenamesThatCouldNotBeSyncedAreUndoneByTwoRenames)
{
    Versions const versions;
    for (int nth = 3; nth <= 4; ++nth)
    {
        SCOPED_TRACE(nth);
        Subject subject(Step::InstallationWithoutExchange, InstallOutcome::NotKept);
        int syncs = 0;
        std::string order;
        subject.Run(
            [&](CallStop const& stop)
            {
                bool const isBehindFault = syncs >= nth;
                if (isBehindFault && stop.call == SYS_renameat)
                {
                    order += PathArgument(stop, 1) + '>' + PathArgument(stop, 3) + ' ';
                }
                return stop.call == SYS_fsync && ++syncs == nth ? CallVerdict::Fail(EIO) : CallVerdict::GoOn();
            });
        std::string const app = APP;
        EXPECT_EQ(order, app + '>' + app + ' ' + PREVIOUS_BUNDLE_NAME + '>' + app + ' ');
        EXPECT_EQ(ExpectWhole(subject.scene, versions), "1.0");
    }
}

/// Before the first byte of the archive is unpacked, no program that the helper starts can gain privileges through the
/// mode of its file (setuid).
TEST(Confinement, GivesUpNewPrivilegesBeforeTheArchiveIsRead)
{
    Subject subject(Step::Preparation);
    std::string const archive = subject.scene.Downloads().Path() + "/update";
    int reads = 0;
    subject.Run(
        [&](CallStop const& stop)
        {
            bool const isReading =
                (stop.call == SYS_pread64 || stop.call == SYS_read || stop.call == SYS_mmap ||
                 stop.call == SYS_mkdirat || stop.call == SYS_syncfs) &&
                (stop.call == SYS_mkdirat || stop.call == SYS_syncfs || DescriptorPath(stop) == archive);
            if (isReading)
            {
                ++reads;
                std::ifstream status("/proc/" + std::to_string(stop.process) + "/status");
                std::string const text(std::istreambuf_iterator<char>(status), {});
                EXPECT_NE(text.find("NoNewPrivs:\t1"), std::string::npos) << CallName(stop.call);
            }
            return CallVerdict::GoOn();
        });
    EXPECT_GT(reads, 2);
}

} // namespace
