#include "Engine/core/delta/BinaryPatch.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>
#include <limits>
#include <random>

namespace
{

using namespace Pelnar::Engine;

Bytes View(ByteBuffer const& buffer)
{
    return {buffer.data(), buffer.size()};
}

ByteBuffer FromText(char const* text)
{
    return {text, text + std::strlen(text)};
}

/// Reads a buffer from its beginning, and refuses to read past its end.
ByteSource Reader(ByteBuffer const& buffer)
{
    return [&buffer, position = std::size_t(0)](std::uint8_t* target, std::size_t size) mutable
    {
        if (size > buffer.size() - position)
        {
            return false;
        }
        std::copy_n(buffer.begin() + static_cast<std::ptrdiff_t>(position), size, target);
        position += size;
        return true;
    };
}

PatchVerdict Apply(ByteBuffer const& oldBytes, BinaryPatch const& patch, std::uint64_t newSize, ByteBuffer& result)
{
    return ApplyBinaryPatch(View(oldBytes), patch.control.size(), Reader(patch.control), Reader(patch.difference),
                            Reader(patch.extra), newSize,
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

/// What a new build does to a file: pieces move, are replaced, inserted and dropped.
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

TEST(BinaryPatch, UnchangedFileIsOneStepOfZeros)
{
    std::mt19937 random(3);
    ByteBuffer const bytes = RandomBytes(random, 10000, 256);
    std::optional<BinaryPatch> const patch = MakeBinaryPatch(View(bytes), View(bytes));
    ASSERT_TRUE(patch);
    EXPECT_EQ(patch->control.size(), 24u);
    EXPECT_EQ(patch->difference, ByteBuffer(10000, 0));
    EXPECT_TRUE(patch->extra.empty());
}

ByteBuffer Control(std::initializer_list<std::int64_t> numbers)
{
    ByteBuffer control;
    for (std::int64_t const number : numbers)
    {
        for (int shift = 0; shift < 64; shift += 8)
        {
            control.push_back(static_cast<std::uint8_t>(static_cast<std::uint64_t>(number) >> shift));
        }
    }
    return control;
}

struct HostileRow
{
    char const* name;
    ByteBuffer control;
    std::size_t differenceBytes;
    std::size_t extraBytes;
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
    BinaryPatch const patch{row.control, ByteBuffer(row.differenceBytes, 0), ByteBuffer(row.extraBytes, 0)};
    ByteBuffer result;
    EXPECT_EQ(Apply(oldBytes, patch, row.newSize, result), row.verdict);
    EXPECT_LE(result.size(), row.newSize);
}

constexpr std::int64_t LOWEST = std::numeric_limits<std::int64_t>::min();
constexpr std::int64_t HIGHEST = std::numeric_limits<std::int64_t>::max();

INSTANTIATE_TEST_SUITE_P(
    Rows, HostilePatch,
    testing::Values(HostileRow{"NoStepAtAll", {}, 0, 0, 1, PatchVerdict::WrongSize},
                    HostileRow{"HalfAStep", ByteBuffer(23, 0), 0, 0, 0, PatchVerdict::WrongSize},
                    HostileRow{"TooFewBytes", Control({4, 0, 0}), 4, 0, 5, PatchVerdict::WrongSize},
                    HostileRow{"TooManyDifferenceBytes", Control({6, 0, 0}), 6, 0, 5, PatchVerdict::WrongSize},
                    HostileRow{"TooManyExtraBytes", Control({4, 2, 0}), 4, 2, 5, PatchVerdict::WrongSize},
                    HostileRow{"SizesThatOverflow", Control({4, -1, 0}), 4, 2, 5, PatchVerdict::WrongSize},
                    HostileRow{"NegativeDifference", Control({-1, 0, 0}), 4, 0, 5, PatchVerdict::WrongSize},
                    HostileRow{"DifferencePastTheOldEnd", Control({11, 0, 0}), 11, 0, 20, PatchVerdict::OutOfRange},
                    HostileRow{"MovePastTheOldEnd", Control({4, 0, 7}), 4, 0, 4, PatchVerdict::OutOfRange},
                    HostileRow{"MoveBeforeTheOldBeginning", Control({4, 0, -5}), 4, 0, 4, PatchVerdict::OutOfRange},
                    HostileRow{"LowestMove", Control({4, 0, LOWEST}), 4, 0, 4, PatchVerdict::OutOfRange},
                    HostileRow{"HighestMove", Control({4, 0, HIGHEST}), 4, 0, 4, PatchVerdict::OutOfRange},
                    HostileRow{"DifferenceStreamEnds", Control({4, 0, 0}), 3, 0, 4, PatchVerdict::SourceEnded},
                    HostileRow{"ExtraStreamEnds", Control({0, 4, 0}), 0, 3, 4, PatchVerdict::SourceEnded}),
    [](testing::TestParamInfo<HostileRow> const& row) { return row.param.name; });

TEST(BinaryPatch, ControlStreamThatEndsEarlyIsRefused)
{
    ByteBuffer const oldBytes(10, 1);
    ByteBuffer const control = Control({4, 0, 0});
    ByteBuffer const difference(4, 0);
    EXPECT_EQ(ApplyBinaryPatch(View(oldBytes), 48, Reader(control), Reader(difference), Reader({}), 4,
                               [](Bytes) { return true; }),
              PatchVerdict::SourceEnded);
}

TEST(BinaryPatch, SinkThatRefusesEndsTheWork)
{
    ByteBuffer const oldBytes(10, 1);
    for (ByteBuffer const& control : {Control({4, 0, 0}), Control({0, 4, 0})})
    {
        ByteBuffer const stream(4, 0);
        int calls = 0;
        EXPECT_EQ(ApplyBinaryPatch(View(oldBytes), 24, Reader(control), Reader(stream), Reader(stream), 4,
                                   [&calls](Bytes)
                                   {
                                       ++calls;
                                       return false;
                                   }),
                  PatchVerdict::SinkRefused);
        EXPECT_EQ(calls, 1);
    }
}

} // namespace
