// RightsTest.cpp: who may use the application after an update, and in which state its program starts again.

#include "Engine/core/archive/TreeManifest.h"
#include "tests/installer/FaultChecks.h"
#include "tests/installer/InstallerFixture.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <iterator>

#include <fcntl.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <sys/xattr.h>
#include <unistd.h>

namespace
{

using namespace Pelnar::Engine;
using namespace Pelnar::Testing;

constexpr gid_t OTHER_GROUP = 12345;
constexpr char ACCESS_LIST[] = "system.posix_acl_access";

struct stat StatusOf(UpdateScene const& scene, char const* name = "")
{
    struct stat status
    {
    };
    EXPECT_EQ(::stat((scene.Place().Path() + '/' + APP + '/' + name).c_str(), &status), 0) << name;
    return status;
}

mode_t ModeOf(UpdateScene const& scene, char const* name = "")
{
    return StatusOf(scene, name).st_mode & 07777u;
}

void Update(UpdateScene& scene, HelperStart const& start = {})
{
    InstallJob const job = scene.PrepareForInstall();
    scene.Host().End();
    HelperOutcome const outcome = scene.Install(job, start);
    EXPECT_EQ(outcome.exitStatus, 0) << FaultName(outcome.Fault());
    EXPECT_EQ(scene.Place().StartedVersion(), "2.0");
}

struct RightsRow
{
    char const* name;
    mode_t folder;
    mode_t program;
    mode_t data;
};

class Rights : public testing::TestWithParam<RightsRow>
{
};

TEST_P(Rights, OfTheInstalledBundleCarryOver)
{
    UpdateScene scene;
    std::string const bundle = scene.Place().Path() + '/' + APP;
    ASSERT_EQ(::chmod(bundle.c_str(), GetParam().folder), 0);
    Update(scene);
    EXPECT_EQ(ModeOf(scene), GetParam().folder);
    EXPECT_EQ(ModeOf(scene, "run"), GetParam().program);
    EXPECT_EQ(ModeOf(scene, "Resources"), GetParam().program);
    EXPECT_EQ(ModeOf(scene, "Resources/data"), GetParam().data);
}

INSTANTIATE_TEST_SUITE_P(Table, Rights,
                         testing::Values(RightsRow{"Everybody", 0755, 0755, 0644}, RightsRow{"Owner", 0700, 0700, 0600},
                                         RightsRow{"OwnerAndGroup", 0750, 0750, 0640},
                                         RightsRow{"NotTheGroup", 0705, 0705, 0604},
                                         RightsRow{"GroupMayListOnly", 0740, 0700, 0600},
                                         RightsRow{"OthersMayEnterOnly", 0711, 0755, 0644},
                                         RightsRow{"SharedGroupFolder", 02750, 0750, 0640}),
                         [](testing::TestParamInfo<RightsRow> const& info) { return info.param.name; });

TEST(Rights, GroupOfTheInstalledBundleCarriesOver)
{
    UpdateScene scene;
    std::string const bundle = scene.Place().Path() + '/' + APP;
    if (::chown(bundle.c_str(), static_cast<uid_t>(-1), OTHER_GROUP) != 0)
    {
        GTEST_SKIP() << "this user cannot give a file to another group";
    }
    ASSERT_EQ(::chmod(bundle.c_str(), 0750), 0);
    Update(scene);
    for (char const* const name : {"", "run", "Resources", "Resources/data"})
    {
        EXPECT_EQ(StatusOf(scene, name).st_gid, OTHER_GROUP) << name;
    }
    EXPECT_EQ(ModeOf(scene), 0750u);
}

TEST(Rights, GroupThatCannotBeKeptIsARefusalWhereItDecidesWhoMayEnter)
{
    for (mode_t const mode : {0750, 0755})
    {
        SCOPED_TRACE(mode);
        UpdateScene scene;
        std::string const bundle = scene.Place().Path() + '/' + APP;
        if (::chown(bundle.c_str(), static_cast<uid_t>(-1), OTHER_GROUP) != 0)
        {
            GTEST_SKIP() << "this user cannot give a file to another group";
        }
        ASSERT_EQ(::chmod(bundle.c_str(), mode), 0);
        InstallJob job = scene.PrepareForInstall();
        UpdateScene::KeepRecord(job);
        scene.Host().End();
        HelperStart start;
        start.before = {"/usr/bin/strace", "-f", "-qq", "-o", "/dev/null", "-e", "inject=fchown,fchownat:error=EPERM"};
        HelperOutcome const outcome = scene.Install(job, start);
        bool const isRefused = mode == 0750;
        EXPECT_EQ(outcome.Fault(), isRefused ? UpdateFault::RightsNotKept : UpdateFault::None);
        EXPECT_EQ(outcome.output.substr(0, 4), isRefused ? "1.0|" : "2.0|");
        EXPECT_EQ(ModeOf(scene), mode);
    }
}

TEST(Rights, AccessListOfTheInstalledBundleCarriesOver)
{
    UpdateScene scene;
    std::string const bundle = scene.Place().Path() + '/' + APP;
    // Version 2: the owner, the user 4711, the group, the mask, others.
    constexpr unsigned char LIST[] = {2, 0,    0,    0,    1,    0,    7,    0, 0xff, 0xff, 0xff, 0xff, 2,    0,    5,
                                      0, 0x67, 0x12, 0,    0,    4,    0,    0, 0,    0xff, 0xff, 0xff, 0xff, 0x10, 0,
                                      5, 0,    0xff, 0xff, 0xff, 0xff, 0x20, 0, 0,    0,    0xff, 0xff, 0xff, 0xff};
    if (::setxattr(bundle.c_str(), ACCESS_LIST, LIST, sizeof LIST, 0) != 0)
    {
        GTEST_SKIP() << "this file system keeps no access lists";
    }
    mode_t const mode = ModeOf(scene);
    Update(scene);
    unsigned char list[sizeof LIST + 1] = {};
    ASSERT_EQ(::getxattr(bundle.c_str(), ACCESS_LIST, list, sizeof list), static_cast<ssize_t>(sizeof LIST));
    EXPECT_TRUE(std::equal(std::begin(LIST), std::end(LIST), std::begin(list)));
    EXPECT_EQ(ModeOf(scene), mode);
    EXPECT_EQ(ModeOf(scene, "Resources/data"), 0644u) << "the list at the door decides";
}

/// The folder of the application gives every new file an access list.
TEST(Rights, AccessListOfTheFolderAboveLetsNobodyElseIn)
{
    Workspace const above;
    // For new files: the owner all, the user 4711 and the group to read and enter, others nothing.
    constexpr unsigned char LIST[] = {2, 0,    0,    0,    1,    0,    7,    0, 0xff, 0xff, 0xff, 0xff, 2,    0,    5,
                                      0, 0x67, 0x12, 0,    0,    4,    0,    5, 0,    0xff, 0xff, 0xff, 0xff, 0x10, 0,
                                      5, 0,    0xff, 0xff, 0xff, 0xff, 0x20, 0, 0,    0,    0xff, 0xff, 0xff, 0xff};
    if (::setxattr(above.Path().c_str(), "system.posix_acl_default", LIST, sizeof LIST, 0) != 0)
    {
        GTEST_SKIP() << "this file system keeps no access lists";
    }
    for (mode_t const mode : {0700, 0750, 0755})
    {
        SCOPED_TRACE(mode);
        UpdateScene scene(MakeArchive(Container::Zip, MakeBundle("2.0")), above.Path());
        std::string const bundle = scene.Place().Path() + '/' + APP;
        for (char const* const name : {"", "/run", "/Resources", "/Resources/data"})
        {
            ASSERT_EQ(::removexattr((bundle + name).c_str(), ACCESS_LIST), 0);
        }
        ASSERT_EQ(::chmod(bundle.c_str(), mode), 0);
        Update(scene);
        EXPECT_EQ(ModeOf(scene), mode);
        EXPECT_LT(::getxattr(bundle.c_str(), ACCESS_LIST, nullptr, 0), 0) << "the user 4711 got in";
    }
}

TEST(Rights, AreOnTheDiskBeforeTheSwap)
{
    UpdateScene scene;
    ASSERT_EQ(::chmod((scene.Place().Path() + '/' + APP).c_str(), 0700), 0);
    std::string order;
    HelperStart start;
    start.atEveryCall = [&order](CallStop const& stop)
    {
        order += stop.call == SYS_fchmod ? "mode " : stop.call == SYS_syncfs ? "sync " : "";
        order += stop.call == SYS_renameat2 ? "swap" : "";
        return CallVerdict::GoOn();
    };
    Update(scene, start);
    EXPECT_EQ(order, "mode sync swap");
}

TEST(Rights, NextDeltaFitsABundleThatOnlyItsOwnerMayUse)
{
    UpdateScene scene;
    std::string const bundle = scene.Place().Path() + '/' + APP;
    ASSERT_EQ(::chmod(bundle.c_str(), 0700), 0);
    Update(scene);
    UniqueFd const opened(::open(bundle.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    Versions const versions;
    EXPECT_EQ(DigestTree(opened.Get(), 0700), versions.next) << "apart from the bits that the folder removes";
    EXPECT_NE(DigestTree(opened.Get()), versions.next);
}

/// A bundle whose program prints its folder and its umask.
std::string Curious()
{
    std::vector<ForgedEntry> entries = MakeBundle("2.0");
    entries[1].content = "#!/bin/sh\necho \"2.0|$(pwd -P)|$(umask)\"\n";
    return MakeArchive(Container::Zip, entries);
}

TEST(RelaunchedProgram, FindsTheFolderAndTheMaskOfTheHost)
{
    struct Row
    {
        std::string folder;
        std::uint64_t mask;
        std::string expected;
    };
    Workspace const folder;
    std::string const gone = folder.Path() + "/gone";
    for (Row const& row : {Row{folder.Path(), 077, "2.0|" + folder.Path() + "|0077\n"}, Row{"", 022, "2.0|/|0022\n"},
                           Row{gone, 0, "2.0|/|0000\n"}})
    {
        UpdateScene scene(Curious());
        InstallJob job = scene.PrepareForInstall();
        job.workingFolder = row.folder;
        job.creationMask = row.mask;
        scene.Host().End();
        EXPECT_EQ(scene.Install(job).output, row.expected);
    }
}

} // namespace
