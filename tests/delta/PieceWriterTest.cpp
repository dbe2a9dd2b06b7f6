#include "Engine/core/delta/PieceWriter.h"

#include "Engine/core/base/Descriptor.h"

#include <gtest/gtest.h>

#include <array>
#include <cerrno>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include <fcntl.h>
#include <sys/mman.h>
#include <unistd.h>

namespace
{

using namespace Pelnar::Engine;

constexpr std::size_t LARGE = 100000; ///< a piece that is written in the background
constexpr std::size_t SMALL = 100;

UniqueFd NewFile()
{
    return UniqueFd(::memfd_create("pieces", MFD_CLOEXEC));
}

std::string ContentOf(int fd)
{
    std::string content(static_cast<std::size_t>(::lseek(fd, 0, SEEK_END)), '\0');
    EXPECT_EQ(ReadUpTo(fd, 0, content.data(), content.size()), static_cast<ssize_t>(content.size()));
    return content;
}

Bytes View(std::string const& text)
{
    return {reinterpret_cast<std::uint8_t const*>(text.data()), text.size()};
}

DeltaEntry EntryOf(std::string const& path)
{
    DeltaEntry entry;
    entry.path = path;
    return entry;
}

/// A second descriptor: the writer closes its own.
UniqueFd CopyOf(UniqueFd const& file)
{
    return UniqueFd(::fcntl(file.Get(), F_DUPFD_CLOEXEC, 0));
}

TEST(PieceWriter, WritesLargeAndSmallPiecesOfManyFilesInTheirOrder)
{
    constexpr std::size_t FILES = 40;
    PieceWriter writer;
    std::vector<DeltaEntry> entries(FILES);
    std::vector<UniqueFd> files;
    std::vector<std::string> contents;
    // Buffers in turn, as the contract allows.
    std::array<std::string, PIECES_AHEAD + 1> pieces;
    std::size_t next = 0;
    for (DeltaEntry& entry : entries)
    {
        std::string& whole = contents.emplace_back();
        writer.Start(CopyOf(files.emplace_back(NewFile())), entry);
        for (std::size_t i = 0; i < contents.size() % 25; ++i)
        {
            std::string& piece = pieces[next++ % pieces.size()];
            piece.assign(i % 3 == 2 ? SMALL : LARGE, static_cast<char>('a' + next % 26));
            whole += piece;
            ASSERT_TRUE(writer.Add(View(piece)));
        }
        if (contents.size() % 4 == 0)
        {
            std::string const owned(LARGE + contents.size(), 'o');
            whole += owned;
            ASSERT_TRUE(writer.Add(ByteBuffer(owned.begin(), owned.end())));
        }
        writer.End();
    }
    ASSERT_TRUE(writer.Finish().HasSucceeded());
    for (std::size_t i = 0; i < FILES; ++i)
    {
        EXPECT_EQ(ContentOf(files[i].Get()), contents[i]) << i;
        EXPECT_EQ(entries[i].hash, HashOf(View(contents[i]))) << i;
    }
}

TEST(PieceWriter, PiecesMayChangeOnceSoManyMoreAreTaken)
{
    constexpr int FILES = 400; // all open at once; the usual limit is 1024
    PieceWriter writer;
    std::array<std::string, PIECES_AHEAD + 1> pieces;
    std::vector<DeltaEntry> entries(FILES);
    std::vector<UniqueFd> files;
    std::vector<std::string> contents(FILES);
    std::size_t next = 0;
    for (int i = 0; i < FILES; ++i)
    {
        files.push_back(NewFile());
        writer.Start(CopyOf(files.back()), entries[static_cast<std::size_t>(i)]);
        // A few large pieces and many small ones, as in a tree with a library and its texts.
        for (int number = 0; number < 3 + i % 20; ++number)
        {
            std::string& piece = pieces[next++ % pieces.size()];
            piece.assign(number < i % 4 ? PATCH_PIECE_BYTES : SMALL, static_cast<char>(next));
            contents[static_cast<std::size_t>(i)] += piece;
            ASSERT_TRUE(writer.Add(View(piece)));
        }
        writer.End();
    }
    ASSERT_TRUE(writer.Finish().HasSucceeded());
    for (std::size_t i = 0; i < contents.size(); ++i)
    {
        EXPECT_TRUE(ContentOf(files[i].Get()) == contents[i]) << i;
        EXPECT_EQ(entries[i].hash, HashOf(View(contents[i]))) << i;
    }
}

TEST(PieceWriter, KeepsOldFilesUntilTheirPiecesAreWritten)
{
    PieceWriter writer;
    std::vector<DeltaEntry> entries(20);
    std::vector<UniqueFd> files;
    std::vector<std::string> contents;
    std::vector<std::weak_ptr<std::string const>> oldFiles;
    for (DeltaEntry& entry : entries)
    {
        auto old = std::make_shared<std::string const>(3 * LARGE, static_cast<char>('a' + files.size()));
        contents.push_back(*old);
        oldFiles.push_back(old);
        Bytes const bytes = View(*old);
        writer.Start(CopyOf(files.emplace_back(NewFile())), entry, std::move(old));
        for (std::size_t i = 0; i < 3; ++i)
        {
            ASSERT_TRUE(writer.Add(bytes.substr(i * LARGE, LARGE)));
        }
        writer.End();
    }
    EXPECT_TRUE(writer.Finish().HasSucceeded());
    for (std::size_t i = 0; i < entries.size(); ++i)
    {
        EXPECT_EQ(ContentOf(files[i].Get()), contents[i]);
        EXPECT_EQ(entries[i].hash, HashOf(View(contents[i])));
        EXPECT_TRUE(oldFiles[i].expired());
    }
}

TEST(PieceWriter, NamesTheFileThatCannotBeWrittenAlsoWhenOthersFollow)
{
    PieceWriter writer;
    std::string const piece(LARGE, 'x');
    DeltaEntry good = EntryOf("before");
    writer.Start(NewFile(), good);
    EXPECT_TRUE(writer.Add(View(piece)));
    writer.End();

    DeltaEntry bad = EntryOf("full");
    writer.Start(UniqueFd(::open("/dev/full", O_WRONLY | O_CLOEXEC)), bad);
    static_cast<void>(writer.Add(View(piece))); // which may not know yet
    writer.End();

    DeltaEntry next = EntryOf("after");
    writer.Start(NewFile(), next);
    static_cast<void>(writer.Add(View(piece)));
    writer.End();

    DeltaOutcome const outcome = writer.Finish();
    EXPECT_EQ(outcome.error, DeltaError::CannotWrite);
    EXPECT_EQ(outcome.path, "full");
    EXPECT_EQ(outcome.systemError, ENOSPC);
}

TEST(PieceWriter, TakesNoMorePiecesOnceOneIsLost)
{
    PieceWriter writer;
    DeltaEntry bad = EntryOf("full");
    writer.Start(UniqueFd(::open("/dev/full", O_WRONLY | O_CLOEXEC)), bad);
    std::string const piece(LARGE, 'x');
    for (std::size_t i = 0; i <= PIECES_AHEAD; ++i)
    {
        static_cast<void>(writer.Add(View(piece)));
    }
    errno = 0;
    EXPECT_FALSE(writer.Add(View(piece)));
    EXPECT_EQ(errno, ENOSPC);
    writer.End();

    UniqueFd const after = NewFile();
    DeltaEntry next = EntryOf("after");
    writer.Start(CopyOf(after), next);
    EXPECT_FALSE(writer.Add(View(piece)));
    writer.End();
    EXPECT_EQ(writer.Finish().path, "full");
    EXPECT_EQ(ContentOf(after.Get()), "") << "nothing is written after it";
}

TEST(PieceWriter, AnEmptyFileHasTheHashOfNothing)
{
    PieceWriter writer;
    DeltaEntry entry = EntryOf("empty");
    writer.Start(NewFile(), entry);
    writer.End();
    ASSERT_TRUE(writer.Finish().HasSucceeded());
    EXPECT_EQ(entry.hash, HashOf({}));
}

} // namespace
