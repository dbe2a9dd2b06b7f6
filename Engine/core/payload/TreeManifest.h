// TreeManifest.h: computes one hash of a folder's tree on disk, and removes trees.
// Thread: one at a time. Ownership: callers own their descriptors. The hash covers names, kinds, modes, link targets,
// sizes and contents: two trees with the same hash install the same.
#pragma once

#include "Engine/core/delta/ContentHasher.h"

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include <sys/stat.h>

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

/// Removes the entry \a name of the folder \a parentFd with all its content. It follows no link, and leaves objects on
/// another file system. Returns true if nothing with that name is left.
[[nodiscard]] bool RemoveTree(int parentFd, std::string const& name);

/// Writes all files and folders below \a folderFd, and the folder itself, to the disk: by one call for the file system,
/// which takes half the time of a call for each, or one by one if the system lacks that call. Returns false and sets
/// errno if one of them may be missing on the disk. This is final, because the kernel forgets what it could not write.
[[nodiscard]] bool SyncTree(int folderFd);

/// Calls \a visit for each entry below \a folderFd, folders before their content: the path from there, the folder that
/// holds the entry, the entry's name and status. It opens a constant number of files at any depth. Returns false and
/// sets errno if a folder cannot be read.
using TreeVisit =
    std::function<void(std::string const& path, int parentFd, std::string const& name, struct stat const& status)>;
[[nodiscard]] bool WalkTree(int folderFd, TreeVisit const& visit);

} // namespace Pelnar::Engine
