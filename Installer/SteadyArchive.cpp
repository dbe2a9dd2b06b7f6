#include "Installer/SteadyArchive.h"

#include "Engine/core/faults/UpdateFault.h"

#include <algorithm>
#include <cerrno>
#include <vector>

#include <fcntl.h>
#include <sys/stat.h>
#include <time.h>
#include <unistd.h>

namespace Pelnar::Installer
{
namespace
{

using Engine::UpdateFault;
using Engine::UpdateRefusal;

constexpr std::size_t PIECE_BYTES = std::size_t{1} << 20;
constexpr char COPY_NAME[] = ".archive";

constexpr int LEASE_ATTEMPTS = 100;
constexpr timespec BETWEEN_ATTEMPTS{0, 50 * 1000 * 1000};

/// A child that the host has just forked still has the host's descriptors, also the one that wrote the archive. Its
/// next program does not inherit them.
bool TakeLease(int archiveFd)
{
    bool isHeld = ::fcntl(archiveFd, F_SETLEASE, F_RDLCK) == 0;
    for (int attempt = 1; !isHeld && errno == EAGAIN && attempt < LEASE_ATTEMPTS; ++attempt)
    {
        ::nanosleep(&BETWEEN_ATTEMPTS, nullptr);
        isHeld = ::fcntl(archiveFd, F_SETLEASE, F_RDLCK) == 0;
    }
    return isHeld;
}

/// A new file that has already lost its name.
Engine::UniqueFd MakeNameless(int folderFd)
{
    Engine::UniqueFd file(::openat(folderFd, COPY_NAME, O_RDWR | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, 0600));
    if (!file || ::unlinkat(folderFd, COPY_NAME, 0) != 0)
    {
        Engine::ThrowErrno(errno);
    }
    return file;
}

void CheckLength(int archiveFd, std::uint64_t archiveBytes)
{
    struct stat status;
    if (::fstat(archiveFd, &status) != 0 || !S_ISREG(status.st_mode))
    {
        throw UpdateRefusal(UpdateFault::ArchiveUnreadable, errno);
    }
    if (static_cast<std::uint64_t>(status.st_size) != archiveBytes)
    {
        throw UpdateRefusal(UpdateFault::ArchiveLengthDiffers);
    }
}

void Copy(int archiveFd, std::uint64_t archiveBytes, int copyFd)
{
    std::vector<std::uint8_t> piece(PIECE_BYTES);
    for (std::uint64_t done = 0; done < archiveBytes;)
    {
        auto const wanted = static_cast<std::size_t>(std::min<std::uint64_t>(piece.size(), archiveBytes - done));
        ssize_t const count = Engine::ReadUpTo(archiveFd, done, piece.data(), wanted);
        if (count < 0)
        {
            throw UpdateRefusal(UpdateFault::ArchiveUnreadable, errno);
        }
        if (static_cast<std::size_t>(count) != wanted)
        {
            throw UpdateRefusal(UpdateFault::ArchiveLengthDiffers);
        }
        if (!Engine::WriteAll(copyFd, Engine::Bytes(piece.data(), wanted)))
        {
            Engine::ThrowErrno(errno);
        }
        done += wanted;
    }
}

} // namespace

SteadyArchive::Lease::Lease(int descriptor) : archiveFd(descriptor), isHeld(TakeLease(descriptor))
{
    if (!isHeld && errno == EAGAIN)
    {
        throw UpdateRefusal(UpdateFault::ArchiveInUse, errno);
    }
}

SteadyArchive::Lease::~Lease()
{
    // The lease would outlive the process, because the host shares the open file, and would delay the next writer.
    ::fcntl(archiveFd, F_SETLEASE, F_UNLCK);
}

SteadyArchive::SteadyArchive(int archiveFd, std::uint64_t archiveBytes, int stagingFd) : m_lease(archiveFd)
{
    CheckLength(archiveFd, archiveBytes);
    if (!m_lease.isHeld)
    {
        m_copy = MakeNameless(stagingFd);
        Copy(archiveFd, archiveBytes, m_copy.Get());
    }
}

} // namespace Pelnar::Installer
