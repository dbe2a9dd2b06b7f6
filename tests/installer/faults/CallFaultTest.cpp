// CallFaultTest.cpp: every system call of the helper fails, is cut short, is answered late by a signal, or is the last
// before all of its processes are killed at once. The default run takes a sample of the places; with
// PELNAR_EVERY_PLACE=1 in the environment it takes them all.

#include "tests/installer/FaultChecks.h"
#include "tests/support/Sanitizers.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <csignal>
#include <cstring>
#include <memory>
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

/// A scene that stands right before a step.
class Subject
{
public:
    explicit Subject(Step step) : m_step(step)
    {
        if (step != Step::Preparation)
        {
            m_job = scene.PrepareForInstall();
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

std::vector<long> CallsOf(Step step)
{
    std::vector<long> calls;
    Subject subject(step);
    EXPECT_EQ(subject
                  .Run(
                      [&calls](CallStop const& stop)
                      {
                          calls.push_back(stop.call);
                          return CallVerdict::GoOn();
                      })
                  .exitStatus,
              0);
    return calls;
}

/// Runs the step with \a verdict in the place of one call.
HelperOutcome RunWith(Subject& subject, int place, CallVerdict const& verdict)
{
    return subject.Run([&](CallStop const& stop) { return stop.index == place ? verdict : CallVerdict::GoOn(); });
}

/// The same for the first call of the kind \a call from there on: processes side by side do not always take turns
/// alike.
HelperOutcome RunWithCall(Subject& subject, int place, long call, CallVerdict const& verdict)
{
    bool isDone = false;
    return subject.Run(
        [&](CallStop const& stop)
        {
            bool const isDue = !isDone && stop.index >= place && stop.call == call;
            isDone = isDone || isDue;
            return isDue ? verdict : CallVerdict::GoOn();
        });
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
    /// Every place of every row, or one in \a sampleOf.
    template <typename Check>
    void Sweep(std::size_t rows, int sampleOf, Check const& check)
    {
        std::vector<long> const calls = CallsOf(GetParam());
        int count = 0;
        int runs = 0;
        for (int place = 0; place < static_cast<int>(calls.size()); ++place)
        {
            for (std::size_t row = 0; row < rows; ++row)
            {
                if (IsEveryPlaceWanted() || count++ % sampleOf == 0)
                {
                    SCOPED_TRACE(testing::Message() << CallName(calls[static_cast<std::size_t>(place)]) << ", call "
                                                    << place << ", row " << row);
                    check(place, row, calls[static_cast<std::size_t>(place)]);
                    ++runs;
                }
            }
        }
        RecordProperty("runs", runs);
        EXPECT_GT(runs, 0);
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
    Sweep(std::size(ERRORS), 97,
          [&](int place, std::size_t row, long call)
          {
              // There is no life after the first. The libraries end the process when the next three fail, which no disk
              // or limit makes them do (brk has no errors at all). After the last the helper says by its status alone
              // that it was called wrongly.
              std::set<long> const beyondFailing{SYS_exit_group, SYS_futex, SYS_getrandom, SYS_brk, SYS_chdir};
              if (beyondFailing.count(call) != 0 || IsTheSanitizersOwn(call))
              {
                  return;
              }
              SCOPED_TRACE(std::strerror(ERRORS[row]));
              Subject subject(GetParam());
              HelperOutcome const outcome = RunWithCall(subject, place, call, CallVerdict::Fail(ERRORS[row]));
              ExpectHonest(outcome, subject);
              bool const isReportLost = call == SYS_write || call == SYS_fcntl;
              EXPECT_TRUE(outcome.exitStatus == 0 || isReportLost || outcome.Fault() != UpdateFault::None);
              ExpectRecovered(subject.scene, versions);
          });
}

TEST_P(EveryCall, MayBeInterrupted)
{
    std::set<long> const interruptible{SYS_read, SYS_pread64, SYS_write, SYS_openat2, SYS_poll, SYS_wait4};
    Sweep(1, 11,
          [&](int place, std::size_t, long call)
          {
              if (interruptible.count(call) == 0)
              {
                  return;
              }
              Subject subject(GetParam());
              HelperOutcome const outcome = RunWithCall(subject, place, call, CallVerdict::Fail(EINTR));
              EXPECT_EQ(outcome.exitStatus, 0) << FaultName(outcome.Fault());
              ExpectHonest(outcome, subject);
              ExpectRecovered(subject.scene, versions);
          });
}

TEST_P(EveryCall, MayReadOrWriteLessThanWasAsked)
{
    std::set<long> const partial{SYS_read, SYS_pread64, SYS_write};
    Sweep(1, 11,
          [&](int place, std::size_t, long call)
          {
              if (partial.count(call) == 0)
              {
                  return;
              }
              Subject subject(GetParam());
              HelperOutcome const outcome = RunWithCall(subject, place, call, CallVerdict::Shorten());
              EXPECT_EQ(outcome.exitStatus, 0) << FaultName(outcome.Fault());
              ExpectHonest(outcome, subject);
              ExpectRecovered(subject.scene, versions);
          });
}

TEST_P(EveryCall, IsWhereMemoryMayRunOut)
{
    if (IS_SANITIZED)
    {
        GTEST_SKIP() << "a sanitized process needs more memory than any limit allows";
    }
    std::set<int> statuses;
    // From a helper that does not even start to one that has enough.
    for (int kibibytes = 3000; statuses.count(0) == 0; kibibytes += IsEveryPlaceWanted() ? 16 : 512)
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
        statuses.insert(outcome.exitStatus);
    }
    EXPECT_GT(statuses.size(), 1u);
}

TEST_P(EveryCall, IsWhereAllProcessesAreKilledAtOnce)
{
    Sweep(1, 29,
          [&](int place, std::size_t, long)
          {
              Subject subject(GetParam());
              EXPECT_EQ(RunWith(subject, place, CallVerdict::KillAll()).signal, SIGKILL);
              ExpectRecovered(subject.scene, versions);
          });
}

/// A session that ends sends these; an installation that has begun is not held up by them.
TEST_P(EveryCall, IsWhereTheSessionEnds)
{
    constexpr int SIGNALS[] = {SIGTERM, SIGHUP, SIGINT, SIGQUIT};
    bool const isInstallation = GetParam() == Step::Installation || GetParam() == Step::InstallationWithoutExchange;
    int finished = 0;
    Sweep(std::size(SIGNALS), 61,
          [&](int place, std::size_t row, long)
          {
              SCOPED_TRACE(::strsignal(SIGNALS[row]));
              Subject subject(GetParam());
              HelperOutcome const outcome = RunWith(subject, place, CallVerdict::SignalAll(SIGNALS[row]));
              EXPECT_TRUE(outcome.exitStatus == 0 || outcome.signal == SIGNALS[row]);
              if (isInstallation && outcome.exitStatus == 0)
              {
                  ++finished;
                  EXPECT_EQ(ExpectWhole(subject.scene, versions), "2.0");
                  EXPECT_EQ(outcome.output.substr(0, 3), "2.0");
              }
              ExpectRecovered(subject.scene, versions);
          });
    EXPECT_EQ(finished > 0, isInstallation);
}

INSTANTIATE_TEST_SUITE_P(Steps, EveryCall,
                         testing::Values(Step::Preparation, Step::Installation, Step::InstallationWithoutExchange,
                                         Step::Recovery),
                         [](testing::TestParamInfo<Step> const& info) { return StepName(info.param); });

/// The folder that a call of fsync is about, and the calls that change names.
std::vector<std::string> DurabilityOrder(Step step)
{
    std::vector<std::string> order;
    Subject subject(step);
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

TEST(Durability, SwapThatCouldNotBeSyncedIsUndoneAndTheStagedBundleThrownAway)
{
    Versions const versions;
    for (int nth = 1; nth <= 4; ++nth)
    {
        SCOPED_TRACE(nth);
        Subject subject(Step::Installation);
        int syncs = 0;
        HelperOutcome const outcome = subject.Run(
            [&syncs, nth](CallStop const& stop)
            { return stop.call == SYS_fsync && ++syncs == nth ? CallVerdict::Fail(EIO) : CallVerdict::GoOn(); });
        EXPECT_EQ(outcome.Fault(), UpdateFault::SyncFailed);
        EXPECT_EQ(outcome.Find<InstalledReport>(), nullptr);
        EXPECT_EQ(ExpectWhole(subject.scene, versions), "1.0");
        EXPECT_EQ(subject.scene.Place().Names(), std::vector<std::string>{APP});
    }
}

} // namespace
