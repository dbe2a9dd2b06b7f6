#include "Engine/core/update/InstallTarget.h"
#include "Engine/core/base/PathText.h"
#include "Engine/core/helper/FolderSafety.h"
#include "tests/engine_core/update/InstallTargetScene.h"
#include "tests/installer/InstallerFixture.h"
#include "tests/installer/OtherUser.h"
#include "tests/support/Container.h"

#include <gtest/gtest.h>

#include <filesystem>

#include <fcntl.h>
#include <linux/fs.h>
#include <sys/ioctl.h>
#include <sys/mount.h>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>

namespace
{

using namespace Pelnar::Engine;
using namespace Pelnar::Testing;

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

/// The bundle that was opened through a link is updated, even if the link has changed since.
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

TEST(InstallTarget, DiskInsideTheBundleIsRefused)
{
    for (char const* const path : {"/Resources", "/Resources/Info-gnustep.plist"})
    {
        IN_CONTAINER(
            [path]
            {
                TargetScene const scene("/");
                Mount const bind("none", scene.Bundle() + path, scene.Bundle() + path, MS_BIND);
                scene.ExpectError(ErrorCause::BundleIsMountPoint);
            });
    }
}

TEST(InstallTarget, LackOfRoomIsToldInNumbers)
{
    IN_CONTAINER(
        []
        {
            TargetScene const scene("/");
            Mount const small("tmpfs", "none", scene.Parent(), 0, "size=1m,mode=0755");
            ASSERT_EQ(::mkdir(scene.Bundle().c_str(), 0755), 0);
            // A quarter of such a small disk stays free, as in a download.
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

} // namespace
