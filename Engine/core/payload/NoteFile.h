// NoteFile.h: the small files of an update that outlive the process which wrote them: beside the bundle and beside the
// downloads. Thread: any; one at a time for a file, which beside a bundle the swap lock sees to. Ownership: descriptors
// stay the caller's.
#pragma once

#include <string>
#include <string_view>

namespace Pelnar::Engine
{

/// What the file \a name says; empty when there is none, or none of this user's. Throws UpdateRefusal when it cannot be
/// read: no answer is not the answer that there is none.
std::string ReadNote(int folderFd, std::string const& name);
/// Puts the file in the place of one that may be there, whole, and answers when it is on the disk. Throws
/// UpdateRefusal.
void WriteNote(int folderFd, std::string const& name, std::string_view bytes);
/// Throws UpdateRefusal.
void RemoveNote(int folderFd, std::string const& name);

} // namespace Pelnar::Engine
