#include "Engine/core/delta/PieceWriter.h"

#include "Engine/core/base/Descriptor.h"

#include <gtest/gtest.h>

#include <array>
#include <cerrno>
#include <string>

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

TEST(PieceWriter, WritesLargeAndSmallPiecesInTheirOrder)
{
    PieceWriter writer;
    for (int round = 0; round < 20; ++round)
    {
        UniqueFd const file = NewFile();
        std::string whole;
        // Buffers in turn, as the contract allows.
        std::array<std::string, PIECES_AHEAD + 1> pieces;
        for (std::size_t i = 0; i < 3 * pieces.size(); ++i)
        {
            std::string& piece = pieces[i % pieces.size()];
            piece.assign(i % 3 == 2 ? SMALL : LARGE, static_cast<char>('a' + i + static_cast<std::size_t>(round)));
            whole += piece;
            ASSERT_TRUE(writer.Add(file.Get(), View(piece)));
        }
        ContentHash hash;
        ASSERT_TRUE(writer.Finish(hash));
        EXPECT_EQ(ContentOf(file.Get()), whole);
        EXPECT_EQ(hash, HashOf(View(whole)));
    }
}

TEST(PieceWriter, TellsOfAFileThatCannotBeWrittenAndGoesOnWithTheNext)
{
    PieceWriter writer;
    UniqueFd const full(::open("/dev/full", O_WRONLY | O_CLOEXEC));
    ASSERT_TRUE(full);
    std::string const piece(LARGE, 'x');
    static_cast<void>(writer.Add(full.Get(), View(piece))); // which does not know yet, as a rule
    ContentHash hash;
    errno = 0;
    EXPECT_FALSE(writer.Finish(hash));
    EXPECT_EQ(errno, ENOSPC);

    UniqueFd const file = NewFile();
    EXPECT_TRUE(writer.Add(file.Get(), View(piece)));
    EXPECT_TRUE(writer.Finish(hash));
    EXPECT_EQ(ContentOf(file.Get()), piece);
}

TEST(PieceWriter, TakesNoMoreOfAFileOnceAPieceIsLost)
{
    PieceWriter writer;
    UniqueFd const full(::open("/dev/full", O_WRONLY | O_CLOEXEC));
    std::string const piece(LARGE, 'x');
    for (std::size_t i = 0; i <= PIECES_AHEAD; ++i)
    {
        static_cast<void>(writer.Add(full.Get(), View(piece)));
    }
    errno = 0;
    EXPECT_FALSE(writer.Add(full.Get(), View(piece)));
    EXPECT_EQ(errno, ENOSPC);
}

TEST(PieceWriter, AnEmptyFileHasTheHashOfNothing)
{
    PieceWriter writer;
    ContentHash hash;
    ASSERT_TRUE(writer.Finish(hash));
    EXPECT_EQ(hash, HashOf({}));
}

} // namespace
