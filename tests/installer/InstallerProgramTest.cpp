// InstallerProgramTest.cpp: archives with a program that installs the new version itself.

#include "Engine/core/bundle/PayloadKind.h"
#include "tests/installer/InstallerFixture.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <ostream>

#include <sys/syscall.h>
#include <unistd.h>

namespace
{

using namespace Pelnar::Engine;
using namespace Pelnar::Testing;

constexpr char SETUP[] = "Setup.app";

std::string SetupInformation(std::string const& version = "2.0", std::string const& identifier = IDENTIFIER)
{
    return "{ CFBundleIdentifier = \"" + identifier + "\"; CFBundleVersion = \"" + version +
           "\"; NSExecutable = setup; PelnarPayloadKind = installer; }";
}

std::string ArchiveOf(std::string const& script, std::string const& information = SetupInformation())
{
    std::string const folder = SETUP;
    return MakeArchive(Container::Zip, {{folder + "/", 'd', {}, 0755},
                                        {folder + "/setup", 'f', script, 0755},
                                        {folder + "/Resources/", 'd', {}, 0755},
                                        {folder + "/Resources/Info-gnustep.plist", 'f', information}});
}

/// An installed version 1.0 whose information file has the line, and an archive with the script as a program.
class ProgramScene
{
public:
    explicit ProgramScene(std::string const& archive, std::string const& line = "PelnarAllowsInstallerPrograms = YES;")
        : scene(archive)
    {
        Say(line);
    }

    void Say(std::string const& line) const
    {
        std::string text = InformationText("1.0");
        text.insert(text.find('{') + 1, line);
        std::ofstream(Target() + "/Resources/Info-gnustep.plist") << text;
    }

    HelperOutcome Prepare()
    {
        PrepareJob job = scene.MakePrepareJob();
        job.kind = PayloadKind::Installer;
        return scene.Prepare(job);
    }

    InstallJob PrepareForInstall()
    {
        HelperOutcome const outcome = Prepare();
        auto const* const prepared = outcome.Find<PreparedReport>();
        EXPECT_NE(prepared, nullptr) << FaultName(outcome.Fault());
        InstallJob job = scene.MakeInstallJob(prepared ? prepared->digest : ContentHash{});
        job.kind = PayloadKind::Installer;
        job.stagedName = prepared ? prepared->stagedName : SETUP;
        job.targetPath = Target();
        return job;
    }

    HelperOutcome Install(InstallJob const& job)
    {
        scene.Host().End();
        return scene.Install(job);
    }

    std::string Target() const { return scene.Place().Path() + '/' + APP; }

    UpdateScene scene;
};

/// Checks that nothing was installed: the previous version is there and was started, and no file of the update is left.
void ExpectUntouched(ProgramScene const& program, HelperOutcome const& outcome)
{
    EXPECT_EQ(outcome.exitStatus, 1);
    EXPECT_EQ(outcome.Find<InstalledReport>(), nullptr);
    EXPECT_EQ(outcome.output, "1.0|" + program.Target() + "/run|0|\n");
    EXPECT_EQ(program.scene.Place().StartedVersion(), "1.0");
    EXPECT_EQ(program.scene.Place().Names(), std::vector<std::string>{APP});
}

TEST(InstallerProgram, RunsOnceTheHostHasEndedAndItsStatusDecides)
{
    ProgramScene program(ArchiveOf("#!/bin/sh\n"
                                   "echo \"2.0\" > \"$1/by-setup\"\n"
                                   "echo \"$#|$1|$(pwd)\"\n"
                                   "test \"$(cut -d' ' -f6 /proc/$$/stat)\" = $$ && echo own session\n"
                                   "env | grep -v '^_=\\|^PWD=\\|^OLDPWD=\\|^SHLVL=' | sort\n"));
    InstallJob job = program.PrepareForInstall();
    EXPECT_FALSE(std::filesystem::exists(program.Target() + "/by-setup")); // no file of the archive has run
    Workspace const other;
    other.Put(MakeBundle("7.0", "Answered.app"));
    job.relaunchPath = other.Path() + "/Answered.app";
    job.environment = {"LD_PRELOAD=/tmp/x.so", "PATH=/tmp",      "HOME=/home/me", "LC_ALL=C",
                       "PELNAR_TEST=kept",     "BASH_ENV=/tmp/x"};
    HelperOutcome const outcome = program.Install(job);
    EXPECT_EQ(outcome.exitStatus, 0) << FaultName(outcome.Fault());
    EXPECT_NE(outcome.Find<InstalledReport>(), nullptr);
    EXPECT_EQ(outcome.output, "1|" + program.Target() +
                                  "|/\nown session\nHOME=/home/me\nLC_ALL=C\n"
                                  "PATH=/usr/sbin:/usr/bin:/sbin:/bin\n7.0|" +
                                  job.relaunchPath + "/run|0|kept\n");
    ASSERT_NE(outcome.Find<RelaunchedReport>(), nullptr);
    EXPECT_EQ(outcome.Find<RelaunchedReport>()->bundle, RelaunchedBundle::Answered);
    EXPECT_TRUE(std::filesystem::exists(program.Target() + "/by-setup"));
    EXPECT_EQ(program.scene.Place().Names(), std::vector<std::string>{APP});
}

/// The scene's installation, in which the process that runs the installer program cannot wait for it \a failures times.
HelperOutcome InstallWithoutWaiting(ProgramScene& program, int failures)
{
    InstallJob const job = program.PrepareForInstall();
    program.scene.Host().End();
    pid_t waiting = -1; // the helper's first process, which waits for the other one
    HelperStart start;
    start.atEveryCall = [&](CallStop const& stop)
    {
        waiting = waiting < 0 ? stop.process : waiting;
        bool const fails = stop.call == SYS_wait4 && stop.process != waiting && failures-- > 0;
        return fails ? CallVerdict::Fail(EIO) : CallVerdict::GoOn();
    };
    return program.scene.Install(job, start);
}

TEST(InstallerProgram, WhoseStatusStaysUnknownHasNotSucceeded)
{
    ProgramScene program(ArchiveOf("#!/bin/sh\nexit 0\n"));
    HelperOutcome const outcome = InstallWithoutWaiting(program, 1000);
    EXPECT_EQ(outcome.Fault(), UpdateFault::InstallerFailed);
    ExpectUntouched(program, outcome);
}

TEST(InstallerProgram, IsAskedAgainForItsStatus)
{
    ProgramScene failing(ArchiveOf("#!/bin/sh\nexit 3\n"));
    EXPECT_EQ(InstallWithoutWaiting(failing, 3).Fault(), UpdateFault::InstallerFailed);
    ProgramScene succeeding(ArchiveOf("#!/bin/sh\nexit 0\n"));
    HelperOutcome const outcome = InstallWithoutWaiting(succeeding, 3);
    EXPECT_EQ(outcome.Fault(), UpdateFault::None);
    EXPECT_NE(outcome.Find<InstalledReport>(), nullptr);
}

TEST(InstallerProgram, DoesNotRunWhileTheHostLives)
{
    ProgramScene program(ArchiveOf("#!/bin/sh\ntouch \"$1/by-setup\"\n"));
    InstallJob job = program.PrepareForInstall();
    job.waitSeconds = 1;
    EXPECT_EQ(program.scene.Install(job).Fault(), UpdateFault::HostStillRunning);
    EXPECT_FALSE(std::filesystem::exists(program.Target() + "/by-setup"));
}

TEST(InstallerProgram, NeedsTheInstalledBundlesLeave)
{
    std::string const archive = ArchiveOf("#!/bin/sh\ntouch \"$1/by-setup\"\n");
    for (char const* const line : {"", "PelnarAllowsInstallerPrograms = NO;", "PelnarAllowsInstallerPrograms = \"\";",
                                   "PelnarAllowsInstallerPrograms = (YES);"})
    {
        SCOPED_TRACE(line);
        ProgramScene refused(archive, line);
        EXPECT_EQ(refused.Prepare().Fault(), UpdateFault::InstallerNotAllowed);
        EXPECT_TRUE(refused.scene.Place().Names(refused.scene.StagingName()).empty()); // not even unpacked

        ProgramScene taken(archive);
        InstallJob const job = taken.PrepareForInstall();
        taken.Say(line);
        HelperOutcome const outcome = taken.Install(job);
        EXPECT_EQ(outcome.Fault(), UpdateFault::InstallerNotAllowed);
        ExpectUntouched(taken, outcome);
        EXPECT_FALSE(std::filesystem::exists(taken.Target() + "/by-setup"));
    }
}

struct ArchiveRow
{
    char const* name;
    std::string information;
    UpdateFault fault;
};

class InstallerArchives : public testing::TestWithParam<ArchiveRow>
{
};

TEST_P(InstallerArchives, AreCheckedLikeAnyOther)
{
    ProgramScene program(ArchiveOf("#!/bin/sh\n", GetParam().information));
    EXPECT_EQ(program.Prepare().Fault(), GetParam().fault);
}

INSTANTIATE_TEST_SUITE_P(
    Table, InstallerArchives,
    testing::Values(ArchiveRow{"Right", SetupInformation(), UpdateFault::None},
                    ArchiveRow{"OtherProduct", SetupInformation("2.0", "org.other"), UpdateFault::IdentifierDiffers},
                    ArchiveRow{"OtherVersion", SetupInformation("3.0"), UpdateFault::VersionDiffers},
                    ArchiveRow{"NoInformation", "", UpdateFault::InformationMalformed},
                    ArchiveRow{"NoSuchProgram",
                               "{ CFBundleIdentifier = \"org.pelnar.test\"; CFBundleVersion = \"2.0\"; "
                               "PelnarPayloadKind = installer; }",
                               UpdateFault::ExecutableMissing}),
    [](testing::TestParamInfo<ArchiveRow> const& info) { return info.param.name; });

/// A bundle that could be started and updated. \a line is in its information file.
std::string BundleThatSays(std::string const& line)
{
    std::vector<ForgedEntry> entries = MakeBundle("2.0");
    for (ForgedEntry& entry : entries)
    {
        if (entry.path == std::string(APP) + "/Resources/Info-gnustep.plist")
        {
            entry.content.insert(entry.content.find('{') + 1, line);
        }
        if (entry.path == std::string(APP) + "/run")
        {
            entry.content = "#!/bin/sh\n[ $# = 0 ] || touch \"$1/by-setup\"\necho 2.0\n";
        }
    }
    return MakeZip(entries);
}

struct KindRow
{
    char const* name;
    char const* line;
    UpdateFault asBundle;
    UpdateFault asInstaller;
};

void PrintTo(KindRow const& row, std::ostream* out)
{
    *out << row.name;
}

class PayloadKinds : public testing::TestWithParam<KindRow>
{
};

TEST_P(PayloadKinds, SaidInsideAndByTheNameMustAgree)
{
    ProgramScene asBundle(BundleThatSays(GetParam().line));
    HelperOutcome const bundle = asBundle.scene.Prepare(asBundle.scene.MakePrepareJob());
    EXPECT_EQ(bundle.Fault(), GetParam().asBundle);
    EXPECT_EQ(bundle.Find<PreparedReport>() != nullptr, GetParam().asBundle == UpdateFault::None);
    ProgramScene asInstaller(BundleThatSays(GetParam().line));
    HelperOutcome const installer = asInstaller.Prepare();
    EXPECT_EQ(installer.Fault(), GetParam().asInstaller);
    EXPECT_EQ(installer.Find<PreparedReport>() != nullptr, GetParam().asInstaller == UpdateFault::None);
}

constexpr UpdateFault DIFFERS = UpdateFault::PayloadKindDiffers;

INSTANTIATE_TEST_SUITE_P(
    Table, PayloadKinds,
    testing::Values(KindRow{"Nothing", "", UpdateFault::None, DIFFERS},
                    KindRow{"Application", "PelnarPayloadKind = application;", UpdateFault::None, DIFFERS},
                    KindRow{"Installer", "PelnarPayloadKind = installer;", DIFFERS, UpdateFault::None},
                    KindRow{"Empty", "PelnarPayloadKind = \"\";", DIFFERS, DIFFERS},
                    KindRow{"OtherCase", "PelnarPayloadKind = Installer;", DIFFERS, DIFFERS},
                    KindRow{"Blank", "PelnarPayloadKind = \"installer \";", DIFFERS, DIFFERS},
                    KindRow{"List", "PelnarPayloadKind = (installer);", DIFFERS, DIFFERS},
                    KindRow{"Dictionary", "PelnarPayloadKind = { installer = YES; };", DIFFERS, DIFFERS},
                    KindRow{"SaidTwice", "PelnarPayloadKind = application; PelnarPayloadKind = installer;",
                            UpdateFault::InformationMalformed, UpdateFault::InformationMalformed}),
    [](testing::TestParamInfo<KindRow> const& info) { return info.param.name; });

TEST(InstallerProgram, IsNoWholeBundleAndNoBundleIsOneWhenItIsInstalledEither)
{
    ProgramScene program(BundleThatSays("PelnarPayloadKind = installer;"));
    InstallJob job = program.PrepareForInstall();
    job.kind = PayloadKind::WholeBundle;
    HelperOutcome outcome = program.Install(job);
    EXPECT_EQ(outcome.Fault(), DIFFERS);
    ExpectUntouched(program, outcome);

    ProgramScene bundle(BundleThatSays(""));
    job = bundle.scene.PrepareForInstall();
    job.kind = PayloadKind::Installer;
    outcome = bundle.Install(job);
    EXPECT_EQ(outcome.Fault(), DIFFERS);
    ExpectUntouched(bundle, outcome);
    EXPECT_FALSE(std::filesystem::exists(bundle.Target() + "/by-setup"));
}

/// The helper's calls that start a program, while it prepares an archive whose program would leave a trace.
int ProgramsStartedWhilePreparing(std::string const& signedText, UpdateFault expected)
{
    Workspace const place;
    std::string const mark = place.Path() + "/mark";
    std::string const archive = ArchiveOf("#!/bin/sh\ntouch " + mark + "\n");
    ProgramScene program(archive);
    PrepareJob job = program.scene.MakePrepareJob();
    job.kind = PayloadKind::Installer;
    job.signature = Base64(Sign(signedText.empty() ? archive : signedText, program.scene.Keys()));
    int started = 0;
    HelperStart start;
    start.atEveryCall = [&started](CallStop const& stop)
    {
        started += stop.call == SYS_execve || stop.call == SYS_execveat ? 1 : 0;
        return CallVerdict::GoOn();
    };
    HelperOutcome const outcome = program.scene.Prepare(job, start);
    EXPECT_EQ(outcome.Fault(), expected);
    EXPECT_EQ(program.scene.Place().Names(program.scene.StagingName()).empty(), expected != UpdateFault::None);
    EXPECT_FALSE(std::filesystem::exists(mark));
    return started;
}

TEST(InstallerProgram, NothingOfAnArchiveRunsWhileItIsVerifiedAndPrepared)
{
    EXPECT_EQ(ProgramsStartedWhilePreparing({}, UpdateFault::None), 0);
    EXPECT_EQ(ProgramsStartedWhilePreparing("something else", UpdateFault::SignatureMismatch), 0);
}

struct FailureRow
{
    char const* name;
    char const* script;
    UpdateFault fault;
};

class FailingInstaller : public testing::TestWithParam<FailureRow>
{
};

TEST_P(FailingInstaller, IsReportedAndThePreviousVersionStarts)
{
    ProgramScene program(ArchiveOf(GetParam().script));
    InstallJob job = program.PrepareForInstall();
    job.installerSeconds = 1;
    HelperOutcome const outcome = program.Install(job);
    EXPECT_EQ(outcome.Fault(), GetParam().fault);
    ExpectUntouched(program, outcome);
}

INSTANTIATE_TEST_SUITE_P(
    Table, FailingInstaller,
    testing::Values(FailureRow{"OtherStatus", "#!/bin/sh\nexit 3\n", UpdateFault::InstallerFailed},
                    FailureRow{"EndedByASignal", "#!/bin/sh\nkill -9 $$\n", UpdateFault::InstallerFailed},
                    FailureRow{"NoInterpreter", "#!/nonexistent/interpreter\n", UpdateFault::InstallerNotStarted},
                    // The outcome arrives only if the sleeper, which holds the output open, has ended too.
                    FailureRow{"NeverDone", "#!/bin/sh\nsleep 1000 &\nsleep 1000\n", UpdateFault::InstallerTimedOut}),
    [](testing::TestParamInfo<FailureRow> const& info) { return info.param.name; });

TEST(InstallerProgram, ChangedAfterItWasCheckedItDoesNotRun)
{
    ProgramScene program(ArchiveOf("#!/bin/sh\nexit 0\n"));
    InstallJob const job = program.PrepareForInstall();
    std::ofstream(program.scene.StagingPath() + '/' + SETUP + "/setup", std::ios::app) << "touch \"$1/by-setup\"\n";
    HelperOutcome const outcome = program.Install(job);
    EXPECT_EQ(outcome.Fault(), UpdateFault::StagedTreeChanged);
    ExpectUntouched(program, outcome);
}

} // namespace
