// SteadyArchive.h: keeps an update's archive unchanged while it is verified and unpacked.
// Thread: one. Ownership: the caller owns the archive's descriptor; this is a scope object for the time of reading. The
// kernel gives a lease on the file and ends this process if another one opens the file to change it. Without a lease
// (on some network file systems, or for another user's file) a private copy is read instead.
#pragma once

#include "Engine/core/base/Descriptor.h"

#include <cstdint>

namespace Pelnar::Installer
{

class SteadyArchive
{
public:
    /// Needs the right to create and remove a file in the folder open at \a stagingFd. Throws UpdateRefusal:
    /// ArchiveInUse if a process has the file open for writing for five seconds, ArchiveLengthDiffers unless it is a regular file of \a
    /// archiveBytes, ArchiveUnreadable, or the error that prevents a copy.
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
    Engine::UniqueFd m_copy; ///< set only without a lease
};

} // namespace Pelnar::Installer
