#include "Engine/core/update/PackageOwner.h"
#include "tests/installer/InstallerFixture.h"

#include <gtest/gtest.h>

namespace
{

using namespace Pelnar::Engine;
using namespace Pelnar::Testing;

/// A system with four package managers. Their databases belong to the scene, not to this machine.
class PackageScene
{
public:
    PackageScene()
    {
        m_place.Put({
            {"info/", 'd', {}, 0755},
            {"info/alpha.list", 'f', "/.\n/opt\n/opt/alpha\n/opt/alpha/Alpha.app\n/opt/alpha/Alpha.app/run\n"},
            {"info/beta:amd64.list", 'f', "/opt/Beta.app\n"},
            {"info/gamma.list", 'f',
             "/lib/gamma/Gamma.app"
             "\n"},
            {"info/delta.list", 'f', "/usr/lib/delta/Delta.app\n"},
            {"info/bad name;.list", 'f', "/opt/Bad.app\n"},
            {"info/alpha.md5sums", 'f', "/opt/Sums.app\n"},
            {"flatpak-info", 'f',
             "[Runtime]\nname=org.pelnar.Runtime\n\n[Application]\nruntime=x\nname=org.pelnar.Demo\n"},
            {"flatpak-nothing", 'f', "[Instance]\nname=org.pelnar.Demo\n"},
            {"flatpak-bad", 'f', "[Application]\nname=a; rm -rf b\n"},
        });
        sources.dpkgInfoFolder = Below("info");
        sources.flatpakInfoFile = Below("none");
        sources.snapFolder = QStringLiteral("/snap");
    }

    QString Below(char const* name) const { return QString::fromStdString(m_place.Path() + '/' + name); }

    PackageSources sources;

private:
    Workspace m_place;
};

struct OwnerRow
{
    char const* name;
    char const* bundlePath;
    void (*arrange)(PackageScene& scene);
    char const* package; ///< empty: no package owns it
    PackageManager manager;
    char const* command;
};

void AsItIs(PackageScene&) {}
void InFlatpak(PackageScene& scene)
{
    scene.sources.flatpakInfoFile = scene.Below("flatpak-info");
}
void InSnap(PackageScene& scene)
{
    scene.sources.snapVariable = QStringLiteral("/var/lib/snapd/snap/demo/x12");
}
void InAppImage(PackageScene& scene)
{
    scene.sources.appImageVariable = QStringLiteral("/home/me/Demo.AppImage");
    scene.sources.appFolderVariable = QStringLiteral("/tmp/.mount_DemoXYZ");
}

class PackageOwners : public testing::TestWithParam<OwnerRow>
{
};

TEST_P(PackageOwners, AreFoundByTheBundlesPath)
{
    PackageScene scene;
    GetParam().arrange(scene);
    auto const owner = FindPackageOwner(QString::fromUtf8(GetParam().bundlePath), scene.sources);
    ASSERT_EQ(owner.has_value(), GetParam().package != nullptr);
    if (owner)
    {
        EXPECT_EQ(owner->package.toStdString(), GetParam().package);
        EXPECT_EQ(owner->manager, GetParam().manager);
        EXPECT_EQ(owner->command.toStdString(), GetParam().command);
    }
}

constexpr auto DPKG = PackageManager::Dpkg;
constexpr auto FLATPAK = PackageManager::Flatpak;
constexpr auto SNAP = PackageManager::Snap;
constexpr auto IMAGE = PackageManager::AppImage;

INSTANTIATE_TEST_SUITE_P(
    Table, PackageOwners,
    testing::Values(
        OwnerRow{"Nobody", "/opt/Own.app", &AsItIs, nullptr, DPKG, ""},
        OwnerRow{"Dpkg", "/opt/alpha/Alpha.app", &AsItIs, "alpha", DPKG, "sudo apt install --only-upgrade alpha"},
        OwnerRow{"DpkgOfAnArchitecture", "/opt/Beta.app", &AsItIs, "beta", DPKG,
                 "sudo apt install --only-upgrade beta"},
        OwnerRow{"DpkgListsTheOldName", "/usr/lib/gamma/Gamma.app", &AsItIs, "gamma", DPKG,
                 "sudo apt install --only-upgrade gamma"},
        OwnerRow{"DpkgListsTheNewName", "/lib/delta/Delta.app", &AsItIs, "delta", DPKG,
                 "sudo apt install --only-upgrade delta"},
        OwnerRow{"PartOfAPath", "/opt/alpha/Alpha", &AsItIs, nullptr, DPKG, ""},
        OwnerRow{"EndOfAPath", "/Alpha.app", &AsItIs, nullptr, DPKG, ""},
        OwnerRow{"NameUnfitForACommand", "/opt/Bad.app", &AsItIs, nullptr, DPKG, ""},
        OwnerRow{"OtherFilesAreNoLists", "/opt/Sums.app", &AsItIs, nullptr, DPKG, ""},
        OwnerRow{"NoDpkgHere", "/opt/Beta.app", [](PackageScene& s) { s.sources.dpkgInfoFolder = s.Below("none"); },
                 nullptr, DPKG, ""},
        OwnerRow{"Flatpak", "/app/Demo.app", &InFlatpak, "org.pelnar.Demo", FLATPAK, "flatpak update org.pelnar.Demo"},
        OwnerRow{"OutsideOfTheFlatpak", "/home/me/Demo.app", &InFlatpak, nullptr, FLATPAK, ""},
        OwnerRow{"FlatpakWithoutAName", "/app/Demo.app",
                 [](PackageScene& s) { s.sources.flatpakInfoFile = s.Below("flatpak-nothing"); }, nullptr, FLATPAK, ""},
        OwnerRow{"FlatpakNameUnfitForACommand", "/app/Demo.app",
                 [](PackageScene& s) { s.sources.flatpakInfoFile = s.Below("flatpak-bad"); }, nullptr, FLATPAK, ""},
        OwnerRow{"Snap", "/snap/demo/12/Demo.app", &AsItIs, "demo", SNAP, "snap refresh demo"},
        OwnerRow{"SnapFolderElsewhere", "/var/lib/snapd/snap/demo/x12/opt/Demo.app", &InSnap, "demo", SNAP,
                 "snap refresh demo"},
        OwnerRow{"OutsideOfTheSnap", "/var/lib/snapd/snap/demo/x123/Demo.app", &InSnap, nullptr, SNAP, ""},
        OwnerRow{"AppImage", "/tmp/.mount_DemoXYZ/Demo.app", &InAppImage, "/home/me/Demo.AppImage", IMAGE, ""},
        OwnerRow{"StartedFromAnAppImage", "/home/me/Demo.app", &InAppImage, nullptr, IMAGE, ""}),
    [](testing::TestParamInfo<OwnerRow> const& info) { return info.param.name; });

TEST(PackageOwner, VariablesComeFromTheEnvironment)
{
    ::setenv("SNAP", "/snap/demo/1", 1);
    ::setenv("APPIMAGE", "/home/me/Demo.AppImage", 1);
    ::setenv("APPDIR", "/tmp/.mount_Demo", 1);
    PackageSources const sources = PackageSources::OfThisProcess();
    EXPECT_EQ(sources.snapVariable, QStringLiteral("/snap/demo/1"));
    EXPECT_EQ(sources.appImageVariable, QStringLiteral("/home/me/Demo.AppImage"));
    EXPECT_EQ(sources.appFolderVariable, QStringLiteral("/tmp/.mount_Demo"));
}

TEST(PackageOwner, ThisSystemsOwnProgramsAreFound)
{
    if (::access("/var/lib/dpkg/info/dpkg.list", R_OK) != 0)
    {
        GTEST_SKIP() << "not a Debian system";
    }
    auto const owner = FindPackageOwner(QStringLiteral("/usr/bin/dpkg"), PackageSources::OfThisProcess());
    ASSERT_TRUE(owner.has_value());
    EXPECT_EQ(owner->package, QStringLiteral("dpkg"));
}

} // namespace
