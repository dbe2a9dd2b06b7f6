// BinaryPatch.h: the difference of two files as three streams, and the way back.
// Thread: any; no shared state. Ownership: the patch owns its streams; the bytes of the files are the caller's.
// A patch is a list of steps. Each adds the next bytes of the difference stream to the bytes of the old file at the
// current position, then takes bytes from the extra stream as they are, then moves the position in the old file. Code
// that moved a little differs by small numbers, which compress well.
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace Pelnar::Engine
{

using Bytes = std::basic_string_view<std::uint8_t>;
using ByteBuffer = std::vector<std::uint8_t>;

struct BinaryPatch
{
    ByteBuffer control; ///< three 64-bit little-endian numbers a step: difference bytes, extra bytes, signed move
    ByteBuffer difference;
    ByteBuffer extra;
};

/// The largest old file that MakeBinaryPatch takes.
constexpr std::size_t MAX_PATCH_SOURCE_BYTES = 0x7FFFFFFE;

/// The patch that turns \a oldBytes into \a newBytes; nothing when \a oldBytes is larger than MAX_PATCH_SOURCE_BYTES or
/// memory for its index (five times its size) cannot be had.
[[nodiscard]] std::optional<BinaryPatch> MakeBinaryPatch(Bytes oldBytes, Bytes newBytes);

/// Where the applier takes the next bytes of one stream from: fills \a size bytes at \a target, or answers false when
/// the stream ends early or cannot be read.
using ByteSource = std::function<bool(std::uint8_t* target, std::size_t size)>;
/// Takes the next bytes of the new file; false when they cannot be written.
using ByteSink = std::function<bool(Bytes bytes)>;

enum class PatchVerdict
{
    Applied,
    SourceEnded, ///< a stream ended early or could not be read
    OutOfRange,  ///< a step reads outside the old file
    WrongSize,   ///< the steps make more or fewer bytes than declared
    SinkRefused, ///< the new bytes could not be written
};

/// Makes the \a newSize bytes of the new file in pieces of at most 64 KiB. Reads exactly \a controlSize bytes of
/// \a control. Constant memory; any bytes are safe.
[[nodiscard]] PatchVerdict ApplyBinaryPatch(Bytes oldBytes, std::uint64_t controlSize, ByteSource const& control,
                                            ByteSource const& difference, ByteSource const& extra,
                                            std::uint64_t newSize, ByteSink const& sink);

} // namespace Pelnar::Engine
