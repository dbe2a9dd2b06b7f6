// KeptFilesTest.cpp: files that a delta keeps, made by two threads or by one.

#include "Engine/core/delta/KeptFiles.h"
#include "tests/support/NoFurtherThread.h"

#include <gtest/gtest.h>

#include <QTemporaryDir>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

#include <fcntl.h>

namespace
{

using namespace Pelnar::Engine;
namespace fs = std::filesystem;

constexpr std::size_t FILES = 300;

constexpr std::size_t LARGE_FILE = 99; ///< that another thread hashes

std::string ContentOf(std::size_t file)
{
    if (file == LARGE_FILE)
    {
        std::string content(3000001, '\0');
        std::generate(content.begin(), content.end(),
                      [next = 0]() mutable { return static_cast<char>(++next / 1000); });
        return content;
    }
    return std::string(file % 7 == 0 ? 150000 : file, static_cast<char>('a' + file % 26));
}

Bytes View(std::string const& text)
{
    return {reinterpret_cast<std::uint8_t const*>(text.data()), text.size()};
}

/// An old version, and the entries of a new one: between kept files there are others.
class KeptFilesTest : public testing::Test
{
protected:
    void SetUp() override
    {
        ASSERT_TRUE(m_dir.isValid());
        fs::create_directories(Folder("old"));
        fs::create_directories(Folder("staging"));
        for (std::size_t i = 0; i < FILES; ++i)
        {
            DeltaEntry entry;
            entry.path = std::to_string(i);
            if (i % 3 != 2)
            {
                entry.kind = DeltaEntryKind::Kept;
                entry.sourcePath = "was" + entry.path;
                entry.size = ContentOf(i).size();
                std::ofstream(Folder("old") / entry.sourcePath, std::ios::binary) << ContentOf(i);
            }
            m_entries.push_back(entry);
        }
        m_old = UniqueFd(::open(Folder("old").c_str(), O_PATH | O_DIRECTORY | O_CLOEXEC));
        m_staging = UniqueFd(::open(Folder("staging").c_str(), O_PATH | O_DIRECTORY | O_CLOEXEC));
    }

    fs::path Folder(char const* name) const { return fs::path(m_dir.path().toStdString()) / name; }
    DeltaWork Work() const { return {-1, m_old.Get(), m_staging.Get(), 0}; }

    void ExpectAllFiles(std::vector<std::string> const& reported)
    {
        std::vector<std::string> expected;
        for (std::size_t i = 0; i < FILES; ++i)
        {
            if (m_entries[i].kind != DeltaEntryKind::Kept)
            {
                continue;
            }
            expected.push_back(m_entries[i].path);
            std::ifstream in(Folder("staging") / m_entries[i].path, std::ios::binary);
            EXPECT_EQ(std::string(std::istreambuf_iterator<char>(in), {}), ContentOf(i)) << i;
            EXPECT_EQ(m_entries[i].hash, HashOf(View(ContentOf(i)))) << i;
        }
        EXPECT_EQ(reported, expected) << "each once, in the order of the entries";
    }

    std::vector<DeltaEntry> m_entries;

private:
    QTemporaryDir m_dir;
    UniqueFd m_old;
    UniqueFd m_staging;
};

TEST_F(KeptFilesTest, AreMadeAndReportedInTheirOrder)
{
    std::vector<std::string> reported;
    EntryDone const done = [&reported](DeltaEntry const& entry) { reported.push_back(entry.path); };
    KeptFiles kept(Work(), m_entries);
    kept.Start();
    kept.Report(done);
    DeltaOutcome const outcome = kept.Finish(done);
    EXPECT_TRUE(outcome.HasSucceeded()) << outcome.path;
    ExpectAllFiles(reported);
}

TEST_F(KeptFilesTest, AreMadeByTheCallerIfTheSystemHasNoFurtherThread)
{
    Pelnar::Testing::NoFurtherThread const noThread;
    std::vector<std::string> reported;
    EntryDone const done = [&reported](DeltaEntry const& entry) { reported.push_back(entry.path); };
    KeptFiles kept(Work(), m_entries);
    kept.Start();
    DeltaOutcome const outcome = kept.Finish(done);
    EXPECT_TRUE(outcome.HasSucceeded()) << outcome.path;
    ExpectAllFiles(reported);
}

TEST_F(KeptFilesTest, TheFileThatFailsIsNamedAndTheOthersAreNotReportedBehindIt)
{
    fs::remove(Folder("old") / "was150");
    std::vector<std::string> reported;
    EntryDone const done = [&reported](DeltaEntry const& entry) { reported.push_back(entry.path); };
    KeptFiles kept(Work(), m_entries);
    kept.Start();
    DeltaOutcome const outcome = kept.Finish(done);
    EXPECT_EQ(outcome.error, DeltaError::BaseDiffers);
    EXPECT_EQ(outcome.path, "150");
    EXPECT_EQ(reported.size(), 100u) << "of the 150 entries before it";
}

} // namespace
