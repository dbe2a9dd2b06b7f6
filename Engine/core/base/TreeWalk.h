// TreeWalk.h: the entries of a folder: listed, visited, written to the disk, removed.
// Descriptors stay the caller's.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include <sys/stat.h>

namespace Pelnar::Engine
{

/// The names in an open folder, in any order; empty, with errno set, if they cannot be read.
[[nodiscard]] std::optional<std::vector<std::string>> ListFolder(int folderFd);

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
