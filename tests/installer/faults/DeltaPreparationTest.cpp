// DeltaPreparationTest.cpp: deltas, right ones and every kind of wrong one, through the helper's real process: what
// comes out is exactly the new version, or nothing.

#include "Engine/core/bundle/PayloadKind.h"
#include "Engine/core/delta/DeltaContainerWriter.h"
#include "Engine/core/delta/DeltaMaker.h"
#include "tests/delta/SeparateDelta.h"
#include "tests/installer/EvilArchives.h"
#include "tests/installer/FaultChecks.h"
#include "tests/installer/faults/DeltaScene.h"

#include <gtest/gtest.h>

#include <tuple>

namespace
{

using namespace Pelnar::Engine;
using namespace Pelnar::Testing;

class RightDeltas : public testing::TestWithParam<std::string (*)()>
{
};

TEST_P(RightDeltas, ArePreparedAndInstalled)
{
    UpdateScene scene(GetParam()());
    HelperOutcome const prepared = WithBase(scene).Prepare(DeltaJob(scene));
    ASSERT_EQ(prepared.exitStatus, 0) << FaultName(prepared.Fault());
    Workspace const fresh;
    fresh.Put(MakeBundleForDeltas("2.0"));
    ContentHash const expected = TreeOf(fresh.Path() + '/' + APP);
    EXPECT_TRUE(prepared.Find<PreparedReport>()->digest == expected);
    InstallJob const job = scene.MakeInstallJob(expected);
    scene.Host().End();
    EXPECT_EQ(scene.Install(job).exitStatus, 0);
    EXPECT_TRUE(TreeOf(AppIn(scene)) == expected);
    EXPECT_EQ(scene.Place().StartedVersion(), "2.0");
}

INSTANTIATE_TEST_SUITE_P(Formats, RightDeltas, testing::Values(&DeltaToTheNextVersion, &RightSeparateDelta),
                         [](testing::TestParamInfo<std::string (*)()> const& info)
                         { return info.index == 0 ? "Joined" : "Separate"; });

class EvilTreeOfADelta : public testing::TestWithParam<std::tuple<Evil, DeltaFormat>>
{
};

TEST_P(EvilTreeOfADelta, IsRefusedAsItIsInAnArchive)
{
    Evil const& evil = std::get<0>(GetParam());
    UpdateScene scene(MakeEvilDelta(evil, std::get<1>(GetParam())));
    HelperOutcome const outcome = scene.Prepare(DeltaJob(scene));
    EXPECT_EQ(outcome.exitStatus, 1);
    // In a delta the link comes before what lies below it.
    bool const isOrdered = evil.name == std::string("ImpliedFolderThenLink");
    EXPECT_EQ(outcome.Fault(), isOrdered ? UpdateFault::EntryUnderNoFolder : evil.fault);
    EXPECT_EQ(outcome.Find<PreparedReport>(), nullptr);
    EXPECT_TRUE(scene.Place().Names(scene.StagingName() + '/' + APP).empty());
    EXPECT_EQ(scene.Place().StartedVersion(), "1.0");
}

INSTANTIATE_TEST_SUITE_P(Table, EvilTreeOfADelta,
                         testing::Combine(testing::ValuesIn(EvilTrees()),
                                          testing::Values(DeltaFormat::Separate, DeltaFormat::Joined)),
                         [](testing::TestParamInfo<std::tuple<Evil, DeltaFormat>> const& info)
                         {
                             bool const isJoined = std::get<1>(info.param) == DeltaFormat::Joined;
                             return std::get<0>(info.param).name + std::string(isJoined ? "Joined" : "");
                         });

TEST(Delta, InstallerProgramIsNotMadeByOne)
{
    std::vector<ForgedEntry> tree = MakeBundle("2.0");
    for (ForgedEntry& entry : tree)
    {
        if (entry.path == std::string(APP) + "/Resources/Info-gnustep.plist")
        {
            entry.content.insert(entry.content.find('{') + 1, "PelnarPayloadKind = installer;");
        }
    }
    UpdateScene scene(MakeWholeDelta(tree));
    EXPECT_EQ(scene.Prepare(DeltaJob(scene)).Fault(), UpdateFault::PayloadKindDiffers);
}

TEST(Delta, TreeWithoutEvilIsMadeByTheSameForge)
{
    UpdateScene scene(MakeEvilDelta({"None", {}, UpdateFault::None}));
    HelperOutcome const outcome = scene.Prepare(DeltaJob(scene));
    EXPECT_EQ(outcome.Fault(), UpdateFault::None);
    Workspace const fresh;
    fresh.Put(MakeBundle("2.0"));
    auto const* prepared = outcome.Find<PreparedReport>();
    ASSERT_NE(prepared, nullptr);
    EXPECT_TRUE(prepared->digest == TreeOf(fresh.Path() + '/' + APP));
}

} // namespace
