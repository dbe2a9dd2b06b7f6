// SurroundingsTest.cpp: the helper behaves the same for every state of the process that starts it, and for every path
// of the bundle.

#include "tests/installer/FaultChecks.h"
#include "tests/installer/OtherUser.h"
#include "tests/support/Sanitizers.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <filesystem>
#include <set>

#include <sys/syscall.h>

namespace
{

using namespace Pelnar::Engine;
using namespace Pelnar::Testing;

struct Surroundings
{
    char const* name;
    std::vector<std::string> before;
    std::vector<std::string> environment;
};

void PrintTo(Surroundings const& surroundings, std::ostream* out)
{
    *out << surroundings.name;
}

/// The shell sets up the surroundings, then becomes the helper.
std::vector<std::string> After(std::string const& commands)
{
    return {"/bin/sh", "-c", commands + "; exec \"$@\"", "sh"};
}

class OddSurroundings : public testing::TestWithParam<Surroundings>
{
};

TEST_P(OddSurroundings, ChangeNothing)
{
    std::set<std::string> const foreign{"SmallStack", "HostileLoader", "HostileAllocator"};
    if (IS_SANITIZED && foreign.count(GetParam().name) != 0)
    {
        GTEST_SKIP() << "a sanitizer's runtime does not start there";
    }
    UpdateScene scene;
    ExpectUpdated(scene, {GetParam().before, GetParam().environment});
}

INSTANTIATE_TEST_SUITE_P(
    Rows, OddSurroundings,
    testing::Values(
        Surroundings{"NoMaskForNewFiles", After("umask 000"), {}},
        Surroundings{"StrictMaskForNewFiles", After("umask 077"), {}},
        Surroundings{"WorkingFolderGone",
                     After("d=$(/bin/mktemp -d) && cd \"$d\" && /bin/rmdir \"$d\""),
                     {"PATH=/bin:/usr/bin"}},
        Surroundings{"OpenFilesLimitedTo32", After("ulimit -n 32"), {}},
        Surroundings{"SmallStack", After("ulimit -s 512"), {}}, Surroundings{"NoCoreFiles", After("ulimit -c 0"), {}},
        Surroundings{"StandardStreamsClosed", After("exec <&- >&- 2>&-"), {}},
        Surroundings{"SignalsIgnored", After("trap '' TERM HUP INT QUIT PIPE CHLD"), {}},
        Surroundings{"EndsOfChildrenIgnored", {"/usr/bin/env", "--ignore-signal=CHLD"}, {}},
        Surroundings{"NoHome", {}, {"HOME="}}, Surroundings{"HomeUnset", {"/usr/bin/env", "-u", "HOME"}, {}},
        Surroundings{"HomeThatIsNot", {}, {"HOME=/nonexistent", "XDG_CONFIG_HOME=/nonexistent"}},
        Surroundings{"TurkishLocale", {}, {"LC_ALL=tr_TR.UTF-8", "LANG=tr_TR.UTF-8"}},
        Surroundings{"UnknownLocale", {}, {"LC_ALL=xx_YY.Nonsense"}},
        Surroundings{"HostileSearchPath", {}, {"PATH=/nonexistent:.", "IFS=x", "ENV=/nonexistent", "BASH_ENV=/none"}},
        Surroundings{"HostileTemporaryFolder", {}, {"TMPDIR=/nonexistent", "TMP=/dev/null", "TEMP=../.."}},
        Surroundings{"HostileLoader",
                     {},
                     {"LD_PRELOAD=" PELNAR_HOSTILE_LIBRARY, "LD_LIBRARY_PATH=/nonexistent", "LD_AUDIT=/nonexistent"}},
        Surroundings{"HostileCryptography", {}, {"OPENSSL_CONF=/dev/zero", "OPENSSL_MODULES=/tmp"}},
        Surroundings{"HostileAllocator", {}, {"GLIBC_TUNABLES=glibc.malloc.check=3", "MALLOC_PERTURB_=255"}}),
    [](testing::TestParamInfo<Surroundings> const& info) { return info.param.name; });

/// The system kills a process that exceeds the file-size limit, unless the process ignores the signal.
TEST(LimitOfFiles, IsReportedAndDoesNotKillTheHelper)
{
    if (IS_SANITIZED)
    {
        GTEST_SKIP() << "a sanitizer's runtime writes more";
    }
    HelperStart const limited{After("ulimit -f 0"), {}};
    Versions const versions;
    {
        UpdateScene scene;
        HelperOutcome const outcome = scene.Prepare(scene.MakePrepareJob(), limited);
        EXPECT_EQ(outcome.exitStatus, 1) << "signal " << outcome.signal;
        EXPECT_EQ(outcome.Fault(), UpdateFault::SystemLimitReached);
        ExpectRecovered(scene, versions);
    }
    UpdateScene scene;
    InstallJob const job = scene.PrepareForInstall();
    scene.Host().End();
    HelperOutcome const outcome = scene.Install(job, limited);
    EXPECT_EQ(outcome.exitStatus, 1) << "signal " << outcome.signal;
    EXPECT_EQ(outcome.Fault(), UpdateFault::SystemLimitReached);
    EXPECT_EQ(ExpectWhole(scene, versions), "1.0");
    EXPECT_NE(outcome.Find<RelaunchedReport>(), nullptr) << "the previous version is started again";
}

TEST(OddPlaces, AreUpdatedLikeOthers)
{
    for (std::string const& name :
         {std::string("with blanks"), std::string("quote'\"s"), std::string("line\nfeed"), std::string("$HOME;`id`&"),
          std::string("\xff\xfe"), std::string(255, 'n'), std::string("-rf"), std::string("%s%n")})
    {
        SCOPED_TRACE(name);
        Workspace const outer;
        std::string const parent = outer.Path() + '/' + name;
        std::filesystem::create_directory(parent);
        UpdateScene scene(MakeArchive(Container::Zip, MakeBundle("2.0")), parent);
        ExpectUpdated(scene, {});
    }
}

TEST(OddPlaces, MayBeDeeperThanOnePathCanName)
{
    Workspace const outer;
    std::string parent = outer.Path();
    for (int depth = 0; depth < 14; ++depth)
    {
        parent += '/' + std::string(255, 'd');
        std::filesystem::create_directory(parent);
    }
    UpdateScene scene(MakeArchive(Container::Zip, MakeBundle("2.0")), parent);
    ExpectUpdated(scene, {});
}

struct MissingCall
{
    char const* name;
    long call;
    int errorNumber;
};

class WithoutCall : public testing::TestWithParam<MissingCall>
{
};

/// The whole update on a system that lacks the call or refuses it.
TEST_P(WithoutCall, UpdatesAreStillInstalled)
{
    std::string const answer = InChild(
        []
        {
            UpdateScene scene;
            FailCall(GetParam().call, GetParam().errorNumber);
            ExpectUpdated(scene);
            return std::string(testing::Test::HasFailure() ? "failed" : "updated");
        });
    EXPECT_EQ(answer, "updated");
}

/// The bundle's rights are copied, which changes files that are already on the disk.
TEST_P(WithoutCall, BundleThatOthersMayNotEnterIsUpdatedToo)
{
    std::string const answer = InChild(
        []
        {
            UpdateScene scene;
            std::filesystem::permissions(scene.Place().Path() + '/' + APP, std::filesystem::perms::owner_all);
            FailCall(GetParam().call, GetParam().errorNumber);
            InstallJob const job = scene.PrepareForInstall();
            scene.Host().End();
            HelperOutcome const outcome = scene.Install(job);
            return outcome.exitStatus == 0 ? outcome.output.substr(0, 3) : std::string(FaultName(outcome.Fault()));
        });
    EXPECT_EQ(answer, "2.0");
}

INSTANTIATE_TEST_SUITE_P(Rows, WithoutCall,
                         testing::Values(MissingCall{"OpenBeneathMissing", SYS_openat2, ENOSYS},
                                         MissingCall{"OpenBeneathFiltered", SYS_openat2, EPERM},
                                         MissingCall{"SyncOfAllMissing", SYS_syncfs, ENOSYS},
                                         MissingCall{"SyncOfAllFiltered", SYS_syncfs, EPERM},
                                         MissingCall{"AccessMissing", SYS_faccessat2, ENOSYS},
                                         MissingCall{"AccessFiltered", SYS_faccessat2, EPERM},
                                         MissingCall{"CloseRangeMissing", SYS_close_range, ENOSYS},
                                         MissingCall{"ConfinementMissing", SYS_landlock_create_ruleset, ENOSYS},
                                         MissingCall{"ExchangeMissing", SYS_renameat2, ENOSYS}),
                         [](testing::TestParamInfo<MissingCall> const& info) { return info.param.name; });

} // namespace
