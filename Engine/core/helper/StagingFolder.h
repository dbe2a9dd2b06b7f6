// StagingFolder.h: the fresh folder next to an installed bundle in which its next version is created.
// Thread: one at a time. Ownership: the object holds the folder's descriptor and the kernel's lock, which marks the
// folder as in use. A process that inherits the descriptor shares the lock. The folder itself stays when the object is
// destroyed: the helper removes it.
#pragma once

#include "Engine/core/base/Descriptor.h"

#include <string>
#include <string_view>

namespace Pelnar::Engine
{

class StagingFolder
{
public:
    /// Creates a folder of mode 0700 in \a parentFd for the bundle named \a targetName there. Throws UpdateRefusal:
    /// LocksUnavailable if the file system has no locks, PermissionsUnavailable if it keeps no modes.
    static StagingFolder Create(int parentFd, std::string_view targetName);

    int Descriptor() const { return m_folder.Get(); }
    std::string const& Name() const { return m_name; }

private:
    StagingFolder(UniqueFd folder, std::string name);

    UniqueFd m_folder;
    std::string m_name;
};

/// The start of the name of every file that an update of \a targetName creates next to it.
std::string UpdateFilePrefix(std::string_view targetName);
/// The name of the journal of a swap of \a targetName; it does not begin like a staging folder's name.
std::string SwapJournalName(std::string_view targetName);

/// The name of the note that a version of \a targetName was rolled back; it does not begin like a staging folder's
/// name.
std::string FailedVersionName(std::string_view targetName);
/// The name of the lock file of \a targetName; it does not begin like a staging folder's name.
std::string LockFileName(std::string_view targetName);
/// A new name for another user's object that is in the way. It belongs to no bundle.
std::string AsideName();

/// OpenFolder, but throws UpdateRefusal if the folder cannot be opened.
UniqueFd OpenFolderOrThrow(int parentFd, std::string const& name);

/// True for a folder of this user that no other user may enter.
[[nodiscard]] bool IsPrivateFolder(int folderFd);

/// True if the open folder has any file of an update of \a targetName, or cannot be read.
[[nodiscard]] bool HasUpdateFiles(int folderFd, std::string_view targetName);

/// The path of the open folder without any link; empty if it cannot be read.
[[nodiscard]] std::string RealPathOf(int folderFd);
/// The path of \a name in it; may also be empty.
[[nodiscard]] std::string RealPathOf(int folderFd, std::string const& name);

} // namespace Pelnar::Engine
