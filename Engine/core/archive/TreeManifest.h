// TreeManifest.h: computes one hash of a folder's tree on disk, and removes trees.
// Thread: one at a time. The hash covers names, kinds, modes, link targets, sizes and contents: two trees with the
// same hash install the same.
#pragma once

#include "Engine/core/base/ContentHasher.h"

#include <cstdint>
#include <string>
#include <vector>

namespace Pelnar::Engine
{

class TreeManifest
{
public:
    void AddFolder(std::string path, std::uint32_t mode);
    void AddFile(std::string path, std::uint32_t mode, std::uint64_t size, ContentHash const& content);
    void AddLink(std::string path, std::string target);

    /// The hash of all added entries, in any order.
    [[nodiscard]] ContentHash Digest() const;

private:
    struct Entry
    {
        char kind;
        std::string path;
        std::uint32_t mode;
        std::uint64_t size;
        ContentHash content;
        std::string linkTarget;
    };

    std::vector<Entry> m_entries;
};

/// The hash of the tree below \a folderFd, without its own folder. Throws UpdateRefusal: StagedTreeChanged for objects
/// that an update never creates (other kinds of file, another owner), DiskError and related faults for unreadable
/// objects. A file counts as packed if its permission bits equal those of a packed file as far as \a bitsWithin allows
/// them.
[[nodiscard]] ContentHash DigestTree(int folderFd, std::uint32_t bitsWithin = 0777);

} // namespace Pelnar::Engine
