// DeltaContainerWriter.h: packs the parts of a delta container. Throws std::bad_alloc.
#pragma once

#include "Engine/core/delta/DeltaContainer.h"

namespace Pelnar::Engine
{

/// The header and the compressed manifest at the start of a container in the joined format.
[[nodiscard]] ByteBuffer EncodeDeltaOpening(DeltaManifest const& manifest);

/// The effort of packing, which also affects the time to unpack.
enum class DeltaEffort
{
    Low,   ///< zstd at a low level; packed texts stay packed
    Usual, ///< zstd at a high level, or LZMA if that saves a tenth, because it takes several times as long to unpack
    High,  ///< zstd at its highest level and several settings of LZMA: the smallest counts
};

/// zstd's output; empty for empty input.
[[nodiscard]] ByteBuffer CompressForDelta(Bytes bytes, int windowLog = DELTA_WINDOW_LOG,
                                          DeltaEffort effort = DeltaEffort::Usual);

/// LZMA's output with the properties \a packing minus one; empty for empty input.
[[nodiscard]] ByteBuffer PackByLzma(Bytes bytes, std::uint8_t packing, int windowLog);

struct PackedStream
{
    std::uint8_t packing = 0;
    ByteBuffer bytes;
};

/// The best output for each stream with this \a effort. Uses all processors.
[[nodiscard]] std::array<PackedStream, PATCH_STREAMS> PackStreams(BinaryPatch const& patch, DeltaEffort effort);

} // namespace Pelnar::Engine
