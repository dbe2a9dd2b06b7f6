#include "Engine/core/delta/BinaryPatch.h"
#include "Engine/core/delta/PatchApplier.h"
#include "tests/delta/SeparateDelta.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>
#include <limits>
#include <memory>
#include <random>
#include <vector>

namespace
{

using namespace Pelnar::Engine;
using Pelnar::Testing::ApplyBinaryPatch;
using Pelnar::Testing::MakeBinaryPatch;

ByteBuffer FromText(char const* text)
{
    return {text, text + std::strlen(text)};
}

/// Reads a buffer from its beginning to its end.
ByteSource Reader(ByteBuffer const& buffer)
{
    return [&buffer, position = std::size_t(0)](std::uint8_t* target, std::size_t size) mutable
    {
        std::size_t const count = std::min(size, buffer.size() - position);
        std::copy_n(buffer.begin() + static_cast<std::ptrdiff_t>(position), count, target);
        position += count;
        return count;
    };
}

PatchSources Readers(BinaryPatch const& patch)
{
    PatchSources sources;
    std::transform(patch.streams.begin(), patch.streams.end(), sources.begin(), &Reader);
    return sources;
}

PatchVerdict Apply(ByteBuffer const& oldBytes, BinaryPatch const& patch, std::uint64_t newSize, ByteBuffer& result)
{
    return ApplyBinaryPatch(View(oldBytes), Readers(patch), newSize,
                            [&result](Bytes bytes)
                            {
                                result.insert(result.end(), bytes.begin(), bytes.end());
                                return true;
                            });
}

void ExpectRoundTrip(ByteBuffer const& oldBytes, ByteBuffer const& newBytes)
{
    std::optional<BinaryPatch> const patch = MakeBinaryPatch(View(oldBytes), View(newBytes));
    ASSERT_TRUE(patch);
    ByteBuffer result;
    EXPECT_EQ(Apply(oldBytes, *patch, newBytes.size(), result), PatchVerdict::Applied);
    EXPECT_EQ(result, newBytes);
}

ByteBuffer RandomBytes(std::mt19937& random, std::size_t size, int alphabet)
{
    ByteBuffer bytes(size);
    std::generate(bytes.begin(), bytes.end(), [&] { return static_cast<std::uint8_t>(random() % alphabet); });
    return bytes;
}

/// The effect of a new build on a file: pieces are moved, replaced, inserted and removed.
ByteBuffer Edited(std::mt19937& random, ByteBuffer bytes)
{
    for (int edit = 0; edit < 6; ++edit)
    {
        std::size_t const at = bytes.empty() ? 0 : random() % bytes.size();
        std::size_t const length = std::min<std::size_t>(random() % 50, bytes.size() - at);
        auto const begin = bytes.begin() + static_cast<std::ptrdiff_t>(at);
        switch (random() % 3)
        {
        case 0:
            bytes.erase(begin, begin + static_cast<std::ptrdiff_t>(length));
            break;
        case 1:
        {
            ByteBuffer const inserted = RandomBytes(random, length, 256);
            bytes.insert(begin, inserted.begin(), inserted.end());
            break;
        }
        case 2:
            std::for_each(begin, begin + static_cast<std::ptrdiff_t>(length), [](std::uint8_t& byte) { ++byte; });
            break;
        }
    }
    return bytes;
}

TEST(BinaryPatch, SmallestFilesSurviveTheRoundTrip)
{
    for (char const* oldText : {"", "a", "abc", "abcabcabcabcabcabcabc"})
    {
        for (char const* newText : {"", "a", "b", "abc", "xabc", "abcabcabcabcabcabcabcx"})
        {
            SCOPED_TRACE(std::string(oldText) + " to " + newText);
            ExpectRoundTrip(FromText(oldText), FromText(newText));
        }
    }
}

TEST(BinaryPatch, RandomEditsSurviveTheRoundTrip)
{
    std::mt19937 random(20261121);
    for (int round = 0; round < 400; ++round)
    {
        SCOPED_TRACE(round);
        ByteBuffer const oldBytes = RandomBytes(random, random() % 5000, 1 + static_cast<int>(random() % 256));
        ExpectRoundTrip(oldBytes, Edited(random, oldBytes));
    }
}

TEST(BinaryPatch, FilesOverOnePieceSurviveTheRoundTrip)
{
    std::mt19937 random(7);
    ByteBuffer const oldBytes = RandomBytes(random, 300000, 256);
    ByteBuffer newBytes = RandomBytes(random, 150000, 256);
    newBytes.insert(newBytes.end(), oldBytes.begin(), oldBytes.end());
    ExpectRoundTrip(oldBytes, newBytes);
}

ByteBuffer Numbers(std::initializer_list<std::uint64_t> numbers)
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

TEST(BinaryPatch, UnchangedFileIsOneStepAndOneRun)
{
    std::mt19937 random(3);
    ByteBuffer const bytes = RandomBytes(random, 10000, 256);
    std::optional<BinaryPatch> const patch = MakeBinaryPatch(View(bytes), View(bytes));
    ASSERT_TRUE(patch);
    EXPECT_EQ((*patch)[PatchStream::Steps], Numbers({10000, 0, 0}));
    EXPECT_EQ((*patch)[PatchStream::Same], Numbers({10000}));
    EXPECT_TRUE((*patch)[PatchStream::Changed].empty());
    EXPECT_TRUE((*patch)[PatchStream::Difference].empty());
    EXPECT_TRUE((*patch)[PatchStream::Extra].empty());
}

TEST(BinaryPatch, ChangedBytesAreRunsAndWhatIsAddedToThem)
{
    std::mt19937 random(4);
    ByteBuffer const oldBytes = RandomBytes(random, 1000, 256);
    ByteBuffer newBytes = oldBytes;
    newBytes[100] = static_cast<std::uint8_t>(newBytes[100] + 7);
    newBytes[101] = static_cast<std::uint8_t>(newBytes[101] - 1);
    newBytes[500] = static_cast<std::uint8_t>(newBytes[500] + 1);
    std::optional<BinaryPatch> const patch = MakeBinaryPatch(View(oldBytes), View(newBytes));
    ASSERT_TRUE(patch);
    EXPECT_EQ((*patch)[PatchStream::Same], Numbers({100, 398, 499}));
    EXPECT_EQ((*patch)[PatchStream::Changed], Numbers({2, 1}));
    EXPECT_EQ((*patch)[PatchStream::Difference], (ByteBuffer{7, 255, 1}));
}

struct HostileRow
{
    char const* name;
    BinaryPatch patch; ///< of a file of ten bytes
    std::uint64_t newSize;
    PatchVerdict verdict;
};

class HostilePatch : public testing::TestWithParam<HostileRow>
{
};

TEST_P(HostilePatch, IsRefused)
{
    HostileRow const& row = GetParam();
    ByteBuffer const oldBytes(10, 1);
    ByteBuffer result;
    EXPECT_EQ(Apply(oldBytes, row.patch, row.newSize, result), row.verdict);
    EXPECT_LE(result.size(), row.newSize);
}

constexpr std::uint64_t HIGHEST = std::numeric_limits<std::uint64_t>::max();

BinaryPatch Patch(ByteBuffer steps, ByteBuffer same = {}, ByteBuffer changed = {}, std::size_t differenceBytes = 0,
                  std::size_t extraBytes = 0)
{
    return {{std::move(steps), std::move(same), std::move(changed), ByteBuffer(differenceBytes, 0),
             ByteBuffer(extraBytes, 0)}};
}

using Verdict = PatchVerdict;

INSTANTIATE_TEST_SUITE_P(
    Rows, HostilePatch,
    testing::Values(
        HostileRow{"NoStepAtAll", Patch({}), 1, Verdict::SourceEnded},
        HostileRow{"HalfAStep", Patch(Numbers({4, 0}), Numbers({4})), 4, Verdict::SourceEnded},
        HostileRow{"TooFewBytes", Patch(Numbers({4, 0, 0}), Numbers({4})), 5, Verdict::SourceEnded},
        HostileRow{"TooManyLikeBytes", Patch(Numbers({6, 0, 0}), Numbers({6})), 5, Verdict::WrongSize},
        HostileRow{"TooManyExtraBytes", Patch(Numbers({4, 2, 0}), Numbers({4}), {}, 0, 2), 5, Verdict::WrongSize},
        HostileRow{"SizesThatOverflow", Patch(Numbers({4, HIGHEST, 0}), Numbers({4})), 5, Verdict::WrongSize},
        HostileRow{"LikePastTheOldEnd", Patch(Numbers({11, 0, 0}), Numbers({11})), 20, Verdict::OutOfRange},
        HostileRow{"MovePastTheOldEnd", Patch(Numbers({4, 0, 14}), Numbers({4})), 4, Verdict::OutOfRange},
        HostileRow{"MoveBeforeTheOldBeginning", Patch(Numbers({4, 0, 9}), Numbers({4})), 4, Verdict::OutOfRange},
        HostileRow{"FarthestMoveBack", Patch(Numbers({4, 0, HIGHEST}), Numbers({4})), 4, Verdict::OutOfRange},
        HostileRow{"FarthestMove", Patch(Numbers({4, 0, HIGHEST - 1}), Numbers({4})), 4, Verdict::OutOfRange},
        HostileRow{"SecondStepOfNothing", Patch(Numbers({0, 0, 2, 0, 0, 2, 4, 0, 0}), Numbers({4})), 4,
                   Verdict::BadNumber},
        HostileRow{"RunOfNothing", Patch(Numbers({4, 0, 0}), Numbers({0, 0, 4}), Numbers({0, 0})), 4,
                   Verdict::BadNumber},
        HostileRow{"LongFormOfANumber", Patch({0x84, 0x00, 0, 0}, Numbers({4})), 4, Verdict::BadNumber},
        HostileRow{"NumberOfMoreThan64Bits",
                   Patch({0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 2, 0, 0}, Numbers({4})), 4,
                   Verdict::BadNumber},
        HostileRow{"RunsEnd", Patch(Numbers({4, 0, 0}), Numbers({3})), 4, Verdict::SourceEnded},
        HostileRow{"RunGoesOnAfterTheLastStep", Patch(Numbers({4, 0, 0}), Numbers({5})), 4, Verdict::WrongSize},
        HostileRow{"StepLeftOver", Patch(Numbers({4, 0, 0, 0, 0, 0}), Numbers({4})), 4, Verdict::WrongSize},
        HostileRow{"DifferenceLeftOver", Patch(Numbers({4, 0, 0}), Numbers({4}), {}, 1), 4, Verdict::WrongSize},
        HostileRow{"ExtraLeftOver", Patch(Numbers({4, 0, 0}), Numbers({4}), {}, 0, 1), 4, Verdict::WrongSize},
        HostileRow{"DifferenceStreamEnds", Patch(Numbers({4, 0, 0}), Numbers({0}), Numbers({4}), 3), 4,
                   Verdict::SourceEnded},
        HostileRow{"ExtraStreamEnds", Patch(Numbers({0, 4, 0}), {}, {}, 0, 3), 4, Verdict::SourceEnded}),
    [](testing::TestParamInfo<HostileRow> const& row) { return row.param.name; });

TEST(BinaryPatch, SinkThatRefusesEndsTheWork)
{
    ByteBuffer const oldBytes(10, 1);
    for (BinaryPatch const& patch : {Patch(Numbers({4, 0, 0}), Numbers({4})), Patch(Numbers({0, 4, 0}), {}, {}, 0, 4)})
    {
        int calls = 0;
        EXPECT_EQ(ApplyBinaryPatch(View(oldBytes), Readers(patch), 4,
                                   [&calls](Bytes)
                                   {
                                       ++calls;
                                       return false;
                                   }),
                  PatchVerdict::SinkRefused);
        EXPECT_EQ(calls, 1);
    }
}

TEST(PatchApplier, PiecesStayAsLongAsPromisedWhateverTheSizesOfFiles)
{
    ByteSource const endless = [](std::uint8_t* target, std::size_t size)
    {
        std::fill_n(target, size, std::uint8_t(1));
        return size;
    };
    PatchSources const sources{endless, endless, endless, endless, endless};
    auto const applier = std::make_unique<PatchApplier>(sources);
    std::vector<std::uint8_t const*> pieces;
    auto const sink = [&pieces](Bytes piece)
    {
        std::size_t const recent = std::min(pieces.size(), PIECES_AHEAD);
        EXPECT_EQ(std::count(pieces.end() - static_cast<std::ptrdiff_t>(recent), pieces.end(), piece.data()), 0);
        pieces.push_back(piece.data());
        return true;
    };
    // Files that end with a whole piece, and empty ones.
    for (std::size_t const size : {1, 0, 1, 0, 0, 0, 0, 0, 0, 0, 1, 1, 2, 1, 0, 1, 1, 1, 1})
    {
        ASSERT_EQ(applier->MakeWhole(size * PATCH_PIECE_BYTES, sink), PatchVerdict::Applied);
    }
    EXPECT_EQ(pieces.size(), 11u);
}

TEST(PatchApplier, WholePiecesOfTheOldFileAreNotCopied)
{
    std::mt19937 random(3);
    ByteBuffer const oldFile = RandomBytes(random, 3 * PATCH_PIECE_BYTES, 256);
    ByteBuffer expected = oldFile;
    expected[100] = static_cast<std::uint8_t>(expected[100] + 1);
    ByteBuffer steps;
    ByteBuffer same{100};
    AppendNumber(steps, oldFile.size());
    AppendNumber(steps, 0);
    AppendNumber(steps, 0);
    AppendNumber(same, oldFile.size() - 101);
    ByteBuffer const one{1};
    ByteBuffer const none;
    PatchSources const sources{Reader(steps), Reader(same), Reader(one), Reader(one), Reader(none)};
    auto const applier = std::make_unique<PatchApplier>(sources);
    ByteBuffer made;
    std::size_t uncopied = 0;
    auto const sink = [&](Bytes piece)
    {
        bool const isOld = piece.data() >= oldFile.data() && piece.data() < oldFile.data() + oldFile.size();
        uncopied += isOld ? piece.size() : 0;
        EXPECT_LE(piece.size(), PATCH_PIECE_BYTES);
        made.insert(made.end(), piece.begin(), piece.end());
        return true;
    };
    PlainText old({View(oldFile)});
    ASSERT_EQ(applier->Make(old, oldFile.size(), sink), PatchVerdict::Applied);
    EXPECT_TRUE(applier->IsUsedUp());
    EXPECT_EQ(made, expected);
    EXPECT_EQ(uncopied, 2 * PATCH_PIECE_BYTES);
}

} // namespace
