// BundleFiles.h: opens, makes and copies the files that a delta's entries name.
// Thread: one at a time. Ownership: the folders' descriptors stay the caller's.
#pragma once

#include "Engine/core/base/ContentHasher.h"
#include "Engine/core/base/TreeAccess.h"
#include "Engine/core/delta/DeltaContainer.h"

#include <array>
#include <cstdint>
#include <functional>
#include <string>
#include <vector>

namespace Pelnar::Engine
{

class BundleFiles
{
public:
    BundleFiles(int oldBundleFd, int stagingFd) : m_old(oldBundleFd), m_staging(stagingFd) {}

    /// Opens the old version's file \a path if it is a plain file of \a size bytes.
    [[nodiscard]] DeltaOutcome OpenOld(std::string const& path, std::uint64_t size, UniqueFd& file);
    /// The size of the old version's file \a path, if it is a plain file.
    [[nodiscard]] DeltaOutcome FindSize(std::string const& path, std::uint64_t& size);
    /// Makes a folder, a link or a kept file, and adds the bytes of the file to \a hasher. REQUIRES: an entry of one of
    /// these kinds.
    [[nodiscard]] DeltaOutcome Make(DeltaEntry const& entry, ContentHasher& hasher);
    [[nodiscard]] DeltaOutcome MakeFile(DeltaEntry const& entry, UniqueFd& file);
    /// Adds the bytes of the file open at \a fd to \a hasher. Refuses a file of more than \a size bytes.
    [[nodiscard]] DeltaOutcome Hash(int fd, std::uint64_t size, ContentHasher& hasher);

private:
    /// Clones or copies the old file.
    DeltaOutcome Keep(DeltaEntry const& entry, ContentHasher& hasher);
    /// Only hashes if \a target is negative.
    DeltaOutcome Copy(int source, int target, std::uint64_t size, ContentHasher& hasher);
    /// Reads into \a pieces in turn, and passes each piece to \a add.
    DeltaOutcome CopyPieces(int source, int target, std::uint64_t size, std::size_t pieces,
                            std::function<void(Bytes)> const& add);

    TreeAccess m_old;
    TreeAccess m_staging;
    std::vector<std::array<std::uint8_t, 64 * 1024>> m_pieces;
};

/// The outcome for a file that cannot be written, by errno.
[[nodiscard]] DeltaOutcome WriteFailure();
/// The outcome for bytes that cannot be read, by errno. It is 0 if there are fewer bytes than there should be.
[[nodiscard]] DeltaOutcome SourceFailure();

} // namespace Pelnar::Engine
