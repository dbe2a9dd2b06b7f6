// HelperProgramTest.cpp: which program is started as the helper, and a whole update by it.

#include "Engine/core/faults/UpdateFault.h"
#include "Engine/core/helper/FolderSafety.h"
#include "Engine/core/update/HelperLaunch_p.h"
#include "Engine/core/update/HelperProcess.h"
#include "Engine/core/update/SealedMemory_p.h"
#include "tests/engine_core/update/HelperProcesses.h"
#include "tests/installer/InstallerFixture.h"
#include "tests/support/DialogDriver.h"
#include "tests/support/TestApplication.h"
#include "tests/support/ThreadState.h"

#include <QCoreApplication>

#include <gtest/gtest.h>

#include <array>
#include <cerrno>
#include <filesystem>
#include <fstream>
#include <thread>

#include <fcntl.h>
#include <signal.h>
#include <sys/mman.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

namespace
{

using namespace Pelnar::Engine;
using namespace Pelnar::Testing;

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

TEST(SealedMemory, IsSealedOnceTheSystemLetsGoOfItsPages)
{
    UniqueFd const file = MakeMemoryFile("job", 0);
    std::array<std::uint8_t, 1> const byte{7};
    AppendToMemory(file, Bytes(byte.data(), byte.size()));
    // A writable mapping is refused in the same way as pages that the system holds.
    void* const held = ::mmap(nullptr, 1, PROT_READ | PROT_WRITE, MAP_SHARED, file.Get(), 0);
    ASSERT_NE(held, MAP_FAILED);
    ASSERT_NE(::fcntl(file.Get(), F_ADD_SEALS, F_SEAL_WRITE), 0);
    ASSERT_EQ(errno, EBUSY);
    std::thread system(
        [held, sealing = RunningThread()]
        {
            while (!IsAsleep(sealing))
            {
                std::this_thread::yield();
            }
            ::munmap(held, 1);
        });
    EXPECT_NO_THROW(SealMemory(file));
    system.join();
    EXPECT_NE(::fcntl(file.Get(), F_GET_SEALS) & F_SEAL_WRITE, 0);
}

struct ProgramRow
{
    char const* name;
    void (*change)(std::string const& path); ///< the argument is a good program
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

/// The permissions under umask 002.
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

/// The real helper, from the archive until the new version is in the place of the old one.
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
