#include "Engine/core/update/InstallTarget.h"
#include "Engine/core/base/PathText.h"
#include "Engine/core/helper/FolderSafety.h"
#include "tests/installer/InstallerFixture.h"
#include "tests/installer/OtherUser.h"
#include "tests/support/Container.h"

#include <gtest/gtest.h>

#include <filesystem>

#include <fcntl.h>
#include <grp.h>
#include <linux/fs.h>
#include <sched.h>
#include <sys/ioctl.h>
#include <sys/mount.h>
#include <sys/prctl.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <sys/xattr.h>
#include <unistd.h>

namespace
{

using namespace Pelnar::Engine;
using namespace Pelnar::Testing;

constexpr uid_t NOBODY = 65534;
constexpr uid_t SOMEBODY = 12345;

/// An installed bundle, and nothing of this machine's packages.
class TargetScene
{
public:
    explicit TargetScene(std::string const& parent = "/tmp") : m_place(parent)
    {
        m_place.Put({{"place/", 'd', {}, 0755}, {"none/", 'd', {}, 0755}});
        m_place.Put(MakeBundle("1.0"), "place/");
        m_sources.dpkgInfoFolder = QString::fromStdString(m_place.Path() + "/none");
        m_sources.flatpakInfoFile = QString::fromStdString(m_place.Path() + "/none/file");
    }

    std::string Parent() const { return m_place.Path() + "/place"; }
    std::string Bundle() const { return Parent() + '/' + APP; }
    std::string const& Above() const { return m_place.Path(); }

    OpenedTarget Open(std::string const& path, quint64 neededBytes = 1) const
    {
        return OpenInstallTarget(PathText(path), neededBytes, m_sources);
    }

    /// Fails unless opening answers the cause; the error.
    EngineError ExpectError(ErrorCause cause, std::string const& path = {}, quint64 neededBytes = 1) const
    {
        auto const answer = Open(path.empty() ? Bundle() : path, neededBytes);
        auto const* const error = answer ? nullptr : &answer.error();
        EXPECT_NE(error, nullptr);
        EngineError const told = error ? *error : EngineError{};
        EXPECT_EQ(static_cast<int>(told.cause), static_cast<int>(cause)) << told.sentence.English().toStdString();
        EXPECT_EQ(told.code,
                  cause == ErrorCause::NoRoomForUpdate ? ErrorCode::TemporaryFolder : ErrorCode::NotWritable);
        EXPECT_FALSE(told.sentence.English().contains(QLatin1Char('%'))) << told.sentence.English().toStdString();
        EXPECT_EQ(CauseWithoutPrograms(path, neededBytes), std::to_string(static_cast<int>(cause)));
        return told;
    }

    PackageSources& Sources() { return m_sources; }

private:
    /// The cause, found out by a process that would die if it started a program: nobody is asked for more rights.
    std::string CauseWithoutPrograms(std::string const& path, quint64 neededBytes) const
    {
        return InChild(
            [&]
            {
                KillAtCall(SYS_execve);
                KillAtCall(SYS_execveat);
                auto const answer = Open(path.empty() ? Bundle() : path, neededBytes);
                auto const* const error = answer ? nullptr : &answer.error();
                return error ? std::to_string(static_cast<int>(error->cause)) : std::string("opened");
            });
    }

    Workspace m_place;
    PackageSources m_sources;
};

/// Another effective user, without groups, while it lives. REQUIRES: the administrator.
class AsUser
{
public:
    explicit AsUser(uid_t user)
    {
        EXPECT_EQ(::setgroups(0, nullptr), 0);
        EXPECT_EQ(::setegid(user), 0);
        EXPECT_EQ(::seteuid(user), 0);
    }
    ~AsUser()
    {
        EXPECT_EQ(::seteuid(0), 0);
        EXPECT_EQ(::setegid(0), 0);
    }
};

/// Mounts of this process only. REQUIRES: the administrator.
[[nodiscard]] bool EnterOwnMounts()
{
    return ::unshare(CLONE_NEWNS) == 0 && ::mount("none", "/", nullptr, MS_REC | MS_PRIVATE, nullptr) == 0;
}

class Mount
{
public:
    Mount(char const* type, std::string const& source, std::string path, unsigned long flags, char const* options = "")
        : m_path(std::move(path))
    {
        EXPECT_EQ(::mount(source.c_str(), m_path.c_str(), type, flags, options), 0) << m_path;
    }
    ~Mount() { ::umount2(m_path.c_str(), MNT_DETACH); }
    Mount(Mount const&) = delete;
    Mount& operator=(Mount const&) = delete;

private:
    std::string m_path;
};

#define REQUIRE_ADMINISTRATOR()                                                                                        \
    if (::geteuid() != 0)                                                                                              \
    GTEST_SKIP() << "only root can give files away"
#define IN_CONTAINER(piece)                                                                                            \
    if (!RunInContainer(piece))                                                                                        \
    GTEST_SKIP() << "the kernel lets this user make no container, in which it may mount"

TEST(InstallTarget, IsOpenedWithItsRealPath)
{
    TargetScene const scene;
    for (std::string const& path : {scene.Bundle(), scene.Bundle() + "/", scene.Bundle() + "//"})
    {
        auto const answer = scene.Open(path);
        auto const* const target = answer ? &answer.value() : nullptr;
        ASSERT_NE(target, nullptr) << answer.error().sentence.English().toStdString();
        EXPECT_EQ(target->path.toStdString(), scene.Bundle());
        EXPECT_EQ(target->name, APP);
        struct stat bundle;
        struct stat named;
        ASSERT_EQ(::fstat(target->bundle.Get(), &bundle), 0);
        ASSERT_EQ(::fstatat(target->parent.Get(), APP, &named, 0), 0);
        EXPECT_EQ(bundle.st_ino, named.st_ino);
    }
}

TEST(InstallTarget, LinkAboveItIsFollowedOnce)
{
    TargetScene const scene;
    std::string const link = scene.Above() + "/link";
    ASSERT_EQ(::symlink(scene.Parent().c_str(), link.c_str()), 0);
    auto const answer = scene.Open(link + '/' + APP);
    ASSERT_TRUE(answer.has_value());
    EXPECT_EQ(answer.value().path.toStdString(), scene.Bundle());
}

/// What was opened through a link is what is updated, wherever the link leads by then.
TEST(InstallTarget, LinkAboveItThatIsTurnedLaterLeadsNowhereElse)
{
    UpdateScene scene;
    Workspace const other;
    other.Put(MakeBundle("1.0"));
    Workspace const links;
    std::string const link = links.Path() + "/link";
    ASSERT_EQ(::symlink(scene.Place().Path().c_str(), link.c_str()), 0);
    PackageSources sources;
    sources.dpkgInfoFolder = QStringLiteral("/nonexistent");
    auto const opened = OpenInstallTarget(PathText(link + '/' + APP), 1, sources);
    auto const* const target = opened ? &opened.value() : nullptr;
    ASSERT_NE(target, nullptr);
    InstallJob job = scene.PrepareForInstall();
    job.targetPath = PathBytes(target->path);
    scene.Host().End();
    ASSERT_EQ(::unlink(link.c_str()), 0);
    ASSERT_EQ(::symlink(other.Path().c_str(), link.c_str()), 0);
    HelperOutcome const outcome = RunHelper("install", EncodeUpdateJob(job),
                                            {{HelperDescriptors::PARENT, target->parent.Get()},
                                             {HelperDescriptors::STAGING, scene.StagingDescriptor()},
                                             {HelperDescriptors::HOST, scene.Host().ProcessDescriptor()}});
    EXPECT_EQ(outcome.exitStatus, 0) << FaultName(outcome.Fault());
    EXPECT_EQ(outcome.output, "2.0|" + scene.Place().Path() + '/' + APP + "/run|0|\n");
    EXPECT_EQ(scene.Place().StartedVersion(), "2.0");
    EXPECT_EQ(other.Names(), std::vector<std::string>{APP});
    EXPECT_EQ(other.StartedVersion(), "1.0");
}

TEST(InstallTarget, NamesMayHoldAnythingThatCanBeWritten)
{
    TargetScene const scene;
    for (std::string const& name :
         {std::string("a b'\"\n$HOME;ls.app"), std::string("\xc3\xa4\xe2\x82\xac.app"), std::string(251, 'n') + ".app",
          std::string("\xff\xfe \xc3.app"), std::string("back\\slash.app"), std::string("\xed\xa0\x80.app")})
    {
        std::filesystem::rename(scene.Bundle(), scene.Parent() + '/' + name);
        auto const answer = scene.Open(scene.Parent() + '/' + name);
        ASSERT_TRUE(answer.has_value()) << name;
        EXPECT_EQ(answer.value().name, name);
        EXPECT_EQ(PathBytes(answer.value().path), scene.Parent() + '/' + name);
        std::filesystem::rename(scene.Parent() + '/' + name, scene.Bundle());
    }
}

TEST(PathText, EveryPathComesBack)
{
    std::string every;
    for (int first = 1; first < 256; ++first)
    {
        every += static_cast<char>(first);
    }
    for (std::string const& bytes : {std::string(), every, std::string("/plain"), std::string("\xef\xbb\xbf/mark"),
                                     std::string("\xc3\xa4\xff\xc3"), std::string("\xf0\x9f\x98\x80\xf0\x9f\x98"),
                                     std::string("\xf0\x9f\x98\x80\xb2"), std::string("\xed\xb2\x80"),
                                     std::string("\xed\xa0\xbd\xed\xb8\x80"), std::string("\xc0\xaf\xf5\x80\x80\x80")})
    {
        EXPECT_EQ(PathBytes(PathText(bytes)), bytes);
    }
    QString const text = QString::fromUtf8("/\u00e4\u20ac\U0001f600/a\\b");
    EXPECT_EQ(PathText(text.toStdString()), text);
    EXPECT_FALSE(PathText("\xff").isValidUtf16());
}

TEST(InstallTarget, LinkOrNothingInItsPlaceIsRefused)
{
    TargetScene const scene;
    std::string const link = scene.Parent() + "/Link.app";
    ASSERT_EQ(::symlink(APP, link.c_str()), 0);
    scene.ExpectError(ErrorCause::BundleIsLink, link);
    scene.ExpectError(ErrorCause::BundleIsLink, link + "/");
    scene.ExpectError(ErrorCause::BundleMissing, scene.Parent() + "/None.app");
    scene.ExpectError(ErrorCause::BundleMissing, scene.Bundle() + "/run"); // a file
    for (char const* const path : {"relative/My App.app", "/", "", "/.", "/tmp/.."})
    {
        auto const answer = scene.Open(path);
        ASSERT_FALSE(answer.has_value()) << path;
        EXPECT_EQ(answer.error().cause, ErrorCause::BundleMissing) << path;
    }
}

TEST(InstallTarget, PackagesBundleIsLeftToItsManager)
{
    TargetScene scene;
    WriteFile(scene.Above() + "/none/demo.list", scene.Bundle() + "\n");
    EngineError const error = scene.ExpectError(ErrorCause::BundleOfPackage);
    EXPECT_TRUE(error.sentence.English().contains(QStringLiteral("\"sudo apt install --only-upgrade demo\"")))
        << error.sentence.English().toStdString();
    scene.Sources().dpkgInfoFolder = QStringLiteral("/nonexistent");
    scene.Sources().appImageVariable = QStringLiteral("/home/me/Demo.AppImage");
    scene.Sources().appFolderVariable = QString::fromStdString(scene.Parent());
    EXPECT_TRUE(scene.ExpectError(ErrorCause::BundleInImage)
                    .sentence.English()
                    .contains(QStringLiteral("/home/me/Demo.AppImage")));
}

TEST(InstallTarget, LinkToAPackagesBundleHidesNothing)
{
    TargetScene const scene;
    WriteFile(scene.Above() + "/none/demo.list", scene.Bundle() + "\n");
    std::string const link = scene.Above() + "/link";
    ASSERT_EQ(::symlink(scene.Parent().c_str(), link.c_str()), 0);
    scene.ExpectError(ErrorCause::BundleOfPackage, link + '/' + APP);
}

TEST(InstallTarget, ReadOnlyMountIsRefused)
{
    IN_CONTAINER(
        []
        {
            TargetScene const scene("/");
            Mount const bind("none", scene.Parent(), scene.Parent(), MS_BIND);
            Mount const readOnly("none", "none", scene.Parent(), MS_BIND | MS_REMOUNT | MS_RDONLY);
            scene.ExpectError(ErrorCause::BundleOnReadOnlyFileSystem);
        });
}

TEST(InstallTarget, BundleThatIsADiskOfItsOwnIsRefused)
{
    IN_CONTAINER(
        []
        {
            TargetScene const scene("/");
            Mount const bind("none", scene.Bundle(), scene.Bundle(), MS_BIND);
            scene.ExpectError(ErrorCause::BundleIsMountPoint);
        });
}

TEST(InstallTarget, LackOfRoomIsToldInNumbers)
{
    IN_CONTAINER(
        []
        {
            TargetScene const scene("/");
            Mount const small("tmpfs", "none", scene.Parent(), 0, "size=1m,mode=0755");
            ASSERT_EQ(::mkdir(scene.Bundle().c_str(), 0755), 0);
            // A quarter of so small a disk stays free, as in a download.
            EXPECT_TRUE(scene.Open(scene.Bundle(), quint64{3} << 18).has_value());
            scene.ExpectError(ErrorCause::NoRoomForUpdate, scene.Bundle(), (quint64{3} << 18) + 1);
            EngineError const error =
                scene.ExpectError(ErrorCause::NoRoomForUpdate, scene.Bundle(), (quint64{1} << 30) + (quint64{1} << 29));
            EXPECT_TRUE(error.sentence.English().contains(QStringLiteral("1.6 GB")))
                << error.sentence.English().toStdString();
            EXPECT_TRUE(error.sentence.English().contains(QStringLiteral("1.0 MB")))
                << error.sentence.English().toStdString();
            scene.ExpectError(ErrorCause::NoRoomForUpdate, scene.Bundle(), ~quint64{0});
        });
}

class ProtectedEntry
{
public:
    ProtectedEntry(std::string const& path, int flag) : m_entry(::open(path.c_str(), O_RDONLY | O_CLOEXEC))
    {
        isProtected = ::ioctl(m_entry.Get(), FS_IOC_GETFLAGS, &m_before) == 0 && Set(m_before | flag);
    }
    ~ProtectedEntry()
    {
        if (isProtected)
        {
            EXPECT_TRUE(Set(m_before));
        }
    }
    ProtectedEntry(ProtectedEntry const&) = delete;
    ProtectedEntry& operator=(ProtectedEntry const&) = delete;

    bool isProtected = false;

private:
    bool Set(int flags) const { return ::ioctl(m_entry.Get(), FS_IOC_SETFLAGS, &flags) == 0; }

    UniqueFd m_entry;
    int m_before = 0;
};

TEST(InstallTarget, ProtectedFoldersAreRefused)
{
    TargetScene const scene;
    for (int const flag : {FS_IMMUTABLE_FL, FS_APPEND_FL})
    {
        for (std::string const& path : {scene.Parent(), scene.Bundle()})
        {
            ProtectedEntry const folder(path, flag);
            if (!folder.isProtected)
            {
                GTEST_SKIP() << "this user or this disk cannot protect files from root";
            }
            scene.ExpectError(ErrorCause::BundleImmutable);
        }
    }
    EXPECT_TRUE(scene.Open(scene.Bundle()).has_value());
}

/// A file that cannot be removed would keep the previous version on the disk for ever.
TEST(InstallTarget, ProtectedFileAnywhereInTheBundleIsRefused)
{
    TargetScene const scene;
    for (int const flag : {FS_IMMUTABLE_FL, FS_APPEND_FL})
    {
        for (char const* const path : {"/run", "/Resources", "/Resources/Info-gnustep.plist"})
        {
            SCOPED_TRACE(path);
            ProtectedEntry const entry(scene.Bundle() + path, flag);
            if (!entry.isProtected)
            {
                GTEST_SKIP() << "this user or this disk cannot protect files from root";
            }
            scene.ExpectError(ErrorCause::BundleImmutable);
        }
    }
    EXPECT_TRUE(scene.Open(scene.Bundle()).has_value());
}

TEST(InstallTarget, AnotherUsersBundleIsRefused)
{
    REQUIRE_ADMINISTRATOR();
    TargetScene const scene;
    ASSERT_EQ(::chmod(scene.Above().c_str(), 0755), 0);
    {
        AsUser const nobody(NOBODY); // the bundle is the administrator's
        scene.ExpectError(ErrorCause::BundleOfAnotherUser);
    }
    GiveTo(SOMEBODY, scene.Parent());
    {
        AsUser const nobody(NOBODY);
        scene.ExpectError(ErrorCause::BundleOfAnotherUser);
    }
    scene.ExpectError(ErrorCause::BundleOfAnotherUser); // the administrator would take it away from its owner
}

TEST(InstallTarget, AnotherUsersFolderInTheBundleIsRefused)
{
    REQUIRE_ADMINISTRATOR();
    TargetScene const scene;
    ASSERT_EQ(::chmod(scene.Above().c_str(), 0755), 0);
    GiveTo(NOBODY, scene.Parent());
    for (uid_t const owner : {uid_t{0}, SOMEBODY})
    {
        GiveTo(owner, scene.Bundle() + "/Resources");
        AsUser const nobody(NOBODY);
        scene.ExpectError(ErrorCause::BundleOfAnotherUser);
    }
    GiveTo(NOBODY, scene.Bundle() + "/Resources");
    GiveTo(SOMEBODY, scene.Bundle() + "/run"); // a file goes with its folder
    AsUser const nobody(NOBODY);
    EXPECT_TRUE(scene.Open(scene.Bundle()).has_value());
}

TEST(InstallTarget, FoldersThatMayNotBeChangedAreRefused)
{
    REQUIRE_ADMINISTRATOR();
    TargetScene const scene;
    ASSERT_EQ(::chmod(scene.Above().c_str(), 0755), 0);
    GiveTo(NOBODY, scene.Bundle());
    {
        AsUser const nobody(NOBODY); // the bundle is theirs, the folder is not
        scene.ExpectError(ErrorCause::BundleNotWritable);
    }
    GiveTo(NOBODY, scene.Parent());
    {
        AsUser const nobody(NOBODY);
        EXPECT_TRUE(scene.Open(scene.Bundle()).has_value());
        ASSERT_EQ(::chmod(scene.Bundle().c_str(), 0555), 0);
        scene.ExpectError(ErrorCause::BundleNotWritable);
        ASSERT_EQ(::chmod(scene.Bundle().c_str(), 0755), 0);
        ASSERT_EQ(::chmod(scene.Parent().c_str(), 0555), 0);
        scene.ExpectError(ErrorCause::BundleNotWritable);
    }
    ASSERT_EQ(::chmod(scene.Above().c_str(), 0700), 0);
    AsUser const nobody(NOBODY);
    scene.ExpectError(ErrorCause::BundleNotWritable); // it cannot even be seen
}

/// A user namespace in which this user is root, and the machine's root is nobody.
std::string InUserNamespace(std::function<std::string()> const& act)
{
    std::string const map = "0 " + std::to_string(::geteuid()) + " 1";
    if (::unshare(CLONE_NEWUSER) != 0)
    {
        return "not permitted";
    }
    // After a change of users the kernel gives this process' files in /proc to root.
    ::prctl(PR_SET_DUMPABLE, 1, 0, 0, 0);
    UniqueFd const file(::open("/proc/self/uid_map", O_WRONLY | O_CLOEXEC));
    bool const isMapped = ::write(file.Get(), map.data(), map.size()) == static_cast<ssize_t>(map.size());
    return isMapped ? act() : "not permitted";
}

TEST(InstallTarget, UserNamespaceThatHidesTheOwnersOfFoldersIsNamed)
{
    TargetScene const scene;
    auto const open = [&scene]
    {
        auto const opened = scene.Open(scene.Bundle());
        auto const* const error = opened ? nullptr : &opened.error();
        return !error                                          ? std::string("opened")
               : error->cause == ErrorCause::BundleOwnerHidden ? error->sentence.English().toStdString()
                                                               : std::to_string(static_cast<int>(error->cause));
    };
    auto const inNamespace = [&open] { return InUserNamespace(open); };
    std::string answer;
    if (::geteuid() == 0)
    {
        ASSERT_EQ(::chmod(scene.Above().c_str(), 0755), 0);
        GiveTo(VICTIM, scene.Above());
        answer = AsOtherUser(VICTIM, inNamespace);
    }
    else
    {
        answer = InChild(inNamespace);
    }
    if (answer == "not permitted")
    {
        GTEST_SKIP() << "this user may make no user namespace";
    }
    EXPECT_EQ(answer,
              "The application runs in a container that hides the owner of the folder \"/tmp\". Start it outside "
              "the container to update it.");
}

TEST(InstallTarget, FoldersThatOthersMayChangeAreRefused)
{
    TargetScene const scene;
    for (std::string const& path : {scene.Bundle(), scene.Parent(), scene.Above()})
    {
        ASSERT_EQ(::chmod(path.c_str(), 0777), 0);
        scene.ExpectError(ErrorCause::BundleFolderUnsafe);
        ASSERT_EQ(::chmod(path.c_str(), 0755), 0);
    }
    EXPECT_TRUE(scene.Open(scene.Bundle()).has_value());
}

TEST(InstallTarget, FolderThatAllMayWriteToHoldsNoApplicationEvenWhereNamesAreSafe)
{
    TargetScene const scene;
    for (std::string const& path : {scene.Bundle(), scene.Parent()})
    {
        ASSERT_EQ(::chmod(path.c_str(), 01777), 0);
        EngineError const error = scene.ExpectError(ErrorCause::BundleInSharedFolder);
        EXPECT_TRUE(error.sentence.English().contains(QStringLiteral("the folder ") + QString::fromStdString(path)))
            << error.sentence.English().toStdString();
        ASSERT_EQ(::chmod(path.c_str(), 0755), 0);
    }
    ASSERT_EQ(::chmod(scene.Above().c_str(), 01777), 0); // as /tmp: what stands in it belongs to its owner
    EXPECT_TRUE(scene.Open(scene.Bundle()).has_value());
}

struct GroupRow
{
    char const* name;
    char const* users;  ///< lines of the users' list
    char const* groups; ///< lines of the groups' list
    bool isPrivate;
};

class GroupsFolder : public testing::TestWithParam<GroupRow>
{
};

/// The folder belongs to the user "me" and to the group 12345, which may write there.
TEST_P(GroupsFolder, IsTheUsersOwnOrToldWithTheCommandThatMendsIt)
{
    REQUIRE_ADMINISTRATOR();
    GroupRow const& row = GetParam();
    TargetScene const scene;
    ASSERT_EQ(::chmod(scene.Above().c_str(), 0755), 0);
    GiveTo(SOMEBODY, scene.Parent());
    std::string const lists = scene.Above() + "/none/";
    WriteFile(lists + "passwd", row.users);
    WriteFile(lists + "group", row.groups);
    for (mode_t const mode : {0775, 02775})
    {
        for (std::string const& path : {scene.Bundle(), scene.Parent()})
        {
            ASSERT_EQ(::chmod(path.c_str(), mode), 0);
            ASSERT_EQ(::chmod((scene.Bundle() + "/run").c_str(), 0775), 0);
            std::string const told = AsOtherUser(
                0,
                [&]
                {
                    if (!EnterOwnMounts() || ::mount((lists + "passwd").c_str(), "/etc/passwd", "", MS_BIND, "") != 0 ||
                        ::mount((lists + "group").c_str(), "/etc/group", "", MS_BIND, "") != 0 ||
                        ::seteuid(SOMEBODY) != 0)
                    {
                        return std::string("cannot change the lists");
                    }
                    UniqueFd const program(::open((scene.Bundle() + "/run").c_str(), O_RDONLY | O_CLOEXEC));
                    if (IsSafeByItself(program.Get()) != row.isPrivate)
                    {
                        return std::string("files are judged in another way");
                    }
                    auto const answer = scene.Open(scene.Bundle());
                    auto const* const error = answer ? nullptr : &answer.error();
                    return error ? error->sentence.English().toStdString() : std::string("opened");
                });
            std::string const refusal =
                "The members of the group \"ours\" can change the application's folder. Use the command \"chmod g-w '" +
                path + "'\".";
            EXPECT_EQ(told, row.isPrivate ? "opened" : refusal);
            ASSERT_EQ(::chmod(path.c_str(), 0755), 0);
        }
    }
}

constexpr char ONLY_ME[] = "root:x:0:0::/:/bin/sh\nours:x:12345:12345::/:/bin/sh\n";

INSTANTIATE_TEST_SUITE_P(
    Table, GroupsFolder,
    testing::Values(
        GroupRow{"OfOne", ONLY_ME, "ours:x:12345:\n", true},
        GroupRow{"OfOneWhoIsListed", ONLY_ME, "ours:x:12345:ours\n", true},
        GroupRow{"OfTwo", ONLY_ME, "ours:x:12345:ours,other\n", false},
        GroupRow{"OfAnother", ONLY_ME, "ours:x:12345:other\n", false},
        GroupRow{"ThatAnotherUserHasFirst",
                 "root:x:0:0::/:/bin/sh\nours:x:12345:12345::/:/bin/sh\nb:x:7:12345::/:/bin/sh\n", "ours:x:12345:\n",
                 false},
        GroupRow{"OfAnotherName", "root:x:0:0::/:/bin/sh\nme:x:12345:12345::/:/bin/sh\n", "ours:x:12345:\n", false},
        GroupRow{"NotTheUsersFirst", "root:x:0:0::/:/bin/sh\nours:x:12345:100::/:/bin/sh\n", "ours:x:12345:\n", false},
        GroupRow{"OfAUserWhoIsNotListed", "root:x:0:0::/:/bin/sh\n", "ours:x:12345:\n", false}),
    [](testing::TestParamInfo<GroupRow> const& info) { return info.param.name; });

TEST(InstallTarget, AccessListSpeaksForMoreThanTheGroup)
{
    TargetScene const scene;
    // user::rwx, user:54321:rwx, group::r-x, mask::rwx, other::r-x
    constexpr std::uint32_t LIST[] = {2,   0x00070001, ~0u, 0x00070002, 54321, 0x00050004,
                                      ~0u, 0x00070010, ~0u, 0x00050020, ~0u};
    if (::setxattr(scene.Parent().c_str(), "system.posix_acl_access", LIST, sizeof LIST, 0) != 0)
    {
        GTEST_SKIP() << "this file system has no access lists";
    }
    scene.ExpectError(ErrorCause::BundleOpenToGroup);
}

} // namespace
