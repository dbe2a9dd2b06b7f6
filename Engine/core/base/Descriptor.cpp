#include "Engine/core/base/Descriptor.h"

#include <cerrno>

#include <fcntl.h>
#include <sys/mman.h>
#include <sys/stat.h>
#include <unistd.h>

namespace Pelnar::Engine
{

UniqueFd::~UniqueFd()
{
    if (m_fd >= 0)
    {
        close(m_fd);
    }
}

UniqueFd OpenFolder(int parentFd, std::string const& name)
{
    int folder = -1;
    do
    {
        folder = ::openat(parentFd, name.c_str(), O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC);
    } while (folder < 0 && errno == EINTR);
    return UniqueFd(folder);
}

std::string DescriptorPath(int fd)
{
    return "/proc/self/fd/" + std::to_string(fd);
}

bool IsAt(int fd, int parentFd, std::string const& name)
{
    struct stat open;
    struct stat named;
    return ::fstat(fd, &open) == 0 && ::fstatat(parentFd, name.c_str(), &named, AT_SYMLINK_NOFOLLOW) == 0 &&
           open.st_dev == named.st_dev && open.st_ino == named.st_ino;
}

FileMapping::FileMapping(int fd, std::size_t size)
{
    if (size == 0)
    {
        // The system does not map an empty range.
        m_isValid = true;
        return;
    }
    void* const address = mmap(nullptr, size, PROT_READ, MAP_PRIVATE, fd, 0);
    if (address != MAP_FAILED)
    {
        m_isValid = true;
        m_content = Bytes(static_cast<std::uint8_t const*>(address), size);
    }
}

FileMapping::~FileMapping()
{
    if (!m_content.empty())
    {
        munmap(const_cast<std::uint8_t*>(m_content.data()), m_content.size());
    }
}

namespace
{

/// Calls \a write with what is left until nothing is.
template <class Write>
bool WriteInParts(Bytes bytes, Write write)
{
    while (!bytes.empty())
    {
        ssize_t const written = write(bytes);
        if (written == 0)
        {
            errno = EIO; // a file that accepts no byte and reports no error would cause an endless loop
        }
        if (written == 0 || (written < 0 && errno != EINTR))
        {
            return false;
        }
        bytes.remove_prefix(written < 0 ? 0 : static_cast<std::size_t>(written));
    }
    return true;
}

} // namespace

bool WriteAll(int fd, Bytes bytes)
{
    return WriteInParts(bytes, [fd](Bytes left) { return write(fd, left.data(), left.size()); });
}

bool WriteAllAt(int fd, std::uint64_t offset, Bytes bytes)
{
    std::uint64_t const end = offset + bytes.size();
    return WriteInParts(bytes, [fd, end](Bytes left)
                        { return pwrite(fd, left.data(), left.size(), static_cast<off_t>(end - left.size())); });
}

ssize_t ReadUpTo(int fd, std::uint64_t offset, void* target, std::size_t size)
{
    std::size_t done = 0;
    while (done < size)
    {
        ssize_t const count =
            pread(fd, static_cast<char*>(target) + done, size - done, static_cast<off_t>(offset + done));
        if (count < 0 && errno == EINTR)
        {
            continue;
        }
        if (count < 0)
        {
            return -1;
        }
        if (count == 0)
        {
            break;
        }
        done += static_cast<std::size_t>(count);
    }
    return static_cast<ssize_t>(done);
}

std::optional<std::string> ReadStart(int fd, std::size_t maxBytes)
{
    std::string bytes(maxBytes, '\0');
    ssize_t const count = ReadUpTo(fd, 0, bytes.data(), bytes.size());
    if (count < 0)
    {
        return std::nullopt;
    }
    bytes.resize(static_cast<std::size_t>(count));
    return bytes;
}

} // namespace Pelnar::Engine
