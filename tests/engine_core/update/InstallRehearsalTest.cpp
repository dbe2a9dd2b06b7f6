// InstallRehearsalTest.cpp: a refusal by this system is found before a download, with the helper's own calls. A filter
// makes system calls fail, in processes of their own.

#include "Engine/core/update/InstallRehearsal.h"
#include "Engine/core/base/CloseDescriptors.h"
#include "Engine/core/base/PathText.h"
#include "Engine/core/helper/NoteFile.h"
#include "Engine/core/helper/StagingFolder.h"
#include "tests/installer/FaultChecks.h"
#include "tests/installer/LoopImage.h"
#include "tests/installer/OtherUser.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <fstream>

#include <fcntl.h>
#include <linux/fs.h>
#include <sched.h>
#include <sys/file.h>
#include <sys/ioctl.h>
#include <sys/mount.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

namespace
{

using namespace Pelnar::Engine;
using namespace Pelnar::Testing;

/// All steps up to the download. Returns the reported error with its number, or "ready".
std::string Told(std::string const& bundlePath, std::string const& helper = PELNAR_INSTALLER_PROGRAM)
{
    PackageSources sources;
    sources.dpkgInfoFolder = QStringLiteral("/nonexistent");
    auto const opened = OpenInstallTarget(PathText(bundlePath), 1, sources);
    auto const* const target = opened ? &opened.value() : nullptr;
    if (!target)
    {
        return "refused: " + opened.error().sentence.English().toStdString();
    }
    SealedProgram program(helper);
    Result<void> const rehearsed = RehearseInstallation(*target, program);
    if (rehearsed)
    {
        return "ready";
    }
    EngineError const& error = rehearsed.error();
    return error.cause == ErrorCause::Fault
               ? std::string(FaultName(error.fault))
               : std::to_string(error.UnderlyingCode()) + ' ' + error.sentence.English().toStdString();
}

std::string ToldToBeOfALayer(std::string const& bundle)
{
    return "964 The application in " + bundle +
           " belongs to a layer of the file system that cannot be replaced. Copy it to another folder and start it "
           "there.";
}

/// An installed bundle, alone in its folder also after every rehearsal.
class RehearsalScene
{
public:
    RehearsalScene() { m_place.Put(MakeBundle("1.0")); }
    ~RehearsalScene() { EXPECT_EQ(m_place.Names(), std::vector<std::string>{APP}); }

    std::string const& Folder() const { return m_place.Path(); }
    std::string Bundle() const { return Folder() + '/' + APP; }
    Workspace const& Place() const { return m_place; }

    std::string ToldWithout(long call, int errorNumber) const
    {
        return InChild(
            [&]
            {
                FailCall(call, errorNumber);
                return Told(Bundle());
            });
    }

private:
    Workspace m_place;
};

TEST(InstallRehearsal, NothingIsInTheWayAndNothingStays)
{
    RehearsalScene const scene;
    Versions const versions;
    for (int round = 0; round < 3; ++round)
    {
        EXPECT_EQ(Told(scene.Bundle()), "ready");
    }
    EXPECT_EQ(ExpectWhole(scene.Place(), versions), "1.0");
}

TEST(InstallRehearsal, NamesMayHoldAnything)
{
    for (std::string const& name : {std::string("\xff\xfe \xc3.app"), std::string("back\\slash.app"),
                                    std::string("a b'\"\n$HOME;ls.app"), std::string(251, 'n') + ".app"})
    {
        Workspace const place;
        place.Put(MakeBundle("1.0", name));
        EXPECT_EQ(Told(place.Path() + '/' + name), "ready") << name;
        EXPECT_EQ(place.Names(), std::vector<std::string>{name});
    }
}

TEST(InstallRehearsal, RightsThatCannotBeKeptAreTold)
{
    constexpr gid_t OTHER_GROUP = 4711;
    RehearsalScene const scene;
    if (::chown(scene.Bundle().c_str(), static_cast<uid_t>(-1), OTHER_GROUP) != 0)
    {
        GTEST_SKIP() << "this user cannot give a file to another group";
    }
    for (mode_t const mode : {0750, 0755})
    {
        ASSERT_EQ(::chmod(scene.Bundle().c_str(), mode), 0);
        EXPECT_EQ(Told(scene.Bundle()), "ready") << mode;
        EXPECT_EQ(scene.ToldWithout(SYS_fchown, EPERM), mode == 0750 ? "RightsNotKept" : "ready") << mode;
    }
}

struct CallRow
{
    char const* name;
    long call;
    int errorNumber;
    char const* told;
};

class RefusedCall : public testing::TestWithParam<CallRow>
{
};

TEST_P(RefusedCall, IsToldOrDoneWithout)
{
    RehearsalScene const scene;
    EXPECT_EQ(scene.ToldWithout(GetParam().call, GetParam().errorNumber), GetParam().told);
}

INSTANTIATE_TEST_SUITE_P(
    Table, RefusedCall,
    testing::Values(CallRow{"OpenBeneathMissing", SYS_openat2, ENOSYS, "ready"},
                    CallRow{"OpenBeneathFiltered", SYS_openat2, EPERM, "ready"},
                    CallRow{"StartByDescriptorMissing", SYS_execveat, ENOSYS, "ready"},
                    CallRow{"StartByDescriptorFiltered", SYS_execveat, EPERM, "ready"},
                    CallRow{"CloseRangeMissing", SYS_close_range, ENOSYS, "ready"},
                    CallRow{"CloseRangeFiltered", SYS_close_range, EPERM, "ready"},
                    CallRow{"AccessFiltered", SYS_faccessat2, EPERM, "ready"},
                    CallRow{"StatusFiltered", SYS_statx, EPERM, "ready"},
                    CallRow{"StatusMissing", SYS_statx, ENOSYS, "ready"},
                    CallRow{"ExchangeMissing", SYS_renameat2, ENOSYS, "ready"},
                    CallRow{"ExchangeUnknown", SYS_renameat2, EINVAL, "ready"},
                    CallRow{"ExchangeFiltered", SYS_renameat2, EPERM, "NotPermitted"},
                    CallRow{"ExchangeFails", SYS_renameat2, EIO, "SwapFailed"},
                    CallRow{"RenameFiltered", SYS_renameat, EPERM, "NotPermitted"},
                    CallRow{"SyncRefused", SYS_fsync, EINVAL, "SyncFailed"},
                    CallRow{"SyncFails", SYS_fsync, EIO, "SyncFailed"},
                    CallRow{"ProcessHandleMissing", SYS_pidfd_open, ENOSYS, "ProcessHandlesUnavailable"},
                    CallRow{"ProcessHandleFiltered", SYS_pidfd_open, EPERM, "ProcessHandlesUnavailable"},
                    CallRow{"SignalByHandleMissing", SYS_pidfd_send_signal, ENOSYS, "ProcessHandlesUnavailable"},
                    CallRow{"SignalByHandleFiltered", SYS_pidfd_send_signal, EPERM, "ProcessHandlesUnavailable"},
                    CallRow{"MemoryFileMissing", SYS_memfd_create, ENOSYS, "SealedMemoryUnavailable"},
                    CallRow{"MemoryFileFiltered", SYS_memfd_create, EPERM, "SealedMemoryUnavailable"},
                    CallRow{"ConfinementMissing", SYS_landlock_create_ruleset, ENOSYS, "ready"},
                    CallRow{"ConfinementRefused", SYS_landlock_restrict_self, EPERM, "ConfinementFailed"},
                    CallRow{"ConfinementsRuleRefused", SYS_landlock_add_rule, ENOSYS, "ConfinementFailed"}),
    [](testing::TestParamInfo<CallRow> const& info) { return info.param.name; });

TEST(InstallRehearsal, BundleOnAnotherFileSystemThanItsFolderIsToldWithItsPath)
{
    RehearsalScene const scene;
    EXPECT_EQ(scene.ToldWithout(SYS_renameat2, EXDEV), ToldToBeOfALayer(scene.Bundle()));
}

/// If the system refuses locks, the answer comes immediately, names the place of the application, and no file is left.
TEST(InstallRehearsal, MissingLocksAreReported)
{
    for (int const errorNumber : {ENOLCK, EOPNOTSUPP, ENOSYS, EINVAL, EBADF, EPERM})
    {
        RehearsalScene const scene;
        EXPECT_EQ(scene.ToldWithout(SYS_flock, errorNumber),
                  "963 The application is installed in " + scene.Folder() +
                      ", where files cannot be locked. Move it to a folder on a local disk and start it there.");
    }
}

/// A neighbour that removes every new folder as if it were abandoned.
TEST(InstallRehearsal, FoldersThatAlwaysGoAreNotMadeForEver)
{
    RehearsalScene const scene;
    EXPECT_EQ(scene.ToldWithout(SYS_flock, EWOULDBLOCK).substr(0, 4), "963 ");
}

TEST(InstallRehearsal, FileSystemWithoutPermissionsIsTold)
{
    RehearsalScene const scene;
    std::string const told = InChild(
        [&scene]
        {
            ::umask(0777); // a new folder has no permissions then, as on a file system that does not store them
            FailCall(SYS_chmod, EPERM);
            return Told(scene.Bundle());
        });
    EXPECT_EQ(told, ::geteuid() == 0 ? "PermissionsUnavailable" : "NotPermitted");
}

TEST(InstallRehearsal, UmaskOfTheHostIsNoObstacle)
{
    REQUIRE_ADMINISTRATOR_FOR_USERS();
    for (mode_t const mask : {0777U, 0700U, 0400U, 0200U, 0100U})
    {
        RehearsalScene const scene;
        auto const told = [&]
        {
            ::umask(mask);
            return Told(scene.Bundle());
        };
        EXPECT_EQ(InChild(told), "ready") << mask;
        GiveTo(VICTIM, scene.Folder());
        EXPECT_EQ(AsOtherUser(VICTIM, told), "ready") << mask;
    }
}

TEST(InstallRehearsal, UmaskOfTheHostDoesNotApplyToRecords)
{
    REQUIRE_ADMINISTRATOR_FOR_USERS();
    Workspace const place;
    GiveTo(VICTIM, place.Path());
    auto const written = [folder = place.Path() + "/a/b/c"]
    {
        ::umask(0777);
        MakeFoldersAbove(folder);
        UniqueFd const opened = OpenPrivateFolder(folder);
        WriteNote(opened.Get(), "note", "text");
        return ReadNote(opened.Get(), "note");
    };
    EXPECT_EQ(AsOtherUser(VICTIM, written), "text");
}

TEST(InstallRehearsal, HelperThatSaysNothingIsTold)
{
    RehearsalScene const scene;
    EXPECT_EQ(Told(scene.Bundle(), "/bin/false").substr(0, 4), "854 ");
}

TEST(InstallRehearsal, InstallationOfAnotherIsToldAndNotWaitedForLong)
{
    Workspace const place;
    place.Put(MakeBundle("1.0"));
    UniqueFd const holder(::open((place.Path() + '/' + LockFileName(APP)).c_str(), O_RDWR | O_CREAT | O_CLOEXEC, 0600));
    ASSERT_EQ(::flock(holder.Get(), LOCK_EX | LOCK_NB), 0);
    auto const begin = std::chrono::steady_clock::now();
    EXPECT_EQ(Told(place.Path() + '/' + APP), "LockTimedOut");
    EXPECT_LT(std::chrono::steady_clock::now() - begin, std::chrono::seconds(30));
    EXPECT_EQ(place.Names(), (std::vector<std::string>{LockFileName(APP), APP}));
}

/// In its own namespaces, with this mount option.
std::string InOwnSystem(std::function<std::string()> const& act)
{
    return InChild(
        [&act]() -> std::string
        {
            bool const isOwn = ::unshare(CLONE_NEWNS | CLONE_NEWPID) == 0 &&
                               ::mount("none", "/", nullptr, MS_REC | MS_PRIVATE, nullptr) == 0;
            return isOwn ? InChild(
                               [&act]
                               {
                                   static_cast<void>(::mount("proc", "/proc", "proc", 0, nullptr));
                                   return act();
                               })
                         : "no namespaces";
        });
}

TEST(InstallRehearsal, SystemThatRunsNothingFromMemoryIsNoObstacle)
{
    RehearsalScene const scene;
    std::string const told = InOwnSystem(
        [&scene]() -> std::string
        {
            std::ofstream option("/proc/sys/vm/memfd_noexec");
            option << 2 << std::flush;
            UniqueFd const file(static_cast<int>(::syscall(SYS_memfd_create, "probe", 0x10u)));
            return option && !file && errno == EACCES ? Told(scene.Bundle()) : "no such option";
        });
    if (told == "no namespaces" || told == "no such option")
    {
        GTEST_SKIP() << "this machine lets the test forbid nothing: " << told;
    }
    EXPECT_EQ(told, "ready");
}

/// The reported error, if the bundle is unchanged.
std::string ToldWithoutAChange(std::string const& bundle)
{
    ContentHash const before = TreeOf(bundle);
    std::string const answer = Told(bundle);
    return TreeOf(bundle) == before ? answer : "changed";
}

struct OverlayRow
{
    char const* name;
    char const* mountCommand; ///< the options and the place are appended
};

class OverlayTest : public testing::TestWithParam<OverlayRow>
{
};

/// The layers of an overlay: the application is in the lower layer, or in the upper one if this run has written it.
TEST_P(OverlayTest, LowerLayerIsTold)
{
    for (bool const isBelow : {true, false})
    {
        Workspace const layers;
        layers.Put({{"lower/", 'd', {}, 0755},
                    {"lower/apps/", 'd', {}, 0755},
                    {"disk/", 'd', {}, 0755},
                    {"merged/", 'd', {}, 0755}});
        if (isBelow)
        {
            layers.Put(MakeBundle("1.0"), "lower/apps/");
        }
        std::string const bundle = layers.Path() + "/merged/apps/" + APP;
        std::string const told = InOwnSystem(
            [&]() -> std::string
            {
                std::string const disk = layers.Path() + "/disk";
                std::string const mount = std::string(GetParam().mountCommand) + " -o lowerdir=" + layers.Path() +
                                          "/lower,upperdir=" + disk + "/upper,workdir=" + disk + "/work " +
                                          layers.Path() + "/merged";
                bool const isMounted = ::mount("none", disk.c_str(), "tmpfs", 0, "mode=0755") == 0 &&
                                       ::mkdir((disk + "/upper").c_str(), 0755) == 0 &&
                                       ::mkdir((disk + "/work").c_str(), 0755) == 0 && std::system(mount.c_str()) == 0;
                if (!isMounted)
                {
                    return "no overlay";
                }
                if (!isBelow)
                {
                    layers.Put(MakeBundle("1.0"), "merged/apps/");
                }
                return ToldWithoutAChange(bundle);
            });
        if (told == "no namespaces" || told == "no overlay")
        {
            GTEST_SKIP() << "this machine lets the test mount no overlay: " << told;
        }
        EXPECT_EQ(told, isBelow ? ToldToBeOfALayer(bundle) : "ready");
    }
}

INSTANTIATE_TEST_SUITE_P(InstallRehearsal, OverlayTest,
                         testing::Values(OverlayRow{"OfTheKernel", "mount -t overlay none"},
                                         OverlayRow{"OfAProgram", "fuse-overlayfs"}),
                         [](testing::TestParamInfo<OverlayRow> const& info) { return info.param.name; });

/// A folder that passes its project on to new files takes no folder of another project.
TEST(InstallRehearsal, BundleOfAnotherProjectThanItsFolderIsTold)
{
    if (std::string const reason = WhyImagesCannotBeMounted(); !reason.empty())
    {
        GTEST_SKIP() << reason;
    }
    constexpr unsigned PROJECT = 7;
    Workspace const place;
    FileSystemKind const xfs = FileSystemKinds().at(2);
    ASSERT_STREQ(xfs.type, "xfs");
    std::string const image = place.Path() + "/image";
    ASSERT_TRUE(MakeImage(xfs, image));
    MountedImage const mounted(xfs, image, place.Path() + "/disk");
    ASSERT_TRUE(mounted.IsMounted());
    place.Put(MakeBundle("1.0"), "disk/");
    std::string const bundle = mounted.Point() + '/' + APP;
    EXPECT_EQ(ToldWithoutAChange(bundle), "ready");
    {
        UniqueFd const folder(::open(mounted.Point().c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
        fsxattr attributes{};
        ASSERT_EQ(::ioctl(folder.Get(), FS_IOC_FSGETXATTR, &attributes), 0);
        attributes.fsx_xflags |= FS_XFLAG_PROJINHERIT;
        attributes.fsx_projid = PROJECT;
        ASSERT_EQ(::ioctl(folder.Get(), FS_IOC_FSSETXATTR, &attributes), 0);
    }
    EXPECT_EQ(ToldWithoutAChange(bundle), ToldToBeOfALayer(bundle));
}

TEST(InstallRehearsal, FileThatTakesNothingIsNotWrittenToForEver)
{
    RehearsalScene const scene;
    EXPECT_EQ(InChild(
                  [&scene]
                  {
                      UniqueFd const file(::open((scene.Bundle() + "/run").c_str(), O_WRONLY | O_CLOEXEC));
                      FailCall(SYS_write, 0); // the call returns that no byte was written
                      std::uint8_t const byte = 'x';
                      bool const isWritten = WriteAll(file.Get(), Bytes(&byte, 1));
                      return std::string(isWritten ? "written" : errno == EIO ? "told" : "refused");
                  },
                  20),
              "told");
}

TEST(CloseDescriptors, LeavesNothingOpenOnAnyKernel)
{
    for (int const errorNumber : {0, ENOSYS, EPERM, EINVAL})
    {
        std::string const left = InChild(
            [errorNumber]
            {
                constexpr int FIRST = 50;
                constexpr int NUMBERS[] = {FIRST - 1, FIRST, FIRST + 1, 120, 999};
                for (int const number : NUMBERS)
                {
                    EXPECT_EQ(::dup2(STDERR_FILENO, number), number);
                }
                if (errorNumber != 0)
                {
                    FailCall(SYS_close_range, errorNumber);
                }
                std::string text;
                CloseOnExecFrom(FIRST);
                for (int const number : NUMBERS)
                {
                    text += std::to_string(::fcntl(number, F_GETFD)) + ' ';
                }
                CloseFrom(FIRST);
                for (int const number : NUMBERS)
                {
                    text += std::to_string(::fcntl(number, F_GETFD)) + ' ';
                }
                return text;
            });
        EXPECT_EQ(left, "0 1 1 1 1 0 -1 -1 -1 -1 ") << errorNumber;
    }
}

} // namespace
