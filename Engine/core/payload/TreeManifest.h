// TreeManifest.h: a folder's tree as one hash, the way to compute it from a folder on disk, and the way to remove one.
// Thread: one at a time. Ownership: values only; descriptors stay the caller's.
// The hash covers names, kinds, modes, link targets, sizes and contents: two trees with one hash install the same.
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

    /// The hash of what was added, in any order.
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

/// The hash of the tree below \a folderFd, its own folder left out. Throws UpdateRefusal: StagedTreeChanged for what an
/// update never makes (other kinds of file, another owner), DiskError and its kin for what cannot be read. Files that
/// have the permission bits of packed ones as far as \a bitsWithin allows them count as packed.
[[nodiscard]] ContentHash DigestTree(int folderFd, std::uint32_t bitsWithin = 0777);

/// Removes the entry \a name of the folder \a parentFd with all that is in it, and follows no link; what lies on
/// another file system stays. True when nothing of that name is left.
[[nodiscard]] bool RemoveTree(int parentFd, std::string const& name);

/// Writes all files and folders below \a folderFd, and the folder itself, to the disk: by one call for the file system,
/// which takes half the time of a call for each, or one by one where the system lacks it. False, with errno, when one of
/// them may not be there. That is final, for the kernel forgets what it could not write.
[[nodiscard]] bool SyncTree(int folderFd);

/// Calls \a visit for each entry below \a folderFd, folders before what they hold: the path from there, the folder that
/// holds the entry, the entry's name and status. Constant number of open files, any depth. False, with errno, when a
/// folder cannot be read.
using TreeVisit =
    std::function<void(std::string const& path, int parentFd, std::string const& name, struct stat const& status)>;
[[nodiscard]] bool WalkTree(int folderFd, TreeVisit const& visit);

} // namespace Pelnar::Engine
