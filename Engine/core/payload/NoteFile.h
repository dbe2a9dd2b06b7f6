// NoteFile.h: the small files of an update that outlive the process which wrote them: beside the bundle and beside the
// downloads. Thread: any; one at a time for a file, which beside a bundle the swap lock sees to. Ownership: descriptors
// stay the caller's.
#pragma once

#include "Engine/core/delta/TreeAccess.h"

#include <string>
#include <string_view>

namespace Pelnar::Engine
{

/// Makes what is missing of the folders above \a path, for this user alone. What fails shows when they are used.
void MakeFoldersAbove(std::string const& path);

/// Opens the folder \a path, or makes it. The descriptor is empty, and errno set, when others can write there or the
/// folder belongs to another user (EPERM), and when the path is not a folder (ENOTDIR, ELOOP).
UniqueFd OpenPrivateFolder(std::string const& path);

/// True for a regular file of this user's that nobody else may open.
[[nodiscard]] bool IsPrivateFile(int fd);

/// Takes away what stands under the name: a file or a link goes, a folder gets another name. Throws UpdateRefusal.
void FreeName(int folderFd, std::string const& name);

/// Gives a file the name of what may stand there, a folder too. False, with errno, when it cannot; throws UpdateRefusal
/// when a folder cannot get another name.
[[nodiscard]] bool RenameOver(int folderFd, std::string const& from, std::string const& to);

/// What the file \a name says; empty when there is none, or when anybody else may have written it: it counts only when
/// it is private and has no other name. REQUIRES: nobody else may write in the folder. Throws UpdateRefusal when it
/// cannot be read, since it may exist then. A longer file is cut at \a maxBytes.
std::string ReadNote(int folderFd, std::string const& name, std::size_t maxBytes = 64 * 1024);
/// Puts the file in the place of what may be there, whole, and answers when it is on the disk. Throws UpdateRefusal:
/// PermissionsUnavailable where the file system keeps no modes.
void WriteNote(int folderFd, std::string const& name, std::string_view bytes);
/// Throws UpdateRefusal.
void RemoveNote(int folderFd, std::string const& name);

} // namespace Pelnar::Engine
