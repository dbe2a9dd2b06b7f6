// TreeAccess.h: files, folders and links below one open folder, never outside it, no matter which links stand there.
// Thread: one at a time. Ownership: the folder's descriptor stays the caller's.
#pragma once

#include "Engine/core/delta/BinaryPatch.h"

#include <cstddef>
#include <string>
#include <utility>

#include <sys/types.h>

namespace Pelnar::Engine
{

/// Closes a descriptor on every way out of a scope.
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

/// A file's bytes, mapped to be read.
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

/// False, with errno, when not every byte could be written.
[[nodiscard]] bool WriteAll(int fd, Bytes bytes);

/// Bytes of the file from \a offset on, fewer than \a size only where it ends; their number, or -1 with errno.
[[nodiscard]] ssize_t ReadUpTo(int fd, std::uint64_t offset, void* target, std::size_t size);

/// Every failure leaves errno set. Paths are relative, with "/" between components.
class TreeAccess
{
public:
    explicit TreeAccess(int folderFd) : m_folderFd(folderFd) {}

    /// An existing file, to be read; a link as any component is refused.
    UniqueFd OpenFile(std::string const& path) const;
    /// A new file, to be written and read, with mode 0755 when \a isExecutable, else 0644, no matter what the umask is.
    UniqueFd MakeFile(std::string const& path, bool isExecutable);
    [[nodiscard]] bool MakeFolder(std::string const& path);
    [[nodiscard]] bool MakeLink(std::string const& path, std::string const& target);

private:
    UniqueFd OpenBeneath(std::string const& path, int flags, unsigned mode) const;
    UniqueFd OpenParent(std::string const& path, std::string& name) const;

    int m_folderFd;
};

} // namespace Pelnar::Engine
