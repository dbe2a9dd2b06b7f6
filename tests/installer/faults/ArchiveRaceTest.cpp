// ArchiveRaceTest.cpp: another process changes the archive while the helper reads it. The default run takes a sample of
// the places; with PELNAR_EVERY_PLACE=1 in the environment it takes all.

#include "Engine/core/helper/SwapJournal.h"
#include "tests/installer/FaultChecks.h"
#include "tests/installer/faults/RaceSteps.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <filesystem>
#include <fstream>
#include <thread>

#include <fcntl.h>
#include <sys/syscall.h>

namespace
{

using namespace Pelnar::Engine;
using namespace Pelnar::Testing;

TEST(Race, ArchiveReplacedUnderItsNameIsStillTheOneThatWasOpenedOrIsRefused)
{
    Versions const versions;
    AtPlacesOfAPreparation(
        &PrepareIn,
        [&](int place)
        {
            UpdateScene scene;
            HelperOutcome const outcome =
                PrepareIn(scene, ActAt(place, [&scene] { ReplaceBy(ArchivePath(scene), "something else"); }));
            bool const isRefused = outcome.Fault() == UpdateFault::ArchiveInUse;
            EXPECT_EQ(outcome.exitStatus, isRefused ? 1 : 0);
            EXPECT_TRUE(isRefused || TreeOf(scene.StagingPath() + '/' + APP) == versions.next);
            ExpectRecovered(scene, versions);
            return std::filesystem::file_size(ArchivePath(scene)) == std::string("something else").size();
        });
}

TEST(Race, ArchiveCanBeWrittenAtOnceWhenTheHelperHasEnded)
{
    for (bool const isRefused : {false, true})
    {
        UpdateScene scene;
        PrepareJob job = scene.MakePrepareJob();
        job.expectedVersion = isRefused ? "9.0" : "2.0";
        EXPECT_EQ(scene.Prepare(job).exitStatus, isRefused ? 1 : 0);
        UniqueFd const writer(::open(ArchivePath(scene).c_str(), O_WRONLY | O_NONBLOCK | O_CLOEXEC));
        EXPECT_TRUE(writer) << "would wait for the lease";
    }
}

/// As a child that the host forks, until it starts its own program.
TEST(Race, ArchiveThatIsOpenForWritingForAMomentIsUsed)
{
    Versions const versions;
    UpdateScene scene;
    UniqueFd writer(::open(ArchivePath(scene).c_str(), O_WRONLY | O_CLOEXEC));
    HelperStart start;
    start.atEveryCall = [&writer](CallStop const& stop)
    {
        if (stop.call == SYS_nanosleep || stop.call == SYS_clock_nanosleep)
        {
            writer = UniqueFd();
        }
        return CallVerdict::GoOn();
    };
    HelperOutcome const outcome = PrepareIn(scene, start);
    EXPECT_FALSE(writer) << "the helper has waited";
    EXPECT_EQ(outcome.exitStatus, 0) << FaultName(outcome.Fault());
    EXPECT_TRUE(TreeOf(scene.StagingPath() + '/' + APP) == versions.next);
    ExpectRecovered(scene, versions);
}

TEST(Race, ArchiveWrittenBehindTheReportChangesNothing)
{
    Versions const versions;
    UpdateScene scene;
    bool isTold = false;
    bool isWritten = false;
    HelperStart start;
    start.atEveryCall = [&](CallStop const& stop)
    {
        if (isTold && !isWritten)
        {
            isWritten = true;
            // Breaks a lease without waiting for its holder.
            UniqueFd const writer(::open(ArchivePath(scene).c_str(), O_WRONLY | O_NONBLOCK | O_CLOEXEC));
        }
        isTold = isTold || (stop.call == SYS_write && stop.arguments[0] == HelperDescriptors::REPORT &&
                            PathArgument(stop, 1).substr(0, 8) == "prepared");
        return CallVerdict::GoOn();
    };
    HelperOutcome const outcome = PrepareIn(scene, start);
    EXPECT_TRUE(isWritten);
    EXPECT_EQ(outcome.exitStatus, 0) << "it does not read the archive any more";
    EXPECT_TRUE(TreeOf(scene.StagingPath() + '/' + APP) == versions.next);
    ExpectRecovered(scene, versions);
}

struct Change
{
    char const* name;
    void (*act)(std::string const& archive);
};

class ChangedArchive : public testing::TestWithParam<Change>
{
};

/// Opening a file for a change waits until the helper releases it, and then the helper ends without reading on. So a
/// thread makes the change.
TEST_P(ChangedArchive, IsNeverTakenForTheVerifiedOne)
{
    Versions const versions;
    int stopped = 0;
    AtPlacesOfAPreparation(
        &PrepareIn,
        [&](int place)
        {
            UpdateScene scene;
            std::thread writer;
            HelperOutcome const outcome = PrepareIn(
                scene, ActAt(place, [&] { writer = std::thread([&] { GetParam().act(ArchivePath(scene)); }); }));
            bool const isMet = writer.joinable();
            scene.Host().End(); // it has the archive open too
            scene.ReleaseArchive();
            if (isMet)
            {
                writer.join();
            }
            EXPECT_NE(outcome.signal, SIGBUS);
            if (outcome.exitStatus == 0)
            {
                EXPECT_TRUE(TreeOf(scene.StagingPath() + '/' + APP) == versions.next);
            }
            else
            {
                ++stopped;
                EXPECT_EQ(outcome.Find<PreparedReport>(), nullptr);
            }
            ExpectRecovered(scene, versions);
            return isMet;
        });
    EXPECT_GT(stopped, 0);
}

/// A kernel without leases. Another process does \a act right before the helper's call number \a place.
HelperStart ActWithoutLeasesAt(int place, std::function<void()> const& act, int error = EINVAL)
{
    HelperStart start;
    start.atEveryCall = [place, act, error](CallStop const& stop)
    {
        if (stop.index == place)
        {
            act();
        }
        bool const isLease = stop.call == SYS_fcntl && stop.arguments[1] == F_SETLEASE;
        return isLease ? CallVerdict::Fail(error) : CallVerdict::GoOn();
    };
    return start;
}

HelperOutcome PrepareWithoutLeases(UpdateScene& scene, HelperStart const& start)
{
    CallVisitor const visit = start.atEveryCall;
    HelperStart without = ActWithoutLeasesAt(-1, [] {});
    CallVisitor const refuse = without.atEveryCall;
    without.atEveryCall = [visit, refuse](CallStop const& stop)
    {
        static_cast<void>(visit(stop));
        return refuse(stop);
    };
    return PrepareIn(scene, without);
}

TEST_P(ChangedArchive, IsNeverTakenForTheVerifiedOneWhereThereAreNoLeases)
{
    Versions const versions;
    UpdateScene traced;
    int refused = 0;
    int prepared = 0;
    for (int const place : Places(CallsOf(traced, &PrepareWithoutLeases)))
    {
        SCOPED_TRACE(place);
        UpdateScene scene;
        HelperOutcome const outcome =
            PrepareIn(scene, ActWithoutLeasesAt(place, [&] { GetParam().act(ArchivePath(scene)); }));
        EXPECT_EQ(outcome.signal, 0);
        if (outcome.exitStatus == 0)
        {
            ++prepared;
            EXPECT_TRUE(TreeOf(scene.StagingPath() + '/' + APP) == versions.next);
        }
        else
        {
            ++refused;
            EXPECT_EQ(outcome.Find<PreparedReport>(), nullptr);
            EXPECT_TRUE(outcome.Fault() == UpdateFault::ArchiveLengthDiffers ||
                        outcome.Fault() == UpdateFault::SignatureMismatch)
                << FaultName(outcome.Fault());
            EXPECT_TRUE(scene.Place().Names(scene.StagingName()).empty());
        }
        ExpectRecovered(scene, versions);
    }
    EXPECT_GT(refused, 0) << "changed before it was read";
    EXPECT_GT(prepared, 0) << "changed when it had been read";
}

TEST(Race, ArchiveIsPreparedWithoutALeaseForEveryRefusal)
{
    Versions const versions;
    for (int const error : {EINVAL, EACCES, EPERM, ENOLCK, EOPNOTSUPP, ENOSYS})
    {
        UpdateScene scene;
        HelperOutcome const outcome = PrepareIn(scene, ActWithoutLeasesAt(
                                                           -1, [] {}, error));
        EXPECT_EQ(outcome.exitStatus, 0) << error;
        EXPECT_TRUE(TreeOf(scene.StagingPath() + '/' + APP) == versions.next);
        EXPECT_EQ(scene.Place().Names(scene.StagingName()), std::vector<std::string>{APP});
        ExpectRecovered(scene, versions);
    }
    UpdateScene scene;
    EXPECT_EQ(PrepareIn(scene, ActWithoutLeasesAt(
                                   -1, [] {}, EAGAIN))
                  .Fault(),
              UpdateFault::ArchiveInUse);
}

INSTANTIATE_TEST_SUITE_P(
    Changes, ChangedArchive,
    testing::Values(Change{"Rewritten",
                           [](std::string const& archive)
                           {
                               std::fstream file(archive, std::ios::in | std::ios::out);
                               file.seekp(100);
                               file << "evil";
                           }},
                    Change{"CutShort", [](std::string const& archive) { std::filesystem::resize_file(archive, 100); }},
                    Change{"Emptied", [](std::string const& archive) { std::ofstream file(archive); }},
                    Change{"Longer",
                           [](std::string const& archive) { std::ofstream(archive, std::ios::app) << "more"; }}),
    [](testing::TestParamInfo<Change> const& info) { return info.param.name; });

} // namespace
