// RaceTest.cpp: another process changes files while the helper works: at each of its calls in turn, and from a parallel
// thread. The default run takes a sample of the places; with PELNAR_EVERY_PLACE=1 in the environment it takes all.

#include "Engine/core/helper/SwapJournal.h"
#include "tests/installer/FaultChecks.h"
#include "tests/installer/faults/RaceSteps.h"

#include <gtest/gtest.h>

#include <atomic>
#include <filesystem>
#include <fstream>
#include <future>
#include <random>
#include <thread>

#include <fcntl.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

namespace
{

using namespace Pelnar::Engine;
using namespace Pelnar::Testing;

TEST(Race, StagingFolderReplacedByALinkIsNotWrittenThrough)
{
    Versions const versions;
    AtPlacesOfAPreparation(
        &PrepareIn,
        [&](int place)
        {
            UpdateScene scene;
            Workspace const outside;
            bool isReplaced = false;
            auto const replace = [&]
            {
                std::filesystem::rename(scene.StagingPath(), scene.StagingPath() + "-away");
                std::filesystem::create_directory_symlink(outside.Path(), scene.StagingPath());
                isReplaced = true;
            };
            EXPECT_EQ(PrepareIn(scene, ActAt(place, replace)).exitStatus, 0) << "the folder is known by its descriptor";
            EXPECT_TRUE(outside.Names().empty());
            InstallJob const job = scene.MakeInstallJob(versions.next);
            scene.Host().End();
            EXPECT_EQ(scene.Install(job).Fault(), isReplaced ? UpdateFault::StagedTreeChanged : UpdateFault::None);
            EXPECT_TRUE(outside.Names().empty());
            EXPECT_EQ(ExpectWhole(scene, versions), isReplaced ? "1.0" : "2.0");
            return isReplaced;
        });
}

InstallJob QuietJob(UpdateScene& scene)
{
    InstallJob job = scene.PrepareForInstall();
    job.targetPath.clear();
    scene.Host().End();
    return job;
}

int CallsOfAnInstallation()
{
    UpdateScene traced;
    return CallsOf(traced,
                   [](UpdateScene& scene, HelperStart const& start) { return scene.Install(QuietJob(scene), start); });
}

TEST(Race, StagedBundleEditedBeforeItIsCheckedIsRefused)
{
    Versions const versions;
    int const calls = CallsOfAnInstallation();
    int refused = 0;
    bool wasAccepted = false;
    for (int const place : Places(calls))
    {
        SCOPED_TRACE(place);
        UpdateScene scene;
        InstallJob const job = QuietJob(scene);
        std::string const added = scene.StagingPath() + '/' + APP + "/added";
        HelperOutcome const outcome = scene.Install(job, ActAt(place, [&] { std::ofstream(added) << "x"; }));
        bool const isRefused = outcome.Fault() == UpdateFault::StagedTreeChanged;
        refused += isRefused ? 1 : 0;
        EXPECT_FALSE(isRefused && wasAccepted) << "the check is one pass: a later change is too late";
        if (isRefused)
        {
            EXPECT_EQ(ExpectWhole(scene, versions), "1.0");
            ExpectRecovered(scene, versions);
        }
        else
        {
            // A change this late is a change of the installed version.
            wasAccepted = true;
            EXPECT_EQ(outcome.exitStatus, 0);
            EXPECT_EQ(scene.Place().StartedVersion(), "2.0");
        }
    }
    EXPECT_GT(refused, 0);
}

/// Writing the journal may take long. After that only the check comes before the swap.
TEST(Race, StagedBundleEditedWhileTheJournalIsWrittenIsRefused)
{
    Versions const versions;
    UpdateScene scene;
    InstallJob const job = QuietJob(scene);
    std::string const journal = scene.Place().Path() + '/' + SwapJournalName(APP);
    bool isEdited = false;
    HelperStart start;
    start.atEveryCall = [&](CallStop const& stop)
    {
        bool const isJournalOnItsWay = stop.call == SYS_fsync && std::filesystem::exists(journal);
        if (isJournalOnItsWay && !isEdited)
        {
            isEdited = true;
            std::ofstream(scene.StagingPath() + '/' + APP + "/added") << "x";
        }
        EXPECT_FALSE(isEdited && stop.call == SYS_renameat2) << "exchanged";
        return CallVerdict::GoOn();
    };
    EXPECT_EQ(scene.Install(job, start).Fault(), UpdateFault::StagedTreeChanged);
    EXPECT_TRUE(isEdited);
    EXPECT_EQ(ExpectWhole(scene, versions), "1.0");
    EXPECT_EQ(scene.Place().Names(), std::vector<std::string>{APP});
    ExpectRecovered(scene, versions);
}

TEST(Race, TargetReplacedByALinkIsNeverWrittenThrough)
{
    Versions const versions;
    for (int const place : Places(CallsOfAnInstallation()))
    {
        SCOPED_TRACE(place);
        UpdateScene scene;
        InstallJob const job = QuietJob(scene);
        Workspace const outside;
        outside.Put(MakeBundle("1.0"));
        std::string const target = scene.Place().Path() + '/' + APP;
        bool wasInstalled = false;
        static_cast<void>(scene.Install(job, ActAt(place,
                                                   [&]
                                                   {
                                                       wasInstalled = TreeOf(target) == versions.next;
                                                       std::filesystem::rename(target, target + ".away");
                                                       std::filesystem::create_directory_symlink(
                                                           outside.Path() + '/' + APP, target);
                                                   })));
        EXPECT_EQ(ExpectWhole(outside, versions), "1.0");
        EXPECT_EQ(outside.Names(), std::vector<std::string>{APP});
        EXPECT_TRUE(TreeOf(target + ".away") == (wasInstalled ? versions.next : versions.previous));
        EXPECT_TRUE(std::filesystem::is_symlink(target) || TreeOf(target) == versions.next);
    }
}

TEST(Race, AnotherFolderInTheTargetsPlaceIsWholeOrOutOfTheWay)
{
    Versions const versions;
    for (int const place : Places(CallsOfAnInstallation()))
    {
        SCOPED_TRACE(place);
        UpdateScene scene;
        InstallJob const job = QuietJob(scene);
        Workspace const other("/tmp");
        other.Put(MakeBundle("1.0"));
        std::string const target = scene.Place().Path() + '/' + APP;
        static_cast<void>(scene.Install(job, ActAt(place,
                                                   [&]
                                                   {
                                                       std::filesystem::rename(target, target + ".away");
                                                       std::filesystem::rename(other.Path() + '/' + APP, target);
                                                   })));
        ExpectWhole(scene, versions);
        EXPECT_GT(std::filesystem::remove_all(target + ".away"), 0u);
        ExpectRecovered(scene, versions);
    }
}

TEST(Race, FilesThatOthersDropBesideTheBundleStay)
{
    Versions const versions;
    UpdateScene scene;
    scene.Place().Put({{"payload", 'd', {}, 0755},
                       {"payload/run", 'f', "#!/bin/sh\necho evil\n", 0755},
                       {"2.0.app", 'd', {}, 0755},
                       {"previous", 'f', "x"},
                       {".pelnar-decoy", 'f', "x"}});
    scene.Downloads().Put({{"My App.app", 'd', {}, 0755}, {"My App.app/run", 'f', "#!/bin/sh\necho evil\n", 0755}});
    std::vector<std::string> expected = scene.Place().Names();
    expected.erase(std::find(expected.begin(), expected.end(), scene.StagingName()));
    InstallJob const job = scene.PrepareForInstall();
    scene.Host().End();
    EXPECT_EQ(scene.Install(job).exitStatus, 0);
    EXPECT_EQ(ExpectWhole(scene, versions), "2.0");
    scene.ReleaseStaging();
    EXPECT_EQ(scene.Recover("2.0").exitStatus, 0);
    EXPECT_EQ(scene.Place().Names(), expected);
    EXPECT_EQ(scene.Downloads().Names(), (std::vector<std::string>{"My App.app", "update"}));
}

/// Renames files next to the bundle, and the staged one back and forth, as fast as it can.
class Meddler
{
public:
    /// Gives the archive's name to another file at once: a rename of the archive during its verification would be a
    /// reason to refuse.
    explicit Meddler(UpdateScene const& scene)
        : m_thread(
              [this, place = scene.Place().Path(), archive = ArchivePath(scene)]
              {
                  std::mt19937 random(7);
                  ReplaceBy(archive, "something else");
                  m_hasBegun.set_value();
                  for (int i = 0; !m_isOver; ++i)
                  {
                      std::string const decoy = place + "/decoy" + std::to_string(random() % 4);
                      ::mkdir(decoy.c_str(), 0755);
                      static_cast<void>(!::symlink("/etc", (decoy + "/link").c_str()));
                      static_cast<void>(::renameat(AT_FDCWD, decoy.c_str(), AT_FDCWD, (place + "/moved").c_str()));
                      ReplaceBy(archive, "something else");
                      ::unlink((place + "/moved/link").c_str());
                      m_changes += ::rmdir((place + "/moved").c_str()) == 0 ? 1 : 0;
                  }
              })
    {
        m_hasBegun.get_future().wait();
    }
    ~Meddler() { End(); }
    Meddler(Meddler const&) = delete;
    Meddler& operator=(Meddler const&) = delete;

    /// How often it has changed names next to the bundle.
    int End()
    {
        m_isOver = true;
        if (m_thread.joinable())
        {
            m_thread.join();
        }
        return m_changes;
    }

private:
    int m_changes = 0; ///< used by the thread until it has ended
    std::atomic<bool> m_isOver{false};
    std::promise<void> m_hasBegun;
    std::thread m_thread;
};

TEST(Race, MeddlingBesideTheBundleDoesNotReachIt)
{
    Versions const versions;
    int changes = 0;
    for (int round = 0; round < (IsEveryPlaceWanted() ? 200 : 10); ++round)
    {
        UpdateScene scene;
        {
            Meddler meddler(scene);
            InstallJob const job = scene.PrepareForInstall();
            scene.Host().End();
            EXPECT_EQ(scene.Install(job).exitStatus, 0);
            changes += meddler.End();
        }
        EXPECT_EQ(ExpectWhole(scene, versions), "2.0");
    }
    EXPECT_GT(changes, 10) << "no change took place";
}

} // namespace
