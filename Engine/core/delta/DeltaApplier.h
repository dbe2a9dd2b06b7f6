// DeltaApplier.h: makes the new version of a bundle from the old one and a delta.
// Thread: any, one call at a time for one staging folder; runs in the confined child process, so that a source file
// that shrinks under its mapping ends that process and not the host. Ownership: descriptors stay the caller's.
#pragma once

#include "Engine/core/delta/DeltaContainer.h"

#include <cstdint>
#include <functional>

namespace Pelnar::Engine
{

/// Told after each entry: bytes of the new version made so far, and in all.
using DeltaProgress = std::function<void(std::uint64_t doneBytes, std::uint64_t totalBytes)>;

/// Fills the empty folder open at \a stagingFd with the new version. \a oldBundleFd is the old version's folder;
/// nothing outside these two folders is reached, no matter which links they hold. Files get mode 0644 or 0755, folders
/// 0755. On success, every file's bytes have been compared with the manifest's hash while they were written, and
/// \a digest is the hash that DigestTree has for the tree. After a failure the caller removes what was made.
/// REQUIRES: the container's signature has been verified over this very descriptor.
[[nodiscard]] DeltaOutcome ApplyDelta(int containerFd, int oldBundleFd, int stagingFd, DeltaLimits const& limits,
                                      DeltaProgress const& progress, ContentHash& digest);

} // namespace Pelnar::Engine
