// JoinedDeltaTest.cpp: containers of the joined format: the resulting trees, the rules for units, and that the previous
// format can still be applied.

#include "Engine/core/base/Descriptor.h"
#include "Engine/core/delta/DeltaApplier.h"
#include "Engine/core/delta/DeltaContainerWriter.h"
#include "Engine/core/delta/DeltaMaker.h"
#include "Engine/core/delta/StreamUnpacker.h"
#include "tests/delta/ForgedProgram.h"
#include "tests/delta/PackedFiles.h"
#include "tests/delta/SeparateDelta.h"

#include <gtest/gtest.h>

#include <QTemporaryDir>

#include <fcntl.h>

#include <algorithm>
#include <array>
#include <filesystem>
#include <fstream>
#include <map>
#include <random>

namespace
{

using namespace Pelnar::Engine;
using namespace Pelnar::Testing;
namespace fs = std::filesystem;

using Error = DeltaManifestError;

std::string ReadFile(fs::path const& path)
{
    std::ifstream in(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), {}};
}

void WriteFile(fs::path const& path, std::string const& content)
{
    fs::create_directories(path.parent_path());
    std::ofstream(path, std::ios::binary) << content;
}

std::string Text(ByteBuffer const& bytes)
{
    return {bytes.begin(), bytes.end()};
}

std::map<std::string, std::string> FilesOf(fs::path const& folder)
{
    std::map<std::string, std::string> files;
    for (fs::directory_entry const& entry : fs::recursive_directory_iterator(folder))
    {
        if (entry.is_regular_file())
        {
            files[entry.path().lexically_relative(folder).string()] = ReadFile(entry.path());
        }
    }
    return files;
}

class JoinedDelta : public testing::Test
{
protected:
    void SetUp() override
    {
        ASSERT_TRUE(m_dir.isValid());
        fs::create_directories(Old());
        fs::create_directories(New());
    }

    fs::path Old() const { return fs::path(m_dir.path().toStdString()) / "old"; }
    fs::path New() const { return fs::path(m_dir.path().toStdString()) / "new"; }
    fs::path Staging() const { return fs::path(m_dir.path().toStdString()) / "staging"; }
    fs::path Container() const { return fs::path(m_dir.path().toStdString()) / "update.delta"; }

    DeltaReport Make()
    {
        UniqueFd const container(open(Container().c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0600));
        return MakeDelta(Old(), "1.0", New(), "2.0", container.Get());
    }

    DeltaManifest Manifest(std::uint64_t& dataOffset)
    {
        DeltaManifest manifest;
        UniqueFd const container(open(Container().c_str(), O_RDONLY | O_CLOEXEC));
        EXPECT_TRUE(ReadDeltaManifest(container.Get(), {}, manifest, dataOffset).HasSucceeded());
        return manifest;
    }

    DeltaOutcome Apply(DeltaLimits const& limits = {})
    {
        fs::remove_all(Staging());
        fs::create_directory(Staging());
        UniqueFd const container(open(Container().c_str(), O_RDONLY | O_CLOEXEC));
        UniqueFd const old(open(Old().c_str(), O_PATH | O_DIRECTORY | O_CLOEXEC));
        UniqueFd const staging(open(Staging().c_str(), O_PATH | O_DIRECTORY | O_CLOEXEC));
        return ApplyDelta(container.Get(), old.Get(), staging.Get(), limits, {}, m_digest);
    }

    void ExpectTheNewVersion()
    {
        DeltaOutcome const outcome = Apply();
        EXPECT_EQ(outcome.error, DeltaError::None) << outcome.path;
        EXPECT_EQ(FilesOf(Staging()), FilesOf(New()));
    }

private:
    ContentHash m_digest{};
    QTemporaryDir m_dir;
};

TEST_F(JoinedDelta, ProgramThatOnlyMovedIsSmall)
{
    ProgramShape shape;
    shape.functions = 400;
    WriteFile(Old() / "Program", Text(ForgeProgram(shape)));
    shape.insertedAt = 30;
    shape.insertedBytes = 32;
    WriteFile(New() / "Program", Text(ForgeProgram(shape)));
    DeltaReport const report = Make();
    ASSERT_TRUE(report.outcome.HasSucceeded());
    EXPECT_EQ(report.patchedFiles, 1u);
    EXPECT_LT(report.containerBytes, 700u);
    EXPECT_GT(MakeSeparateDelta(Old(), New()).size(), 3 * report.containerBytes);
    ExpectTheNewVersion();
}

TEST_F(JoinedDelta, APackedTextCostsWhatIsNewInTheText)
{
    std::string const text = WordsOf(1, 100000);
    std::string const file = GzipOf("One more line.\n" + text);
    WriteFile(Old() / "changes.gz", GzipOf(text));
    WriteFile(New() / "changes.gz", file);
    DeltaReport const report = Make();
    ASSERT_TRUE(report.outcome.HasSucceeded());
    EXPECT_EQ(report.patchedFiles, 1u);
    EXPECT_LT(report.containerBytes, file.size() / 20);
    ExpectTheNewVersion();
}

TEST_F(JoinedDelta, AFileWhosePackedDataAreEqualIsNotPackedAgain)
{
    constexpr std::size_t TIME = 4;
    std::string file = GzipOf(WordsOf(1, 100000));
    WriteFile(Old() / "words.gz", file);
    file.replace(TIME, 3, "now");
    WriteFile(New() / "words.gz", file);
    DeltaReport const report = Make();
    ASSERT_TRUE(report.outcome.HasSucceeded());
    EXPECT_EQ(report.patchedFiles, 1u);
    EXPECT_LT(report.containerBytes, 300u);
    std::uint64_t dataOffset = 0;
    DeltaManifest const manifest = Manifest(dataOffset);
    ASSERT_EQ(manifest.units.size(), 1u);
    EXPECT_EQ(manifest.units.front().textBytes, 0u);
    ExpectTheNewVersion();
}

TEST_F(JoinedDelta, EveryEffortMakesTheNewVersionAndMoreMakesItSmaller)
{
    std::string const text = WordsOf(1, 60000);
    WriteFile(Old() / "changes.gz", GzipOf(text));
    WriteFile(New() / "changes.gz", GzipOf("One more line.\n" + text));
    WriteFile(New() / "words", WordsOf(2, 100000));
    std::vector<std::uint64_t> sizes;
    for (DeltaEffort const effort : {DeltaEffort::Low, DeltaEffort::Usual, DeltaEffort::High})
    {
        UniqueFd const container(open(Container().c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0600));
        DeltaReport const report = MakeDelta(Old(), "1.0", New(), "2.0", container.Get(), {}, effort);
        ASSERT_TRUE(report.outcome.HasSucceeded());
        sizes.push_back(report.containerBytes);
        ExpectTheNewVersion();
    }
    EXPECT_LT(sizes[1], sizes[0]);
    EXPECT_LE(sizes[2], sizes[1]);
}

TEST_F(JoinedDelta, ManyPackedTextsAndOthersComeOutAsTheyAre)
{
    for (unsigned i = 0; i < 8; ++i)
    {
        std::string const text = WordsOf(i, 1000 + i * 30000);
        std::string const name = "texts/" + std::to_string(i) + ".gz";
        WriteFile(Old() / name, GzipOf(text, 9 - static_cast<int>(i)));
        WriteFile(New() / name, GzipOf(text.substr(100) + "an end", 9 - static_cast<int>(i), 8 + i % 2));
        WriteFile(Old() / ("plain" + std::to_string(i)), text);
        WriteFile(New() / ("plain" + std::to_string(i)), "a beginning" + text);
    }
    WriteFile(Old() / "other.gz", GzipOf(WordsOf(20, 9000)));
    WriteFile(New() / "other.gz", GzipOf(Noise(21, 9000))); // contains nothing of the old text
    WriteFile(Old() / "stored.gz", GzipOf(WordsOf(22, 9000), 0));
    WriteFile(New() / "stored.gz", GzipOf(WordsOf(22, 8000), 0)); // has no recipe
    WriteFile(New() / "new.gz", GzipOf(WordsOf(23, 9000)));
    ASSERT_TRUE(Make().outcome.HasSucceeded());
    ExpectTheNewVersion();
}

TEST_F(JoinedDelta, TextsThatAreLargerThanWhatMayWaitForThePackingComeOutAsTheyAre)
{
    // The first three may wait together. The fourth is too large to wait with them, the last to wait at all.
    std::array<unsigned, 5> const repetitions{5, 5, 5, 19, 30};
    std::string const words = WordsOf(1, 80000);
    for (unsigned i = 0; i < repetitions.size(); ++i)
    {
        std::string text;
        for (unsigned j = 0; j < repetitions[i]; ++j)
        {
            text += words;
        }
        std::string const name = "text" + std::to_string(i) + ".gz";
        WriteFile(Old() / name, GzipOf(text, 9, 9));
        WriteFile(New() / name, GzipOf("One more line.\n" + text, 9, 9));
    }
    WriteFile(Old() / "words", WordsOf(7, 300000));
    WriteFile(New() / "words", "One more line.\n" + WordsOf(7, 300000));
    ASSERT_TRUE(Make().outcome.HasSucceeded());
    ExpectTheNewVersion();
}

TEST_F(JoinedDelta, TellsThatThePackedTextOfTheOldVersionIsAnother)
{
    std::string const text = WordsOf(1, 50000);
    std::string const file = GzipOf(text);
    WriteFile(Old() / "changes.gz", file);
    WriteFile(New() / "changes.gz", GzipOf("One more line.\n" + text));
    ASSERT_TRUE(Make().outcome.HasSucceeded());
    // The size is equal, because it is checked first.
    for (std::string other : {GzipOf(WordsOf(2, 60000)), Noise(3, file.size())})
    {
        ASSERT_GE(other.size(), file.size());
        other.resize(file.size());
        WriteFile(Old() / "changes.gz", other);
        DeltaOutcome const outcome = Apply();
        EXPECT_EQ(outcome.error, DeltaError::BaseDiffers);
        EXPECT_EQ(outcome.path, "changes.gz");
    }
    // A valid file with another text.
    std::string changed = text;
    std::swap(changed[20000], changed[20001]);
    WriteFile(Old() / "changes.gz", GzipOf(text, 0));
    WriteFile(New() / "changes.gz", GzipOf("One more line.\n" + text));
    ASSERT_TRUE(Make().outcome.HasSucceeded());
    WriteFile(Old() / "changes.gz", GzipOf(changed, 0));
    EXPECT_EQ(Apply().error, DeltaError::BaseDiffers);
}

TEST_F(JoinedDelta, AUnitOfAPackedTextIsOfOneFile)
{
    WriteFile(Old() / "changes.gz", GzipOf(WordsOf(1, 50000)));
    WriteFile(New() / "changes.gz", GzipOf(WordsOf(1, 49000)));
    ASSERT_TRUE(Make().outcome.HasSucceeded());
    std::uint64_t dataOffset = 0;
    DeltaManifest manifest = Manifest(dataOffset);
    auto const isPacked = [](DeltaUnit const& unit) { return unit.textBytes == 49000; };
    auto const unit = std::find_if(manifest.units.begin(), manifest.units.end(), isPacked);
    ASSERT_NE(unit, manifest.units.end());
    EXPECT_EQ(CheckDeltaManifest(manifest, {}).error, DeltaManifestError::None);
    unit->sources.push_back({"other", 7});
    EXPECT_EQ(CheckDeltaManifest(manifest, {}).error, DeltaManifestError::BadUnit);
}

TEST_F(JoinedDelta, ProgramWhoseCodeMovesAndKeepsItsNumbersIsMadeExactly)
{
    // The prediction is wrong for every field.
    ByteBuffer program = ForgeProgram({});
    WriteFile(Old() / "Program", Text(program));
    program.insert(program.begin() + 0x1000, 64, 0x90);
    WriteFile(New() / "Program", Text(program));
    DeltaReport const report = Make();
    ASSERT_TRUE(report.outcome.HasSucceeded());
    EXPECT_LT(report.containerBytes, 1000u);
    ExpectTheNewVersion();
}

TEST_F(JoinedDelta, LargeProgramWhoseFieldsAreNotAddressesIsMadeOfPlainBytes)
{
    ProgramShape shape;
    shape.functions = 4000;
    ByteBuffer program = ForgeProgram(shape);
    WriteFile(Old() / "Program", Text(program));
    std::mt19937 random(5);
    for (std::ptrdiff_t at = 0x1000; at < 0x60000; at += 0x2000)
    {
        ByteBuffer fresh(4 + random() % 200);
        std::generate(fresh.begin(), fresh.end(), random);
        program.insert(program.begin() + at, fresh.begin(), fresh.end());
    }
    WriteFile(New() / "Program", Text(program));
    DeltaReport const report = Make();
    ASSERT_TRUE(report.outcome.HasSucceeded());
    EXPECT_LT(report.containerBytes, 10000u);
    ExpectTheNewVersion();
}

TEST_F(JoinedDelta, ProgramIsFoundUnderAnotherNumber)
{
    WriteFile(Old() / "lib/libtest.so.1.2.3", Text(ForgeProgram({})));
    ProgramShape shape;
    shape.insertedAt = 30;
    shape.insertedBytes = 32;
    WriteFile(New() / "lib/libtest.so.1.3.0", Text(ForgeProgram(shape)));
    DeltaReport const report = Make();
    ASSERT_TRUE(report.outcome.HasSucceeded());
    EXPECT_EQ(report.patchedFiles, 1u);
    EXPECT_LT(report.containerBytes, 700u);
    ExpectTheNewVersion();
}

TEST_F(JoinedDelta, FileThatMovedAndChangedIsMadeOfTheOldOne)
{
    std::string content = Noise(1, 30000);
    WriteFile(Old() / "data/one.bin", content);
    WriteFile(Old() / "data/other.bin", Noise(2, 30000));
    content.replace(10000, 5, "other");
    WriteFile(New() / "elsewhere/two.bin", content);
    WriteFile(New() / "data/other.bin", Noise(2, 29000) + "changed");
    DeltaReport const report = Make();
    ASSERT_TRUE(report.outcome.HasSucceeded());
    EXPECT_EQ(report.patchedFiles, 2u);
    EXPECT_LT(report.containerBytes, 600u);
    ExpectTheNewVersion();
}

TEST_F(JoinedDelta, FilesOverOnePieceOfTheSearchAreMade)
{
    std::string content = Noise(3, 20u << 20);
    WriteFile(Old() / "large", content);
    content.insert(100, "inserted");
    content.erase(9u << 20, 1000);
    content.replace(19u << 20, 4, "four");
    WriteFile(New() / "large", content);
    DeltaReport const report = Make();
    ASSERT_TRUE(report.outcome.HasSucceeded());
    EXPECT_LT(report.containerBytes, 600u);
    ExpectTheNewVersion();
}

TEST_F(JoinedDelta, ManySmallFilesCostFewBytesEach)
{
    for (int i = 0; i < 500; ++i)
    {
        std::string const name = "resources/group" + std::to_string(i % 7) + "/file" + std::to_string(i);
        std::string const content = Noise(static_cast<unsigned>(i), 400);
        WriteFile(Old() / name, content + "version 1.0");
        WriteFile(New() / name, content + "version 2.0");
    }
    DeltaReport const report = Make();
    ASSERT_TRUE(report.outcome.HasSucceeded());
    EXPECT_LT(report.containerBytes, 500u * 8);
    ExpectTheNewVersion();
}

TEST_F(JoinedDelta, NothingInCommonIsBroughtWhole)
{
    WriteFile(Old() / "a", Noise(4, 1000));
    WriteFile(New() / "b", Noise(5, 1000));
    WriteFile(New() / "empty", "");
    DeltaReport const report = Make();
    ASSERT_TRUE(report.outcome.HasSucceeded());
    EXPECT_EQ(report.wholeFiles, 2u);
    EXPECT_LT(report.containerBytes, 1400u);
    ExpectTheNewVersion();
}

TEST_F(JoinedDelta, EmptyVersionsAreVersions)
{
    ASSERT_TRUE(Make().outcome.HasSucceeded());
    ExpectTheNewVersion();
    WriteFile(New() / "a", "new");
    ASSERT_TRUE(Make().outcome.HasSucceeded());
    ExpectTheNewVersion();
    fs::remove(New() / "a");
    WriteFile(Old() / "a", "old");
    ASSERT_TRUE(Make().outcome.HasSucceeded());
    ExpectTheNewVersion();
}

TEST_F(JoinedDelta, ProgramWhoseOldFileIsNoneAnyMore)
{
    std::string const program = Text(ForgeProgram({}));
    WriteFile(Old() / "Program", program);
    ProgramShape shape;
    shape.insertedBytes = 32;
    WriteFile(New() / "Program", Text(ForgeProgram(shape)));
    ASSERT_TRUE(Make().outcome.HasSucceeded());
    for (std::size_t const at : {std::size_t(0), std::size_t(64), program.size() / 2, program.size() - 1})
    {
        std::string edited = program;
        edited[at] = static_cast<char>(edited[at] + 1);
        WriteFile(Old() / "Program", edited);
        EXPECT_EQ(Apply().error, DeltaError::BaseDiffers) << at;
    }
    WriteFile(Old() / "Program", program);
    ExpectTheNewVersion();
}

TEST_F(JoinedDelta, FormatBeforeIsStillApplied)
{
    WriteFile(Old() / "patched", Noise(6, 5000) + "1");
    WriteFile(New() / "patched", Noise(6, 5000) + "2");
    WriteFile(Old() / "kept", "kept");
    WriteFile(New() / "deep/kept", "kept");
    WriteFile(New() / "whole", Noise(7, 100));
    std::string const container = MakeSeparateDelta(Old(), New());
    EXPECT_EQ(container[8], 2);
    WriteFile(Container(), container);
    ExpectTheNewVersion();
}

TEST_F(JoinedDelta, VersionWithoutCorrectionsIsStillApplied)
{
    std::string const text = WordsOf(1, 100000);
    WriteFile(Old() / "patched", Noise(6, 5000) + "1");
    WriteFile(New() / "patched", Noise(6, 5000) + "2");
    WriteFile(Old() / "changes.gz", GzipOf(text, 6));
    WriteFile(New() / "changes.gz", GzipOf(text + "One more line.\n", 1));
    ASSERT_TRUE(Make().outcome.HasSucceeded());
    std::string container = ReadFile(Container());
    ASSERT_EQ(container[8], 4);
    container[8] = 3;
    WriteFile(Container(), container);
    ExpectTheNewVersion();
    container[8] = 5;
    WriteFile(Container(), container);
    EXPECT_EQ(Apply().error, DeltaError::NotADelta);
}

TEST_F(JoinedDelta, KeptFilesCountWithTheSizesThatTheyHave)
{
    WriteFile(Old() / "kept", std::string(1000, 'x'));
    WriteFile(New() / "kept", std::string(1000, 'x'));
    WriteFile(New() / "new", "new");
    ASSERT_TRUE(Make().outcome.HasSucceeded());
    DeltaLimits limits;
    limits.tree.maxBytes = 1003;
    EXPECT_TRUE(Apply(limits).HasSucceeded());
    limits.tree.maxBytes = 1002;
    DeltaOutcome const outcome = Apply(limits);
    EXPECT_EQ(outcome.error, DeltaError::TreeRefused);
    EXPECT_EQ(outcome.fault, UpdateFault::TooManyBytes);
    EXPECT_TRUE(fs::is_empty(Staging()));
}

} // namespace
