// PackedTextTest.cpp: gzip files are split into texts and recipes, and restored byte for byte.

#include "Engine/core/delta/PackedText.h"
#include "tests/delta/PackedFiles.h"

#include <gtest/gtest.h>

#include <QTemporaryDir>

#include <zlib.h>

#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <iterator>
#include <random>
#include <utility>

namespace
{

using namespace Pelnar::Engine;
using Pelnar::Engine::View;
using namespace Pelnar::Testing;

Bytes View(std::string const& text)
{
    return {reinterpret_cast<std::uint8_t const*>(text.data()), text.size()};
}

std::string Text(ByteBuffer const& bytes)
{
    return {bytes.begin(), bytes.end()};
}

/// Splits \a file and expects that it is restored. Returns its recipe.
ByteBuffer ExpectTheWayBack(std::string const& file, std::string const& text)
{
    std::optional<TokenizedText> const unpacked = UnpackText(View(file));
    EXPECT_TRUE(unpacked && Text(unpacked->text) == text);
    std::optional<ByteBuffer> const recipe = FindRecipe(View(file), View(text));
    EXPECT_TRUE(recipe);
    std::optional<ByteBuffer> const made =
        recipe ? PackByRecipe(View(*recipe), View(text), file.size(), {}) : std::optional<ByteBuffer>();
    EXPECT_TRUE(made && Text(*made) == file);
    return recipe.value_or(ByteBuffer());
}

/// The output of the program gzip for \a text. Its blocks end at other places than zlib's.
std::string GzipProgramsOf(std::string const& text, std::string const& options)
{
    QTemporaryDir const folder;
    std::string const path = folder.path().toStdString() + "/text";
    std::ofstream(path, std::ios::binary) << text;
    EXPECT_EQ(std::system(("gzip " + options + ' ' + path).c_str()), 0);
    std::ifstream in(path + ".gz", std::ios::binary);
    return {std::istreambuf_iterator<char>(in), {}};
}

TEST(PackedText, EveryLevelOfZlibHasARecipe)
{
    for (std::size_t const size : {std::size_t(1), std::size_t(300), std::size_t(60000)})
    {
        std::string const text = WordsOf(1, size);
        for (int level = 1; level <= 9; ++level)
        {
            for (int const memory : {8, 9})
            {
                SCOPED_TRACE(testing::Message() << size << " bytes, level " << level << ", memory " << memory);
                std::string const file = GzipOf(text, level, memory);
                EXPECT_LT(ExpectTheWayBack(file, text).size(), 100 + file.size() / 20);
            }
        }
    }
}

TEST(PackedText, WhatTheProgramGzipMakesHasARecipe)
{
    std::string const text = WordsOf(2, 150000);
    for (char const* const options : {"-9n", "-6n", "-1n", "-9N"})
    {
        SCOPED_TRACE(options);
        std::string const file = GzipProgramsOf(text, options);
        EXPECT_LT(ExpectTheWayBack(file, text).size(), file.size() / 20);
    }
}

TEST(PackedText, CodesOfEveryLengthHaveARecipe)
{
    // Each character is as frequent as the two before it together: so the rare ones have the longest codes.
    std::string text;
    std::size_t before = 1;
    for (std::size_t i = 0, count = 1; i < 20; ++i)
    {
        text.append(count, static_cast<char>('a' + i));
        count = std::exchange(before, count + before);
    }
    std::shuffle(text.begin(), text.end(), std::mt19937(7));
    for (int const level : {1, 4, 9})
    {
        SCOPED_TRACE(level);
        ExpectTheWayBack(GzipOf(text, level), text);
    }
}

TEST(PackedText, OtherFilesAreNoTexts)
{
    std::string const file = GzipOf(WordsOf(3, 5000));
    EXPECT_FALSE(UnpackText({}));
    EXPECT_FALSE(UnpackText(View(WordsOf(4, 5000))));
    EXPECT_FALSE(UnpackText(View(file.substr(0, file.size() - 1))));
    EXPECT_FALSE(UnpackText(View(file + 'x'))) << "something behind the text";
    EXPECT_FALSE(UnpackText(View(file + file))) << "two texts";
    EXPECT_FALSE(UnpackText(View(GzipOf(std::string(MAX_PACKED_TEXT_BYTES + 1, 'x'))))) << "longer than memory allows";
}

TEST(PackedText, AnUnknownPackerHasNoRecipe)
{
    // The tokens of another text.
    std::string const text = WordsOf(5, 5000);
    std::string const file = GzipOf(text);
    EXPECT_FALSE(FindRecipe(View(file), View(WordsOf(6, 5000))));
    // Stored blocks.
    EXPECT_FALSE(FindRecipe(View(GzipOf(text, 0)), View(text)));
}

TEST(PackedText, BrokenRecipesMakeNothingLargerThanAllowed)
{
    std::string const text = WordsOf(7, 3000);
    std::string const file = GzipOf(text);
    ByteBuffer const recipe = FindRecipe(View(file), View(text)).value();
    for (std::size_t size = 0; size < recipe.size(); ++size)
    {
        EXPECT_FALSE(PackByRecipe(View(recipe).substr(0, size), View(text), file.size(), {})) << size;
    }
    EXPECT_FALSE(PackByRecipe(View(recipe), View(text), file.size() - 1, {}));
    for (std::size_t at = 0; at < recipe.size(); ++at)
    {
        for (std::uint8_t const bits : {0x01, 0x80, 0xFF})
        {
            ByteBuffer changed = recipe;
            changed[at] = static_cast<std::uint8_t>(changed[at] ^ bits);
            std::optional<ByteBuffer> const made = PackByRecipe(View(changed), View(text), file.size(), {});
            EXPECT_TRUE(!made || made->size() <= file.size()) << at;
        }
    }
}

/// A text, and another one with new parts at its start and inside.
struct TwoTexts
{
    std::string const before = WordsOf(8, 400000);
    std::string const added = WordsOf(9, 700);
    std::string const after = added + before.substr(0, 200000) + "changed" + before.substr(200005);
    std::vector<PatchStep> const steps{{0, added.size(), 0}, {200000, 7, 10}, {before.size() - 200005, 0, 0}};
};

TEST(PackedText, TokensOfTheOldTextAreCopied)
{
    TwoTexts const texts;
    for (int level = 4; level <= 9; ++level)
    {
        for (int const memory : {8, 9})
        {
            SCOPED_TRACE(testing::Message() << "level " << level << ", memory " << memory);
            std::string const oldFile = GzipOf(texts.before, level, memory);
            std::string const file = GzipOf(texts.after, level, memory);
            PackedBase const base{UnpackText(View(oldFile)).value(), texts.steps};
            ByteBuffer const recipe = FindRecipe(View(file), View(texts.after)).value();
            ByteBuffer const faster = FasterRecipe(recipe, View(file), UnpackText(View(file)).value(), base);
            EXPECT_NE(faster, recipe);
            EXPECT_EQ(Text(PackByRecipe(View(faster), View(texts.after), file.size(), base).value()), file);
            EXPECT_FALSE(PackByRecipe(View(faster), View(texts.after), file.size(), {})) << "there is nothing to copy";
        }
    }
}

/// True if no repetition begins before the end of the one before it, or ends behind the text.
bool AreInside(std::optional<Repetitions> const& repetitions, std::size_t textBytes)
{
    std::size_t end = 0;
    for (Repetition const& repetition : repetitions.value_or(Repetitions()))
    {
        if (repetition.position < end || repetition.End() > textBytes)
        {
            return false;
        }
        end = repetition.End();
    }
    return true;
}

TEST(PackedText, CorrectedTokensAreThoseOfTheNewFile)
{
    std::mt19937 random(20261123);
    std::size_t corrected = 0;
    for (int round = 0; round < 60; ++round)
    {
        SCOPED_TRACE(round);
        // zlib's lower levels do not remember all of the text before, so that they cannot go on after a run.
        int const level = 4 + static_cast<int>(random() % 6);
        std::string const before = WordsOf(random(), 20000 + random() % 100000);
        std::size_t const cut = random() % before.size();
        std::size_t const gone = random() % std::min<std::size_t>(300, before.size() - cut + 1);
        std::string const added = WordsOf(random(), 1 + random() % 3000);
        std::string const after = before.substr(0, cut) + added + before.substr(cut + gone);
        std::vector<PatchStep> const steps{{cut, added.size(), 2 * gone}, {before.size() - cut - gone, 0, 0}};
        std::string const oldFile = GzipOf(before, level);
        std::string const file = GzipOf(after, level);
        PackedBase const base{UnpackText(View(oldFile)).value(), steps};
        TokenizedText const text = UnpackText(View(file)).value();
        DeflateParameters const parameters{level, 8};
        std::optional<TokenCorrections> const corrections = FindCorrections(base, text, parameters);
        if (!corrections)
        {
            continue;
        }
        ++corrected;
        EXPECT_EQ(CorrectedTokens(base, View(after), parameters, *corrections), text.repetitions);
        for (int damage = 0; damage < 20; ++damage)
        {
            TokenCorrections wrong = *corrections;
            std::uint64_t& number = wrong[random() % wrong.size()];
            number = damage % 4 == 0 ? ~std::uint64_t(0) : damage % 4 == 1 ? random() : number ^ (1u << random() % 9);
            wrong.resize(damage % 5 == 0 ? random() % wrong.size() : wrong.size());
            EXPECT_TRUE(AreInside(CorrectedTokens(base, View(after), parameters, wrong), after.size()));
        }
    }
    EXPECT_GT(corrected, 40u);
}

TEST(PackedText, CorrectionsTakeFewBytesOrAreNotMade)
{
    std::string const before = WordsOf(8, 60000);
    std::string const after = "A new entry of few words.\n" + before;
    std::string const oldFile = GzipOf(before, 9);
    std::string const file = GzipOf(after, 9);
    PackedBase const base{UnpackText(View(oldFile)).value(),
                          {{0, after.size() - before.size(), 0}, {before.size(), 0, 0}}};
    ByteBuffer const recipe = FindRecipe(View(file), View(after)).value();
    ByteBuffer const faster = FasterRecipe(recipe, View(file), UnpackText(View(file)).value(), base);
    EXPECT_GT(faster.size(), recipe.size());
    EXPECT_LE(faster.size(), recipe.size() + after.size() / 256);
    EXPECT_EQ(Text(PackByRecipe(View(faster), View(after), file.size(), base).value()), file);
    for (std::size_t size = 0; size < faster.size(); ++size)
    {
        EXPECT_FALSE(PackByRecipe(View(faster).substr(0, size), View(after), file.size(), base)) << size;
    }
    for (std::size_t at = 0; at < faster.size(); ++at)
    {
        ByteBuffer changed = faster;
        changed[at] = static_cast<std::uint8_t>(changed[at] ^ 0xFF);
        std::optional<ByteBuffer> const made = PackByRecipe(View(changed), View(after), file.size(), base);
        EXPECT_TRUE(!made || made->size() <= file.size()) << at;
    }
}

TEST(PackedText, CorrectionsThatGoOnBehindTheirRunAreRefused)
{
    std::string const before = WordsOf(3, 60000);
    std::string const after = before.substr(0, 20000) + "changed" + before.substr(20007);
    PackedBase const base{UnpackText(View(GzipOf(before))).value(), {{20000, 7, 14}, {before.size() - 20007, 0, 0}}};
    std::size_t refused = 0;
    for (std::uint64_t copied = 1000; copied < 20000; copied += 500)
    {
        SCOPED_TRACE(copied);
        // No corrections. The first run ends after so many copied tokens, the second one at once.
        EXPECT_NO_THROW(refused += CorrectedTokens(base, View(after), {9, 8}, {0, copied, 0, 0}) ? 0 : 1);
    }
    EXPECT_GT(refused, 0u);
}

TEST(PackedText, TokensOfAnotherPackerAreNotCopied)
{
    TwoTexts const texts;
    std::string const oldFile = GzipOf(texts.before, 6);
    std::string const file = GzipOf(texts.after, 9);
    PackedBase const base{UnpackText(View(oldFile)).value(), texts.steps};
    ByteBuffer const recipe = FindRecipe(View(file), View(texts.after)).value();
    EXPECT_EQ(FasterRecipe(recipe, View(file), UnpackText(View(file)).value(), base), recipe);
}

TEST(PackedText, OtherTokensOfTheOldTextMakeNothingLargerThanAllowed)
{
    TwoTexts const texts;
    std::string const oldFile = GzipOf(texts.before);
    std::string const file = GzipOf(texts.after);
    PackedBase base{UnpackText(View(oldFile)).value(), texts.steps};
    ByteBuffer const recipe = FasterRecipe(FindRecipe(View(file), View(texts.after)).value(), View(file),
                                           UnpackText(View(file)).value(), base);
    std::size_t unpacked = 0;
    for (std::size_t at = 18; at < oldFile.size(); at += 4001)
    {
        std::string damaged = oldFile;
        damaged[at] = static_cast<char>(damaged[at] ^ 0x55);
        std::optional<TokenizedText> other = UnpackText(View(damaged));
        bool const isSameSize = other && other->text.size() == texts.before.size();
        unpacked += isSameSize ? 1 : 0;
        PackedBase const wrong{isSameSize ? std::move(*other) : TokenizedText(base.text), texts.steps};
        std::optional<ByteBuffer> const made = PackByRecipe(View(recipe), View(texts.after), file.size(), wrong);
        EXPECT_TRUE(!made || made->size() <= file.size()) << at;
    }
    EXPECT_GT(unpacked, 3u);
    for (std::size_t count = base.text.repetitions.size(); count > 0;)
    {
        count /= 2;
        base.text.tokenEnd = base.text.repetitions[count].position;
        base.text.repetitions.resize(count);
        EXPECT_FALSE(PackByRecipe(View(recipe), View(texts.after), file.size(), base)) << count;
    }
}

/// What zlib says: the text, or nothing for a damaged file.
std::optional<std::string> UnpackedByZlib(std::string const& data, std::size_t maxBytes)
{
    z_stream stream{};
    std::string text(maxBytes, ' ');
    EXPECT_EQ(inflateInit2(&stream, -15), Z_OK);
    stream.next_in = reinterpret_cast<Bytef*>(const_cast<char*>(data.data()));
    stream.avail_in = static_cast<uInt>(data.size());
    stream.next_out = reinterpret_cast<Bytef*>(text.data());
    stream.avail_out = static_cast<uInt>(text.size());
    bool const isWhole = inflate(&stream, Z_FINISH) == Z_STREAM_END && stream.avail_in == 0;
    text.resize(stream.total_out);
    inflateEnd(&stream);
    return isWhole ? std::optional<std::string>(std::move(text)) : std::nullopt;
}

TEST(PackedText, UnpacksWhatZlibUnpacks)
{
    constexpr std::size_t MOST_BYTES = 300000;
    std::mt19937 random(20261124);
    std::size_t stored = 0;
    std::size_t damagedAccepted = 0;
    for (int round = 0; round < 150; ++round)
    {
        SCOPED_TRACE(round);
        std::string text = WordsOf(random(), random() % 100000);
        text += round % 3 == 0 ? std::string(random() % 3000, 'x') : std::string(); // a repetition of itself
        for (std::size_t i = round % 5 == 0 ? random() % 70000 : 0; i > 0; --i)
        {
            text += static_cast<char>(random()); // zlib stores what it cannot pack
        }
        std::string const file = GzipOf(text, round % 10, 8 + round % 2);
        std::string data = file.substr(10, file.size() - 18);
        std::size_t const usual = random() % 3 == 0 ? text.size() : random() % 200000;
        std::optional<TokenizedText> const unpacked = Inflate(View(data), 0, usual, MOST_BYTES);
        ASSERT_TRUE(unpacked && Text(unpacked->text) == text);
        EXPECT_TRUE(AreInside(unpacked->repetitions, unpacked->tokenEnd));
        EXPECT_LE(unpacked->tokenEnd, text.size());
        stored += unpacked->tokenEnd < text.size() ? 1 : 0;
        EXPECT_FALSE(Inflate(View(data), 1, usual, MOST_BYTES));
        EXPECT_FALSE(Inflate(View(data).substr(0, random() % data.size()), 0, usual, MOST_BYTES));
        EXPECT_TRUE(text.empty() || !Inflate(View(data), 0, usual, text.size() - 1)) << "longer than allowed";
        char& damaged = data[random() % data.size()];
        damaged = static_cast<char>(damaged ^ (1 << random() % 8));
        std::optional<std::string> const expected = UnpackedByZlib(data, MOST_BYTES);
        std::optional<TokenizedText> const other = Inflate(View(data), 0, usual, MOST_BYTES);
        EXPECT_TRUE(!expected || (other && Text(other->text) == *expected));
        damagedAccepted += expected ? 1 : 0;
    }
    EXPECT_GT(stored, 15u);
    EXPECT_GT(damagedAccepted, 2u);
}

} // namespace
