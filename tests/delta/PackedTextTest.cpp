// PackedTextTest.cpp: gzip files are split into texts and recipes, and restored byte for byte.

#include "Engine/core/delta/PackedText.h"
#include "tests/delta/PackedFiles.h"

#include <gtest/gtest.h>

#include <QTemporaryDir>

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
    std::optional<ByteBuffer> const unpacked = UnpackText(View(file));
    EXPECT_TRUE(unpacked && Text(*unpacked) == text);
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
            PackedBase const base{View(texts.before), PackedDataOf(View(oldFile)), texts.steps};
            ByteBuffer const recipe = FindRecipe(View(file), View(texts.after)).value();
            ByteBuffer const faster = FasterRecipe(recipe, View(file), View(texts.after), base);
            EXPECT_NE(faster, recipe);
            EXPECT_EQ(Text(PackByRecipe(View(faster), View(texts.after), file.size(), base).value()), file);
            EXPECT_FALSE(PackByRecipe(View(faster), View(texts.after), file.size(), {})) << "there is nothing to copy";
        }
    }
}

/// The tokens of a whole deflated text.
DeflateTokens TokensIn(Bytes data)
{
    DeflateTokens tokens;
    TokenReader reader(data);
    for (DeflateToken token; reader.Next(token);)
    {
        tokens.push_back(token);
    }
    return tokens;
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
        PackedBase const base{View(before), PackedDataOf(View(oldFile)), steps};
        Bytes const data = PackedDataOf(View(file));
        DeflateParameters const parameters{level, 8};
        std::optional<TokenCorrections> const corrections = FindCorrections(base, View(after), parameters, data);
        if (!corrections)
        {
            continue;
        }
        ++corrected;
        EXPECT_EQ(CorrectedTokens(base, View(after), parameters, *corrections), TokensIn(data));
        for (int damage = 0; damage < 20; ++damage)
        {
            TokenCorrections wrong = *corrections;
            std::uint64_t& number = wrong[random() % wrong.size()];
            number = damage % 4 == 0 ? ~std::uint64_t(0) : damage % 4 == 1 ? random() : number ^ (1u << random() % 9);
            wrong.resize(damage % 5 == 0 ? random() % wrong.size() : wrong.size());
            std::size_t sum = 0;
            for (DeflateToken const token :
                 CorrectedTokens(base, View(after), parameters, wrong).value_or(DeflateTokens()))
            {
                sum += token.length > 0 ? token.length : 1u;
            }
            EXPECT_TRUE(sum == 0 || sum == after.size());
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
    PackedBase const base{
        View(before), PackedDataOf(View(oldFile)), {{0, after.size() - before.size(), 0}, {before.size(), 0, 0}}};
    ByteBuffer const recipe = FindRecipe(View(file), View(after)).value();
    ByteBuffer const faster = FasterRecipe(recipe, View(file), View(after), base);
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

TEST(PackedText, TokensOfAnotherPackerAreNotCopied)
{
    TwoTexts const texts;
    std::string const oldFile = GzipOf(texts.before, 6);
    std::string const file = GzipOf(texts.after, 9);
    PackedBase const base{View(texts.before), PackedDataOf(View(oldFile)), texts.steps};
    ByteBuffer const recipe = FindRecipe(View(file), View(texts.after)).value();
    EXPECT_EQ(FasterRecipe(recipe, View(file), View(texts.after), base), recipe);
}

TEST(PackedText, DamagedTokensOfTheOldTextMakeNothingLargerThanAllowed)
{
    TwoTexts const texts;
    std::string const oldFile = GzipOf(texts.before);
    std::string const file = GzipOf(texts.after);
    PackedBase const base{View(texts.before), PackedDataOf(View(oldFile)), texts.steps};
    ByteBuffer const recipe =
        FasterRecipe(FindRecipe(View(file), View(texts.after)).value(), View(file), View(texts.after), base);
    for (std::size_t at = 0; at < oldFile.size(); at += 4001)
    {
        std::string damaged = oldFile;
        damaged[at] = static_cast<char>(damaged[at] ^ 0x55);
        PackedBase const other{View(texts.before), View(damaged).substr(10), texts.steps};
        std::optional<ByteBuffer> const made = PackByRecipe(View(recipe), View(texts.after), file.size(), other);
        EXPECT_TRUE(!made || made->size() <= file.size()) << at;
        PackedBase const shorter{View(texts.before), View(oldFile).substr(10, at), texts.steps};
        EXPECT_FALSE(PackByRecipe(View(recipe), View(texts.after), file.size(), shorter)) << at;
    }
}

} // namespace
