// CallFaultTest.cpp: every system call of the helper fails, is cut short, is answered late by a signal, or is the last
// before all of its processes are killed at once. The default run takes a sample of the places; with
// PELNAR_EVERY_PLACE=1 in the environment it takes them all.

#include "Engine/core/helper/SwapJournal.h"
#include "tests/installer/FaultChecks.h"
#include "tests/support/Sanitizers.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <cstring>
#include <fstream>
#include <iterator>
#include <map>
#include <numeric>
#include <set>

#include <sys/syscall.h>

namespace
{

using namespace Pelnar::Engine;
using namespace Pelnar::Testing;

enum class Step
{
    Preparation,
    Installation,
    InstallationWithoutExchange,
    Recovery,
};

std::string StepName(Step step)
{
    switch (step)
    {
    case Step::Preparation:
        return "Preparation";
    case Step::Installation:
        return "Installation";
    case Step::InstallationWithoutExchange:
        return "InstallationWithoutExchange";
    case Step::Recovery:
        return "Recovery";
    }
    return {};
}

void PrintTo(Step step, std::ostream* out)
{
    *out << StepName(step);
}

enum class InstallOutcome
{
    Kept,
    NotKept,
};

/// A scene that stands right before a step.
class Subject
{
public:
    explicit Subject(Step step, InstallOutcome outcome = InstallOutcome::Kept) : m_step(step)
    {
        if (step != Step::Preparation)
        {
            m_job = scene.PrepareForInstall();
            if (outcome == InstallOutcome::Kept)
            {
                UpdateScene::KeepRecord(m_job);
            }
            scene.Host().End();
        }
        if (step == Step::Recovery)
        {
            m_job.targetPath.clear();
            EXPECT_EQ(scene.Install(m_job).exitStatus, 0);
            scene.ReleaseStaging();
        }
    }

    HelperOutcome Run(CallVisitor const& visitor)
    {
        HelperStart start;
        start.atEveryCall = visitor;
        return Run(start);
    }

    HelperOutcome Run(HelperStart start)
    {
        switch (m_step)
        {
        case Step::Preparation:
            return scene.Prepare(scene.MakePrepareJob(), start);
        case Step::InstallationWithoutExchange:
            start.atEveryCall = [visitor = start.atEveryCall](CallStop const& stop)
            {
                CallVerdict const verdict = visitor ? visitor(stop) : CallVerdict::GoOn();
                bool const isRefused = stop.call == SYS_renameat2 && verdict.kind == CallVerdict::Kind::GoOn;
                return isRefused ? CallVerdict::Fail(EINVAL) : verdict;
            };
            return scene.Install(m_job, start);
        case Step::Installation:
            return scene.Install(m_job, start);
        case Step::Recovery:
            return scene.Recover("2.0", start);
        }
        return {};
    }

    UpdateScene scene;

private:
    Step m_step;
    InstallJob m_job;
};

/// A place in a step: the nth call of its kind, of all processes. Those side by side do not always take turns alike, so
/// that a call's index says less.
struct Place
{
    long call;
    int nth; ///< from 1
    std::int64_t answer;
};

std::ostream& operator<<(std::ostream& out, Place const& place)
{
    return out << CallName(place.call) << " number " << place.nth;
}

std::vector<Place> PlacesOf(Step step)
{
    std::vector<Place> places;
    std::map<long, int> counts;
    Subject subject(step);
    HelperOutcome const outcome = subject.Run(
        [&](CallStop const& stop)
        {
            places.push_back({stop.call, ++counts[stop.call], 0});
            return CallVerdict::GoOn();
        });
    EXPECT_EQ(outcome.exitStatus, 0);
    for (std::size_t i = 0; i < places.size(); ++i)
    {
        places[i].answer = outcome.traced.answers[i];
    }
    return places;
}

/// Runs the step with \a verdict in the place of one call. \a wasMet is true when the verdict took effect.
HelperOutcome RunWith(Subject& subject, Place const& place, CallVerdict const& verdict, bool& wasMet)
{
    int count = 0;
    int index = -1;
    HelperOutcome outcome = subject.Run(
        [&](CallStop const& stop)
        {
            bool const isDue = stop.call == place.call && ++count == place.nth;
            index = isDue ? stop.index : index;
            return isDue ? verdict : CallVerdict::GoOn();
        });
    wasMet = outcome.traced.faulted.count(index) != 0;
    return outcome;
}

/// Calls whose failure a sanitizer's runtime does not survive.
bool IsTheSanitizersOwn(long call)
{
    std::set<long> const calls{SYS_mmap,        SYS_munmap,       SYS_mprotect,       SYS_madvise, SYS_brk,
                               SYS_sigaltstack, SYS_rt_sigaction, SYS_rt_sigprocmask, SYS_clone};
    return IS_SANITIZED && calls.count(call) != 0;
}

class EveryCall : public testing::TestWithParam<Step>
{
protected:
    /// Calls \a check with the places that \a canFail, each with every row; without PELNAR_EVERY_PLACE with so many
    /// pairs of them. It says whether it was able to do there what it wanted to.
    template <typename CanFail, typename Check>
    void Sweep(std::size_t rows, std::size_t sample, CanFail const& canFail, Check const& check)
    {
        std::vector<Place> places = PlacesOf(GetParam());
        places.erase(std::remove_if(places.begin(), places.end(), [&](Place const& place) { return !canFail(place); }),
                     places.end());
        std::size_t const pairs = places.size() * rows;
        // Without a divisor in common with the rows, so that each row is met.
        std::size_t stride = IsEveryPlaceWanted() ? 1 : std::max<std::size_t>(pairs / sample, 1);
        while (std::gcd(stride, rows) != 1)
        {
            ++stride;
        }
        int runs = 0;
        int met = 0;
        for (std::size_t pair = stride / 2; pair < pairs; pair += stride)
        {
            Place const& place = places[pair / rows];
            SCOPED_TRACE(testing::Message() << place << ", row " << pair % rows);
            ++runs;
            met += check(place, pair % rows) ? 1 : 0;
        }
        RecordProperty("places", static_cast<int>(places.size()));
        RecordProperty("runs", runs);
        RecordProperty("met", met);
        EXPECT_GT(met, 0) << "nothing was done to " << places.size() << " places";
        EXPECT_GE(met * 10, runs * 9) << "of so many runs too few met their place";
    }

    /// A helper that says that all went well has told the truth; one that says nothing has not crashed.
    void ExpectHonest(HelperOutcome const& outcome, Subject const& subject) const
    {
        EXPECT_EQ(outcome.signal, 0);
        EXPECT_TRUE(outcome.exitStatus == 0 || outcome.exitStatus == 1) << outcome.exitStatus;
        if (outcome.exitStatus == 0 && GetParam() == Step::Preparation)
        {
            EXPECT_TRUE(TreeOf(subject.scene.StagingPath() + '/' + APP) == versions.next);
        }
        bool const isInstallation = GetParam() == Step::Installation || GetParam() == Step::InstallationWithoutExchange;
        if (outcome.exitStatus == 0 && isInstallation)
        {
            EXPECT_EQ(ExpectWhole(subject.scene, versions), "2.0");
        }
    }

    Versions const versions;
};

TEST_P(EveryCall, FailsCleanly)
{
    constexpr int ERRORS[] = {ENOSPC, EIO, EDQUOT, EMFILE, ENOMEM, EACCES, EROFS};
    // There is no life after the first. The libraries end the process when the next three fail, which no disk or limit
    // makes them do (brk has no errors at all). After the last the helper says by its status alone that it was called
    // wrongly.
    std::set<long> const beyondFailing{SYS_exit_group, SYS_futex, SYS_getrandom, SYS_brk, SYS_chdir};
    Sweep(
        std::size(ERRORS), 40,
        [&](Place const& place) { return beyondFailing.count(place.call) == 0 && !IsTheSanitizersOwn(place.call); },
        [&](Place const& place, std::size_t row)
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
    std::set<long> const interruptible{SYS_read, SYS_pread64, SYS_write, SYS_openat2, SYS_flock, SYS_poll, SYS_wait4};
    Sweep(
        1, 30, [&](Place const& place) { return interruptible.count(place.call) != 0; },
        [&](Place const& place, std::size_t)
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
        1, 30, [](Place const& place) { return CanBeShortened(place.call, place.answer); },
        [&](Place const& place, std::size_t)
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
    // From a helper that does not even start to one that has enough.
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
        1, 30, [](Place const&) { return true; },
        [&](Place const& place, std::size_t)
        {
            Subject subject(GetParam());
            bool wasMet = false;
            EXPECT_EQ(RunWith(subject, place, CallVerdict::KillAll(), wasMet).signal, wasMet ? SIGKILL : 0);
            ExpectRecovered(subject.scene, versions);
            return wasMet;
        });
}

/// A session that ends sends these; an installation that has begun is not held up by them.
TEST_P(EveryCall, IsWhereTheSessionEnds)
{
    constexpr int SIGNALS[] = {SIGTERM, SIGHUP, SIGINT, SIGQUIT};
    bool const isInstallation = GetParam() == Step::Installation || GetParam() == Step::InstallationWithoutExchange;
    int finished = 0;
    int ended = 0;
    Sweep(
        std::size(SIGNALS), 60, [](Place const&) { return true; },
        [&](Place const& place, std::size_t row)
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
                EXPECT_EQ(ExpectWhole(subject.scene, versions), "1.0") << "installed, and nobody has started it";
            }
            ExpectRecovered(subject.scene, versions);
            return wasMet;
        });
    EXPECT_EQ(finished > 0, isInstallation);
    EXPECT_GT(ended, 0);
}

INSTANTIATE_TEST_SUITE_P(Steps, EveryCall,
                         testing::Values(Step::Preparation, Step::Installation, Step::InstallationWithoutExchange,
                                         Step::Recovery),
                         [](testing::TestParamInfo<Step> const& info) { return StepName(info.param); });

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
    // Nothing stands between the two renames, during which the bundle is missing.
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

/// The undoing is what does it, and not the recovery that follows: that one finds nothing to put back.
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

/// What a program that the helper started, or became, could gain by a bit in its file's mode is gone before a byte of
/// the archive is unpacked.
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
