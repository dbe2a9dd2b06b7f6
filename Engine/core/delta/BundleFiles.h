// BundleFiles.h: the files of the two versions of a bundle, as a delta's entries name them.
// Thread: one at a time. Ownership: the folders' descriptors stay the caller's.
#pragma once

#include "Engine/core/base/ContentHasher.h"
#include "Engine/core/base/TreeAccess.h"
#include "Engine/core/delta/DeltaContainer.h"

#include <array>
#include <cstdint>
#include <string>

namespace Pelnar::Engine
{

class BundleFiles
{
public:
    BundleFiles(int oldBundleFd, int stagingFd) : m_old(oldBundleFd), m_staging(stagingFd) {}

    /// The old version's file \a path, if it is a plain file of \a size bytes.
    [[nodiscard]] DeltaOutcome OpenOld(std::string const& path, std::uint64_t size, UniqueFd& file) const;
    /// The size of the old version's file \a path, if it is a plain file.
    [[nodiscard]] DeltaOutcome FindSize(std::string const& path, std::uint64_t& size) const;
    /// Makes a folder, a link or a kept file, and adds what the file holds to \a hasher. REQUIRES: none of the other
    /// kinds.
    [[nodiscard]] DeltaOutcome Make(DeltaEntry const& entry, ContentHasher& hasher);
    [[nodiscard]] DeltaOutcome MakeFile(DeltaEntry const& entry, UniqueFd& file);
    /// Adds the bytes of the file open at \a fd to \a hasher. Refuses a file of more than \a size bytes.
    [[nodiscard]] DeltaOutcome Hash(int fd, std::uint64_t size, ContentHasher& hasher);

private:
    /// Clones or copies the old file.
    DeltaOutcome Keep(DeltaEntry const& entry, ContentHasher& hasher);
    DeltaOutcome Open(std::string const& path, UniqueFd& file, std::uint64_t& size) const;
    /// Without a target if \a target is negative.
    DeltaOutcome Copy(int source, int target, std::uint64_t size, ContentHasher& hasher);

    TreeAccess m_old;
    TreeAccess m_staging;
    std::array<std::uint8_t, 64 * 1024> m_piece;
};

/// What errno says of a file that was to be written.
[[nodiscard]] DeltaOutcome WriteFailure();
/// What errno says of bytes that do not come: 0 when there are fewer than there should be.
[[nodiscard]] DeltaOutcome SourceFailure();

} // namespace Pelnar::Engine
