// SwapLock.h: keeps all other helpers away from one installed bundle. It is the kernel's lock on a file next to the
// bundle that only this user may open, so a user who can only read the folder cannot take it. The file is removed with
// the lock; a file that a killed holder left is reused.
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
    [[nodiscard]] bool IsNamed() const;

    int m_parentFd;
    std::string m_name;
    Engine::UniqueFd m_file;
};

} // namespace Pelnar::Installer
