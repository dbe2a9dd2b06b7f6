// NoteFile.h: the small files of an update that outlive the process that wrote them, next to the bundle and next to the
// downloads.
// Thread: any, but one at a time for each file; next to a bundle the swap lock ensures this.
#pragma once

#include "Engine/core/base/Descriptor.h"

#include <string>
#include <string_view>

namespace Pelnar::Engine
{

/// Creates a folder for this user alone, no matter what the umask is. Returns false and sets errno if it cannot.
[[nodiscard]] bool MakePrivateFolder(int parentFd, std::string const& name);

/// Lets this user read and write a file that was just created, no matter what the umask is.
void LetOwnerWrite(int fd);

/// Creates the missing folders above \a path, for this user alone. Failures appear when the folders are used. None is
/// made in a folder of another user, except the administrator, and no link of another user is followed.
void MakeFoldersAbove(std::string const& path);

/// Opens the folder \a path. The descriptor is empty, and errno is set, if others can write there or the folder belongs
/// to another user (EPERM), and if the path is not a folder (ENOTDIR, ELOOP).
UniqueFd OpenOwnFolder(std::string const& path);
/// The same. A missing folder is created, and those above it, as MakeFoldersAbove() does.
UniqueFd OpenPrivateFolder(std::string const& path);

/// True for a regular file of this user that no other user may open.
[[nodiscard]] bool IsPrivateFile(int fd);

/// Removes the object with this name: a file or a link is deleted, a folder is renamed. Throws UpdateRefusal.
void FreeName(int folderFd, std::string const& name);

/// Renames a file to a name that may be in use, even by a folder. Returns false and sets errno if it cannot. Throws
/// UpdateRefusal if a folder cannot be renamed.
[[nodiscard]] bool RenameOver(int folderFd, std::string const& from, std::string const& to);

/// The content of the file \a name. Empty if there is no such file, or if another user may have written it: the file
/// counts only if it is private and has no other name. REQUIRES: no other user may write in the folder. Throws
/// UpdateRefusal if the file cannot be read, because it may exist then. A longer file is cut at \a maxBytes.
std::string ReadNote(int folderFd, std::string const& name, std::size_t maxBytes = 64 * 1024);
enum class NoteSync
{
    Waits, ///< until the file is on the disk
    None,  ///< the file survives the process, but maybe not a power cut
};

/// Replaces the file as a whole. Throws UpdateRefusal: PermissionsUnavailable if the file system keeps no modes.
void WriteNote(int folderFd, std::string const& name, std::string_view bytes, NoteSync sync = NoteSync::Waits);
/// Throws UpdateRefusal.
void RemoveNote(int folderFd, std::string const& name);

} // namespace Pelnar::Engine
