// UnpackArchive.h: from a verified archive to a bundle in the staging folder.
// Thread: one at a time. Ownership: descriptors stay the caller's.
// Two passes: the first judges every entry, and only when all of them may stand the second writes. No name of an entry
// is ever resolved through a link, and no metadata but the right to execute and the time of last change is taken.
#pragma once

#include "Engine/core/delta/DeltaManifest.h"
#include "Engine/core/payload/ArchiveEntryPolicy.h"

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

namespace Pelnar::Engine
{

struct UnpackedBundle
{
    std::string name;   ///< of its folder in the staging folder
    ContentHash digest; ///< of the tree as it was written
};

/// Told after each piece: bytes written so far, and in all.
using UnpackProgress = std::function<void(std::uint64_t doneBytes, std::uint64_t totalBytes)>;

/// Unpacks the archive open at \a archiveFd into the empty folder open at \a stagingFd. Throws UpdateRefusal; the
/// folder then holds what was made and is for the caller to remove.
UnpackedBundle UnpackArchive(int archiveFd, int stagingFd, UnpackProgress const& progress);

/// What the first pass refuses of the archive open at \a archiveFd, at most \a most entries of it, where the pass
/// itself ends at the first: for a publisher, who mends them all. Throws UpdateRefusal where the archive cannot be read
/// on.
std::vector<EntryRefusal> FindRefusedEntries(int archiveFd, std::size_t most);

} // namespace Pelnar::Engine
