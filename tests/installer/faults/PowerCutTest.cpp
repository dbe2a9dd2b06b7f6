// PowerCutTest.cpp: a power cut at any disk call of the helper. The disk is an image in a file. While the helper stands
// still, the file is copied, and the copy is mounted like the disk after the next start of the machine. The default run
// takes a sample of the places, with all renames; with PELNAR_EVERY_PLACE=1 in the environment it takes all.

#include "tests/installer/FaultChecks.h"
#include "tests/installer/LoopImage.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <filesystem>
#include <functional>
#include <optional>
#include <random>
#include <set>

#include <fcntl.h>
#include <sys/syscall.h>
#include <unistd.h>

namespace
{

using namespace Pelnar::Engine;
using namespace Pelnar::Testing;

std::set<long> const DISK_CALLS{SYS_write,     SYS_pwrite64, SYS_openat,    SYS_openat2,   SYS_mkdirat,
                                SYS_symlinkat, SYS_fchmod,   SYS_fchmodat,  SYS_utimensat, SYS_fsync,
                                SYS_syncfs,    SYS_renameat, SYS_renameat2, SYS_unlinkat,  SYS_exit_group};
constexpr unsigned SAMPLE_OF = 8; ///< one place in so many

bool IsRename(CallStop const& stop)
{
    return stop.call == SYS_renameat || stop.call == SYS_renameat2;
}

/// The kernel writes to the disk when it is asked, and also at any other time.
enum class Writeback
{
    AsLateAsAllowed,
    AtAnyTime,
};

struct Cut
{
    FileSystemKind kind;
    Writeback writeback;
};

void PrintTo(Cut const& cut, std::ostream* out)
{
    *out << cut.kind.name;
}

class PowerCut : public testing::TestWithParam<Cut>
{
protected:
    void SetUp() override
    {
        std::string const reason = WhyImagesCannotBeMounted();
        if (!reason.empty())
        {
            GTEST_SKIP() << reason;
        }
        ASSERT_TRUE(MakeImage(GetParam().kind, m_files.Path() + "/empty")) << GetParam().kind.makeCommand;
    }

    /// Runs \a act, which calls the helper with the given start, on a new file system, and cuts the power at several
    /// places. \a prepareScene comes before, without power cuts.
    template <typename Prepare, typename Act>
    void CutEverywhere(Prepare const& prepareScene, Act const& act)
    {
        unsigned place = m_random() % SAMPLE_OF;
        RunOnce(prepareScene, act,
                [&](CallStop const& stop)
                { return IsEveryPlaceWanted() || place++ % SAMPLE_OF == 0 || IsRename(stop); });
        EXPECT_GT(m_cuts, 1);
        RecordProperty("cuts", m_cuts);
        RecordProperty("missing_until_recovered", m_missing);
    }

    /// The bundle's tree on the disk at the moment when the helper reports the new version as installed.
    ContentHash TreeWhenToldInstalled(bool areSyncsDone)
    {
        ContentHash tree{};
        bool isTold = false;
        m_areSyncsDone = areSyncsDone;
        m_onInstalled = [&](std::string const& placeBelow)
        {
            CopyImage(m_files.Path() + "/disk", m_files.Path() + "/cut");
            MountedImage const disk(GetParam().kind, m_files.Path() + "/cut", m_files.Path() + "/after");
            tree = TreeOf(disk.Point() + placeBelow + '/' + APP);
            isTold = true;
        };
        InstallJob job;
        RunOnce(
            [&job](UpdateScene& scene)
            {
                job = scene.PrepareForInstall();
                scene.Host().End();
            },
            [&job](UpdateScene& scene, HelperStart const& start)
            { EXPECT_EQ(scene.Install(job, start).exitStatus, 0); },
            [](CallStop const&) { return false; });
        EXPECT_TRUE(isTold);
        return tree;
    }
    Versions versions;
    std::string archive = MakeArchive(Container::Zip, MakeBundle("2.0"));

    /// The bundle may be missing until the helper has recovered it.
    void AllowMissing() { m_isMissingAllowed = true; }
    int Missing() const { return m_missing; }
    bool isExchangeRefused = false;

private:
    template <typename Prepare, typename Act, typename IsWanted>
    void RunOnce(Prepare const& prepareScene, Act const& act, IsWanted const& isWanted)
    {
        std::string const image = m_files.Path() + "/disk";
        CopyImage(m_files.Path() + "/empty", image);
        MountedImage const disk(GetParam().kind, image, m_files.Path() + "/mount");
        ASSERT_TRUE(disk.IsMounted());
        m_isNewCertain = false;
        std::optional<UpdateScene> scene;
        scene.emplace(archive, disk.Point());
        prepareScene(*scene);
        ::syncfs(scene->Place().Descriptor());
        std::string const placeBelow = scene->Place().Path().substr(disk.Point().size());
        HelperStart start;
        start.atEveryCall = [&](CallStop const& stop)
        {
            // Also between two renames; the disk may have only the first one.
            if (GetParam().writeback == Writeback::AtAnyTime && (IsRename(stop) || m_random() % 3 == 0))
            {
                ::syncfs(scene->Place().Descriptor());
            }
            if (DISK_CALLS.count(stop.call) != 0 && isWanted(stop))
            {
                SCOPED_TRACE(testing::Message()
                             << "power cut before " << CallName(stop.call) << ", call " << stop.index);
                CopyImage(image, m_files.Path() + "/cut");
                ExpectWholeOnTheCut(placeBelow);
            }
            bool const isReport = stop.call == SYS_write && stop.arguments[0] == HelperDescriptors::REPORT;
            if (isReport && PathArgument(stop, 1).substr(0, 9) == "installed")
            {
                m_isNewCertain = true;
                m_onInstalled(placeBelow);
            }
            bool const isSync = stop.call == SYS_fsync || stop.call == SYS_syncfs;
            if (isSync && !m_areSyncsDone)
            {
                return CallVerdict::Pretend();
            }
            bool const isRefused = isExchangeRefused && stop.call == SYS_renameat2;
            return isRefused ? CallVerdict::Fail(EINVAL) : CallVerdict::GoOn();
        };
        act(*scene, start);
    }

    void ExpectWholeOnTheCut(std::string const& placeBelow)
    {
        ++m_cuts;
        MountedImage const disk(GetParam().kind, m_files.Path() + "/cut", m_files.Path() + "/after");
        ASSERT_TRUE(disk.IsMounted());
        std::string const place = disk.Point() + placeBelow;
        std::string const app = place + '/' + APP;
        bool const isThere = std::filesystem::exists(app);
        m_missing += isThere ? 0 : 1;
        EXPECT_TRUE(isThere || m_isMissingAllowed);
        std::string const found = isThere ? ExpectOneOfTheVersions(place) : "1.0";
        UniqueFd const folder(::open(place.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
        for (int i = 0; i < 2; ++i)
        {
            EXPECT_EQ(RunHelper("recover", EncodeUpdateJob(RecoverJob{APP, found}),
                                {{HelperDescriptors::PARENT, folder.Get()}})
                          .exitStatus,
                      0);
            EXPECT_EQ(ExpectOneOfTheVersions(place), found);
        }
        std::vector<std::string> names;
        for (auto const& entry : std::filesystem::directory_iterator(place))
        {
            names.push_back(entry.path().filename().string());
        }
        EXPECT_EQ(names, std::vector<std::string>{APP});
    }

    std::string ExpectOneOfTheVersions(std::string const& place)
    {
        ContentHash const tree = TreeOf(place + '/' + APP);
        EXPECT_TRUE(tree == versions.next || (tree == versions.previous && !m_isNewCertain));
        std::string const version = tree == versions.next ? "2.0" : "1.0";
        EXPECT_EQ(m_files.StartedVersion(place.substr(m_files.Path().size() + 1) + '/' + APP), version);
        return version;
    }

    Workspace const m_files{::access("/dev/shm", W_OK) == 0 ? "/dev/shm" : "/tmp"};
    std::mt19937 m_random{static_cast<unsigned>(std::string_view(GetParam().kind.name).size())};
    bool m_isNewCertain = false;
    bool m_isMissingAllowed = false;
    bool m_areSyncsDone = true;
    std::function<void(std::string const& placeBelow)> m_onInstalled = [](std::string const&) {};
    int m_cuts = 0;
    int m_missing = 0;
};

TEST_P(PowerCut, AnywhereInThePreparationHarmsNothing)
{
    CutEverywhere([](UpdateScene&) {}, [](UpdateScene& scene, HelperStart const& start)
                  { EXPECT_EQ(scene.Prepare(scene.MakePrepareJob(), start).exitStatus, 0); });
}

TEST_P(PowerCut, AnywhereInThePreparationByADeltaHarmsNothing)
{
    archive = DeltaToTheNextVersion();
    versions = Versions::ForDeltas();
    CutEverywhere([](UpdateScene& scene) { WithBase(scene); }, [](UpdateScene& scene, HelperStart const& start)
                  { EXPECT_EQ(scene.Prepare(DeltaJob(scene), start).exitStatus, 0); });
}

TEST_P(PowerCut, AnywhereInThePreparationFromATarHarmsNothing)
{
    archive = MakeRecompressedArchive(MakeBundle("2.0"));
    CutEverywhere([](UpdateScene&) {}, [](UpdateScene& scene, HelperStart const& start)
                  { EXPECT_EQ(scene.Prepare(scene.MakePrepareJob(), start).exitStatus, 0); });
}

TEST_P(PowerCut, AnywhereInTheInstallationLeavesOneOfTheVersions)
{
    InstallJob job;
    CutEverywhere(
        [&job](UpdateScene& scene)
        {
            job = scene.PrepareForInstall();
            scene.Host().End();
        },
        [&job](UpdateScene& scene, HelperStart const& start) { EXPECT_EQ(scene.Install(job, start).exitStatus, 0); });
}

TEST_P(PowerCut, AnywhereInTheInstallationWithoutExchangeLeavesWhatRecoversToOneOfTheVersions)
{
    InstallJob job;
    isExchangeRefused = true;
    AllowMissing();
    CutEverywhere(
        [&job](UpdateScene& scene)
        {
            job = scene.PrepareForInstall();
            scene.Host().End();
        },
        [&job](UpdateScene& scene, HelperStart const& start) { EXPECT_EQ(scene.Install(job, start).exitStatus, 0); });
    EXPECT_TRUE(Missing() > 0 || GetParam().writeback == Writeback::AsLateAsAllowed) << "the worst moment is not met";
}

TEST_P(PowerCut, AnywhereInTheRecoveryLeavesOneOfTheVersions)
{
    CutEverywhere(
        [](UpdateScene& scene)
        {
            InstallJob job = scene.PrepareForInstall();
            job.targetPath.clear();
            scene.Host().End();
            EXPECT_EQ(scene.Install(job).exitStatus, 0);
            scene.ReleaseStaging();
        },
        [](UpdateScene& scene, HelperStart const& start) { EXPECT_EQ(scene.Recover("2.0", start).exitStatus, 0); });
}

TEST_P(PowerCut, AnywhereInTheRecoveryOfAMissingBundleLeavesWhatRecovers)
{
    AllowMissing();
    CutEverywhere(
        [](UpdateScene& scene)
        {
            InstallJob const job = scene.PrepareForInstall();
            scene.Host().End();
            // Both processes end between the two renames on a file system without exchange.
            int renames = 0;
            HelperStart start;
            start.atEveryCall = [&renames](CallStop const& stop)
            {
                renames += stop.call == SYS_renameat ? 1 : 0;
                return stop.call == SYS_renameat2 ? CallVerdict::Fail(ENOSYS)
                       : renames == 3             ? CallVerdict::KillAll()
                                                  : CallVerdict::GoOn();
            };
            EXPECT_EQ(scene.Install(job, start).signal, SIGKILL);
            scene.ReleaseStaging();
        },
        [](UpdateScene& scene, HelperStart const& start) { EXPECT_EQ(scene.Recover("1.0", start).exitStatus, 0); });
    EXPECT_GT(Missing(), 0);
}

TEST_P(PowerCut, FindsTheNewVersionOnceItIsToldInstalled)
{
    EXPECT_EQ(TreeWhenToldInstalled(true), versions.next);
    if (GetParam().writeback == Writeback::AsLateAsAllowed)
    {
        EXPECT_NE(TreeWhenToldInstalled(false), versions.next) << "a power cut does not show unsynced data";
    }
}

/// A sample contains each file system once.
std::vector<Cut> Cuts()
{
    if (!IsEveryPlaceWanted())
    {
        return {{FileSystemKinds()[0], Writeback::AtAnyTime},
                {FileSystemKinds()[1], Writeback::AsLateAsAllowed},
                {FileSystemKinds()[2], Writeback::AsLateAsAllowed},
                {FileSystemKinds()[3], Writeback::AtAnyTime}};
    }
    std::vector<Cut> cuts;
    for (FileSystemKind const& kind : FileSystemKinds())
    {
        cuts.push_back({kind, Writeback::AsLateAsAllowed});
        cuts.push_back({kind, Writeback::AtAnyTime});
    }
    return cuts;
}

INSTANTIATE_TEST_SUITE_P(FileSystems, PowerCut, testing::ValuesIn(Cuts()),
                         [](testing::TestParamInfo<Cut> const& info)
                         {
                             return std::string(info.param.kind.name) +
                                    (info.param.writeback == Writeback::AtAnyTime ? "WrittenAtAnyTime" : "WrittenLate");
                         });

} // namespace
