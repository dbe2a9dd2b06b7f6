// CallFaultTest.cpp: every system call of the helper fails, moves one byte, is interrupted by a signal, or is the last
// one before all its processes are killed together. The default run takes a sample of the places; with
// PELNAR_EVERY_PLACE=1 in the environment it takes all.

#include "Engine/core/helper/SwapJournal.h"
#include "tests/installer/CallPlaces.h"
#include "tests/installer/FaultChecks.h"
#include "tests/installer/faults/HelperSteps.h"
#include "tests/support/Sanitizers.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <cstring>
#include <iterator>
#include <set>

#include <sys/syscall.h>

namespace
{

using namespace Pelnar::Engine;
using namespace Pelnar::Testing;

std::vector<CallPlace> PlacesOf(Step step)
{
    std::vector<CallPlace> places;
    Subject subject(step);
    HelperOutcome const outcome = subject.Run(RecordPlaces(places));
    EXPECT_EQ(outcome.exitStatus, 0);
    for (std::size_t i = 0; i < places.size(); ++i)
    {
        places[i].answer = outcome.traced.answers[i];
    }
    return places;
}

/// Runs the step with \a verdict for one call. \a wasMet is true if the verdict had an effect.
HelperOutcome RunWith(Subject& subject, CallPlace const& place, CallVerdict const& verdict, bool& wasMet)
{
    int index = -1;
    HelperOutcome outcome =
        subject.Run(VerdictAt(place, verdict, [&index](CallStop const& stop) { index = stop.index; }));
    wasMet = outcome.traced.faulted.count(index) != 0;
    return outcome;
}

/// Failed calls that end a sanitizer's runtime.
bool IsTheSanitizersOwn(long call)
{
    std::set<long> const calls{SYS_mmap,  SYS_munmap,           SYS_mprotect,     SYS_madvise,
                               SYS_brk,   SYS_sigaltstack,      SYS_rt_sigaction, SYS_rt_sigprocmask,
                               SYS_clone, SYS_sched_getaffinity};
    return IS_SANITIZED && calls.count(call) != 0;
}

class EveryCall : public testing::TestWithParam<Step>
{
protected:
    /// SweepPlaces() for the places that \a canFail.
    template <typename CanFail, typename Check>
    void Sweep(std::size_t rows, std::size_t sample, CanFail const& canFail, Check const& check)
    {
        std::vector<CallPlace> places = PlacesOf(GetParam());
        places.erase(
            std::remove_if(places.begin(), places.end(), [&](CallPlace const& place) { return !canFail(place); }),
            places.end());
        SweepPlaces(places, rows, sample, check);
    }

    /// If a helper reports success, this is true. If it reports nothing, it has not crashed.
    void ExpectHonest(HelperOutcome const& outcome, Subject const& subject) const
    {
        EXPECT_EQ(outcome.signal, 0);
        EXPECT_TRUE(outcome.exitStatus == 0 || outcome.exitStatus == 1) << outcome.exitStatus;
        if (outcome.exitStatus == 0 && IsPreparation(GetParam()))
        {
            EXPECT_TRUE(TreeOf(subject.scene.StagingPath() + '/' + APP) == versions.next);
        }
        if (outcome.exitStatus == 0 && IsInstallation(GetParam()))
        {
            EXPECT_EQ(ExpectWhole(subject.scene, versions), "2.0");
        }
    }

    Versions const versions = VersionsOf(GetParam());
};

TEST_P(EveryCall, FailsCleanly)
{
    constexpr int ERRORS[] = {ENOSPC, EIO, EDQUOT, EMFILE, ENOMEM, EACCES, EROFS};
    // exit_group cannot fail. If the next four failed, the libraries would end the process, but no disk or limit makes
    // them fail (brk has no errors). If chdir fails, only the exit status says that the helper was called wrongly.
    std::set<long> const beyondFailing{SYS_exit_group, SYS_futex, SYS_getrandom, SYS_brk, SYS_rseq, SYS_chdir};
    Sweep(
        std::size(ERRORS), 40,
        [&](CallPlace const& place) { return beyondFailing.count(place.call) == 0 && !IsTheSanitizersOwn(place.call); },
        [&](CallPlace const& place, std::size_t row)
        {
            SCOPED_TRACE(std::strerror(ERRORS[row]));
            Subject subject(GetParam());
            bool wasMet = false;
            HelperOutcome const outcome = RunWith(subject, place, CallVerdict::Fail(ERRORS[row]), wasMet);
            ExpectHonest(outcome, subject);
            bool const isReportLost = place.call == SYS_write || place.call == SYS_fcntl;
            EXPECT_TRUE(outcome.exitStatus == 0 || isReportLost || outcome.Fault() != UpdateFault::None);
            ExpectRecovered(subject.scene, versions);
            return wasMet;
        });
}

TEST_P(EveryCall, MayBeInterrupted)
{
    std::set<long> const interruptible{SYS_read,    SYS_pread64, SYS_write, SYS_pwrite64,
                                       SYS_openat2, SYS_flock,   SYS_poll,  SYS_wait4};
    Sweep(
        1, 30, [&](CallPlace const& place) { return interruptible.count(place.call) != 0; },
        [&](CallPlace const& place, std::size_t)
        {
            Subject subject(GetParam());
            bool wasMet = false;
            HelperOutcome const outcome = RunWith(subject, place, CallVerdict::Fail(EINTR), wasMet);
            EXPECT_EQ(outcome.exitStatus, 0) << FaultName(outcome.Fault());
            ExpectHonest(outcome, subject);
            ExpectRecovered(subject.scene, versions);
            return wasMet;
        });
}

TEST_P(EveryCall, MayReadOrWriteLessThanWasAsked)
{
    Sweep(
        1, 30, [](CallPlace const& place) { return CanBeShortened(place.call, place.answer); },
        [&](CallPlace const& place, std::size_t)
        {
            Subject subject(GetParam());
            bool wasMet = false;
            HelperOutcome const outcome = RunWith(subject, place, CallVerdict::Shorten(), wasMet);
            EXPECT_EQ(outcome.exitStatus, 0) << FaultName(outcome.Fault());
            ExpectHonest(outcome, subject);
            ExpectRecovered(subject.scene, versions);
            return wasMet;
        });
}

TEST_P(EveryCall, IsWhereMemoryMayRunOut)
{
    if (IS_SANITIZED)
    {
        GTEST_SKIP() << "a sanitized process needs more memory than any limit allows";
    }
    int refused = 0;
    bool hasEnough = false;
    // From limits with which a helper does not even start to sufficient ones.
    for (int kibibytes = 3000; !hasEnough; kibibytes += IsEveryPlaceWanted() ? 16 : 256)
    {
        SCOPED_TRACE(kibibytes);
        ASSERT_LT(kibibytes, 1 << 20);
        Subject subject(GetParam());
        HelperOutcome const outcome = subject.Run(HelperStart{
            {"/bin/sh", "-c", "ulimit -v " + std::to_string(kibibytes) + "; exec \"$@\" 2>/dev/null", "sh"}});
        bool const hasStarted = !outcome.reports.empty() || !outcome.progress.empty();
        if (hasStarted)
        {
            ExpectHonest(outcome, subject);
        }
        EXPECT_TRUE(hasStarted || outcome.exitStatus != 0);
        ExpectRecovered(subject.scene, versions);
        hasEnough = outcome.exitStatus == 0;
        refused += hasStarted && !hasEnough ? 1 : 0;
    }
    EXPECT_GT(refused, 0) << "no helper came to the end of its memory";
}

TEST_P(EveryCall, IsWhereAllProcessesAreKilledAtOnce)
{
    Sweep(
        1, 30, [](CallPlace const&) { return true; },
        [&](CallPlace const& place, std::size_t)
        {
            Subject subject(GetParam());
            bool wasMet = false;
            EXPECT_EQ(RunWith(subject, place, CallVerdict::KillAll(), wasMet).signal, wasMet ? SIGKILL : 0);
            ExpectRecovered(subject.scene, versions);
            return wasMet;
        });
}

/// The end of a session sends these signals. They do not interrupt an installation that has begun.
TEST_P(EveryCall, IsWhereTheSessionEnds)
{
    constexpr int SIGNALS[] = {SIGTERM, SIGHUP, SIGINT, SIGQUIT};
    bool const isInstallation = IsInstallation(GetParam());
    int finished = 0;
    int ended = 0;
    Sweep(
        std::size(SIGNALS), 60, [](CallPlace const&) { return true; },
        [&](CallPlace const& place, std::size_t row)
        {
            SCOPED_TRACE(::strsignal(SIGNALS[row]));
            Subject subject(GetParam());
            bool wasMet = false;
            HelperOutcome const outcome = RunWith(subject, place, CallVerdict::SignalAll(SIGNALS[row]), wasMet);
            EXPECT_TRUE(outcome.exitStatus == 0 || outcome.signal == SIGNALS[row]);
            ended += outcome.exitStatus == 0 ? 0 : 1;
            if (isInstallation && outcome.exitStatus == 0)
            {
                ++finished;
                EXPECT_EQ(ExpectWhole(subject.scene, versions), "2.0");
                EXPECT_EQ(outcome.output.substr(0, 3), "2.0");
            }
            else if (isInstallation && outcome.output.substr(0, 3) != "2.0")
            {
                EXPECT_EQ(outcome.Find<InstalledReport>(), nullptr);
                EXPECT_EQ(ExpectWhole(subject.scene, versions), "1.0") << "installed, but not started yet";
            }
            ExpectRecovered(subject.scene, versions);
            return wasMet;
        });
    EXPECT_EQ(finished > 0, isInstallation);
    EXPECT_GT(ended, 0);
}

INSTANTIATE_TEST_SUITE_P(Steps, EveryCall,
                         testing::Values(Step::Preparation, Step::PreparationByADelta, Step::PreparationFromATar,
                                         Step::Installation, Step::InstallationWithoutExchange, Step::Recovery),
                         [](testing::TestParamInfo<Step> const& info) { return StepName(info.param); });

} // namespace
