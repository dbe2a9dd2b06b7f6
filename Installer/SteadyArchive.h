// SteadyArchive.h: an update's archive that stays as it is while it is verified and unpacked.
// Thread: one. Ownership: the archive's descriptor stays the caller's; a scope object, for the time of the reading.
// The kernel gives a lease on the file and ends this process when somebody opens the file to change it. Where there are
// no leases (some network file systems, somebody else's file) a private copy is read instead.
#pragma once

#include "Engine/core/delta/TreeAccess.h"

#include <cstdint>

namespace Pelnar::Installer
{

class SteadyArchive
{
public:
    /// Needs the right to make and to remove a file in the folder open at \a stagingFd. Throws UpdateRefusal:
    /// ArchiveInUse when somebody has the file open for writing, ArchiveLengthDiffers unless it is a plain file of
    /// \a archiveBytes, ArchiveUnreadable, or what keeps a copy from being made.
    SteadyArchive(int archiveFd, std::uint64_t archiveBytes, int stagingFd);

    /// The file to read.
    int Descriptor() const { return m_copy ? m_copy.Get() : m_lease.archiveFd; }

private:
    struct Lease
    {
        explicit Lease(int descriptor);
        ~Lease();
        Lease(Lease const&) = delete;
        Lease& operator=(Lease const&) = delete;

        int archiveFd;
        bool isHeld;
    };

    Lease m_lease;
    Engine::UniqueFd m_copy; ///< only where no lease is held
};

} // namespace Pelnar::Installer
