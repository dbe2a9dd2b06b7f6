// EvilDeltaTest.cpp: every kind of invalid delta, with the helper's real process: nothing is prepared.

#include "Engine/core/bundle/PayloadKind.h"
#include "Engine/core/delta/DeltaContainerWriter.h"
#include "Engine/core/delta/DeltaMaker.h"
#include "tests/delta/PackedFiles.h"
#include "tests/delta/SeparateDelta.h"
#include "tests/installer/EvilArchives.h"
#include "tests/installer/FaultChecks.h"
#include "tests/installer/faults/DeltaScene.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>

#include <sys/stat.h>

namespace
{

using namespace Pelnar::Engine;
using namespace Pelnar::Testing;

/// The valid delta \a whole with a changed manifest, and changed data after it.
std::string Changed(std::string const& whole, void (*change)(DeltaManifest& manifest, std::string& data))
{
    Workspace const place;
    UniqueFd const container = WriteFile(place.Path() + "/delta", whole);
    DeltaManifest manifest;
    std::uint64_t dataOffset = 0;
    EXPECT_TRUE(ReadDeltaManifest(container.Get(), {}, manifest, dataOffset).HasSucceeded());
    std::string data = whole.substr(dataOffset);
    change(manifest, data);
    return TextOf(EncodeOpening(manifest)) + data;
}

std::string DeltaWith(void (*change)(DeltaManifest& manifest, std::string& data))
{
    return Changed(RightSeparateDelta(), change);
}

std::string JoinedDeltaWith(void (*change)(DeltaManifest& manifest, std::string& data))
{
    return Changed(DeltaToTheNextVersion(), change);
}

DeltaEntry& EntryOf(DeltaManifest& manifest, DeltaEntryKind kind)
{
    return *std::find_if(manifest.entries.begin(), manifest.entries.end(),
                         [kind](DeltaEntry const& entry) { return entry.kind == kind; });
}

void ChangeHashOf(DeltaManifest& manifest, DeltaEntryKind kind)
{
    EntryOf(manifest, kind).hash[0] ^= 1;
}

/// The start of the data of the first entry of that kind.
std::size_t OffsetOf(DeltaManifest const& manifest, DeltaEntryKind kind)
{
    std::size_t offset = 0;
    for (DeltaEntry const& entry : manifest.entries)
    {
        if (entry.kind == kind)
        {
            break;
        }
        offset += entry.StoredBytes();
    }
    return offset;
}

ByteBuffer DescriptorMap(std::vector<std::uint64_t> const& numbers)
{
    ByteBuffer bytes;
    for (std::uint64_t number : numbers)
    {
        for (; number >= 0x80; number >>= 7)
        {
            bytes.push_back(static_cast<std::uint8_t>(number | 0x80));
        }
        bytes.push_back(static_cast<std::uint8_t>(number));
    }
    return bytes;
}

/// A patch of one step.
void UseSteps(DeltaManifest& manifest, std::string& data, std::vector<std::uint64_t> const& numbers)
{
    ByteBuffer const steps = DescriptorMap(numbers);
    ByteBuffer const stored = CompressForDelta(View(steps));
    std::size_t const offset = OffsetOf(manifest, DeltaEntryKind::Patched);
    DeltaEntry& entry = EntryOf(manifest, DeltaEntryKind::Patched);
    data.replace(offset, entry.streamsStored[0], TextOf(stored));
    entry.streamsStored[0] = stored.size();
}

/// The valid delta with extra bytes between the end of one of the patch's frames and the end of its place in the
/// container.
template <std::size_t STREAM>
std::string DeltaWithBytesBehindAFrame()
{
    return DeltaWith(
        [](DeltaManifest& manifest, std::string& data)
        {
            DeltaEntry& entry = EntryOf(manifest, DeltaEntryKind::Patched);
            std::size_t offset = OffsetOf(manifest, DeltaEntryKind::Patched);
            for (std::size_t i = 0; i <= STREAM; ++i)
            {
                offset += entry.streamsStored[i];
            }
            data.insert(offset, "evil");
            entry.streamsStored[STREAM] += 4;
        });
}

/// A joined delta with extra bytes between the end of a stream and the end of its place in the container.
template <std::size_t STREAM>
std::string DeltaWithBytesBehindAStream()
{
    return JoinedDeltaWith(
        [](DeltaManifest& manifest, std::string& data)
        {
            std::size_t offset = 0;
            for (std::size_t i = 0; i <= STREAM; ++i)
            {
                offset += manifest.streams[i].size;
            }
            data.insert(offset, "evil");
            manifest.streams[STREAM].size += 4;
        });
}

/// A joined delta with another stream of steps.
std::string DeltaWithSteps(std::vector<std::uint64_t> const& numbers)
{
    static ByteBuffer steps;
    steps = DescriptorMap(numbers);
    return JoinedDeltaWith(
        [](DeltaManifest& manifest, std::string& data)
        {
            ByteBuffer const stored = CompressForDelta(View(steps), NUMBERS_WINDOW_LOG);
            data.replace(0, manifest.streams[0].size, TextOf(stored));
            manifest.streams[0] = {0, stored.size()};
        });
}

void LeaveAlone(UpdateScene const&) {}

struct Row
{
    char const* name;
    std::string (*makeDelta)();
    void (*changeBase)(UpdateScene const& scene);
    UpdateFault fault;
};

class EvilDelta : public testing::TestWithParam<Row>
{
};

TEST_P(EvilDelta, IsRefusedAndTheInstalledVersionStays)
{
    UpdateScene scene(GetParam().makeDelta());
    WithBase(scene);
    GetParam().changeBase(scene);
    std::string const started = scene.Place().StartedVersion();
    HelperOutcome const outcome = scene.Prepare(DeltaJob(scene));
    EXPECT_EQ(outcome.exitStatus, 1);
    EXPECT_EQ(outcome.signal, 0);
    EXPECT_EQ(outcome.Fault(), GetParam().fault);
    EXPECT_EQ(outcome.Find<PreparedReport>(), nullptr);
    EXPECT_EQ(scene.Place().StartedVersion(), started);
    scene.Host().End();
    scene.ReleaseStaging();
    EXPECT_EQ(scene.Recover("1.0").exitStatus, 0);
    EXPECT_EQ(scene.Place().Names(), std::vector<std::string>{APP});
    EXPECT_EQ(scene.Place().StartedVersion(), started);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, EvilDelta,
    testing::Values(
        Row{"BaseOfAnotherVersion", &DeltaToTheNextVersion,
            [](UpdateScene const& scene)
            {
                std::filesystem::remove_all(AppIn(scene));
                scene.Place().Put(MakeBundleForDeltas("1.5"));
            },
            UpdateFault::DeltaBaseDiffers},
        Row{"BaseEditedByTheUser", &DeltaToTheNextVersion,
            [](UpdateScene const& scene) { std::ofstream(scene.Place().Path() + '/' + BLOB, std::ios::app) << "x"; },
            UpdateFault::DeltaBaseDiffers},
        Row{"KeptFileEditedByTheUser", &DeltaToTheNextVersion,
            [](UpdateScene const& scene) { std::ofstream(AppIn(scene) + "/Resources/same") << Noise(2, 499) << "x"; },
            UpdateFault::DeltaBaseDiffers},
        Row{"BaseFileMissing", &DeltaToTheNextVersion,
            [](UpdateScene const& scene) { std::filesystem::remove(scene.Place().Path() + '/' + BLOB); },
            UpdateFault::DeltaBaseDiffers},
        Row{"LinkInABaseFilesPlace", &DeltaToTheNextVersion,
            [](UpdateScene const& scene)
            {
                std::string const path = scene.Place().Path() + '/' + BLOB;
                std::filesystem::rename(path, path + "-away");
                std::filesystem::create_symlink(path + "-away", path);
            },
            UpdateFault::DeltaBaseDiffers},
        Row{"LinkInABaseFoldersPlace", &DeltaToTheNextVersion,
            [](UpdateScene const& scene)
            {
                std::string const path = AppIn(scene) + "/Resources";
                std::filesystem::rename(path, path + "-away");
                std::filesystem::create_directory_symlink("Resources-away", path);
            },
            UpdateFault::DeltaBaseDiffers},
        Row{"FifoInABaseFilesPlace", &DeltaToTheNextVersion,
            [](UpdateScene const& scene)
            {
                std::string const path = scene.Place().Path() + '/' + BLOB;
                std::filesystem::remove(path);
                EXPECT_EQ(::mkfifo(path.c_str(), 0644), 0);
            },
            UpdateFault::DeltaBaseDiffers},
        Row{"BaseEditedByTheUserForASeparateOne", &RightSeparateDelta,
            [](UpdateScene const& scene)
            { std::ofstream(AppIn(scene) + "/Resources/blob", std::ios::in | std::ios::out).seekp(100) << "edited"; },
            UpdateFault::DeltaBaseDiffers},
        Row{"BytesOfTheBaseEditedByTheUser", &DeltaToTheNextVersion,
            [](UpdateScene const& scene)
            { std::ofstream(AppIn(scene) + "/Resources/blob", std::ios::in | std::ios::out).seekp(100) << "edited"; },
            UpdateFault::DeltaBaseDiffers},
        Row{"JoinedResultDiffers",
            [] { return JoinedDeltaWith([](DeltaManifest& manifest, std::string&) { manifest.targetHash[0] ^= 1; }); },
            &LeaveAlone, UpdateFault::DeltaResultDiffers},
        Row{"JoinedStepBeyondTheBase",
            [] {
                return DeltaWithSteps({1, 0, 1u << 30, 19999, 0, 0});
            },
            &LeaveAlone, UpdateFault::ContainerDamaged},
        Row{"JoinedStepBeforeTheBase",
            [] {
                return DeltaWithSteps({1, 0, 199, 19999, 0, 0});
            },
            &LeaveAlone, UpdateFault::ContainerDamaged},
        Row{"JoinedStepOfMoreThanTheFile",
            [] {
                return DeltaWithSteps({~std::uint64_t(0), ~std::uint64_t(0), 0});
            },
            &LeaveAlone, UpdateFault::ContainerDamaged},
        Row{"FileOfNoUnit",
            [] { return JoinedDeltaWith([](DeltaManifest& manifest, std::string&) { manifest.units.pop_back(); }); },
            &LeaveAlone, UpdateFault::ContainerDamaged},
        Row{"FileOfTwoUnits",
            []
            {
                return JoinedDeltaWith([](DeltaManifest& manifest, std::string&)
                                       { manifest.units.push_back(manifest.units.back()); });
            },
            &LeaveAlone, UpdateFault::ContainerDamaged},
        Row{"UnitsSourceThatLeavesTheBundle",
            []
            {
                return JoinedDeltaWith([](DeltaManifest& manifest, std::string&)
                                       { manifest.units.front().sources.front().path = "../../etc/passwd"; });
            },
            &LeaveAlone, UpdateFault::ContainerDamaged},
        Row{"ProgramOfSeveralFiles",
            []
            {
                return JoinedDeltaWith(
                    [](DeltaManifest& manifest, std::string&)
                    {
                        DeltaUnit& unit = manifest.units.front();
                        unit.sources.push_back(unit.sources.front());
                        unit.spanChanges.resize(1);
                    });
            },
            &LeaveAlone, UpdateFault::ContainerDamaged},
        Row{"UnknownPacking",
            [] {
                return JoinedDeltaWith([](DeltaManifest& manifest, std::string&)
                                       { manifest.streams[4].packing = 226; });
            },
            &LeaveAlone, UpdateFault::ContainerDamaged},
        Row{"OtherPacking",
            [] {
                return JoinedDeltaWith([](DeltaManifest& manifest, std::string&) { manifest.streams[4].packing ^= 1; });
            },
            &LeaveAlone, UpdateFault::ContainerDamaged},
        Row{"BytesBehindTheStreamSteps", &DeltaWithBytesBehindAStream<0>, &LeaveAlone, UpdateFault::ContainerDamaged},
        Row{"BytesBehindTheStreamSame", &DeltaWithBytesBehindAStream<1>, &LeaveAlone, UpdateFault::ContainerDamaged},
        Row{"BytesBehindTheStreamChanged", &DeltaWithBytesBehindAStream<2>, &LeaveAlone, UpdateFault::ContainerDamaged},
        Row{"BytesBehindTheStreamDifference", &DeltaWithBytesBehindAStream<3>, &LeaveAlone,
            UpdateFault::ContainerDamaged},
        Row{"BytesBehindTheStreamExtra", &DeltaWithBytesBehindAStream<4>, &LeaveAlone, UpdateFault::ContainerDamaged},
        Row{"PatchedResultDiffers",
            [] {
                return DeltaWith([](DeltaManifest& manifest, std::string&)
                                 { ChangeHashOf(manifest, DeltaEntryKind::Patched); });
            },
            &LeaveAlone, UpdateFault::DeltaResultDiffers},
        Row{"WholeResultDiffers",
            [] {
                return DeltaWith([](DeltaManifest& manifest, std::string&)
                                 { ChangeHashOf(manifest, DeltaEntryKind::Whole); });
            },
            &LeaveAlone, UpdateFault::DeltaResultDiffers},
        Row{"StepBeyondTheBase",
            []
            {
                return DeltaWith(
                    [](DeltaManifest& manifest, std::string& data) {
                        UseSteps(manifest, data, {1, 0, 1u << 30, 19999, 0, 0});
                    });
            },
            &LeaveAlone, UpdateFault::ContainerDamaged},
        Row{"StepBeforeTheBase",
            []
            {
                return DeltaWith(
                    [](DeltaManifest& manifest, std::string& data) {
                        UseSteps(manifest, data, {1, 0, 199, 19999, 0, 0});
                    });
            },
            &LeaveAlone, UpdateFault::ContainerDamaged},
        Row{"StepOfMoreThanTheFile",
            []
            {
                return DeltaWith(
                    [](DeltaManifest& manifest, std::string& data) {
                        UseSteps(manifest, data, {~std::uint64_t(0), ~std::uint64_t(0), 0});
                    });
            },
            &LeaveAlone, UpdateFault::ContainerDamaged},
        Row{"PathThatLeavesTheBundle",
            []
            { return DeltaWith([](DeltaManifest& manifest, std::string&) { manifest.entries[0].path = "../evil"; }); },
            &LeaveAlone, UpdateFault::EntryEscapes},
        Row{"SourceThatLeavesTheBundle",
            []
            {
                return DeltaWith([](DeltaManifest& manifest, std::string&)
                                 { EntryOf(manifest, DeltaEntryKind::Kept).sourcePath = "../../etc/passwd"; });
            },
            &LeaveAlone, UpdateFault::ContainerDamaged},
        Row{"LinkThatLeavesTheBundle",
            []
            {
                return DeltaWith([](DeltaManifest& manifest, std::string&)
                                 { EntryOf(manifest, DeltaEntryKind::SymbolicLink).linkTarget = "../../../etc"; });
            },
            &LeaveAlone, UpdateFault::LinkEscapes},
        Row{"BytesBehindTheFirstFrameOfAPatch", &DeltaWithBytesBehindAFrame<0>, &LeaveAlone,
            UpdateFault::ContainerDamaged},
        Row{"BytesBehindTheSecondFrameOfAPatch", &DeltaWithBytesBehindAFrame<1>, &LeaveAlone,
            UpdateFault::ContainerDamaged},
        Row{"BytesBehindTheThirdFrameOfAPatch", &DeltaWithBytesBehindAFrame<2>, &LeaveAlone,
            UpdateFault::ContainerDamaged},
        Row{"BytesBehindTheFourthFrameOfAPatch", &DeltaWithBytesBehindAFrame<3>, &LeaveAlone,
            UpdateFault::ContainerDamaged},
        Row{"BytesBehindTheLastFrameOfAPatch", &DeltaWithBytesBehindAFrame<4>, &LeaveAlone,
            UpdateFault::ContainerDamaged},
        Row{"BytesBehindTheFrameOfAWholeFile",
            []
            {
                return DeltaWith(
                    [](DeltaManifest& manifest, std::string& data)
                    {
                        DeltaEntry& entry = EntryOf(manifest, DeltaEntryKind::Whole);
                        data.insert(OffsetOf(manifest, DeltaEntryKind::Whole) + entry.wholeStored, "evil");
                        entry.wholeStored += 4;
                    });
            },
            &LeaveAlone, UpdateFault::ContainerDamaged},
        Row{"DataTooShort", [] { return DeltaToTheNextVersion().substr(0, DeltaToTheNextVersion().size() - 1); },
            &LeaveAlone, UpdateFault::ContainerDamaged},
        Row{"DataTooLong", [] { return DeltaToTheNextVersion() + "x"; }, &LeaveAlone, UpdateFault::ContainerDamaged},
        Row{"ArchiveInstead", [] { return MakeArchive(Container::Zip, MakeBundle("2.0")); }, &LeaveAlone,
            UpdateFault::ContainerUnknown}),
    [](testing::TestParamInfo<Row> const& info) { return info.param.name; });

} // namespace
