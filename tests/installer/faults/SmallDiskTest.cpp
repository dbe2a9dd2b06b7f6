// SmallDiskTest.cpp: disks of every size from too small for an update to large enough. Each becomes full at another
// moment: in the middle of a file, at a folder, at the journal.

#include "tests/installer/FaultChecks.h"
#include "tests/installer/LoopImage.h"
#include "tests/support/Container.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <cstdlib>

#include <sys/mount.h>
#include <sys/stat.h>

namespace
{

using namespace Pelnar::Engine;
using namespace Pelnar::Testing;

constexpr int LARGEST_KIBIBYTES = 4096;

/// A new version of many small files, so that the disk can become full at many moments.
std::string ManyFiles()
{
    std::vector<ForgedEntry> entries = MakeBundle("2.0");
    for (int i = 0; i < 12; ++i)
    {
        std::string const folder = std::string(APP) + "/folder" + std::to_string(i) + '/';
        entries.push_back({folder, 'd', {}, 0755});
        entries.push_back({folder + "file", 'f', std::string(static_cast<std::size_t>(i) * 1500, 'x')});
    }
    return MakeArchive(Container::Zip, entries);
}

Versions VersionsOf(std::string const& archive)
{
    Versions versions;
    UpdateScene scene(archive);
    scene.PrepareForInstall();
    versions.next = TreeOf(scene.StagingPath() + '/' + APP);
    return versions;
}

struct Ending
{
    UpdateFault preparation = UpdateFault::None;
    UpdateFault installation = UpdateFault::None;
};

/// Prepares and installs the update.
Ending UpdateIn(UpdateScene& scene, Versions const& versions)
{
    HelperOutcome const prepared = scene.Prepare(scene.MakePrepareJob());
    if (prepared.exitStatus != 0)
    {
        EXPECT_EQ(prepared.Find<PreparedReport>(), nullptr);
        EXPECT_EQ(ExpectWhole(scene, versions), "1.0");
        return {prepared.Fault(), UpdateFault::None};
    }
    InstallJob job = scene.MakeInstallJob(versions.next);
    job.targetPath = scene.Place().Path() + '/' + APP;
    scene.Host().End();
    HelperOutcome const installed = scene.Install(job);
    EXPECT_EQ(installed.Find<InstalledReport>() != nullptr, installed.exitStatus == 0);
    EXPECT_EQ(ExpectWhole(scene, versions), installed.exitStatus == 0 ? "2.0" : "1.0");
    EXPECT_EQ(installed.output.substr(0, 3), installed.exitStatus == 0 ? "2.0" : "1.0") << "it is started again";
    return {UpdateFault::None, installed.Fault()};
}

void UpdateOnDisksOfEverySize()
{
    std::string const archive = ManyFiles();
    Versions const versions = VersionsOf(archive);
    std::string const point = "/disk";
    ASSERT_EQ(::mkdir(point.c_str(), 0755), 0);
    int preparations = 0;
    int installations = 0;
    bool hasRoom = false;
    // Starts with little more space than the installed version needs.
    for (int kibibytes = 24; !hasRoom && kibibytes <= LARGEST_KIBIBYTES; kibibytes += 4)
    {
        SCOPED_TRACE(testing::Message() << kibibytes << " KiB");
        std::string const options = "mode=0755,size=" + std::to_string(kibibytes) + "k";
        ASSERT_EQ(::mount("none", point.c_str(), "tmpfs", 0, options.c_str()), 0) << errno;
        Ending ending;
        {
            UpdateScene scene(archive, point);
            ending = UpdateIn(scene, versions);
            ExpectRecovered(scene, versions);
        }
        hasRoom = ending.preparation == UpdateFault::None && ending.installation == UpdateFault::None;
        preparations += ending.preparation == UpdateFault::NoSpace ? 1 : 0;
        installations += ending.installation == UpdateFault::NoSpace ? 1 : 0;
        EXPECT_TRUE(hasRoom || ending.preparation == UpdateFault::NoSpace ||
                    ending.installation == UpdateFault::NoSpace)
            << FaultName(ending.preparation) << ", " << FaultName(ending.installation);
        ASSERT_EQ(::umount(point.c_str()), 0) << errno;
    }
    EXPECT_GT(preparations, 20) << "the disk was hardly ever full";
    EXPECT_GT(installations, 0) << "there was always room for the journal";
    EXPECT_TRUE(hasRoom) << "the disk was never large enough";
}

TEST(SmallDisk, IsToldAndLeavesThePreviousVersionAsItWas)
{
    if (!RunInContainer(&UpdateOnDisksOfEverySize))
    {
        GTEST_SKIP() << "the kernel lets this user make no container, in which it may mount";
    }
}

[[nodiscard]] bool HasRun(std::string const& command)
{
    return std::system((command + " >/dev/null 2>&1").c_str()) == 0;
}

/// A file system with much free space, on which a quota limits each folder.
TEST(SmallQuota, IsToldAndLeavesThePreviousVersionAsItWas)
{
    constexpr FileSystemKind KIND{"Btrfs", "mkfs.btrfs -q -f", "btrfs", "", 256};
    if (std::string const reason = WhyImagesCannotBeMounted(); !reason.empty())
    {
        GTEST_SKIP() << reason;
    }
    Workspace const place;
    std::string const image = place.Path() + "/image";
    if (!HasRun("btrfs version") || !MakeImage(KIND, image))
    {
        GTEST_SKIP() << "quotas need btrfs-progs";
    }
    MountedImage const disk(KIND, image, place.Path() + "/disk");
    ASSERT_TRUE(disk.IsMounted());
    std::string const archive = ManyFiles();
    Versions const versions = VersionsOf(archive);
    int told = 0;
    bool hasRoom = false;
    for (int kibibytes = 32; !hasRoom && kibibytes <= LARGEST_KIBIBYTES; kibibytes += 32)
    {
        SCOPED_TRACE(testing::Message() << kibibytes << " KiB");
        std::string const folder = disk.Point() + "/folder" + std::to_string(kibibytes);
        std::string const limit = std::to_string(kibibytes) + "K '";
        ASSERT_TRUE(HasRun("btrfs subvolume create '" + folder + "'"));
        UpdateScene scene(archive, folder);
        ASSERT_TRUE(HasRun("btrfs quota enable '" + disk.Point() + "'"));
        ASSERT_TRUE(HasRun("btrfs qgroup limit " + limit + folder + "'"));
        Ending const ending = UpdateIn(scene, versions);
        // On this file system even a removal needs space.
        ASSERT_TRUE(HasRun("btrfs quota disable '" + disk.Point() + "'"));
        ExpectRecovered(scene, versions);
        hasRoom = ending.preparation == UpdateFault::None && ending.installation == UpdateFault::None;
        told += hasRoom ? 0 : 1;
        EXPECT_TRUE(hasRoom || ending.preparation == UpdateFault::NoSpace ||
                    ending.installation == UpdateFault::NoSpace)
            << FaultName(ending.preparation) << ", " << FaultName(ending.installation);
    }
    EXPECT_GT(told, 0) << "the quota was always large enough";
    EXPECT_TRUE(hasRoom) << "the quota was never large enough";
}

} // namespace
