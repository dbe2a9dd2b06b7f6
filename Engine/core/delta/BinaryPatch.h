// BinaryPatch.h: the difference of two files as five streams, and the way back.
// Thread: any; no shared state. Ownership: the patch owns its streams; the bytes of the files are the caller's.
// A patch is a list of steps. Each takes the next bytes of the old file at the current position, the difference added
// where there is one, then takes bytes from the extra stream as they are, then moves the position in the old file. Code
// that moved a little differs in few bytes and by small numbers, which compress well.
#pragma once

#include "Engine/core/base/Bytes.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <functional>

namespace Pelnar::Engine
{

/// The streams of a patch. Numbers are variable: seven bits a byte, lowest first, the high bit set on all but the last.
enum class PatchStream : std::uint8_t
{
    Steps,      ///< three numbers a step: bytes like the old file's, extra bytes, and the move, its sign as lowest bit
    Same,       ///< numbers: bytes that are the old file's, before each run of changed ones and after the last
    Changed,    ///< numbers: the length of each run of changed bytes
    Difference, ///< what is added, without carry, to each changed byte
    Extra,      ///< bytes that are taken as they are
};
constexpr std::size_t PATCH_STREAMS = 5;

struct BinaryPatch
{
    std::array<ByteBuffer, PATCH_STREAMS> streams;

    ByteBuffer& operator[](PatchStream stream) { return streams[static_cast<std::size_t>(stream)]; }
    ByteBuffer const& operator[](PatchStream stream) const { return streams[static_cast<std::size_t>(stream)]; }
};

/// What a step of a patch says.
struct PatchStep
{
    std::uint64_t likeBytes = 0;
    std::uint64_t extraBytes = 0;
    std::uint64_t move = 0; ///< by FoldSign
};

/// Appends a variable-length number.
inline void AppendNumber(ByteBuffer& bytes, std::uint64_t number)
{
    for (; number >= 0x80; number >>= 7)
    {
        bytes.push_back(static_cast<std::uint8_t>(number | 0x80));
    }
    bytes.push_back(static_cast<std::uint8_t>(number));
}

/// A signed number as an unsigned one: twice its distance from 0, minus one if it is negative.
constexpr std::uint64_t FoldSign(std::int64_t number)
{
    return static_cast<std::uint64_t>(number) << 1 ^ static_cast<std::uint64_t>(number >> 63);
}

/// The position in the old file after \a move.
constexpr std::uint64_t MovedBy(std::uint64_t position, std::uint64_t move)
{
    return move % 2 != 0 ? position - (move / 2 + 1) : position + move / 2;
}

/// Where the applier takes the next bytes of one stream from: fills \a size bytes at \a target and answers their
/// number, which is smaller only where the stream ends or cannot be read.
using ByteSource = std::function<std::size_t(std::uint8_t* target, std::size_t size)>;
using PatchSources = std::array<ByteSource, PATCH_STREAMS>;
/// The pieces in which new bytes come are no larger.
constexpr std::size_t PATCH_PIECE_BYTES = 64 * 1024;
/// The number of pieces before the current one that stay unchanged.
constexpr std::size_t PIECES_AHEAD = 15;
/// Takes the next bytes of the new file. They are bytes of an old file, or stay unchanged until PIECES_AHEAD more calls
/// have returned. False if they cannot be written.
using ByteSink = std::function<bool(Bytes bytes)>;

enum class PatchVerdict
{
    Applied,
    SourceEnded,  ///< a stream ended early or could not be read
    BadNumber,    ///< longer than needed, over 64 bits, or a run or step of nothing
    OutOfRange,   ///< a step reads outside the old file
    WrongSize,    ///< the steps make more bytes than declared, or leave some of a stream
    TooManySteps, ///< more than were to be kept
    SinkRefused,  ///< the new bytes could not be written
};

} // namespace Pelnar::Engine
