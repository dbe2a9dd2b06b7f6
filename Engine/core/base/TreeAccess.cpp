#include "Engine/core/base/TreeAccess.h"

#include <fcntl.h>
#include <linux/openat2.h>
#include <sys/stat.h>
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

/// Opens the path name by name, for a system without openat2.
UniqueFd OpenNameByName(int folderFd, std::string const& path, int flags, unsigned mode)
{
    UniqueFd folder(openat(folderFd, ".", O_PATH | O_DIRECTORY | O_CLOEXEC));
    for (std::size_t begin = 0; folder;)
    {
        std::size_t const end = path.find('/', begin);
        std::string const name = path.substr(begin, end == std::string::npos ? end : end - begin);
        bool const isLast = end == std::string::npos;
        bool const isPlain = !name.empty() && name != ".." && (name != "." || path == ".");
        if (!isPlain)
        {
            errno = EXDEV; // as the kernel's error for a path that leaves the folder
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

} // namespace

UniqueFd TreeAccess::OpenBeneath(std::string const& path, int flags, unsigned mode) const
{
    open_how how{};
    how.flags = static_cast<std::uint64_t>(flags) | O_CLOEXEC;
    how.mode = mode;
    how.resolve = RESOLVE_BENEATH | RESOLVE_NO_SYMLINKS | RESOLVE_NO_MAGICLINKS;
    for (int attempt = 0; attempt < MAX_ATTEMPTS; ++attempt)
    {
        UniqueFd file(static_cast<int>(syscall(SYS_openat2, m_folderFd, path.c_str(), &how, sizeof how)));
        if (file || (errno != EINTR && errno != EAGAIN && errno != ENOSYS && errno != EPERM))
        {
            return file;
        }
        if (errno == ENOSYS || errno == EPERM) // an old kernel, or a system call filter that is older than the call
        {
            break;
        }
    }
    return OpenNameByName(m_folderFd, path, flags, mode);
}

UniqueFd TreeAccess::OpenParent(std::string const& path, std::string& name) const
{
    std::size_t const slash = path.rfind('/');
    name = slash == std::string::npos ? path : path.substr(slash + 1);
    return OpenBeneath(slash == std::string::npos ? std::string(".") : path.substr(0, slash), O_PATH | O_DIRECTORY, 0);
}

UniqueFd TreeAccess::OpenFile(std::string const& path) const
{
    // A FIFO in the file's place must not block the process.
    return OpenBeneath(path, O_RDONLY | O_NONBLOCK, 0);
}

UniqueFd TreeAccess::MakeFile(std::string const& path, bool isExecutable)
{
    mode_t const mode = isExecutable ? EXECUTABLE_MODE : PLAIN_MODE;
    UniqueFd file = OpenBeneath(path, O_RDWR | O_CREAT | O_EXCL, mode);
    if (file && fchmod(file.Get(), mode) != 0)
    {
        return {};
    }
    return file;
}

bool TreeAccess::MakeFolder(std::string const& path)
{
    std::string name;
    UniqueFd const parent = OpenParent(path, name);
    return parent && mkdirat(parent.Get(), name.c_str(), EXECUTABLE_MODE) == 0 &&
           fchmodat(parent.Get(), name.c_str(), EXECUTABLE_MODE, 0) == 0;
}

bool TreeAccess::MakeLink(std::string const& path, std::string const& target)
{
    std::string name;
    UniqueFd const parent = OpenParent(path, name);
    return parent && symlinkat(target.c_str(), parent.Get(), name.c_str()) == 0;
}

} // namespace Pelnar::Engine
