// ZstdTar.h: writes a bundle as a tar that zstd packs as small as clients can unpack it.
// Thread: any; zstd uses all processors. Ownership: the descriptor stays the caller's.
#pragma once

#include "Publisher/files/BundleTree.h"

namespace Pelnar::Publisher
{

/// Writes \a bundle to the empty file open at \a fd, which is shown as \a name. Files keep their times, folders and
/// links get \a time. The same bundle always makes the same bytes. Throws Refusal.
void WriteZstdTar(BundleTree const& bundle, std::int64_t time, int fd, QString const& name,
                  ByteProgress const& progress);

} // namespace Pelnar::Publisher
