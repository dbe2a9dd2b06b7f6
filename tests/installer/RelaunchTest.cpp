// RelaunchTest.cpp: which programs are started after an installation.

#include "Installer/Relaunch.h"
#include "Engine/core/archive/TreeManifest.h"
#include "Engine/core/helper/FolderSafety.h"
#include "Engine/core/helper/NoteFile.h"
#include "Engine/core/helper/SwapJournal.h"
#include "tests/installer/InstallerFixture.h"

#include <gtest/gtest.h>

#include <fstream>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace
{

using namespace Pelnar::Engine;
using namespace Pelnar::Testing;

struct RelaunchRow
{
    char const* name;
    std::string (*answer)(Workspace const& place); ///< with a safe bundle "Other.app" in the place
    bool isTaken;
};

class RelaunchAnswers : public testing::TestWithParam<RelaunchRow>
{
};

TEST_P(RelaunchAnswers, AreStartedOnlyWhenSafe)
{
    UpdateScene scene;
    InstallJob job = scene.PrepareForInstall();
    Workspace const other;
    other.Put(MakeBundle("7.0", "Other.app"));
    job.relaunchPath = GetParam().answer(other);
    scene.Host().End();
    HelperOutcome const outcome = scene.Install(job);
    EXPECT_EQ(outcome.exitStatus, 0);
    EXPECT_EQ(outcome.output.substr(0, 3), GetParam().isTaken ? "7.0" : "2.0");
    EXPECT_EQ(outcome.Fault(), GetParam().isTaken ? UpdateFault::None : UpdateFault::RelaunchPathUnsafe);
    EXPECT_EQ(outcome.Find<RelaunchedReport>()->bundle,
              GetParam().isTaken ? RelaunchedBundle::Answered : RelaunchedBundle::TargetInstead);
}

std::string OtherIn(Workspace const& place)
{
    return place.Path() + "/Other.app";
}

INSTANTIATE_TEST_SUITE_P(
    Table, RelaunchAnswers,
    testing::Values(RelaunchRow{"SafeBundle", &OtherIn, true},
                    RelaunchRow{"TrailingSlash", [](Workspace const& w) { return OtherIn(w) + "/"; }, true},
                    RelaunchRow{"ThroughALinkAbove",
                                [](Workspace const& w)
                                {
                                    static_cast<void>(!::symlink(w.Path().c_str(), (w.Path() + "/up").c_str()));
                                    return w.Path() + "/up/Other.app";
                                },
                                true},
                    RelaunchRow{"Program", [](Workspace const&) { return std::string("/bin/true"); }, false},
                    RelaunchRow{"NoBundle", [](Workspace const&) { return std::string("/usr"); }, false},
                    RelaunchRow{"Missing", [](Workspace const& w) { return w.Path() + "/None.app"; }, false},
                    RelaunchRow{"Link",
                                [](Workspace const& w)
                                {
                                    static_cast<void>(!::symlink("Other.app", (w.Path() + "/Link.app").c_str()));
                                    return w.Path() + "/Link.app";
                                },
                                false},
                    RelaunchRow{"Dots", [](Workspace const& w) { return w.Path() + "/x/../Other.app"; }, false},
                    RelaunchRow{"ProcSelf", [](Workspace const& w) { return "/proc/self/.." + OtherIn(w); }, false},
                    RelaunchRow{"DoubleSlash", [](Workspace const& w) { return "/" + OtherIn(w); }, false},
                    RelaunchRow{"Shell", [](Workspace const& w) { return OtherIn(w) + ";touch /tmp/pelnar-evil"; },
                                false},
                    RelaunchRow{"Newline", [](Workspace const& w) { return OtherIn(w) + "\n"; }, false},
                    RelaunchRow{"NotUtf8", [](Workspace const& w) { return OtherIn(w) + "\xff"; }, false},
                    RelaunchRow{"Of5000Bytes", [](Workspace const&) { return "/" + std::string(5000, 'x'); }, false},
                    RelaunchRow{"WorldWritableBundle",
                                [](Workspace const& w)
                                {
                                    ::chmod(OtherIn(w).c_str(), 0777);
                                    return OtherIn(w);
                                },
                                false},
                    RelaunchRow{"WorldWritableFolderAbove",
                                [](Workspace const& w)
                                {
                                    ::chmod(w.Path().c_str(), 0777);
                                    return OtherIn(w);
                                },
                                false},
                    RelaunchRow{"WorldWritableProgram",
                                [](Workspace const& w)
                                {
                                    ::chmod((OtherIn(w) + "/run").c_str(), 0777);
                                    return OtherIn(w);
                                },
                                false},
                    RelaunchRow{"ProgramWritableByAnotherGroup",
                                [](Workspace const& w)
                                {
                                    std::string const program = OtherIn(w) + "/run";
                                    bool const isGiven = ::chown(program.c_str(), ::geteuid(), 12345) == 0;
                                    ::chmod(program.c_str(), isGiven ? 0775 : 0777); // a user has no other group
                                    return OtherIn(w);
                                },
                                false},
                    RelaunchRow{"ProgramIsText",
                                [](Workspace const& w)
                                {
                                    std::ofstream(OtherIn(w) + "/run") << "hello";
                                    return OtherIn(w);
                                },
                                false}),
    [](testing::TestParamInfo<RelaunchRow> const& info) { return info.param.name; });

/// The permissions under umask 002.
TEST(Relaunch, ProgramThatTheUsersOwnGroupMayWriteIsStarted)
{
    Workspace const place;
    place.Put({{"file", 'f', {}, 0644}});
    UniqueFd const file(::open((place.Path() + "/file").c_str(), O_RDONLY | O_CLOEXEC));
    ASSERT_EQ(::fchmod(file.Get(), 0775), 0);
    if (!IsSafeByItself(file.Get()))
    {
        GTEST_SKIP() << "this user has no group of their own";
    }
    UpdateScene scene;
    InstallJob job = scene.PrepareForInstall();
    Workspace const other;
    other.Put(MakeBundle("7.0", "Other.app"));
    ASSERT_EQ(::chmod((OtherIn(other) + "/run").c_str(), 0775), 0);
    job.relaunchPath = OtherIn(other);
    scene.Host().End();
    EXPECT_EQ(scene.Install(job).output.substr(0, 3), "7.0");
}

TEST(Relaunch, ProgramThatDoesNotStartIsReportedAndTheNewVersionStays)
{
    std::vector<ForgedEntry> entries = MakeBundle("2.0");
    entries[1].content = "#!/nonexistent/interpreter\n";
    UpdateScene scene(MakeZip(entries));
    InstallJob const job = scene.PrepareForInstall();
    scene.Host().End();
    HelperOutcome const outcome = scene.Install(job);
    EXPECT_EQ(outcome.exitStatus, 1);
    EXPECT_NE(outcome.Find<InstalledReport>(), nullptr);
    EXPECT_EQ(outcome.Fault(), UpdateFault::RelaunchFailed);
    UniqueFd const installed(::open((scene.Place().Path() + '/' + APP).c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    EXPECT_TRUE(DigestTree(installed.Get()) == job.digest);
    EXPECT_EQ(scene.Place().StartedVersion(scene.StagingName() + "/" + APP), "1.0");
}

} // namespace
