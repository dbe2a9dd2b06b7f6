#include "Engine/core/archive/TreeManifest.h"
#include "Engine/core/base/ContentHasher.h"
#include "Engine/core/base/Descriptor.h"
#include "Engine/core/delta/DeltaApplier.h"
#include "Engine/core/delta/DeltaMaker.h"

#include <gtest/gtest.h>

#include <QTemporaryDir>

#include <fcntl.h>
#include <sys/stat.h>

#include <filesystem>
#include <fstream>
#include <map>
#include <random>

namespace
{

using namespace Pelnar::Engine;
namespace fs = std::filesystem;

std::string ReadFile(fs::path const& path)
{
    std::ifstream in(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), {}};
}

void WriteFile(fs::path const& path, std::string const& content, bool isExecutable = false)
{
    fs::create_directories(path.parent_path());
    std::ofstream(path, std::ios::binary) << content;
    fs::permissions(path, fs::perms(isExecutable ? 0755 : 0644));
}

/// Path to kind, mode and content: two equal descriptions are equal trees.
std::map<std::string, std::string> Describe(fs::path const& folder)
{
    std::map<std::string, std::string> tree;
    for (fs::directory_entry const& entry : fs::recursive_directory_iterator(folder))
    {
        std::string const path = entry.path().lexically_relative(folder).string();
        fs::file_status const status = entry.symlink_status();
        std::string const mode = std::to_string(static_cast<unsigned>(status.permissions()));
        tree[path] = fs::is_symlink(status)     ? "link " + fs::read_symlink(entry.path()).string()
                     : fs::is_directory(status) ? "folder " + mode
                                                : "file " + mode + " " + ReadFile(entry.path());
    }
    return tree;
}

std::string Noise(std::mt19937& random, std::size_t size)
{
    std::string text(size, '\0');
    for (char& character : text)
    {
        character = static_cast<char>(random());
    }
    return text;
}

class Delta : public testing::Test
{
protected:
    void SetUp() override
    {
        ASSERT_TRUE(m_dir.isValid());
        for (char const* name : {"old", "new", "staging"})
        {
            fs::create_directories(Root() / name);
        }
        std::mt19937 random(42);
        std::string const program = Noise(random, 200000);
        std::string changed = program;
        changed.replace(5000, 40, Noise(random, 60));
        WriteFile(Old() / "Program", program, true);
        WriteFile(New() / "Program", changed, true);
        WriteFile(Old() / "Resources/same.dat", "unchanged");
        WriteFile(New() / "Resources/same.dat", "unchanged");
        WriteFile(Old() / "Resources/gone.dat", "gone");
        WriteFile(Old() / "Resources/moved-from.dat", "moved content");
        WriteFile(New() / "Resources/deep/moved-to.dat", "moved content");
        WriteFile(New() / "Resources/new.dat", Noise(random, 3000));
        WriteFile(New() / "Resources/empty.dat", "");
        fs::create_symlink("Resources/same.dat", New() / "link");
        fs::create_directory(New() / "Resources-2");
    }

    fs::path Root() const { return m_dir.path().toStdString(); }
    fs::path Old() const { return Root() / "old"; }
    fs::path New() const { return Root() / "new"; }
    fs::path Staging() const { return Root() / "staging"; }
    fs::path Container() const { return Root() / "update.delta"; }

    DeltaReport Make()
    {
        UniqueFd const container(open(Container().c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0600));
        auto const progress = [this](std::uint64_t done, std::uint64_t total) { m_progress.emplace_back(done, total); };
        return MakeDelta(Old(), "1.0", New(), "1.1", container.Get(), progress);
    }

    DeltaOutcome Apply(DeltaLimits const& limits = {})
    {
        fs::remove_all(Staging());
        fs::create_directory(Staging());
        UniqueFd const container(open(Container().c_str(), O_RDONLY | O_CLOEXEC));
        UniqueFd const old(open(Old().c_str(), O_PATH | O_DIRECTORY | O_CLOEXEC));
        UniqueFd const staging(open(Staging().c_str(), O_PATH | O_DIRECTORY | O_CLOEXEC));
        auto const progress = [this](std::uint64_t done, std::uint64_t total) { m_progress.emplace_back(done, total); };
        return ApplyDelta(container.Get(), old.Get(), staging.Get(), limits, progress, m_digest);
    }

    void MakeOrFail() { ASSERT_TRUE(Make().outcome.HasSucceeded()); }

    std::vector<std::pair<std::uint64_t, std::uint64_t>> m_progress;
    ContentHash m_digest{};

private:
    QTemporaryDir m_dir;
};

TEST_F(Delta, MakesExactlyTheNewVersion)
{
    DeltaReport const report = Make();
    ASSERT_TRUE(report.outcome.HasSucceeded());
    EXPECT_EQ(report.keptFiles, 2u) << "the unchanged and the moved one";
    EXPECT_EQ(report.patchedFiles, 1u);
    EXPECT_EQ(report.wholeFiles, 2u);
    EXPECT_EQ(report.containerBytes, fs::file_size(Container()));
    EXPECT_LT(report.containerBytes, 5000u) << "3000 of them are noise";
    DeltaOutcome const outcome = Apply();
    EXPECT_EQ(outcome.error, DeltaError::None) << outcome.path;
    EXPECT_EQ(Describe(Staging()), Describe(New()));
    UniqueFd const made(open(Staging().c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    EXPECT_EQ(m_digest, DigestTree(made.Get()));
}

TEST_F(Delta, SameFoldersMakeTheSameBytes)
{
    MakeOrFail();
    std::string const first = ReadFile(Container());
    MakeOrFail();
    EXPECT_EQ(ReadFile(Container()), first);
}

TEST_F(Delta, ProgressEndsAtTheTotal)
{
    MakeOrFail();
    EXPECT_FALSE(m_progress.empty());
    m_progress.clear();
    ASSERT_TRUE(Apply().HasSucceeded());
    ASSERT_FALSE(m_progress.empty());
    EXPECT_EQ(m_progress.back().first, m_progress.back().second);
    for (std::size_t i = 1; i < m_progress.size(); ++i)
    {
        EXPECT_LE(m_progress[i - 1].first, m_progress[i].first);
    }
}

TEST_F(Delta, MaskOfTheProcessDoesNotChangeModes)
{
    MakeOrFail();
    mode_t const previous = umask(0077);
    DeltaOutcome const outcome = Apply();
    umask(previous);
    ASSERT_TRUE(outcome.HasSucceeded());
    EXPECT_EQ(Describe(Staging()), Describe(New()));
}

TEST_F(Delta, EditedBaseFileIsFoundForPatchAndForKeep)
{
    MakeOrFail();
    for (char const* name : {"Program", "Resources/same.dat", "Resources/moved-from.dat"})
    {
        SCOPED_TRACE(name);
        std::string const content = ReadFile(Old() / name);
        std::string edited = content;
        edited.back() = static_cast<char>(edited.back() + 1);
        WriteFile(Old() / name, edited);
        EXPECT_EQ(Apply().error, DeltaError::BaseDiffers);
        WriteFile(Old() / name, content + "x");
        EXPECT_EQ(Apply().error, DeltaError::BaseDiffers) << "another size";
        fs::remove(Old() / name);
        EXPECT_EQ(Apply().error, DeltaError::BaseDiffers) << "missing";
        WriteFile(Old() / name, content);
    }
    EXPECT_TRUE(Apply().HasSucceeded());
}

TEST_F(Delta, LinkInTheBasesPlaceIsNotFollowed)
{
    MakeOrFail();
    WriteFile(Root() / "outside.dat", "unchanged");
    fs::remove(Old() / "Resources/same.dat");
    fs::create_symlink(Root() / "outside.dat", Old() / "Resources/same.dat");
    EXPECT_EQ(Apply().error, DeltaError::BaseDiffers);

    fs::rename(Old() / "Resources", Root() / "elsewhere");
    fs::remove(Root() / "elsewhere/same.dat");
    WriteFile(Root() / "elsewhere/same.dat", "unchanged");
    fs::create_symlink(Root() / "elsewhere", Old() / "Resources");
    EXPECT_EQ(Apply().error, DeltaError::BaseDiffers) << "a link as a folder on the way";
}

TEST_F(Delta, FifoInTheBasesPlaceDoesNotHoldTheWorkUp)
{
    MakeOrFail();
    fs::remove(Old() / "Resources/same.dat");
    ASSERT_EQ(mkfifo((Old() / "Resources/same.dat").c_str(), 0644), 0);
    EXPECT_EQ(Apply().error, DeltaError::BaseDiffers);
}

TEST_F(Delta, LinkInTheStagingFolderIsNotFollowed)
{
    MakeOrFail();
    UniqueFd const container(open(Container().c_str(), O_RDONLY | O_CLOEXEC));
    UniqueFd const old(open(Old().c_str(), O_PATH | O_DIRECTORY | O_CLOEXEC));
    UniqueFd const staging(open(Staging().c_str(), O_PATH | O_DIRECTORY | O_CLOEXEC));
    fs::create_directory(Root() / "outside");
    fs::create_symlink(Root() / "outside", Staging() / "Resources");
    DeltaOutcome const outcome = ApplyDelta(container.Get(), old.Get(), staging.Get(), {}, {}, m_digest);
    EXPECT_EQ(outcome.error, DeltaError::CannotWrite);
    EXPECT_EQ(outcome.path, "Resources");
    EXPECT_TRUE(fs::is_empty(Root() / "outside"));
}

TEST_F(Delta, EveryTruncationIsRefused)
{
    MakeOrFail();
    std::string const whole = ReadFile(Container());
    for (std::size_t size = 0; size < whole.size(); size += size < 400 ? 1 : 61)
    {
        WriteFile(Container(), whole.substr(0, size));
        EXPECT_FALSE(Apply().HasSucceeded()) << size;
    }
    WriteFile(Container(), whole + "x");
    EXPECT_EQ(Apply().error, DeltaError::Damaged) << "bytes after the end";
}

TEST_F(Delta, NoFlippedByteOfTheDataMakesAnotherFile)
{
    MakeOrFail();
    DeltaManifest manifest;
    std::uint64_t dataOffset = 0;
    {
        UniqueFd const container(open(Container().c_str(), O_RDONLY | O_CLOEXEC));
        ASSERT_TRUE(ReadDeltaManifest(container.Get(), {}, manifest, dataOffset).HasSucceeded());
    }
    std::string const whole = ReadFile(Container());
    std::map<std::string, std::string> const wanted = Describe(New());
    for (std::size_t at = dataOffset; at < whole.size(); at += 97)
    {
        std::string flipped = whole;
        flipped[at] = static_cast<char>(flipped[at] ^ 0x10);
        WriteFile(Container(), flipped);
        EXPECT_TRUE(!Apply().HasSucceeded() || Describe(Staging()) == wanted) << at;
    }
}

TEST_F(Delta, OtherFilesAreNotDeltas)
{
    WriteFile(Container(), "PK\x03\x04 and so on, longer than the header is");
    EXPECT_EQ(Apply().error, DeltaError::NotADelta);
    WriteFile(Container(), "short");
    EXPECT_EQ(Apply().error, DeltaError::NotADelta);
}

TEST_F(Delta, LimitsHold)
{
    MakeOrFail();
    DeltaLimits few;
    few.tree.maxEntries = 3;
    EXPECT_EQ(Apply(few).error, DeltaError::OverLimits);
    DeltaLimits small;
    small.tree.maxBytes = 100;
    DeltaOutcome const large = Apply(small);
    EXPECT_EQ(large.error, DeltaError::TreeRefused);
    EXPECT_EQ(large.fault, UpdateFault::TooManyBytes);
    EXPECT_EQ(large.path, "Program");
    DeltaLimits tight;
    tight.maxManifestBytes = 10;
    EXPECT_EQ(Apply(tight).error, DeltaError::OverLimits);
}

TEST_F(Delta, MakerRefusesWhatIsNoFileFolderOrLink)
{
    ASSERT_EQ(mkfifo((New() / "pipe").c_str(), 0644), 0);
    DeltaReport const report = Make();
    EXPECT_EQ(report.outcome.error, DeltaError::CannotRead);
    EXPECT_EQ(report.outcome.path, (New() / "pipe").string());
}

TEST_F(Delta, MakerRefusesALinkThatLeavesTheBundle)
{
    fs::create_symlink("../../etc", New() / "out");
    DeltaOutcome const outcome = Make().outcome;
    EXPECT_EQ(outcome.error, DeltaError::TreeRefused);
    EXPECT_EQ(outcome.fault, UpdateFault::LinkEscapes);
    EXPECT_EQ(fs::file_size(Container()), 0u);
    EXPECT_TRUE(m_progress.empty()) << "it searched before";
}

TEST_F(Delta, MakerNamesAFileThatShrinksWhileItIsCompared)
{
    UniqueFd const container(open(Container().c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0600));
    auto const progress = [this](std::uint64_t, std::uint64_t) { fs::resize_file(New() / "Program", 10); };
    DeltaReport const report = MakeDelta(Old(), "1.0", New(), "1.1", container.Get(), progress);
    EXPECT_EQ(report.outcome.error, DeltaError::CannotRead);
    EXPECT_EQ(report.outcome.path, (New() / "Program").string());
    EXPECT_EQ(fs::file_size(Container()), 0u);
}

TEST_F(Delta, MakerNamesAMissingFolder)
{
    fs::remove_all(Old());
    DeltaReport const report = Make();
    EXPECT_EQ(report.outcome.error, DeltaError::CannotRead);
    EXPECT_EQ(report.outcome.path, Old().string());
}

} // namespace
