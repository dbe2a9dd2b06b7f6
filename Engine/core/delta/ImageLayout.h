// ImageLayout.h: the segments of a program's file, and the regions of it whose fields refer to other places of the
// program. Programs are 64-bit little-endian ELF files for x86-64 or AArch64.
// Thread: any; no shared state. Any bytes are safe. A wrong layout makes a delta larger, or its result is refused.
#pragma once

#include "Engine/core/delta/BinaryPatch.h"
#include "Engine/core/delta/ResidentPages.h"

#include <cstdint>
#include <optional>
#include <vector>

namespace Pelnar::Engine
{

/// A loaded segment: its bytes in the file, and its address in memory.
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
    Relocations, ///< triples of words: an address, what to do there, and a word that may be an address
    Symbols,     ///< records of 24 bytes: the distance of a name from the region's base; the second word is an address
    Offsets,     ///< words of 4 bytes, each the distance of an address from the region's base
    Frames,      ///< records of call frames; each has the distance of its code
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
    std::vector<ImageRegion> regions; ///< in ascending order, without overlaps; empty until they are read
    std::uint64_t lowest = 0;         ///< the image's first address
    std::uint64_t end = 0;            ///< the address after its last one, at most 4 GiB after the first
    std::uint64_t lowestCode = 0;
    std::uint64_t endOfCode = 0;

    bool IsInImage(std::uint64_t place) const { return place >= lowest && place < end; }
    bool IsInCode(std::uint64_t place) const { return place >= lowestCode && place < endOfCode; }
};

/// A file with more spans is not treated as a program.
constexpr std::size_t MAX_IMAGE_SPANS = 16;
constexpr std::size_t MAX_IMAGE_BYTES = 0x7FFFFFFE;

/// Reads the layout without its regions, because the search for regions takes long. Empty if the file is not such a
/// program.
[[nodiscard]] std::optional<ImageLayout> ReadImageSpans(Bytes file);
/// Finds the regions. REQUIRES: the layout is that of \a file, whose pages are the first of \a pages.
void ReadImageRegions(Bytes file, ImageLayout& layout, ResidentPages& pages);
/// Spans and regions.
[[nodiscard]] std::optional<ImageLayout> ReadImageLayout(Bytes file);

/// The address of the byte at \a offset of a file with these \a spans; nothing if it is not loaded.
[[nodiscard]] std::optional<std::uint64_t> AddressAt(std::vector<ImageSpan> const& spans, std::uint64_t offset);
/// The offset of the byte at \a address; nothing if the file does not have it.
[[nodiscard]] std::optional<std::uint64_t> OffsetOf(std::vector<ImageSpan> const& spans, std::uint64_t address);

} // namespace Pelnar::Engine
