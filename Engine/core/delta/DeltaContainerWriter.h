// DeltaContainerWriter.h: packs what a delta container holds.
// Thread: any; no state. Ownership: values only. Throws std::bad_alloc.
#pragma once

#include "Engine/core/delta/DeltaContainer.h"

namespace Pelnar::Engine
{

/// The header and the compressed manifest that open a container.
[[nodiscard]] ByteBuffer EncodeDeltaOpening(DeltaManifest const& manifest);

/// zstd's answer at the level that containers are made with; nothing for nothing.
[[nodiscard]] ByteBuffer CompressForDelta(Bytes bytes, int windowLog = DELTA_WINDOW_LOG);

/// LZMA's answer for one less than \a packing as its properties; nothing for nothing.
[[nodiscard]] ByteBuffer PackByLzma(Bytes bytes, std::uint8_t packing, int windowLog);

struct PackedStream
{
    std::uint8_t packing = 0;
    ByteBuffer bytes;
};

/// The smallest answer.
[[nodiscard]] PackedStream PackStream(Bytes bytes, int windowLog);

} // namespace Pelnar::Engine
