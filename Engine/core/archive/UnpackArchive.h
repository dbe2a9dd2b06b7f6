// UnpackArchive.h: unpacks a verified archive as a bundle into the staging folder.
// Thread: one at a time. There are two passes: the first judges every entry, and the second writes only if all are
// admitted. No entry's name is ever resolved through a link. The only metadata taken are the execute permission and
// the modification time.
#pragma once

#include "Engine/core/archive/ArchiveEntryRules.h"
#include "Engine/core/base/ContentHasher.h"

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

namespace Pelnar::Engine
{

struct UnpackedBundle
{
    std::string name;   ///< of its folder in the staging folder
    ContentHash digest; ///< of the tree as written
};

/// Called after each piece: bytes unpacked so far, and in total.
using UnpackProgress = std::function<void(std::uint64_t doneBytes, std::uint64_t totalBytes)>;

/// Unpacks the archive open at \a archiveFd into the empty folder open at \a stagingFd. Throws UpdateRefusal; the
/// folder then contains the partial result, and the caller removes it.
UnpackedBundle UnpackArchive(int archiveFd, int stagingFd, UnpackProgress const& progress);

/// The entries of the archive open at \a archiveFd that the first pass refuses, at most \a most; the pass itself stops
/// at the first. It serves publishers, who correct all of them. Throws UpdateRefusal if the archive cannot be read
/// further.
std::vector<EntryRefusal> FindRefusedEntries(int archiveFd, std::size_t most);

} // namespace Pelnar::Engine
