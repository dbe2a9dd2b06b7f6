// ImageLayout.h: where a program's file keeps addresses: its segments, and the parts whose fields name other places of
// the program. Programs are ELF files of 64 bits, little-endian, for x86-64 and AArch64.
// What a layout says of a file decides how small a delta is, and never what the delta makes: any bytes are safe.
#pragma once

#include "Engine/core/delta/BinaryPatch.h"

#include <cstdint>
#include <optional>
#include <vector>

namespace Pelnar::Engine
{

/// A piece of the file, and where it stands in the program's memory.
struct ImageSpan
{
    std::uint32_t offset = 0;
    std::uint32_t size = 0;
    std::uint64_t address = 0;

    bool operator==(ImageSpan const& other) const
    {
        return offset == other.offset && size == other.size && address == other.address;
    }
};

enum class RegionKind : std::uint8_t
{
    X86Code,
    Arm64Code,
    Words,       ///< words of 8 bytes that may be addresses
    Dynamic,     ///< pairs of words, the second of which may be an address
    Relocations, ///< triples of words: an address, what to do there, what may be another address
    Symbols, ///< records of 24 bytes: the distance of a name from the region's base, and in the second word an address
    Offsets, ///< words of 4 bytes, each the distance of an address from the region's base
    Frames,  ///< records of call frames, each of which names its code by the distance from the name
};

struct ImageRegion
{
    RegionKind kind = RegionKind::Words;
    std::uint32_t begin = 0;
    std::uint32_t end = 0;
    std::uint64_t base = 0; ///< Offsets, Symbols
};

struct ImageLayout
{
    std::vector<ImageSpan> spans;     ///< in ascending order of their offsets
    std::vector<ImageRegion> regions; ///< in ascending order, none in another
    std::uint64_t lowest = 0;         ///< the image's addresses are from here on
    std::uint64_t end = 0;            ///< and before this one, at most 4 GiB further
    std::uint64_t lowestCode = 0;
    std::uint64_t endOfCode = 0;

    bool IsInImage(std::uint64_t place) const { return place >= lowest && place < end; }
    bool IsInCode(std::uint64_t place) const { return place >= lowestCode && place < endOfCode; }
};

/// A program has few spans; a file with more is not treated as a program.
constexpr std::size_t MAX_IMAGE_SPANS = 16;
constexpr std::size_t MAX_IMAGE_BYTES = 0x7FFFFFFE;

/// Nothing for a file that is no such program.
[[nodiscard]] std::optional<ImageLayout> ReadImageLayout(Bytes file);

/// The address of the byte at \a offset of a file with these \a spans; nothing when it has none.
[[nodiscard]] std::optional<std::uint64_t> AddressAt(std::vector<ImageSpan> const& spans, std::uint64_t offset);
/// The other way round.
[[nodiscard]] std::optional<std::uint64_t> OffsetOf(std::vector<ImageSpan> const& spans, std::uint64_t address);

} // namespace Pelnar::Engine
