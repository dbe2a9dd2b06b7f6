// DeltaFuzz.cpp: any bytes as each part of a delta, in both formats: a manifest, the numbers of a patch, packed
// streams, a packed text and its recipe, a program and the steps that change it. An accepted manifest is unchanged
// after it is written and read again. No patch makes more bytes than allowed, and nothing is read outside the input.

#include "Engine/core/delta/BinaryPatch.h"
#include "Engine/core/delta/DeltaManifest.h"
#include "Engine/core/delta/ManifestBytes.h"
#include "Engine/core/delta/PackedText.h"
#include "Engine/core/delta/PatchApplier.h"
#include "Engine/core/delta/StreamUnpacker.h"
#include "tests/delta/ForgedProgram.h"
#include "tests/delta/ManifestEquality.h"
#include "tests/delta/PackedFiles.h"
#include "tests/delta/SeparateDelta.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>

namespace
{

using namespace Pelnar::Engine;

constexpr std::uint64_t NEW_BYTES = 100000;
constexpr std::size_t FEW_STEPS = 1000;

void Require(bool holds)
{
    if (!holds)
    {
        std::abort();
    }
}

void CheckSeparateManifest(Bytes bytes)
{
    DeltaManifest manifest;
    if (DecodeDeltaManifest(bytes, {}, manifest).error == DeltaManifestError::None)
    {
        // Its encoding is unique.
        ByteBuffer const again = Pelnar::Testing::EncodeManifest(manifest);
        Require(View(again) == bytes);
    }
}

void CheckJoinedManifest(Bytes bytes)
{
    DeltaManifest manifest;
    manifest.format = DeltaFormat::Joined;
    if (DecodeDeltaManifest(bytes, {}, manifest).error != DeltaManifestError::None)
    {
        return;
    }
    ByteBuffer const again = EncodeDeltaManifest(manifest);
    DeltaManifest second;
    second.format = DeltaFormat::Joined;
    Require(DecodeDeltaManifest(View(again), {}, second).error == DeltaManifestError::None);
    Require(second.entries == manifest.entries && second.units == manifest.units &&
            second.streams == manifest.streams && second.targetHash == manifest.targetHash);
}

ByteSource SourceOf(Bytes all)
{
    return [rest = all](std::uint8_t* target, std::size_t size) mutable
    {
        std::size_t const count = std::min(size, rest.size());
        std::copy_n(rest.begin(), count, target);
        rest.remove_prefix(count);
        return count;
    };
}

/// The first byte decides where the steps end and the runs begin.
PatchSources SourcesOf(Bytes bytes)
{
    std::size_t const split = bytes.empty() ? 0 : std::min<std::size_t>(bytes.front(), bytes.size());
    ByteSource const endless = [](std::uint8_t* target, std::size_t size)
    {
        std::fill_n(target, size, std::uint8_t(1));
        return size;
    };
    Bytes const runs = bytes.substr(split);
    return {SourceOf(bytes.substr(0, split)), SourceOf(runs), SourceOf(runs), endless, endless};
}

void CheckPatch(Bytes bytes)
{
    ByteBuffer const oldBytes(1000, 7);
    std::uint64_t made = 0;
    PatchVerdict const verdict = Pelnar::Testing::ApplyBinaryPatch(View(oldBytes), SourcesOf(bytes), NEW_BYTES,
                                                                   [&made](Bytes piece)
                                                                   {
                                                                       made += piece.size();
                                                                       return true;
                                                                   });
    Require(made <= NEW_BYTES && (verdict != PatchVerdict::Applied || made == NEW_BYTES));
}

/// Changes \a program, if it is one, by the steps and to the segments that \a bytes describe.
void CheckProgram(Bytes program, Bytes bytes)
{
    std::optional<ImageLayout> const layout = ReadImageLayout(program);
    if (!layout)
    {
        return;
    }
    PatchSources const sources = SourcesOf(bytes);
    PatchApplier applier(sources);
    std::vector<PatchStep> steps;
    if (applier.TakeSteps(program.size(), NEW_BYTES, FEW_STEPS, steps) != PatchVerdict::Applied)
    {
        return;
    }
    std::vector<ImageSpan> spans = layout->spans;
    spans.front().address += bytes.empty() ? 0 : std::uint64_t(bytes.back()) << 24;
    spans.back().offset += bytes.empty() ? 0 : bytes.front();
    ProgramText text(program, *layout, spans, steps);
    std::uint64_t made = 0;
    PatchVerdict const verdict = applier.MakeBySteps(text, steps, NEW_BYTES,
                                                     [&made](Bytes piece)
                                                     {
                                                         made += piece.size();
                                                         return true;
                                                     });
    Require(made <= NEW_BYTES && (verdict != PatchVerdict::Applied || made == NEW_BYTES));
}

void CheckStream(Bytes bytes)
{
    if (bytes.empty())
    {
        return;
    }
    // A small window, because its memory is allocated for each input.
    auto const unpacker = MakeUnpacker(bytes.front(), 12);
    Bytes input = bytes.substr(1);
    ByteBuffer made(2000);
    for (int round = 0; round < 8; ++round)
    {
        std::size_t const before = input.size();
        IUnpacker::Step const step = unpacker->Unpack(input, made.data(), made.size());
        Require(step.made <= made.size() && input.size() <= before);
        if (step.state != IUnpacker::State::Going)
        {
            return;
        }
    }
}

/// \a repetitions are in their order and inside a text of \a size bytes.
void CheckRepetitions(std::optional<Repetitions> const& repetitions, std::size_t size)
{
    std::size_t end = 0;
    for (Repetition const& repetition : repetitions.value_or(Repetitions()))
    {
        Require(repetition.position >= end && repetition.End() <= size);
        end = repetition.End();
    }
}

/// A text with two changes, so that it has three runs that equal the old text.
struct ChangedText
{
    std::string before = Pelnar::Testing::WordsOf(3, 60000);
    std::string after =
        before.substr(0, 20000) + "changed" + before.substr(20007, 20000) + "again" + before.substr(40012);
    std::string file = Pelnar::Testing::GzipOf(before);
    PackedBase base{UnpackText(Pelnar::Engine::View(file)).value(),
                    {{20000, 7, 14}, {20000, 5, 10}, {before.size() - 40012, 0, 0}}};
};

/// The input as corrections of a packed text, and as the end of a recipe with corrections.
void CheckCorrections(Bytes bytes)
{
    static ChangedText const changed;
    Bytes const text = Pelnar::Engine::View(changed.after);
    ManifestBytes::Reader reader(bytes);
    TokenCorrections corrections;
    while (!reader.IsAtEnd())
    {
        corrections.push_back(reader.Number());
    }
    CheckRepetitions(CorrectedTokens(changed.base, text, {9, 8}, corrections), text.size());

    constexpr std::uint8_t CORRECTS_TOKENS = 32;
    ByteBuffer recipe{0, CORRECTS_TOKENS + 6, 8};
    recipe.insert(recipe.end(), bytes.begin(), bytes.end());
    std::optional<ByteBuffer> const made = PackByRecipe(View(recipe), text, changed.file.size(), changed.base);
    Require(!made || made->size() <= changed.file.size());
}

/// The input as a gzip file, as a recipe, and as the data after the start of a valid one.
void CheckPackedText(Bytes bytes)
{
    constexpr std::size_t MOST_BYTES = 4096;
    static constexpr std::uint8_t OPENING[] = {10, 0x1F, 0x8B, 8, 0, 0, 0, 0, 0, 2, 3, 9, 8};
    if (std::optional<TokenizedText> const unpacked = UnpackText(bytes))
    {
        Bytes const text = View(unpacked->text);
        CheckRepetitions(unpacked->repetitions, text.size());
        std::optional<ByteBuffer> const recipe = FindRecipe(bytes, text);
        std::optional<ByteBuffer> const made =
            recipe ? PackByRecipe(View(*recipe), text, bytes.size(), {}) : std::nullopt;
        Require(!recipe || (made && View(*made) == bytes));
    }
    ByteBuffer recipe(std::begin(OPENING), std::end(OPENING));
    recipe.insert(recipe.end(), bytes.begin(), bytes.end());
    ByteBuffer const text(500, 7);
    for (Bytes const tried : {bytes, View(recipe)})
    {
        std::optional<ByteBuffer> const made = PackByRecipe(tried, View(text), MOST_BYTES, {});
        Require(!made || made->size() <= MOST_BYTES);
    }
    // The input as packed data of a text that equals the new one.
    constexpr std::size_t MOST_TEXT_BYTES = 100000;
    if (std::optional<TokenizedText> old = Inflate(bytes, 0, 0, MOST_TEXT_BYTES))
    {
        std::size_t const size = old->text.size();
        PackedBase const base{std::move(*old), {{size, 0, 0}}};
        CheckRepetitions(TokensLike(base, View(base.text.text), {6, 8}), size);
    }
    CheckCorrections(bytes);
}

ByteBuffer const& SmallProgram(Pelnar::Testing::Processor processor)
{
    static ByteBuffer const x86 = Pelnar::Testing::ForgeProgram({Pelnar::Testing::Processor::X86, 20, 0, 0, 0, 0x1000});
    static ByteBuffer const arm64 =
        Pelnar::Testing::ForgeProgram({Pelnar::Testing::Processor::Arm64, 20, 0, 0, 0, 0x1000});
    return processor == Pelnar::Testing::Processor::X86 ? x86 : arm64;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size)
{
    Bytes const bytes(data, size);
    CheckSeparateManifest(bytes);
    CheckJoinedManifest(bytes);
    CheckPatch(bytes);
    CheckStream(bytes);
    CheckPackedText(bytes);
    CheckProgram(bytes, bytes.substr(bytes.size() - std::min<std::size_t>(bytes.size(), 64)));
    for (auto const processor : {Pelnar::Testing::Processor::X86, Pelnar::Testing::Processor::Arm64})
    {
        // A valid program with the input written over a part of it.
        ByteBuffer program = SmallProgram(processor);
        std::size_t const at = size < 2 ? 0 : (data[0] << 8 | data[1]) % program.size();
        std::copy_n(data, std::min(size, program.size() - at), program.begin() + static_cast<std::ptrdiff_t>(at));
        CheckProgram(View(program), bytes);
    }
    return 0;
}
