// SwapLock.h: keeps all other helpers away from one installed bundle. It is the kernel's lock on a file next to the
// bundle that only this user may open, so a user who can only read the folder cannot take it. The file is removed with
// the lock; a file that a killed holder left is reused. If there is no space for the file, the lock on the journal
// counts, if there is one. So every holder has that lock too.
// Ownership: the caller owns the parent's descriptor, which outlives the object.
#pragma once

#include "Engine/core/base/Descriptor.h"

#include <string>

namespace Pelnar::Installer
{

constexpr long SWAP_LOCK_SECONDS = 60;

class SwapLock
{
public:
    /// Waits for the lock of the bundle \a targetName in the folder open at \a parentFd. Throws UpdateRefusal:
    /// LockTimedOut, LocksUnavailable, and FolderUnsafe for a folder in which other users may create or remove names.
    SwapLock(int parentFd, std::string const& targetName, long patienceSeconds = SWAP_LOCK_SECONDS);
    ~SwapLock();
    SwapLock(SwapLock const&) = delete;
    SwapLock& operator=(SwapLock const&) = delete;

private:
    SwapLock(std::string name, int parentFd);

    int m_parentFd;
    std::string m_name;
    Engine::UniqueFd m_file;    ///< empty if there is no space for one
    Engine::UniqueFd m_journal; ///< no file if the journal is missing
};

} // namespace Pelnar::Installer
