// SwapLock.h: holds all other helpers off one installed bundle.
// The lock is the kernel's, on a file beside the bundle that nobody but this user may open: who can only read the
// folder cannot take it. The file goes with the lock; one that a killed holder left is used again. Thread: the process'
// only one. Ownership: the parent's descriptor stays the caller's and outlives the object.
#pragma once

#include "Engine/core/delta/TreeAccess.h"

#include <string>

namespace Pelnar::Installer
{

constexpr long SWAP_LOCK_SECONDS = 60;

class SwapLock
{
public:
    /// Waits for the lock of the bundle \a targetName in the folder open at \a parentFd. Throws UpdateRefusal:
    /// LockTimedOut, LocksUnavailable, and FolderUnsafe for a folder in which others may put names or take them away.
    SwapLock(int parentFd, std::string const& targetName, long patienceSeconds = SWAP_LOCK_SECONDS);
    ~SwapLock();
    SwapLock(SwapLock const&) = delete;
    SwapLock& operator=(SwapLock const&) = delete;

private:
    [[nodiscard]] bool IsNamed() const;

    int m_parentFd;
    std::string m_name;
    Engine::UniqueFd m_file;
};

} // namespace Pelnar::Installer
