// FaultSweepTest.cpp: kills and failing system calls at every place of the helper's life. The default run takes every
// seventh place; with PELNAR_EVERY_PLACE=1 in the environment it takes them all.

#include "Engine/core/helper/NoteFile.h"
#include "Engine/core/helper/SwapJournal.h"
#include "tests/installer/FaultChecks.h"
#include "tests/installer/TracedHelper.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>

namespace
{

using namespace Pelnar::Engine;
using namespace Pelnar::Testing;

/// Every place of a run, read from its trace; all places or every seventh.
template <typename Run>
std::vector<Place> PlacesOf(std::vector<std::string> const& options, Run const& run)
{
    Traced const traced(options);
    run(traced.Start());
    std::vector<Place> places;
    int index = 0;
    for (auto const& [call, most] : traced.CallsOfOneProcess())
    {
        for (int nth = 1; nth <= most; ++nth)
        {
            if (IsEveryPlaceWanted() || index++ % DEFAULT_STRIDE == 0)
            {
                places.push_back({call, nth});
            }
        }
    }
    EXPECT_FALSE(places.empty());
    testing::Test::RecordProperty("places", static_cast<int>(places.size()));
    return places;
}

/// Makes \a attempt with a new tracer until a process is killed at \a place. Returns false if no run reaches it. A run
/// may make fewer calls than the traced one: a shorter process number needs no memory, or a thread ends sooner.
template <typename Attempt>
bool IsKilled(Place const& place, std::vector<std::string> const& options, Attempt const& attempt)
{
    constexpr int ATTEMPTS = 5;
    for (int i = 0; i < ATTEMPTS; ++i)
    {
        Traced const killed(KillAt(place, options));
        attempt(killed);
        if (killed.Kills() > 0)
        {
            return true;
        }
        EXPECT_LT(killed.CallsOfOneProcess()[place.call], place.nth) << "the call was made, and nothing was killed";
    }
    return false;
}

template <typename Attempt>
void KillAtEach(std::vector<Place> const& places, std::vector<std::string> const& options, Attempt const& attempt)
{
    std::size_t met = 0;
    for (Place const& place : places)
    {
        SCOPED_TRACE(testing::Message() << place);
        met += IsKilled(place, options, attempt) ? 1 : 0;
    }
    EXPECT_GE(met * 10, places.size() * 9) << "too few of the places were met";
}

void SweepPreparation(std::string const& archive, Versions const& versions,
                      PrepareJob (*prepareScene)(UpdateScene& scene))
{
    UpdateScene traced(archive);
    PrepareJob const job = prepareScene(traced);
    std::vector<Place> const places =
        PlacesOf({}, [&](HelperStart const& start) { EXPECT_EQ(traced.Prepare(job, start).exitStatus, 0); });
    KillAtEach(places, {},
               [&](Traced const& killed)
               {
                   UpdateScene scene(archive);
                   HelperOutcome const outcome = scene.Prepare(prepareScene(scene), killed.Start());
                   EXPECT_EQ(outcome.signal, killed.Kills() > 0 ? SIGKILL : 0);
                   EXPECT_EQ(ExpectWhole(scene, versions), "1.0");
                   ExpectRecovered(scene, versions);
               });
}

TEST(Faults, PreparationKilledAnywhereHarmsNothing)
{
    SweepPreparation(MakeArchive(Container::Zip, MakeBundle("2.0")), Versions(),
                     [](UpdateScene& scene) { return scene.MakePrepareJob(); });
}

TEST(Faults, PreparationByADeltaKilledAnywhereHarmsNothing)
{
    SweepPreparation(DeltaToTheNextVersion(), Versions::ForDeltas(),
                     [](UpdateScene& scene) { return DeltaJob(WithBase(scene)); });
}

TEST(Faults, PreparationFromATarKilledAnywhereHarmsNothing)
{
    SweepPreparation(MakeRecompressedArchive(MakeBundle("2.0")), Versions(),
                     [](UpdateScene& scene) { return scene.MakePrepareJob(); });
}

void SweepInstallation(std::vector<std::string> const& options)
{
    Versions const versions;
    UpdateScene traced;
    InstallJob tracedJob = traced.PrepareForInstall();
    UpdateScene::KeepRecord(tracedJob);
    traced.Host().End();
    std::vector<Place> places =
        PlacesOf(options, [&](HelperStart const& start) { EXPECT_EQ(traced.Install(tracedJob, start).exitStatus, 0); });
    if (!options.empty())
    {
        // The call that fails and the call at which it is killed must differ.
        places.erase(
            std::remove_if(places.begin(), places.end(), [](Place const& place) { return place.call == "renameat2"; }),
            places.end());
    }
    KillAtEach(places, options,
               [&](Traced const& killed)
               {
                   UpdateScene scene;
                   InstallJob job = scene.PrepareForInstall();
                   UpdateScene::KeepRecord(job);
                   scene.Host().End();
                   scene.Install(job, killed.Start());
                   if (options.empty())
                   {
                       ExpectWhole(scene, versions); // with an exchange, also before any recovery
                   }
                   ExpectRecovered(scene, versions);
               });
}

TEST(Faults, InstallationKilledAnywhereLeavesOneOfTheVersions)
{
    SweepInstallation({});
}

TEST(Faults, InstallationWithoutExchangeKilledAnywhereLeavesOneOfTheVersions)
{
    SweepInstallation(NO_EXCHANGE);
}

/// The files of a helper whose two processes were killed at the same time, made by hand: if only the child is killed,
/// its parent repairs the bundle.
void LeaveJournal(UpdateScene const& scene)
{
    WriteNote(scene.Place().Descriptor(), SwapJournalName(APP),
              EncodeSwapJournal({scene.StagingName(), APP, "1.0", "2.0"}));
}

void StopBeforeTheExchange(UpdateScene& scene)
{
    scene.PrepareForInstall();
    LeaveJournal(scene);
}

void StopAfterTheExchange(UpdateScene& scene)
{
    InstallJob job = scene.PrepareForInstall();
    job.targetPath.clear();
    scene.Host().End();
    EXPECT_EQ(scene.Install(job).exitStatus, 0);
}

void StopBetweenTwoRenames(UpdateScene& scene)
{
    scene.PrepareForInstall();
    LeaveJournal(scene);
    std::filesystem::rename(scene.Place().Path() + '/' + APP, scene.StagingPath() + '/' + PREVIOUS_BUNDLE_NAME);
}

/// The recovery for the version \a running ends with the version \a left, even after a kill at any place before.
void SweepRecovery(void (*interruptInstallation)(UpdateScene&), std::string const& running, std::string const& left)
{
    Versions const versions;
    auto const interrupt = [&](UpdateScene& scene)
    {
        interruptInstallation(scene);
        scene.Host().End();
        scene.ReleaseStaging();
    };
    UpdateScene traced;
    interrupt(traced);
    std::vector<Place> const places =
        PlacesOf({}, [&](HelperStart const& start) { EXPECT_EQ(traced.Recover(running, start).exitStatus, 0); });
    EXPECT_EQ(traced.Place().Names(), std::vector<std::string>{APP});
    KillAtEach(places, {},
               [&](Traced const& killed)
               {
                   UpdateScene scene;
                   interrupt(scene);
                   EXPECT_EQ(scene.Recover(running, killed.Start()).signal, killed.Kills() > 0 ? SIGKILL : 0);
                   ExpectRecovered(scene, versions);
                   EXPECT_EQ(ExpectWhole(scene, versions), left);
               });
}

TEST(Faults, RecoveryFromBeforeTheExchangeKilledAnywhereConverges)
{
    SweepRecovery(&StopBeforeTheExchange, "1.0", "1.0");
}

TEST(Faults, RecoveryFromAfterTheExchangeKilledAnywhereConverges)
{
    SweepRecovery(&StopAfterTheExchange, "2.0", "2.0");
}

TEST(Faults, RecoveryFromBetweenTwoRenamesKilledAnywhereConverges)
{
    SweepRecovery(&StopBetweenTwoRenames, "1.0", "1.0");
}

} // namespace
