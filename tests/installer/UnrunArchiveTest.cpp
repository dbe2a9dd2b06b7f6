// UnrunArchiveTest.cpp: an archive full of programs that would leave a trace. None of them runs before three things:
// the archive is verified, the installed bundle permits it, and the host has ended. After that only the program runs
// that the archive names.

#include "Engine/core/bundle/PayloadKind.h"
#include "tests/installer/InstallerFixture.h"

#include <gtest/gtest.h>

#include <fstream>

#include <sys/syscall.h>

namespace
{

using namespace Pelnar::Engine;
using namespace Pelnar::Testing;

constexpr char SETUP[] = "Setup.app";

/// Programs with names that some other program might search for. Each puts a file with its name into \a traces.
std::string ArchiveOfTraces(std::string const& traces)
{
    std::string const folder = std::string(SETUP) + '/';
    std::vector<ForgedEntry> entries{{folder, 'd', {}, 0755},
                                     {folder + "Resources/", 'd', {}, 0755},
                                     {folder + "Resources/Info-gnustep.plist", 'f',
                                      "{ CFBundleIdentifier = \"" + std::string(IDENTIFIER) +
                                          "\"; CFBundleVersion = \"2.0\"; NSExecutable = setup; "
                                          "PelnarPayloadKind = installer; }"}};
    for (std::string const& name : {"setup", "run", "AppRun", "install", "preinstall", "postinstall", "uninstall",
                                    "autorun", ".hook", "Resources/postinstall.sh"})
    {
        std::string const trace = traces + '/' + name.substr(name.rfind('/') + 1);
        entries.push_back({folder + name, 'f', "#!/bin/sh\n: > '" + trace + "'\n", 0755});
    }
    return MakeArchive(Container::TarGzip, entries);
}

class ArchiveOfPrograms : public testing::Test
{
protected:
    ArchiveOfPrograms() : scene(ArchiveOfTraces(traces.Path())) {}

    /// Prepares the update. Returns how many programs the helper has started meanwhile.
    int Prepare(PrepareJob const& job, HelperOutcome& outcome)
    {
        int programs = 0;
        HelperStart start;
        start.atEveryCall = [&programs](CallStop const& stop)
        {
            programs += stop.call == SYS_execve || stop.call == SYS_execveat ? 1 : 0;
            return CallVerdict::GoOn();
        };
        outcome = scene.Prepare(job, start);
        return programs;
    }

    void Allow(std::string const& line) const
    {
        std::string text = InformationText("1.0");
        text.insert(text.find('{') + 1, line);
        std::ofstream(scene.Place().Path() + '/' + APP + "/Resources/Info-gnustep.plist") << text;
    }

    PrepareJob MakeJob() const
    {
        PrepareJob job = scene.MakePrepareJob();
        job.kind = PayloadKind::Installer;
        return job;
    }

    Workspace traces;
    UpdateScene scene;
};

struct UnrunRow
{
    char const* name;
    char const* leave; ///< of the installed bundle
    void (*change)(PrepareJob& job, UpdateScene const& scene);
    UpdateFault fault;
};

void PrintTo(UnrunRow const& row, std::ostream* out)
{
    *out << row.name;
}

class UnrunArchive : public ArchiveOfPrograms, public testing::WithParamInterface<UnrunRow>
{
};

constexpr char YES[] = "PelnarAllowsInstallerPrograms = YES;";

TEST_P(UnrunArchive, LeavesNoTrace)
{
    Allow(GetParam().leave);
    PrepareJob job = MakeJob();
    GetParam().change(job, scene);
    HelperOutcome outcome;
    EXPECT_EQ(Prepare(job, outcome), 0);
    EXPECT_EQ(outcome.Fault(), GetParam().fault);
    EXPECT_EQ(outcome.Find<PreparedReport>() != nullptr, GetParam().fault == UpdateFault::None);
    EXPECT_TRUE(traces.Names().empty());
    // Nobody has agreed to an installation: the next starts remove the prepared version.
    scene.Host().End();
    scene.ReleaseStaging();
    for (int start = 0; start < 2; ++start)
    {
        EXPECT_EQ(scene.Recover("1.0").exitStatus, 0);
    }
    EXPECT_EQ(scene.Place().Names(), std::vector<std::string>{APP});
    EXPECT_EQ(scene.Place().StartedVersion(), "1.0");
    EXPECT_TRUE(traces.Names().empty());
}

INSTANTIATE_TEST_SUITE_P(
    Table, UnrunArchive,
    testing::Values(
        UnrunRow{"WithoutLeave", "", [](PrepareJob&, UpdateScene const&) {}, UpdateFault::InstallerNotAllowed},
        UnrunRow{"LeaveRefused", "PelnarAllowsInstallerPrograms = NO;", [](PrepareJob&, UpdateScene const&) {},
                 UpdateFault::InstallerNotAllowed},
        UnrunRow{"ForgedSignature", YES,
                 [](PrepareJob& job, UpdateScene const& scene)
                 { job.signature = Base64(Sign("something else", scene.Keys())); },
                 UpdateFault::SignatureMismatch},
        UnrunRow{"AnotherKey", YES,
                 [](PrepareJob& job, UpdateScene const&) { job.publicKeys = {MakeKeyPair(99).publicKey}; },
                 UpdateFault::SignatureMismatch},
        UnrunRow{"AnotherLength", YES, [](PrepareJob& job, UpdateScene const&) { ++job.archiveBytes; },
                 UpdateFault::ArchiveLengthDiffers},
        UnrunRow{"AnotherProduct", YES, [](PrepareJob& job, UpdateScene const&) { job.bundleIdentifier = "org.other"; },
                 UpdateFault::IdentifierDiffers},
        UnrunRow{"AnotherVersion", YES, [](PrepareJob& job, UpdateScene const&) { job.expectedVersion = "3.0"; },
                 UpdateFault::VersionDiffers},
        UnrunRow{"NamedLikeABundle", YES,
                 [](PrepareJob& job, UpdateScene const&) { job.kind = PayloadKind::WholeBundle; },
                 UpdateFault::PayloadKindDiffers},
        UnrunRow{"Prepared", YES, [](PrepareJob&, UpdateScene const&) {}, UpdateFault::None}),
    [](testing::TestParamInfo<UnrunRow> const& info) { return info.param.name; });

/// The named program runs after the host's end, and not before. So the other tests would notice a program that runs.
TEST_F(ArchiveOfPrograms, RunsTheNamedProgramOnceTheHostHasEnded)
{
    Allow(YES);
    HelperOutcome outcome;
    EXPECT_EQ(Prepare(MakeJob(), outcome), 0);
    auto const* const prepared = outcome.Find<PreparedReport>();
    ASSERT_NE(prepared, nullptr) << FaultName(outcome.Fault());
    InstallJob job = scene.MakeInstallJob(prepared->digest);
    job.kind = PayloadKind::Installer;
    job.stagedName = prepared->stagedName;
    job.waitSeconds = 1;
    EXPECT_EQ(scene.Install(job).Fault(), UpdateFault::HostStillRunning);
    EXPECT_TRUE(traces.Names().empty());
    scene.Host().End();
    EXPECT_EQ(scene.Install(job).exitStatus, 0);
    EXPECT_EQ(traces.Names(), std::vector<std::string>{"setup"});
}

} // namespace
