// ZstdTar.h: writes a bundle as a tar that zstd compresses as far as clients can unpack it. Thread: any; zstd uses all
// processors. Ownership: the caller keeps the descriptor.
#pragma once

#include "Publisher/files/BundleTree.h"

namespace Pelnar::Publisher
{

/// Writes \a bundle to the empty file open at \a fd. Messages call it \a name. Files keep their times; folders and
/// links get \a time. The same bundle always makes the same bytes. Throws Refusal.
void WriteZstdTar(BundleTree const& bundle, std::int64_t time, int fd, QString const& name,
                  ByteProgress const& progress);

} // namespace Pelnar::Publisher
