// Descriptor.h: owns file descriptors, opens folders, maps files, and reads and writes them completely.
#pragma once

#include "Engine/core/base/Bytes.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <utility>

#include <sys/types.h>

namespace Pelnar::Engine
{

/// Closes a descriptor at every exit from a scope.
class UniqueFd
{
public:
    UniqueFd() = default;
    explicit UniqueFd(int fd) : m_fd(fd) {}
    UniqueFd(UniqueFd&& other) noexcept : m_fd(std::exchange(other.m_fd, -1)) {}
    UniqueFd& operator=(UniqueFd&& other) noexcept
    {
        std::swap(m_fd, other.m_fd);
        return *this;
    }
    ~UniqueFd();

    int Get() const { return m_fd; }
    explicit operator bool() const { return m_fd >= 0; }

private:
    int m_fd = -1;
};

/// Opens the folder \a name in \a parentFd for reading. A link is refused. Empty, with errno set, if it cannot be
/// opened.
UniqueFd OpenFolder(int parentFd, std::string const& name);
/// A path that leads to the open object, as long as it is open.
std::string DescriptorPath(int fd);
/// True if \a name in the folder \a parentFd is the object that is open at \a fd, and not a link to it.
[[nodiscard]] bool IsAt(int fd, int parentFd, std::string const& name);

/// A file that is mapped for reading.
class FileMapping
{
public:
    /// The first \a size bytes of the file open at \a fd.
    FileMapping(int fd, std::size_t size);
    ~FileMapping();
    FileMapping(FileMapping const&) = delete;
    FileMapping& operator=(FileMapping const&) = delete;

    [[nodiscard]] bool IsValid() const { return m_isValid; }
    Bytes Content() const { return m_content; }

private:
    bool m_isValid = false;
    Bytes m_content;
};

/// Returns false and sets errno if not every byte could be written.
[[nodiscard]] bool WriteAll(int fd, Bytes bytes);
/// The same, from \a offset on and without the descriptor's position.
[[nodiscard]] bool WriteAllAt(int fd, std::uint64_t offset, Bytes bytes);

/// Reads from \a offset on. Returns the number of bytes, which is less than \a size only at the end of the file, or -1
/// with errno.
[[nodiscard]] ssize_t ReadUpTo(int fd, std::uint64_t offset, void* target, std::size_t size);

/// The first bytes of the file, at most \a maxBytes; empty, with errno set, if they cannot be read.
[[nodiscard]] std::optional<std::string> ReadStart(int fd, std::size_t maxBytes);

} // namespace Pelnar::Engine
