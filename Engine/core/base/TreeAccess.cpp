#include "Engine/core/base/TreeAccess.h"

#include <fcntl.h>
#include <linux/openat2.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <cerrno>

namespace Pelnar::Engine
{
namespace
{

constexpr mode_t PLAIN_MODE = 0644;
constexpr mode_t EXECUTABLE_MODE = 0755;
constexpr int MAX_ATTEMPTS = 16; ///< if other processes move folders meanwhile

/// True for the name of something in a folder; false also sets errno.
bool IsName(std::string const& name)
{
    bool const isName = !name.empty() && name != "." && name != "..";
    errno = isName ? errno : EXDEV; // as the kernel's error for a path that leaves the folder
    return isName;
}

/// Opens the path name by name, for a system without openat2.
UniqueFd OpenNameByName(int folderFd, std::string const& path, int flags, unsigned mode)
{
    UniqueFd folder(openat(folderFd, ".", O_PATH | O_DIRECTORY | O_CLOEXEC));
    for (std::size_t begin = 0; folder;)
    {
        std::size_t const end = path.find('/', begin);
        std::string const name = path.substr(begin, end == std::string::npos ? end : end - begin);
        bool const isLast = end == std::string::npos;
        if (!IsName(name) && path != ".")
        {
            return {};
        }
        int const stepFlags = isLast ? flags : O_PATH | O_DIRECTORY;
        UniqueFd next(openat(folder.Get(), name.c_str(), stepFlags | O_NOFOLLOW | O_CLOEXEC, mode));
        if (isLast)
        {
            return next;
        }
        folder = std::move(next);
        begin = end + 1;
    }
    return {};
}

/// Opens what has \a path below a folder, not through links.
UniqueFd OpenBeneath(int folderFd, std::string const& path, int flags, unsigned mode = 0)
{
    open_how how{};
    how.flags = static_cast<std::uint64_t>(flags) | O_CLOEXEC;
    how.mode = mode;
    how.resolve = RESOLVE_BENEATH | RESOLVE_NO_SYMLINKS | RESOLVE_NO_MAGICLINKS;
    for (int attempt = 0; attempt < MAX_ATTEMPTS; ++attempt)
    {
        UniqueFd file(static_cast<int>(syscall(SYS_openat2, folderFd, path.c_str(), &how, sizeof how)));
        if (file || (errno != EINTR && errno != EAGAIN && errno != ENOSYS && errno != EPERM))
        {
            return file;
        }
        if (errno == ENOSYS || errno == EPERM) // an old kernel, or a system call filter that is older than the call
        {
            break;
        }
    }
    return OpenNameByName(folderFd, path, flags, mode);
}

} // namespace

/// Opens the folder with \a path as m_parent, and sets \a name to the path's last component.
bool TreeAccess::EnterParent(std::string const& path, std::string& name)
{
    std::size_t const slash = path.rfind('/');
    name = slash == std::string::npos ? path : path.substr(slash + 1);
    std::string parentPath = slash == std::string::npos ? std::string(".") : path.substr(0, slash);
    if (!m_parent || m_parentPath != parentPath)
    {
        m_parent = OpenBeneath(m_folderFd, parentPath, O_PATH | O_DIRECTORY);
        m_parentPath = std::move(parentPath);
    }
    return m_parent && IsName(name);
}

UniqueFd TreeAccess::Open(std::string const& path, int flags, unsigned mode)
{
    std::string name;
    return EnterParent(path, name) ? OpenBeneath(m_parent.Get(), name, flags, mode) : UniqueFd();
}

UniqueFd TreeAccess::OpenFile(std::string const& path)
{
    // A FIFO in the file's place must not block the process.
    return Open(path, O_RDONLY | O_NONBLOCK, 0);
}

bool TreeAccess::FindStatus(std::string const& path, struct stat& status)
{
    std::string name;
    return EnterParent(path, name) && fstatat(m_parent.Get(), name.c_str(), &status, AT_SYMLINK_NOFOLLOW) == 0;
}

UniqueFd TreeAccess::MakeFile(std::string const& path, bool isExecutable)
{
    mode_t const mode = isExecutable ? EXECUTABLE_MODE : PLAIN_MODE;
    UniqueFd file = Open(path, O_RDWR | O_CREAT | O_EXCL, mode);
    if (file && fchmod(file.Get(), mode) != 0)
    {
        return {};
    }
    return file;
}

bool TreeAccess::MakeFolder(std::string const& path)
{
    std::string name;
    return EnterParent(path, name) && mkdirat(m_parent.Get(), name.c_str(), EXECUTABLE_MODE) == 0 &&
           fchmodat(m_parent.Get(), name.c_str(), EXECUTABLE_MODE, 0) == 0;
}

bool TreeAccess::MakeLink(std::string const& path, std::string const& target)
{
    std::string name;
    return EnterParent(path, name) && symlinkat(target.c_str(), m_parent.Get(), name.c_str()) == 0;
}

} // namespace Pelnar::Engine
