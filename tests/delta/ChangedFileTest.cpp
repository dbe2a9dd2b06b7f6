// ChangedFileTest.cpp: a delta is made of files that another program changes meanwhile. The maker names them.

#include "Engine/core/base/Descriptor.h"
#include "Engine/core/delta/DeltaMaker.h"
#include "Engine/core/delta/UnitSearch.h"
#include "tests/delta/ForgedProgram.h"
#include "tests/delta/PackedFiles.h"

#include <gtest/gtest.h>

#include <QTemporaryDir>

#include <fcntl.h>

#include <filesystem>
#include <fstream>

namespace
{

using namespace Pelnar::Engine;
using namespace Pelnar::Testing;
namespace fs = std::filesystem;

/// Replaces a file, as a build does: what is mapped stays.
void WriteFile(fs::path const& path, std::string const& content)
{
    fs::create_directories(path.parent_path());
    fs::remove(path);
    std::ofstream(path, std::ios::binary) << content;
}

struct FileRow
{
    char const* name;
    std::string before;
    std::string after;
    /// If the maker parses the old file, or both, it sees that other bytes are in the place of as many. Otherwise this
    /// is seen when the delta is tried.
    bool isOldParsed;
    bool isNewParsed;
};

std::vector<FileRow> Rows()
{
    ProgramShape shape;
    shape.functions = 400;
    ByteBuffer const program = ForgeProgram(shape);
    shape.insertedAt = 30;
    shape.insertedBytes = 32;
    ByteBuffer const changed = ForgeProgram(shape);
    std::string const words = WordsOf(1, 100000);
    return {{"Program", {program.begin(), program.end()}, {changed.begin(), changed.end()}, true, false},
            {"words.gz", GzipOf(words), GzipOf("One more line.\n" + words), true, true},
            {"words", words, "One more line.\n" + words, false, false}};
}

/// Makes a delta of the file of \a row. The file in \a folder, "old" or "new", gets \a content after the first piece of
/// the search.
void ExpectNamed(FileRow const& row, char const* folder, std::string const& content)
{
    SCOPED_TRACE(std::string(row.name) + " in " + folder + " gets " + std::to_string(content.size()) + " bytes");
    QTemporaryDir const place;
    fs::path const root = place.path().toStdString();
    WriteFile(root / "old" / row.name, row.before);
    WriteFile(root / "new" / row.name, row.after);
    UniqueFd const container(open((root / "delta").c_str(), O_WRONLY | O_CREAT | O_CLOEXEC, 0600));
    auto const replace = [&](std::uint64_t, std::uint64_t) { WriteFile(root / folder / row.name, content); };
    DeltaOutcome const outcome = MakeDelta(root / "old", "1.0", root / "new", "2.0", container.Get(), replace).outcome;
    EXPECT_EQ(outcome.error, DeltaError::CannotRead);
    EXPECT_EQ(outcome.path, (root / folder / row.name).string());
    EXPECT_EQ(outcome.systemError, 0);
}

TEST(ChangedFile, IsNamedByTheMaker)
{
    for (FileRow const& row : Rows())
    {
        for (std::size_t const more : {1, 5000})
        {
            ExpectNamed(row, "old", std::string(row.before.size() + more, 'x'));
            ExpectNamed(row, "old", std::string(row.before.size() - more, 'x'));
            ExpectNamed(row, "new", std::string(row.after.size() + more, 'x'));
            ExpectNamed(row, "new", std::string(row.after.size() - more, 'x'));
        }
        if (row.isOldParsed)
        {
            ExpectNamed(row, "old", std::string(row.before.size(), 'x'));
        }
        if (row.isNewParsed)
        {
            ExpectNamed(row, "new", std::string(row.after.size(), 'x'));
        }
    }
}

TEST(ChangedFile, ThatWasPackedWhenTheUnitWasPlannedIsNamedByTheSearch)
{
    for (char const* const changed : {"old.gz", "new.gz"})
    {
        QTemporaryDir const place;
        fs::path const folder = place.path().toStdString();
        std::string const file = GzipOf(WordsOf(1, 1000));
        WriteFile(folder / "old.gz", file);
        WriteFile(folder / "new.gz", file);
        WriteFile(folder / changed, std::string(file.size(), 'x'));
        DeltaUnit const unit{{{"old.gz", file.size()}}, {0}, {}, 1000};
        DeltaEntry entry;
        entry.path = "new.gz";
        entry.size = file.size();
        try
        {
            static_cast<void>(SearchUnits({unit}, folder, folder, {entry}, {}));
            ADD_FAILURE() << "it searched";
        }
        catch (fs::filesystem_error const& error)
        {
            EXPECT_EQ(error.path1(), folder / changed);
        }
    }
}

} // namespace
