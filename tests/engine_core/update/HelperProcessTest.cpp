#include "Engine/core/update/HelperProcess.h"
#include "Engine/core/faults/UpdateFault.h"
#include "Engine/core/helper/FolderSafety.h"
#include "Engine/core/update/HelperLaunch_p.h"
#include "tests/installer/InstallerFixture.h"
#include "tests/support/DialogDriver.h"
#include "tests/support/TestApplication.h"

#include <QCoreApplication>

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>

#include <fcntl.h>
#include <signal.h>
#include <sys/resource.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

namespace
{

using namespace Pelnar::Engine;
using namespace Pelnar::Testing;

constexpr int HIGH_DESCRIPTOR = 50;

/// An event loop, which helpers are heard through, and no child of an earlier test. What a test changes of this process
/// is as it was afterwards.
class HelperProcesses : public testing::Test
{
protected:
    HelperProcesses()
    {
        ::getrlimit(RLIMIT_NOFILE, &m_descriptors);
        ::sigprocmask(SIG_BLOCK, nullptr, &m_blocked);
        while (::waitpid(-1, nullptr, 0) > 0) // released ones are nobody's to wait for
        {
        }
    }
    ~HelperProcesses() override
    {
        ::setrlimit(RLIMIT_NOFILE, &m_descriptors);
        ::sigprocmask(SIG_SETMASK, &m_blocked, nullptr);
        ::signal(SIGPIPE, SIG_DFL);
        ::signal(SIGUSR1, SIG_DFL);
        ::unsetenv("LD_PRELOAD");
        ::setenv("PATH", m_searchPath.c_str(), 1);
    }

    rlimit m_descriptors{};

private:
    sigset_t m_blocked{};
    std::string m_searchPath = std::getenv("PATH") ? std::getenv("PATH") : "";
    TestApplication<> m_application;
};

std::string ReadFile(std::string const& path)
{
    std::ifstream file(path);
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

/// The probe, about to obey one order, with a staging folder and a connection in the archive's place.
class ProbeScene
{
public:
    explicit ProbeScene(std::string const& order, std::string const& program = PELNAR_HELPER_PROBE)
        : m_helper(std::make_unique<HelperProcess>(std::make_shared<SealedProgram>(program)))
    {
        m_job.bundleName = APP;
        m_job.bundleIdentifier = IDENTIFIER;
        m_job.installedVersion = "1.0";
        m_job.expectedVersion = order;
        int pair[2];
        EXPECT_EQ(::socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, pair), 0);
        m_near = UniqueFd(pair[0]);
        m_far = UniqueFd(pair[1]);
    }

    void Start()
    {
        m_helper->Start(
            m_job, DescriptorMap(m_job, {m_place.Descriptor(), m_far.Get()}),
            [this](HelperReport const& report)
            {
                reports.push_back(report);
                if (onReport)
                {
                    onReport();
                }
            },
            [this](HelperEnd end) { ends.push_back(end); });
        m_far = UniqueFd(); // the helper's copy is the only one left
    }

    HelperEnd RunToEnd()
    {
        Start();
        EXPECT_TRUE(WaitFor([this] { return !ends.empty(); }));
        return ends.empty() ? HelperEnd::Done : ends.front();
    }

    bool WaitForReport()
    {
        return WaitFor([this] { return !reports.empty(); });
    }

    /// Waits for the helper to end when it was told to; false at once when it lives on.
    bool HasEnded(int flags = 0) const
    {
        char byte = 0;
        return ::recv(m_near.Get(), &byte, 1, flags) == 0;
    }

    void TellToEnd() const { EXPECT_EQ(::send(m_near.Get(), "x", 1, 0), 1); }
    HelperProcess& Helper() { return *m_helper; }
    void Destroy() { m_helper.reset(); }
    std::string Seen() const { return ReadFile(m_place.Path() + "/seen"); }

    std::vector<HelperReport> reports;
    std::vector<HelperEnd> ends;
    std::function<void()> onReport;

private:
    Workspace m_place;
    PrepareJob m_job;
    UniqueFd m_near;
    UniqueFd m_far;
    std::unique_ptr<HelperProcess> m_helper;
};

TEST_F(HelperProcesses, HasItsWordItsDescriptorsAndNothingElseOfTheHosts)
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
                                         // What is said after a line that is none counts for nothing.
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

/// Hosts that take the ends of children for themselves.
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
    HelperProcess again(program); // the staging folder is not empty any more
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

TEST_F(HelperProcesses, ProgramSwappedAfterItWasReadIsNotRun)
{
    Workspace const place;
    std::string const path = place.Path() + "/helper";
    std::filesystem::copy_file(PELNAR_HELPER_PROBE, path);
    SealedProgram program(path);
    ASSERT_GE(program.Descriptor(), 0);
    std::ofstream(path) << "#!/bin/sh\nexit 9\n"; // in the same file
    PrepareJob job;
    job.bundleName = APP;
    job.bundleIdentifier = IDENTIFIER;
    job.installedVersion = "1.0";
    job.expectedVersion = "5";
    LaunchedHelper const helper =
        LaunchHelper(program, "prepare", EncodeUpdateJob(job), {{HelperDescriptors::STAGING, place.Descriptor()}});
    int status = 0;
    ASSERT_EQ(::waitpid(helper.pid, &status, 0), helper.pid);
    EXPECT_EQ(WEXITSTATUS(status), 5);
    EXPECT_LT(::pwrite(program.Descriptor(), "x", 1, 0), 0);
    EXPECT_EQ(errno, EPERM);
    EXPECT_LT(::ftruncate(program.Descriptor(), 0), 0);
}

struct ProgramRow
{
    char const* name;
    void (*change)(std::string const& path); ///< given a good program there
};

class UnusableHelper : public HelperProcesses, public testing::WithParamInterface<ProgramRow>
{
};

TEST_P(UnusableHelper, IsNotStarted)
{
    Workspace const place;
    std::string const path = place.Path() + "/helper";
    std::filesystem::copy_file(PELNAR_HELPER_PROBE, path);
    GetParam().change(path);
    ProbeScene scene("0", path);
    UpdateFault fault = UpdateFault::None;
    try
    {
        scene.Start();
    }
    catch (UpdateRefusal const& refusal)
    {
        fault = refusal.Fault();
    }
    EXPECT_EQ(fault, UpdateFault::HelperUnusable);
    QCoreApplication::processEvents();
    EXPECT_TRUE(scene.ends.empty());
    EXPECT_EQ(::waitpid(-1, nullptr, WNOHANG), -1);
}

INSTANTIATE_TEST_SUITE_P(
    Table, UnusableHelper,
    testing::Values(ProgramRow{"Missing", [](std::string const& p) { ::unlink(p.c_str()); }},
                    ProgramRow{"Folder",
                               [](std::string const& p)
                               {
                                   ::unlink(p.c_str());
                                   ::mkdir(p.c_str(), 0755);
                               }},
                    ProgramRow{"Fifo",
                               [](std::string const& p)
                               {
                                   ::unlink(p.c_str());
                                   ::mkfifo(p.c_str(), 0755);
                               }},
                    ProgramRow{"Link",
                               [](std::string const& p)
                               {
                                   ::unlink(p.c_str());
                                   static_cast<void>(!::symlink(PELNAR_HELPER_PROBE, p.c_str()));
                               }},
                    ProgramRow{"WritableByOthers", [](std::string const& p) { ::chmod(p.c_str(), 0757); }},
                    ProgramRow{"WritableByAnotherGroup",
                               [](std::string const& p)
                               {
                                   bool const isGiven = ::chown(p.c_str(), ::geteuid(), 12345) == 0;
                                   ::chmod(p.c_str(), isGiven ? 0775 : 0757); // a user has no other group
                               }},
                    ProgramRow{"NoProgram", [](std::string const& p) { std::ofstream(p) << "text"; }},
                    ProgramRow{"Empty", [](std::string const& p) { std::ofstream(p).flush(); }}),
    [](testing::TestParamInfo<ProgramRow> const& info) { return info.param.name; });

/// As umask 002 leaves it.
TEST_F(HelperProcesses, ProgramThatTheUsersOwnGroupMayWriteIsStarted)
{
    Workspace const place;
    std::string const path = place.Path() + "/helper";
    std::filesystem::copy_file(PELNAR_HELPER_PROBE, path);
    ASSERT_EQ(::chmod(path.c_str(), 0775), 0);
    UniqueFd const program(::open(path.c_str(), O_RDONLY | O_CLOEXEC));
    if (!IsSafeByItself(program.Get()))
    {
        GTEST_SKIP() << "this user has no group of their own";
    }
    ProbeScene scene("0", path);
    EXPECT_NO_THROW(scene.Start());
}

TEST_F(HelperProcesses, ProgramOfAnotherUserIsNotStarted)
{
    if (::geteuid() != 0)
    {
        GTEST_SKIP() << "only root can give files away";
    }
    Workspace const place;
    std::string const path = place.Path() + "/helper";
    std::filesystem::copy_file(PELNAR_HELPER_PROBE, path);
    ASSERT_EQ(::chown(path.c_str(), 65534, 65534), 0);
    ProbeScene scene("0", path);
    EXPECT_THROW(scene.Start(), UpdateRefusal);
}

TEST_F(HelperProcesses, MissingDescriptorIsRefusedBeforeAnythingStarts)
{
    HelperProcess helper(std::make_shared<SealedProgram>(PELNAR_HELPER_PROBE));
    EXPECT_THROW(
        helper.Start(
            RecoverJob{APP, "1.0"}, DescriptorMap(RecoverJob(), {}), [](HelperReport const&) {}, [](HelperEnd) {}),
        UpdateRefusal);
}

/// The real helper, from an archive to the new version in the old one's place.
TEST_F(HelperProcesses, DrivesAWholeUpdate)
{
    auto const program = std::make_shared<SealedProgram>(PELNAR_INSTALLER_PROGRAM);
    UpdateScene scene;
    std::vector<HelperReport> reports;
    std::vector<HelperEnd> ends;
    auto const report = [&reports](HelperReport const& told) { reports.push_back(told); };
    auto const ended = [&ends](HelperEnd end) { ends.push_back(end); };

    UniqueFd const archive(::open((scene.Downloads().Path() + "/update").c_str(), O_RDONLY | O_CLOEXEC));
    PrepareJob const prepareJob = scene.MakePrepareJob();
    auto const numbers = DescriptorMap(prepareJob, {scene.StagingDescriptor(), archive.Get()});
    HelperProcess prepare(program);
    prepare.Start(prepareJob, numbers, report, ended);
    ASSERT_TRUE(WaitFor([&ends] { return !ends.empty(); }));
    EXPECT_EQ(ends.back(), HelperEnd::Done);
    auto const* const prepared = std::get_if<PreparedReport>(&reports.back());
    ASSERT_NE(prepared, nullptr);
    EXPECT_GT(reports.size(), 2u); // progress too

    InstallJob job;
    job.targetName = APP;
    job.stagingName = scene.StagingName();
    job.stagedName = prepared->stagedName;
    job.digest = prepared->digest;
    job.bundleIdentifier = IDENTIFIER;
    job.expectedVersion = "2.0";
    job.installedVersion = "1.0";
    HelperProcess install(program);
    install.Start(
        job,
        DescriptorMap(job, {scene.StagingDescriptor(), scene.Place().Descriptor(), scene.Host().ProcessDescriptor()}),
        report, ended);
    EXPECT_EQ(scene.Place().StartedVersion(), "1.0");
    scene.Host().End();
    ASSERT_TRUE(WaitFor([&ends] { return ends.size() == 2; }));
    EXPECT_EQ(ends.back(), HelperEnd::Done);
    EXPECT_TRUE(std::holds_alternative<InstalledReport>(reports.back()));
    EXPECT_EQ(scene.Place().StartedVersion(), "2.0");

    scene.ReleaseStaging();
    HelperProcess recover(program);
    recover.Start(RecoverJob{APP, "2.0"}, DescriptorMap(RecoverJob(), {scene.Place().Descriptor()}), report, ended);
    ASSERT_TRUE(WaitFor([&ends] { return ends.size() == 3; }));
    EXPECT_EQ(ends.back(), HelperEnd::Done);
    ASSERT_TRUE(std::holds_alternative<RecoveredReport>(reports.back()));
    EXPECT_EQ(std::get<RecoveredReport>(reports.back()).action, RecoveryAction::ConfirmedNew);
    EXPECT_EQ(scene.Place().Names(), std::vector<std::string>{APP});
}

TEST_F(HelperProcesses, RefusalOfTheHelperIsTold)
{
    UpdateScene scene;
    std::vector<HelperReport> reports;
    std::vector<HelperEnd> ends;
    PrepareJob job = scene.MakePrepareJob();
    job.signature = Base64(Sign("something else", scene.Keys()));
    UniqueFd const archive(::open((scene.Downloads().Path() + "/update").c_str(), O_RDONLY | O_CLOEXEC));
    HelperProcess helper(std::make_shared<SealedProgram>(PELNAR_INSTALLER_PROGRAM));
    helper.Start(
        job, DescriptorMap(job, {scene.StagingDescriptor(), archive.Get()}),
        [&reports](HelperReport const& told) { reports.push_back(told); },
        [&ends](HelperEnd end) { ends.push_back(end); });
    ASSERT_TRUE(WaitFor([&ends] { return !ends.empty(); }));
    EXPECT_EQ(ends.back(), HelperEnd::Refused);
    ASSERT_TRUE(std::holds_alternative<RefusedReport>(reports.back()));
    EXPECT_EQ(std::get<RefusedReport>(reports.back()).fault, UpdateFault::SignatureMismatch);
}

} // namespace
