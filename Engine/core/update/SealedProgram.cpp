#include "Engine/core/update/SealedProgram.h"

#include "Engine/core/base/ContentHasher.h"
#include "Engine/core/base/Descriptor.h"
#include "Engine/core/faults/UpdateFault.h"
#include "Engine/core/helper/FolderSafety.h"
#include "Engine/core/update/SealedMemory_p.h"

#include <cerrno>
#include <vector>

#include <fcntl.h>
#include <sys/stat.h>

namespace Pelnar::Engine
{
namespace
{

constexpr std::size_t COPY_BYTES = 64 * 1024;

/// Calls \a sink with the file's bytes from its beginning, in order.
template <typename Sink>
void ReadWhole(int fd, Sink const& sink)
{
    std::vector<std::uint8_t> buffer(COPY_BYTES);
    for (std::uint64_t place = 0;;)
    {
        ssize_t const count = ReadUpTo(fd, place, buffer.data(), buffer.size());
        if (count < 0)
        {
            throw UpdateRefusal(FaultUnlessLimit(errno, UpdateFault::HelperUnusable), errno);
        }
        if (count == 0)
        {
            return;
        }
        sink(Bytes(buffer.data(), static_cast<std::size_t>(count)));
        place += static_cast<std::uint64_t>(count);
    }
}

ContentHash HashOfFile(int fd)
{
    ContentHasher hasher;
    ReadWhole(fd, [&hasher](Bytes bytes) { hasher.Add(bytes); });
    return hasher.Finish();
}

UniqueFd SealedCopyOf(std::string const& path)
{
    UniqueFd source(::open(path.c_str(), O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC));
    struct stat status;
    if (!source || ::fstat(source.Get(), &status) != 0)
    {
        throw UpdateRefusal(FaultUnlessLimit(errno, UpdateFault::HelperUnusable), errno);
    }
    if (!S_ISREG(status.st_mode) || !IsSafeByItself(source.Get()))
    {
        throw UpdateRefusal(UpdateFault::HelperUnusable);
    }
    UniqueFd copy;
    try
    {
        copy = MakeMemoryFile(HELPER_NAME, EXECUTABLE_MEMORY);
    }
    catch (UpdateRefusal const& refusal)
    {
        if (refusal.ErrorNumber() != EACCES)
        {
            throw;
        }
        // Some systems run no program from memory. The open file is safe enough: only its owner may change it.
        return source;
    }
    ReadWhole(source.Get(), [&copy](Bytes bytes) { AppendToMemory(copy, bytes); });
    SealMemory(copy);
    // If the file is written while it is read, the copy may have content that the file never had.
    if (HashOfFile(copy.Get()) != HashOfFile(source.Get()))
    {
        throw UpdateRefusal(UpdateFault::HelperUnusable);
    }
    return copy;
}

} // namespace

int SealedProgram::Descriptor()
{
    std::lock_guard const lock(m_mutex);
    if (!m_copy)
    {
        m_copy = SealedCopyOf(m_path);
    }
    return m_copy.Get();
}

} // namespace Pelnar::Engine
