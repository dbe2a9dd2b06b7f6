// DeltaContainerWriter.h: packs what a delta container holds.
// Throws std::bad_alloc.
#pragma once

#include "Engine/core/delta/DeltaContainer.h"

namespace Pelnar::Engine
{

/// The header and the compressed manifest that open a container of the joined format.
[[nodiscard]] ByteBuffer EncodeDeltaOpening(DeltaManifest const& manifest);

/// How long packing may take, and unpacking.
enum class DeltaEffort
{
    Low,   ///< zstd at a low level; packed texts stay packed
    Usual, ///< zstd at a high level, or LZMA where that saves a tenth: it takes several times as long to unpack
    High,  ///< zstd at its highest level and LZMA in several ways: the smallest counts
};

/// zstd's answer; nothing for nothing.
[[nodiscard]] ByteBuffer CompressForDelta(Bytes bytes, int windowLog = DELTA_WINDOW_LOG,
                                          DeltaEffort effort = DeltaEffort::Usual);

/// LZMA's answer for one less than \a packing as its properties; nothing for nothing.
[[nodiscard]] ByteBuffer PackByLzma(Bytes bytes, std::uint8_t packing, int windowLog);

struct PackedStream
{
    std::uint8_t packing = 0;
    ByteBuffer bytes;
};

/// The best answer for \a effort of each stream, with all processors.
[[nodiscard]] std::array<PackedStream, PATCH_STREAMS> PackStreams(BinaryPatch const& patch, DeltaEffort effort);

} // namespace Pelnar::Engine
