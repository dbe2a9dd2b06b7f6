// CrowdTest.cpp: many helpers at once install copies of one update. The default run makes a few rounds; with
// PELNAR_EVERY_PLACE=1 in the environment it makes a hundred.

#include "tests/installer/FaultChecks.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <thread>

namespace
{

using namespace Pelnar::Engine;
using namespace Pelnar::Testing;

struct Contender
{
    StagingFolder folder;
    HelperOutcome outcome;
};

/// Runs this number of helpers at the same time, each with its own copy of a prepared update.
void Contend(int count, Versions const& versions)
{
    UpdateScene scene;
    InstallJob const prepared = scene.PrepareForInstall();
    std::vector<Contender> contenders;
    for (int i = 0; i < count; ++i)
    {
        contenders.push_back({StagingFolder::Create(scene.Place().Descriptor(), APP), {}});
        std::filesystem::copy(scene.StagingPath() + '/' + APP,
                              scene.Place().Path() + '/' + contenders.back().folder.Name() + '/' + APP,
                              std::filesystem::copy_options::recursive | std::filesystem::copy_options::copy_symlinks);
    }
    std::vector<std::thread> threads;
    for (Contender& contender : contenders)
    {
        threads.emplace_back(
            [&]
            {
                InstallJob job = prepared;
                job.targetPath.clear();
                job.stagingName = contender.folder.Name();
                contender.outcome = RunHelper("install", EncodeUpdateJob(job),
                                              {{HelperDescriptors::PARENT, scene.Place().Descriptor()},
                                               {HelperDescriptors::STAGING, contender.folder.Descriptor()},
                                               {HelperDescriptors::HOST, scene.Host().ProcessDescriptor()}});
            });
    }
    scene.Host().End();
    int installed = 0;
    for (std::size_t i = 0; i < threads.size(); ++i)
    {
        threads[i].join();
        HelperOutcome const& outcome = contenders[i].outcome;
        installed += outcome.Find<InstalledReport>() ? 1 : 0;
        EXPECT_EQ(outcome.exitStatus == 0, outcome.Find<InstalledReport>() != nullptr);
        EXPECT_TRUE(outcome.exitStatus == 0 || outcome.Fault() == UpdateFault::TargetChanged)
            << FaultName(outcome.Fault());
    }
    EXPECT_EQ(installed, 1);
    EXPECT_EQ(ExpectWhole(scene, versions), "2.0");
    contenders.clear();
    ExpectRecovered(scene, versions);
}

TEST(Crowd, OfTwoHelpersAtOnceOneInstalls)
{
    Versions const versions;
    for (int round = 0; round < (IsEveryPlaceWanted() ? 100 : 8); ++round)
    {
        Contend(2, versions);
    }
}

TEST(Crowd, OfFiftyHelpersAtOnceOneInstalls)
{
    Versions const versions;
    for (int round = 0; round < (IsEveryPlaceWanted() ? 100 : 1); ++round)
    {
        Contend(50, versions);
    }
}

} // namespace
