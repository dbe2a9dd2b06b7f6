#include "Engine/core/update/SealedMemory_p.h"

#include "Engine/core/faults/UpdateFault.h"

#include <cerrno>
#include <chrono>
#include <thread>

#include <fcntl.h>
#include <sys/mman.h>

namespace Pelnar::Engine
{
namespace
{

constexpr unsigned NOT_EXECUTABLE_MEMORY = 0x8; // MFD_NOEXEC_SEAL, which the oldest supported headers do not define
constexpr std::chrono::seconds LONGEST_WAIT_FOR_PAGES{5};
constexpr std::chrono::milliseconds PAUSE{5};
constexpr int SEALS = F_SEAL_SEAL | F_SEAL_SHRINK | F_SEAL_GROW | F_SEAL_WRITE;

[[noreturn]] void Fail()
{
    throw UpdateRefusal(FaultUnlessLimit(errno, UpdateFault::HelperUnusable), errno);
}

} // namespace

UniqueFd MakeMemoryFile(char const* name, unsigned flags)
{
    UniqueFd file(::memfd_create(name, MFD_CLOEXEC | MFD_ALLOW_SEALING | flags));
    if (!file && errno == EINVAL)
    {
        file = UniqueFd(::memfd_create(name, MFD_CLOEXEC | MFD_ALLOW_SEALING)); // a kernel without the flag
    }
    if (!file && errno == EACCES && (flags & EXECUTABLE_MEMORY) == 0)
    {
        file = UniqueFd(::memfd_create(name, MFD_CLOEXEC | MFD_ALLOW_SEALING | NOT_EXECUTABLE_MEMORY)); // some kernels
                                                                                                        // require it
    }
    if (!file && (errno == ENOSYS || errno == EPERM))
    {
        throw UpdateRefusal(UpdateFault::SealedMemoryUnavailable, errno);
    }
    if (!file)
    {
        Fail();
    }
    return file;
}

void AppendToMemory(UniqueFd const& file, Bytes bytes)
{
    if (!WriteAll(file.Get(), bytes))
    {
        Fail();
    }
}

void SealMemory(UniqueFd const& file)
{
    auto const end = std::chrono::steady_clock::now() + LONGEST_WAIT_FOR_PAGES;
    while (::fcntl(file.Get(), F_ADD_SEALS, SEALS) != 0)
    {
        // A busy system holds pages of the file for a moment: its own writing, or the move of a page.
        if (errno != EBUSY || std::chrono::steady_clock::now() > end)
        {
            Fail();
        }
        std::this_thread::sleep_for(PAUSE);
    }
}

} // namespace Pelnar::Engine
