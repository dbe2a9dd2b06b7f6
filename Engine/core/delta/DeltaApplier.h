// DeltaApplier.h: makes the new version of a bundle from the old one and a delta. Thread: any, one call at a time for a
// staging folder. It runs in the confined child process, so that a source file that shrinks under its mapping ends that
// process and not the host. Ownership: the caller keeps the descriptors.
#pragma once

#include "Engine/core/delta/DeltaContainer.h"

#include <cstdint>
#include <functional>

namespace Pelnar::Engine
{

/// Called after each entry: bytes of the new version so far, and in total.
using DeltaProgress = std::function<void(std::uint64_t doneBytes, std::uint64_t totalBytes)>;

/// Fills the empty folder open at \a stagingFd with the new version. \a oldBundleFd is the old version's folder. It
/// accesses nothing outside these two folders, even if they contain links. Files get mode 0644 or 0755, folders 0755.
/// On success, every written file has been compared with the manifest's hash, and \a digest is the hash that DigestTree
/// computes for the tree. After a failure the caller removes the result. REQUIRES: the container's signature has been
/// verified over this very descriptor.
[[nodiscard]] DeltaOutcome ApplyDelta(int containerFd, int oldBundleFd, int stagingFd, DeltaLimits const& limits,
                                      DeltaProgress const& progress, ContentHash& digest);

} // namespace Pelnar::Engine
