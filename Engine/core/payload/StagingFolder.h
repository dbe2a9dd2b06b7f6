// StagingFolder.h: the fresh folder beside an installed bundle in which its next version is made.
// Thread: one at a time. Ownership: the object holds the folder's descriptor, and with it the kernel's lock that tells
// everybody else that the folder is in use; a process that inherits the descriptor shares the lock. The folder itself
// stays when the object goes: it is the helper that removes it.
#pragma once

#include "Engine/core/delta/TreeAccess.h"

#include <string>
#include <string_view>

namespace Pelnar::Engine
{

class StagingFolder
{
public:
    /// Makes a folder of mode 0700 in \a parentFd for the bundle named \a targetName there. Throws UpdateRefusal:
    /// LocksUnavailable and PermissionsUnavailable where the file system has no locks, or keeps no modes.
    static StagingFolder Create(int parentFd, std::string_view targetName);

    int Descriptor() const { return m_folder.Get(); }
    std::string const& Name() const { return m_name; }

private:
    StagingFolder(UniqueFd folder, std::string name);

    UniqueFd m_folder;
    std::string m_name;
};

/// What the names of every file that updating \a targetName makes beside it begin with.
std::string UpdateFilePrefix(std::string_view targetName);
/// The name of the journal of a swap of \a targetName; it does not begin like a staging folder's.
std::string SwapJournalName(std::string_view targetName);

/// The name of the note that a version of \a targetName was taken back; it does not begin like a staging folder's.
std::string FailedVersionName(std::string_view targetName);
/// The name of the file whose lock holds everybody else off \a targetName; it does not begin like a staging folder's.
std::string LockFileName(std::string_view targetName);
/// A new name for something of others' that stands in the way. It belongs to no bundle.
std::string AsideName();

/// True for a folder of this user's that nobody else may enter.
[[nodiscard]] bool IsPrivateFolder(int folderFd);

/// True when anything of an update of \a targetName stands in the open folder, or that cannot be told.
[[nodiscard]] bool HasUpdateFiles(int folderFd, std::string_view targetName);

/// Where the open folder stands, without any link in the path; empty when that cannot be told.
[[nodiscard]] std::string RealPathOf(int folderFd);
/// Of \a name in it; empty as well.
[[nodiscard]] std::string RealPathOf(int folderFd, std::string const& name);

} // namespace Pelnar::Engine
