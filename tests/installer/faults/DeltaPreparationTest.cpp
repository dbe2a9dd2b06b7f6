// DeltaPreparationTest.cpp: valid deltas and every kind of invalid one, with the helper's real process. The result is
// exactly the new version, or nothing.

#include "Engine/core/bundle/PayloadKind.h"
#include "Engine/core/delta/DeltaContainerWriter.h"
#include "Engine/core/delta/DeltaMaker.h"
#include "Engine/core/delta/ManifestBytes.h"
#include "tests/delta/SeparateDelta.h"
#include "tests/installer/EvilArchives.h"
#include "tests/installer/FaultChecks.h"
#include "tests/installer/faults/DeltaScene.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <set>
#include <tuple>

#include <sys/stat.h>
#include <sys/syscall.h>

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

/// The unpacked extra stream of the container open at \a fd.
ByteBuffer ExtraStreamOf(int fd, DeltaManifest const& manifest, std::uint64_t dataOffset)
{
    constexpr std::size_t MOST_BYTES = 100000;
    for (std::size_t i = 0; i + 1 < PATCH_STREAMS; ++i)
    {
        dataOffset += manifest.streams[i].size;
    }
    DeltaStream stream(fd, dataOffset, manifest.streams.back(), EXTRA_WINDOW_LOG);
    ByteBuffer bytes(MOST_BYTES);
    bytes.resize(stream.Read(bytes.data(), bytes.size()));
    EXPECT_TRUE(stream.IsAtEnd());
    return bytes;
}

/// The faults of the helper are tried with this delta, so it must lead through all of the code.
TEST(DeltaToTheNextVersion, HasEveryKindOfFileAndCorrectedTokens)
{
    constexpr std::uint8_t CORRECTS_TOKENS = 32;
    std::string const delta = DeltaToTheNextVersion();
    EXPECT_EQ(delta[8], 4) << "the version of the format";
    Workspace const place;
    UniqueFd const container = WriteFile(place.Path() + "/delta", delta);
    DeltaManifest manifest;
    std::uint64_t dataOffset = 0;
    ASSERT_TRUE(ReadDeltaManifest(container.Get(), {}, manifest, dataOffset).HasSucceeded());
    std::set<DeltaEntryKind> kinds;
    std::set<bool> keptInTheirPlace;
    for (DeltaEntry const& entry : manifest.entries)
    {
        kinds.insert(entry.kind);
        if (entry.kind == DeltaEntryKind::Kept)
        {
            keptInTheirPlace.insert(entry.sourcePath == entry.path);
        }
    }
    EXPECT_EQ(kinds.size(), 5u);
    EXPECT_EQ(keptInTheirPlace, (std::set<bool>{false, true}));
    auto const count = [&manifest](auto const& isWanted)
    { return std::count_if(manifest.units.begin(), manifest.units.end(), isWanted); };
    EXPECT_EQ(count([](DeltaUnit const& unit) { return unit.textBytes > 0; }), 1);
    EXPECT_EQ(count([](DeltaUnit const& unit) { return !unit.spanChanges.empty() && unit.spanChanges[0].size != 0; }),
              1);

    ByteBuffer const extra = ExtraStreamOf(container.Get(), manifest, dataOffset);
    std::string const text(extra.begin(), extra.end());
    std::size_t const recipe = text.find("\x0A\x1F\x8B\x08"); // the number of bytes of the header, and the header
    ASSERT_NE(recipe, std::string::npos);
    ManifestBytes::Reader reader(View(extra).substr(recipe));
    static_cast<void>(reader.Raw(reader.Number()));
    EXPECT_EQ(reader.Byte(), CORRECTS_TOKENS + 9);
    static_cast<void>(reader.Byte()); // the memory level
    EXPECT_GT(reader.Number(), 4u) << "numbers of the corrections";
    EXPECT_GT(reader.Number(), 0u) << "corrections of the first run";
    EXPECT_EQ(reader.Error(), DeltaManifestError::None);
}

class EvilTreeOfADelta : public testing::TestWithParam<std::tuple<Evil, DeltaFormat>>
{
};

TEST_P(EvilTreeOfADelta, IsRefusedAsItIsInAnArchive)
{
    Evil const& evil = std::get<0>(GetParam());
    UpdateScene scene(MakeEvilDelta(evil, std::get<1>(GetParam())));
    HelperOutcome const outcome = scene.Prepare(DeltaJob(scene));
    EXPECT_EQ(outcome.exitStatus, 1);
    // In a delta the link comes before the entries below it.
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

struct ChangeRow
{
    char const* name;
    void (*change)(std::string const& path);
};

class KeptFileThatChanges : public testing::TestWithParam<ChangeRow>
{
};

/// The helper checks the sizes of kept files first and copies the files later.
TEST_P(KeptFileThatChanges, BetweenCheckAndUseIsRefused)
{
    UpdateScene scene(DeltaToTheNextVersion());
    std::string const path = AppIn(WithBase(scene)) + "/Resources/same";
    bool isFound = false;
    bool isChanged = false;
    HelperStart start;
    start.atEveryCall = [&](CallStop const& stop)
    {
        auto const isAtFile = [&stop](long call) { return stop.call == call && PathArgument(stop, 1) == "same"; };
        isFound = isFound || isAtFile(SYS_newfstatat);
        if (isFound && !isChanged && isAtFile(SYS_openat2))
        {
            GetParam().change(path);
            isChanged = true;
        }
        return CallVerdict::GoOn();
    };
    HelperOutcome const outcome = scene.Prepare(DeltaJob(scene), start);
    EXPECT_TRUE(isChanged);
    EXPECT_EQ(outcome.Fault(), UpdateFault::DeltaBaseDiffers);
    EXPECT_EQ(outcome.Find<PreparedReport>(), nullptr);
    EXPECT_EQ(scene.Place().StartedVersion(), "1.0");
    scene.Host().End();
    scene.ReleaseStaging();
    EXPECT_EQ(scene.Recover("1.0").exitStatus, 0);
    EXPECT_EQ(scene.Place().Names(), std::vector<std::string>{APP});
}

class SmallFileThatChanges : public testing::TestWithParam<ChangeRow>
{
};

/// The old version of a changed file is opened, its size is checked, and then it is read.
TEST_P(SmallFileThatChanges, BeforeItIsReadIsRefused)
{
    constexpr std::uint64_t BLOB_BYTES = 20000;
    UpdateScene scene(DeltaToTheNextVersion());
    std::string const path = AppIn(WithBase(scene)) + "/Resources/blob";
    ASSERT_EQ(std::filesystem::file_size(path), BLOB_BYTES);
    bool isChanged = false;
    HelperStart start;
    start.atEveryCall = [&](CallStop const& stop)
    {
        if (!isChanged && stop.call == SYS_pread64 && stop.arguments[2] == BLOB_BYTES)
        {
            GetParam().change(path);
            isChanged = true;
        }
        return CallVerdict::GoOn();
    };
    HelperOutcome const outcome = scene.Prepare(DeltaJob(scene), start);
    EXPECT_TRUE(isChanged);
    EXPECT_EQ(outcome.Fault(), UpdateFault::DeltaBaseDiffers);
    EXPECT_EQ(outcome.Find<PreparedReport>(), nullptr);
    EXPECT_EQ(scene.Place().StartedVersion(), "1.0");
}

INSTANTIATE_TEST_SUITE_P(
    Rows, SmallFileThatChanges,
    testing::Values(ChangeRow{"OtherBytes", [](std::string const& path)
                              { std::ofstream(path, std::ios::in | std::ios::out).seekp(100) << "edited"; }},
                    ChangeRow{"Shorter", [](std::string const& path) { std::filesystem::resize_file(path, 19999); }},
                    ChangeRow{"Empty", [](std::string const& path) { std::filesystem::resize_file(path, 0); }}),
    [](testing::TestParamInfo<ChangeRow> const& info) { return info.param.name; });

INSTANTIATE_TEST_SUITE_P(
    Rows, KeptFileThatChanges,
    testing::Values(ChangeRow{"OtherBytes", [](std::string const& path)
                              { std::ofstream(path, std::ios::in | std::ios::out).seekp(100) << "edited"; }},
                    ChangeRow{"Longer", [](std::string const& path) { std::ofstream(path, std::ios::app) << "x"; }},
                    ChangeRow{"Shorter", [](std::string const& path) { std::filesystem::resize_file(path, 499); }},
                    ChangeRow{"Removed", [](std::string const& path) { std::filesystem::remove(path); }},
                    ChangeRow{"LinkToTheSameBytes",
                              [](std::string const& path)
                              {
                                  std::filesystem::rename(path, path + "-away");
                                  std::filesystem::create_symlink("same-away", path);
                              }},
                    ChangeRow{"Fifo",
                              [](std::string const& path)
                              {
                                  std::filesystem::remove(path);
                                  EXPECT_EQ(::mkfifo(path.c_str(), 0644), 0);
                              }},
                    ChangeRow{"Folder",
                              [](std::string const& path)
                              {
                                  std::filesystem::remove(path);
                                  std::filesystem::create_directory(path);
                              }}),
    [](testing::TestParamInfo<ChangeRow> const& info) { return info.param.name; });

TEST(Delta, KeptFileThatGrowsWhileItIsCopiedIsNotCopiedForever)
{
    constexpr int MOST_READS = 200;
    UpdateScene scene(DeltaToTheNextVersion());
    std::string const path = AppIn(WithBase(scene)) + "/Resources/same";
    int reads = 0;
    HelperStart start;
    start.atEveryCall = [&](CallStop const& stop)
    {
        bool const isRead = (stop.call == SYS_read || stop.call == SYS_pread64) && DescriptorPath(stop) == path;
        if (isRead && ++reads < MOST_READS)
        {
            std::ofstream(path, std::ios::app) << std::string(1000, 'x');
        }
        return CallVerdict::GoOn();
    };
    EXPECT_EQ(scene.Prepare(DeltaJob(scene), start).Fault(), UpdateFault::DeltaBaseDiffers);
    EXPECT_LT(reads, MOST_READS);
}

} // namespace
