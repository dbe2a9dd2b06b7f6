// JoinedManifestTest.cpp: the rules for the units of a joined delta, and damaged streams.

#include "Engine/core/base/Descriptor.h"
#include "Engine/core/delta/DeltaApplier.h"
#include "Engine/core/delta/DeltaContainerWriter.h"
#include "Engine/core/delta/DeltaMaker.h"
#include "Engine/core/delta/StreamUnpacker.h"
#include "tests/delta/ForgedProgram.h"
#include "tests/delta/ManifestEquality.h"
#include "tests/delta/PackedFiles.h"
#include "tests/delta/SeparateDelta.h"

#include <gtest/gtest.h>

#include <QTemporaryDir>

#include <filesystem>

namespace
{

using namespace Pelnar::Engine;
using namespace Pelnar::Testing;
namespace fs = std::filesystem;

using Error = DeltaManifestError;

// The rules for units.

struct UnitRow
{
    char const* name;
    void (*change)(DeltaManifest& manifest);
    DeltaManifestError error;
};

DeltaManifest RightManifest()
{
    DeltaManifest manifest;
    manifest.format = DeltaFormat::Joined;
    manifest.baseVersion = "1";
    manifest.targetVersion = "2";
    for (char const* const name : {"a", "ab", "b"})
    {
        DeltaEntry entry;
        entry.path = name;
        entry.kind = DeltaEntryKind::Patched;
        entry.size = 10;
        manifest.entries.push_back(entry);
    }
    manifest.entries[2].kind = DeltaEntryKind::Whole;
    manifest.entries[2].isExecutable = true;
    manifest.units.push_back({{{"ab", 30}, {"gone", 7}}, {1, 0}, {}});
    manifest.units.push_back({{}, {2}, {}});
    manifest.streams[4] = {1, 40};
    return manifest;
}

class UnitRule : public testing::TestWithParam<UnitRow>
{
};

TEST_P(UnitRule, Holds)
{
    DeltaManifest manifest = RightManifest();
    GetParam().change(manifest);
    EXPECT_EQ(CheckDeltaManifest(manifest, {}).error, GetParam().error);
    ByteBuffer const bytes = EncodeDeltaManifest(manifest);
    DeltaManifest decoded;
    decoded.format = DeltaFormat::Joined;
    EXPECT_EQ(DecodeDeltaManifest(View(bytes), {}, decoded).error, GetParam().error);
    if (GetParam().error == DeltaManifestError::None)
    {
        EXPECT_EQ(decoded.entries, manifest.entries);
        EXPECT_EQ(decoded.units, manifest.units);
        EXPECT_EQ(decoded.streams, manifest.streams);
        EXPECT_EQ(decoded.baseHash, manifest.baseHash);
        EXPECT_EQ(decoded.targetHash, manifest.targetHash);
    }
}

INSTANTIATE_TEST_SUITE_P(
    Rows, UnitRule,
    testing::Values(
        UnitRow{"Right", [](DeltaManifest&) {}, Error::None},
        UnitRow{"Program",
                [](DeltaManifest& manifest)
                {
                    manifest.units[0] = {{{"a", 12}}, {0}, {{0, -4096, 4096}, {1, 2, -3}}};
                    manifest.units.push_back({{{"a", 12}}, {1}, {}});
                },
                Error::None},
        UnitRow{"ProgramOfTwoSources", [](DeltaManifest& manifest) { manifest.units[0].spanChanges.resize(1); },
                Error::BadUnit},
        UnitRow{"NotMade", [](DeltaManifest& manifest) { manifest.units.pop_back(); }, Error::BadUnit},
        UnitRow{"MadeTwice", [](DeltaManifest& manifest) { manifest.units[0].targets.push_back(0); }, Error::BadUnit},
        UnitRow{"WholeOfASource",
                [](DeltaManifest& manifest) {
                    manifest.units[1].sources.push_back({"x", 1});
                },
                Error::BadUnit},
        UnitRow{"PatchedOfNone", [](DeltaManifest& manifest) { manifest.units[0].sources.clear(); }, Error::BadUnit},
        UnitRow{"FolderAsTarget",
                [](DeltaManifest& manifest)
                {
                    manifest.entries[2] = DeltaEntry();
                    manifest.entries[2].path = "b";
                },
                Error::BadUnit},
        UnitRow{"SourceThatLeaves", [](DeltaManifest& manifest) { manifest.units[0].sources[1].path = "../x"; },
                Error::BadSource},
        UnitRow{"AbsoluteSource", [](DeltaManifest& manifest) { manifest.units[0].sources[1].path = "/x"; },
                Error::BadSource},
        UnitRow{"HugeSource", [](DeltaManifest& manifest) { manifest.units[0].sources[1].size = 1ull << 62; },
                Error::TooManyBytes},
        UnitRow{"HugeSourcesTogether",
                [](DeltaManifest& manifest) {
                    manifest.units[0].sources.assign(2, {"x", (4ull << 30) - 1});
                },
                Error::TooManyBytes},
        UnitRow{"UnknownPacking", [](DeltaManifest& manifest) { manifest.streams[0].packing = 226; },
                Error::BadPacking},
        UnitRow{"HugeStream", [](DeltaManifest& manifest) { manifest.streams[0].size = ~0ull; }, Error::BadPacking}),
    [](testing::TestParamInfo<UnitRow> const& row) { return row.param.name; });

TEST(JoinedManifest, EveryTruncationIsRefused)
{
    ByteBuffer const whole = EncodeDeltaManifest(RightManifest());
    for (std::size_t size = 0; size < whole.size(); ++size)
    {
        DeltaManifest decoded;
        decoded.format = DeltaFormat::Joined;
        EXPECT_NE(DecodeDeltaManifest(Bytes(whole.data(), size), {}, decoded).error, Error::None) << size;
    }
}

TEST(JoinedManifest, PathsThatShareTooMuchAreRefusedBeforeTheyFillTheMemory)
{
    DeltaManifest manifest;
    manifest.format = DeltaFormat::Joined;
    std::string const deep(60000, 'a');
    for (int i = 0; i < 1200; ++i)
    {
        DeltaEntry entry;
        entry.path = deep + std::to_string(10000 + i);
        manifest.entries.push_back(entry);
    }
    ByteBuffer const bytes = EncodeDeltaManifest(manifest);
    EXPECT_LT(bytes.size(), 100000u);
    DeltaManifest decoded;
    decoded.format = DeltaFormat::Joined;
    EXPECT_EQ(DecodeDeltaManifest(View(bytes), {}, decoded).error, Error::TextTooLong);
}

// Streams.

TEST(StreamUnpacker, NoDamageOfLzmaMakesMoreThanWasPacked)
{
    std::string const plain = Noise(9, 300) + std::string(5000, 'x') + Noise(9, 300);
    Bytes const bytes(reinterpret_cast<std::uint8_t const*>(plain.data()), plain.size());
    ByteBuffer const packed = PackByLzma(bytes, 4, NUMBERS_WINDOW_LOG);
    for (std::size_t at = 0; at < packed.size(); ++at)
    {
        ByteBuffer damaged = packed;
        damaged[at] ^= 0x20;
        auto const unpacker = MakeUnpacker(4, NUMBERS_WINDOW_LOG);
        Bytes input(damaged.data(), damaged.size());
        ByteBuffer made(10000);
        IUnpacker::Step const step = unpacker->Unpack(input, made.data(), made.size());
        bool const isWhole = step.state == IUnpacker::State::Ended &&
                             std::equal(plain.begin(), plain.end(), made.begin(),
                                        [](char a, std::uint8_t b) { return static_cast<std::uint8_t>(a) == b; });
        EXPECT_FALSE(isWhole && step.made == plain.size() && at + 5 < packed.size()) << at;
        EXPECT_LE(step.made, made.size());
    }
}

ByteBuffer PackedByZstd(std::string const& plain)
{
    return CompressForDelta({reinterpret_cast<std::uint8_t const*>(plain.data()), plain.size()}, NUMBERS_WINDOW_LOG,
                            DeltaEffort::Low);
}

TEST(StreamUnpacker, SmallStreamsThatShareAContextAreUnpackedInTurn)
{
    std::string const texts[] = {Noise(3, 300), std::string(3000, 'x'), Noise(4, 20)};
    std::vector<std::unique_ptr<IUnpacker>> unpackers;
    for (std::string const& text : texts)
    {
        SCOPED_TRACE(text.size());
        ByteBuffer packed = PackedByZstd(text);
        packed.insert(packed.end(), {1, 2});
        for (std::size_t const room : {text.size(), text.size() - 1})
        {
            IUnpacker& unpacker = *unpackers.emplace_back(MakeUnpacker(0, NUMBERS_WINDOW_LOG));
            Bytes input;
            ByteBuffer made(room);
            EXPECT_EQ(unpacker.Unpack(input, made.data(), made.size()).state, IUnpacker::State::Going);
            input = Bytes(packed.data(), packed.size());
            IUnpacker::Step const step = unpacker.Unpack(input, made.data(), made.size());
            EXPECT_EQ(step.state, room == text.size() ? IUnpacker::State::Ended : IUnpacker::State::Going);
            EXPECT_EQ(step.made, room);
            EXPECT_TRUE(std::equal(made.begin(), made.end(), text.begin(),
                                   [](std::uint8_t a, char b) { return a == static_cast<std::uint8_t>(b); }));
            EXPECT_GE(input.size(), 2u) << "what follows the stream is not used";
        }
    }
}

TEST(StreamUnpacker, ADamagedSmallStreamStaysDamaged)
{
    ByteBuffer const packed = PackedByZstd(std::string(40, 'x') + Noise(5, 300));
    std::size_t damages = 0;
    for (std::size_t at = 0; at < packed.size(); ++at)
    {
        ByteBuffer changed = packed;
        changed[at] ^= 0x20;
        auto const unpacker = MakeUnpacker(0, NUMBERS_WINDOW_LOG);
        Bytes input(changed.data(), changed.size());
        ByteBuffer made(4096);
        if (unpacker->Unpack(input, made.data(), made.size()).state == IUnpacker::State::Damaged)
        {
            ++damages;
            EXPECT_EQ(unpacker->Unpack(input, made.data(), made.size()).state, IUnpacker::State::Damaged) << at;
        }
    }
    EXPECT_GT(damages, 0u);
}

TEST(StreamUnpacker, PropertiesThatLzmaDoesNotKnowAreDamage)
{
    auto const unpacker = MakeUnpacker(225, NUMBERS_WINDOW_LOG);
    Bytes input;
    std::uint8_t byte = 0;
    EXPECT_EQ(unpacker->Unpack(input, &byte, 1).state, IUnpacker::State::Damaged);
}

} // namespace
