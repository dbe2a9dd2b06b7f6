#include "Engine/core/update/HelperProcess.h"
#include "Engine/core/faults/UpdateFault.h"
#include "Engine/core/helper/FolderSafety.h"
#include "Engine/core/update/HelperLaunch_p.h"
#include "tests/engine_core/update/HelperProcesses.h"
#include "tests/installer/InstallerFixture.h"
#include "tests/support/DialogDriver.h"
#include "tests/support/TestApplication.h"

#include <QCoreApplication>

#include <gtest/gtest.h>

#include <chrono>
#include <cstdlib>
#include <vector>

#include <fcntl.h>
#include <signal.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

namespace
{

using namespace Pelnar::Engine;
using namespace Pelnar::Testing;

TEST_F(HelperProcesses, GetsItsArgumentAndDescriptorsAndNothingElseFromTheHost)
{
    ::setenv("LD_PRELOAD", "/nonexistent.so", 1);
    ::setenv("PATH", "/tmp", 1);
    UniqueFd const leaked(::open("/dev/null", O_RDONLY)); // without the mark that closes it
    ASSERT_GE(::dup2(leaked.Get(), HIGH_DESCRIPTOR), 0);
    ::signal(SIGPIPE, SIG_IGN);
    ::signal(SIGUSR1, [](int) {});
    sigset_t blocked;
    ::sigemptyset(&blocked);
    ::sigaddset(&blocked, SIGTERM);
    ::sigprocmask(SIG_BLOCK, &blocked, nullptr);
    ProbeScene scene("describe");
    EXPECT_EQ(scene.RunToEnd(), HelperEnd::Done);
    EXPECT_EQ(scene.Seen(), "prepare variables:none descriptors:0,1,2,3,4,5,6, signals:0");
    sigset_t after;
    ::sigprocmask(SIG_BLOCK, nullptr, &after);
    EXPECT_EQ(::sigismember(&after, SIGTERM), 1);
    EXPECT_EQ(::sigismember(&after, SIGUSR2), 0);
    ::close(HIGH_DESCRIPTOR);
}

TEST_F(HelperProcesses, StartsUnderATightLimitOfDescriptors)
{
    rlimit const limit{32, m_descriptors.rlim_max};
    ASSERT_EQ(::setrlimit(RLIMIT_NOFILE, &limit), 0);
    ProbeScene scene("describe");
    EXPECT_EQ(scene.RunToEnd(), HelperEnd::Done);
    EXPECT_EQ(scene.Seen(), "prepare variables:none descriptors:0,1,2,3,4,5,6, signals:0");
}

struct LimitRow
{
    char const* name;
    decltype(RLIMIT_NOFILE) limit;
    rlim_t (*value)();
};

class LimitOfTheSystem : public HelperProcesses, public testing::WithParamInterface<LimitRow>
{
};

/// The application is not at fault, so the person must not be told to reinstall it.
TEST_P(LimitOfTheSystem, IsReportedAsALimit)
{
    ProbeScene scene("describe");
    rlimit before{};
    ASSERT_EQ(::getrlimit(GetParam().limit, &before), 0);
    rlimit const tight{GetParam().value(), before.rlim_max};
    UpdateFault fault = UpdateFault::None;
    ASSERT_EQ(::setrlimit(GetParam().limit, &tight), 0);
    ::signal(SIGXFSZ, SIG_IGN);
    try
    {
        scene.Start();
    }
    catch (UpdateRefusal const& refusal)
    {
        fault = refusal.Fault();
    }
    ::setrlimit(GetParam().limit, &before);
    ::signal(SIGXFSZ, SIG_DFL);
    EXPECT_EQ(fault, UpdateFault::SystemLimitReached);
}

rlim_t NextDescriptor(int more)
{
    UniqueFd const next(::open("/dev/null", O_RDONLY | O_CLOEXEC));
    return static_cast<rlim_t>(next.Get() + more);
}

INSTANTIATE_TEST_SUITE_P(Table, LimitOfTheSystem,
                         testing::Values(LimitRow{"NoDescriptor", RLIMIT_NOFILE, [] { return NextDescriptor(0); }},
                                         LimitRow{"OneDescriptor", RLIMIT_NOFILE, [] { return NextDescriptor(1); }},
                                         LimitRow{"TwoDescriptors", RLIMIT_NOFILE, [] { return NextDescriptor(2); }},
                                         LimitRow{"ShortFiles", RLIMIT_FSIZE, [] { return rlim_t{1000}; }}),
                         [](testing::TestParamInfo<LimitRow> const& info) { return info.param.name; });

struct EndRow
{
    char const* order;
    HelperEnd end;
    std::size_t reports;
};

class HelperEnds : public HelperProcesses, public testing::WithParamInterface<EndRow>
{
};

TEST_P(HelperEnds, AreToldOnce)
{
    ProbeScene scene(GetParam().order);
    EXPECT_EQ(scene.RunToEnd(), GetParam().end);
    EXPECT_EQ(scene.reports.size(), GetParam().reports);
    EXPECT_EQ(scene.ends.size(), 1u);
    EXPECT_TRUE(scene.HasEnded());
}

INSTANTIATE_TEST_SUITE_P(Table, HelperEnds,
                         testing::Values(EndRow{"0", HelperEnd::Done, 0}, EndRow{"1", HelperEnd::Refused, 0},
                                         EndRow{"2", HelperEnd::Crashed, 0}, EndRow{"77", HelperEnd::Crashed, 0},
                                         EndRow{"crash", HelperEnd::Crashed, 0},
                                         // Lines after an invalid line are ignored.
                                         EndRow{"nonsense", HelperEnd::Crashed, 1},
                                         EndRow{"endless", HelperEnd::Crashed, 0},
                                         EndRow{"many", HelperEnd::Done, 20000}),
                         [](testing::TestParamInfo<EndRow> const& info)
                         { return "After_" + std::string(info.param.order); });

TEST_F(HelperProcesses, EndsWhenItsOwnerGoes)
{
    ProbeScene scene("wait");
    scene.Start();
    ASSERT_TRUE(scene.WaitForReport());
    scene.Destroy();
    EXPECT_TRUE(scene.HasEnded());
    QCoreApplication::processEvents();
    EXPECT_TRUE(scene.ends.empty());
    EXPECT_EQ(::waitpid(-1, nullptr, WNOHANG), -1); // no dead child is left either
    EXPECT_EQ(errno, ECHILD);
}

TEST_F(HelperProcesses, OutlivesItsOwnerWhenReleased)
{
    ProbeScene scene("wait");
    scene.Start();
    ASSERT_TRUE(scene.WaitForReport());
    scene.Helper().Release();
    scene.Destroy();
    EXPECT_FALSE(scene.HasEnded(MSG_DONTWAIT));
    scene.TellToEnd();
    EXPECT_TRUE(scene.HasEnded());
}

TEST_F(HelperProcesses, CatchUpTakesReportsAndTheEndWithoutTheEventLoop)
{
    constexpr std::chrono::seconds LONG{60};
    ProbeScene scene("wait");
    scene.Start();
    scene.Helper().CatchUp(LONG);
    EXPECT_EQ(scene.reports.size(), 1u);
    EXPECT_TRUE(scene.ends.empty());
    scene.Helper().CatchUp(LONG);
    EXPECT_TRUE(scene.ends.empty()) << "it still runs, and has reported";
    scene.TellToEnd();
    siginfo_t ended{};
    ASSERT_EQ(::waitid(P_ALL, 0, &ended, WEXITED | WNOWAIT), 0);
    scene.Helper().CatchUp(LONG);
    EXPECT_EQ(scene.ends, std::vector<HelperEnd>{HelperEnd::Done});
    QCoreApplication::processEvents();
    EXPECT_EQ(scene.ends.size(), 1u);

    ProbeScene silent("crash");
    silent.Start();
    silent.Helper().CatchUp(LONG);
    EXPECT_EQ(silent.ends, std::vector<HelperEnd>{HelperEnd::Crashed});
}

TEST_F(HelperProcesses, CanBeKilledAfterItsRelease)
{
    ProbeScene scene("wait");
    scene.Start();
    ASSERT_TRUE(scene.WaitForReport());
    scene.Helper().Release();
    scene.Helper().Kill();
    EXPECT_TRUE(scene.HasEnded());
    QCoreApplication::processEvents();
    EXPECT_TRUE(scene.ends.empty());
    EXPECT_EQ(::waitpid(-1, nullptr, WNOHANG), -1); // no dead child is left either
    EXPECT_EQ(errno, ECHILD);
    scene.Destroy();
}

TEST_F(HelperProcesses, MayBeDestroyedByWhatItCalls)
{
    ProbeScene fromReport("many");
    fromReport.onReport = [&fromReport] { fromReport.Destroy(); };
    fromReport.Start();
    ASSERT_TRUE(fromReport.WaitForReport());
    QCoreApplication::processEvents();
    EXPECT_EQ(fromReport.reports.size(), 1u);
    EXPECT_TRUE(fromReport.ends.empty());

    Workspace const place;
    auto helper = std::make_unique<HelperProcess>(std::make_shared<SealedProgram>(PELNAR_HELPER_PROBE));
    PrepareJob job;
    job.bundleName = APP;
    job.bundleIdentifier = IDENTIFIER;
    job.installedVersion = "1.0";
    job.expectedVersion = "0";
    bool hasEnded = false;
    helper->Start(
        job, DescriptorMap(job, {place.Descriptor(), place.Descriptor()}), [](HelperReport const&) {},
        [&](HelperEnd)
        {
            helper.reset();
            hasEnded = true;
        });
    EXPECT_TRUE(WaitFor([&hasEnded] { return hasEnded; }));
    EXPECT_EQ(helper, nullptr);
}

void ReapEveryChild(int)
{
    while (::waitpid(-1, nullptr, WNOHANG) > 0)
    {
    }
}

struct ReaperRow
{
    char const* name;
    void (*handler)(int);
    int flags;
};

/// Hosts that reap every child.
class HostThatReaps : public HelperProcesses, public testing::WithParamInterface<ReaperRow>
{
protected:
    HostThatReaps()
    {
        struct sigaction action
        {
        };
        action.sa_handler = GetParam().handler;
        action.sa_flags = GetParam().flags | SA_RESTART;
        EXPECT_EQ(::sigaction(SIGCHLD, &action, &m_before), 0);
    }
    ~HostThatReaps() override { ::sigaction(SIGCHLD, &m_before, nullptr); }

private:
    struct sigaction m_before
    {
    };
};

TEST_P(HostThatReaps, IsTheSameToAHelper)
{
    UpdateScene scene;
    auto const program = std::make_shared<SealedProgram>(PELNAR_INSTALLER_PROGRAM);
    UniqueFd const archive(::open((scene.Downloads().Path() + "/update").c_str(), O_RDONLY | O_CLOEXEC));
    std::optional<HelperEnd> end;
    auto const ended = [&end](HelperEnd told) { end = told; };
    auto const report = [](HelperReport const&) {};
    PrepareJob const prepareJob = scene.MakePrepareJob();
    auto const numbers = DescriptorMap(prepareJob, {scene.StagingDescriptor(), archive.Get()});
    HelperProcess prepare(program);
    prepare.Start(prepareJob, numbers, report, ended);
    EXPECT_TRUE(WaitFor([&end] { return end.has_value(); }));
    EXPECT_EQ(end, HelperEnd::Done);

    end.reset();
    HelperProcess again(program); // the staging folder is no longer empty
    again.Start(prepareJob, numbers, report, ended);
    EXPECT_TRUE(WaitFor([&end] { return end.has_value(); }));
    EXPECT_EQ(end, HelperEnd::Refused);

    end.reset();
    HelperProcess recover(program);
    recover.Start(RecoverJob{APP, "1.0"}, DescriptorMap(RecoverJob(), {scene.Place().Descriptor()}), report, ended);
    EXPECT_TRUE(WaitFor([&end] { return end.has_value(); }));
    EXPECT_EQ(end, HelperEnd::Done);

    ProbeScene crash("crash");
    EXPECT_EQ(crash.RunToEnd(), HelperEnd::Crashed);
    ProbeScene killed("wait");
    killed.Start();
    EXPECT_TRUE(killed.WaitForReport());
    killed.Helper().Kill();
    EXPECT_TRUE(killed.HasEnded());
}

INSTANTIATE_TEST_SUITE_P(Table, HostThatReaps,
                         testing::Values(ReaperRow{"IgnoresThem", SIG_IGN, 0},
                                         ReaperRow{"WantsNoneKept", SIG_DFL, SA_NOCLDWAIT},
                                         ReaperRow{"WaitsForEvery", &ReapEveryChild, 0}),
                         [](testing::TestParamInfo<ReaperRow> const& info) { return info.param.name; });

} // namespace
