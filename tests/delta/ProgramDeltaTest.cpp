// ProgramDeltaTest.cpp: programs whose code only moved give small deltas. Any content of a file gives either the new
// file or nothing.

#include "Engine/core/delta/AlignmentText.h"
#include "Engine/core/delta/PatchApplier.h"
#include "Engine/core/delta/PatchWriter.h"
#include "Engine/core/delta/StepFinder.h"
#include "tests/delta/ForgedProgram.h"
#include "tests/delta/SeparateDelta.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <random>

namespace
{

using namespace Pelnar::Engine;
using namespace Pelnar::Testing;

PatchSources Readers(BinaryPatch const& patch)
{
    PatchSources sources;
    std::transform(patch.streams.begin(), patch.streams.end(), sources.begin(),
                   [](ByteBuffer const& buffer) -> ByteSource
                   {
                       return [&buffer, position = std::size_t(0)](std::uint8_t* target, std::size_t size) mutable
                       {
                           std::size_t const count = std::min(size, buffer.size() - position);
                           std::copy_n(buffer.begin() + static_cast<std::ptrdiff_t>(position), count, target);
                           position += count;
                           return count;
                       };
                   });
    return sources;
}

/// A patch of programs: the number of bytes that differ from the prediction or are new, and its result.
struct ProgramPatch
{
    std::size_t changedBytes = 0;
    PatchVerdict verdict = PatchVerdict::WrongSize;
    ByteBuffer made;
};

ProgramPatch PatchProgram(ByteBuffer const& before, ByteBuffer const& after)
{
    std::optional<ImageLayout> const layout = ReadImageLayout(View(before));
    std::optional<ImageLayout> const newLayout = ReadImageLayout(View(after));
    ProgramPatch answer;
    if (!layout || !newLayout)
    {
        ADD_FAILURE() << "not taken for a program";
        return answer;
    }
    ByteBuffer const oldText = AlignmentTextOf(View(before), *layout);
    ByteBuffer const newText = AlignmentTextOf(View(after), *newLayout);
    SuffixIndex index;
    EXPECT_TRUE(index.Build(View(oldText)));
    std::uint64_t position = 0;
    std::vector<PatchStep> const steps = FindSteps(index, View(newText), position);
    PatchWriter writer;
    ProgramText old(View(before), *layout, newLayout->spans, steps);
    writer.Add(old, steps, View(after));
    BinaryPatch const patch = writer.Finish();
    answer.changedBytes = patch[PatchStream::Difference].size() + patch[PatchStream::Extra].size();

    PatchSources const sources = Readers(patch);
    PatchApplier applier(sources);
    std::vector<PatchStep> taken;
    answer.verdict = applier.TakeSteps(before.size(), after.size(), MAX_MAPPED_STEPS, taken);
    if (answer.verdict == PatchVerdict::Applied)
    {
        ProgramText again(View(before), *layout, newLayout->spans, taken);
        answer.verdict = applier.MakeBySteps(again, taken, after.size(),
                                             [&answer](Bytes bytes)
                                             {
                                                 answer.made.insert(answer.made.end(), bytes.begin(), bytes.end());
                                                 return true;
                                             });
    }
    EXPECT_TRUE(applier.IsUsedUp());
    return answer;
}

struct MovedRow
{
    char const* name;
    std::size_t insertedAt;
    std::size_t insertedBytes;
    std::size_t stringsMoved;
};

class MovedProgram : public testing::TestWithParam<std::tuple<Processor, MovedRow>>
{
};

TEST_P(MovedProgram, DiffersInLittleMoreThanWhatIsNew)
{
    ProgramShape shape;
    shape.processor = std::get<0>(GetParam());
    ByteBuffer const before = ForgeProgram(shape);
    MovedRow const& row = std::get<1>(GetParam());
    shape.insertedAt = row.insertedAt;
    shape.insertedBytes = row.insertedBytes;
    shape.stringsMoved = row.stringsMoved;
    ByteBuffer const after = ForgeProgram(shape);
    ProgramPatch const patch = PatchProgram(before, after);
    EXPECT_EQ(patch.verdict, PatchVerdict::Applied);
    EXPECT_EQ(patch.made, after);
    // The headers and the new parts. Without the prediction of addresses there would be thousands.
    EXPECT_LT(patch.changedBytes, 1100u);
    BinaryPatch const plain = MakeBinaryPatch(View(before), View(after)).value();
    EXPECT_GT(plain[PatchStream::Difference].size() + plain[PatchStream::Extra].size(), 2 * patch.changedBytes);
}

INSTANTIATE_TEST_SUITE_P(Rows, MovedProgram,
                         testing::Combine(testing::Values(Processor::X86, Processor::Arm64),
                                          testing::Values(MovedRow{"CodeInserted", 100, 64, 0},
                                                          MovedRow{"CodeInsertedAtTheBeginning", 1, 16, 0},
                                                          MovedRow{"StringsMoved", 0, 0, 0x2000},
                                                          MovedRow{"BothMoved", 50, 32, 0x1008})),
                         [](testing::TestParamInfo<std::tuple<Processor, MovedRow>> const& info)
                         {
                             bool const isX86 = std::get<0>(info.param) == Processor::X86;
                             return std::get<1>(info.param).name + std::string(isX86 ? "X86" : "Arm64");
                         });

TEST(ProgramDelta, EditedProgramsSurviveTheRoundTrip)
{
    std::mt19937 random(20261122);
    for (Processor const processor : {Processor::X86, Processor::Arm64})
    {
        for (int round = 0; round < 40; ++round)
        {
            SCOPED_TRACE(round);
            ProgramShape shape;
            shape.processor = processor;
            shape.functions = 20 + random() % 30;
            ByteBuffer before = ForgeProgram(shape);
            shape.insertedAt = random() % shape.functions;
            shape.insertedBytes = random() % 20 * 4;
            shape.stringsMoved = random() % 4 * 8;
            ByteBuffer after = ForgeProgram(shape);
            for (int edit = 0; edit < 30; ++edit)
            {
                // Not in the headers at the start, so that the file still counts as a program.
                before[300 + random() % (before.size() - 300)] = static_cast<std::uint8_t>(random());
                after[300 + random() % (after.size() - 300)] = static_cast<std::uint8_t>(random());
            }
            ProgramPatch const patch = PatchProgram(before, after);
            EXPECT_EQ(patch.verdict, PatchVerdict::Applied);
            EXPECT_EQ(patch.made, after);
        }
    }
}

TEST(ProgramDelta, EveryTruncationIsNoProgramOrReadWithinIts)
{
    ByteBuffer const whole = ForgeProgram({});
    for (std::size_t size = 0; size < whole.size(); size += size < 200 ? 1 : 97)
    {
        // The sanitizers see a read beyond a buffer of exactly this size.
        ByteBuffer const cut(whole.begin(), whole.begin() + static_cast<std::ptrdiff_t>(size));
        if (std::optional<ImageLayout> const layout = ReadImageLayout(View(cut)))
        {
            EXPECT_EQ(AlignmentTextOf(View(cut), *layout).size(), cut.size());
        }
    }
}

/// The run that has been started, taken with room for 1 to \a mostRoom bytes at a time.
ByteBuffer RunOf(IOldText& text, std::size_t mostRoom, std::mt19937& random)
{
    ByteBuffer run;
    for (bool isGoing = true; isGoing;)
    {
        // Of its own size, so that a byte behind it is noticed.
        ByteBuffer room(1 + random() % mostRoom);
        Bytes const piece = text.Next(room.data(), room.size());
        EXPECT_TRUE(piece.data() != room.data() || piece.size() <= room.size());
        run.insert(run.end(), piece.begin(), piece.end());
        isGoing = !piece.empty();
    }
    return run;
}

TEST(ProgramDelta, HeadersOfNonsenseAreReadWithinTheFile)
{
    std::mt19937 random(5);
    ProgramShape shape;
    shape.functions = 20;
    ByteBuffer const whole = ForgeProgram(shape);
    std::size_t programs = 0;
    for (int round = 0; round < 3000; ++round)
    {
        ByteBuffer changed = whole;
        for (int edit = 0; edit < 4; ++edit)
        {
            // The headers stand at both ends.
            std::size_t const at = random() % 2 == 0 ? random() % 200 : changed.size() - 1 - random() % 600;
            changed[at] = random() % 3 == 0 ? 0xFF : static_cast<std::uint8_t>(random());
        }
        std::optional<ImageLayout> const layout = ReadImageLayout(View(changed));
        if (!layout)
        {
            continue;
        }
        ++programs;
        std::vector<PatchStep> const steps{{changed.size(), 0, 0}};
        ProgramText text(View(changed), *layout, layout->spans, steps);
        text.Start(0, 0, changed.size());
        EXPECT_EQ(RunOf(text, PATCH_PIECE_BYTES, random).size(), changed.size());
    }
    EXPECT_GT(programs, 300u) << "most are refused before anything is looked at";
}

/// What ProgramText makes of a run, field by field and without leaving any field out.
ByteBuffer PlainlyMoved(Bytes program, std::vector<ImageSpan> const& newSpans, std::vector<PatchStep> const& steps,
                        std::size_t position, std::size_t newPosition, std::size_t size)
{
    ImageLayout const layout = ReadImageLayout(program).value();
    AddressMap const map(layout, newSpans, steps);
    ByteBuffer made(program.begin() + static_cast<std::ptrdiff_t>(position),
                    program.begin() + static_cast<std::ptrdiff_t>(position + size));
    ResidentPages pages;
    FieldScanner scanner(program, layout, pages);
    AddressField field;
    for (scanner.Start(position, position + size); scanner.Next(field);)
    {
        std::uint64_t const newAt = field.position - position + newPosition;
        std::uint64_t const base = field.form == FieldForm::FromBase32 ? map.Find(field.base) : 0;
        StoreField(field, AddressAt(newSpans, newAt).value_or(newAt), map.Find(field.target), base,
                   made.data() + (field.position - position));
    }
    return made;
}

/// Code in which nearly every byte may open a field, so that fields overlap.
void FillWithOpenings(ByteBuffer& program, std::mt19937& random)
{
    constexpr std::array<std::uint8_t, 10> OPENINGS{0xE8, 0xE9, 0x0F, 0x84, 0x05, 0x0D, 0x00, 0x00, 0x00, 0xFF};
    ImageLayout const layout = ReadImageLayout(View(program)).value();
    for (ImageRegion const& region : layout.regions)
    {
        for (std::size_t i = region.begin; region.kind == RegionKind::X86Code && i < region.end; ++i)
        {
            std::uint32_t const number = random();
            program[i] = number % 16 == 0 ? static_cast<std::uint8_t>(number >> 8) : OPENINGS[number % OPENINGS.size()];
        }
    }
}

TEST(ProgramDelta, FieldsThatMoveWithTheirTargetsMayBeLeftOut)
{
    std::mt19937 random(11);
    std::size_t changedRuns = 0;
    for (int round = 0; round < 120; ++round)
    {
        SCOPED_TRACE(round);
        ProgramShape shape;
        shape.functions = 30 + random() % 300;
        shape.loadedAt = random() % 2 * 0x1000;
        ByteBuffer program = ForgeProgram(shape);
        round % 4 != 0 ? FillWithOpenings(program, random) : static_cast<void>(0);
        // Few runs, so that most pages move as a whole.
        std::vector<PatchStep> steps;
        std::size_t left = program.size();
        while (left > 0 && steps.size() < 1 + random() % 5)
        {
            std::size_t const like = 1 + random() % left;
            steps.push_back({like, random() % 3 * 8, 0});
            left -= like;
        }
        steps.push_back({left, 0, 0});
        std::vector<ImageSpan> spans = ReadImageLayout(View(program))->spans;
        spans.back().size += 100;
        if (round % 3 == 0)
        {
            // A new segment begins somewhere in the code.
            std::uint32_t const end = spans.front().offset + spans.front().size;
            std::uint32_t const cut = 200 + random() % (spans.front().size - 300);
            spans.front().size = cut;
            spans.insert(spans.begin() + 1, {spans.front().offset + cut, end - cut, 0x100000});
        }
        ProgramText text(View(program), *ReadImageSpans(View(program)), spans, steps);
        for (int run = 0; run < 8; ++run)
        {
            std::size_t const begin = random() % program.size();
            std::size_t const size = 1 + random() % (program.size() - begin);
            std::size_t const newBegin = run == 0 ? begin : random() % 2 * 8 + begin;
            text.Start(begin, newBegin, size);
            ByteBuffer const made = RunOf(text, run % 2 == 0 ? PATCH_PIECE_BYTES : 12, random);
            ByteBuffer const plain = PlainlyMoved(View(program), spans, steps, begin, newBegin, size);
            ASSERT_EQ(made, plain);
            changedRuns += View(made) != View(program).substr(begin, size);
        }
    }
    EXPECT_GT(changedRuns, 120u * 4);
}

TEST(ProgramDelta, PatchOfTooManyStepsIsRefused)
{
    ByteBuffer steps;
    for (int i = 0; i < 100; ++i)
    {
        steps.insert(steps.end(), {1, 0, 0});
    }
    BinaryPatch patch;
    patch[PatchStream::Steps] = steps;
    PatchSources const sources = Readers(patch);
    PatchApplier applier(sources);
    std::vector<PatchStep> taken;
    EXPECT_EQ(applier.TakeSteps(1000, 100, 99, taken), PatchVerdict::TooManySteps);
    EXPECT_EQ(taken.size(), 99u);
}

// The map of addresses.

ImageLayout LayoutOf(std::uint64_t size)
{
    ImageLayout layout;
    layout.spans.push_back({0, static_cast<std::uint32_t>(size), 0x1000});
    layout.lowest = 0x1000;
    layout.end = 0x1000 + size + 0x100;
    return layout;
}

std::uint64_t Forward(std::uint64_t distance)
{
    return distance * 2;
}

TEST(AddressMap, PlacesGoWithTheirRun)
{
    // 100 bytes stay, 50 are new, 100 more stay, 20 are removed, the rest stays.
    AddressMap const map(LayoutOf(1000), {{0, 1030, 0x1000}}, {{100, 50, 0}, {100, 0, Forward(20)}, {780, 0, 0}});
    EXPECT_EQ(map.Find(0x1000), 0x1000u);
    EXPECT_EQ(map.Find(0x1000 + 99), 0x1000u + 99);
    EXPECT_EQ(map.Find(0x1000 + 100), 0x1000u + 150);
    EXPECT_EQ(map.Find(0x1000 + 199), 0x1000u + 249);
    EXPECT_EQ(map.Find(0x1000 + 210), 0x1000u + 260) << "removed bytes map like the run before them";
    EXPECT_EQ(map.Find(0x1000 + 220), 0x1000u + 250);
    EXPECT_EQ(map.Find(0x1000 + 1050), 0x1000u + 1080) << "behind the file the segment's end counts";
}

TEST(AddressMap, LongestRunCountsWhereSeveralOverlap)
{
    // All 1000 bytes stay. Then 10 from the middle are repeated, then all except the first one are repeated.
    std::uint64_t const back = 2 * 500 - 1;
    AddressMap const map(LayoutOf(1000), {{0, 2500, 0x1000}}, {{1000, 0, back}, {10, 0, 2 * 509 - 1}, {999, 0, 0}});
    EXPECT_EQ(map.Find(0x1000 + 505), 0x1000u + 505);
    EXPECT_EQ(map.Find(0x1000 + 510), 0x1000u + 510);
    EXPECT_EQ(map.Find(0x1000 + 999), 0x1000u + 999);
}

TEST(AddressMap, OfNothingLeavesEverythingWhereItIs)
{
    AddressMap const map(LayoutOf(1000), {}, {});
    EXPECT_EQ(map.Find(0x1000), 0x1000u);
    EXPECT_EQ(map.Find(0x1500), 0x1500u);
}

} // namespace
