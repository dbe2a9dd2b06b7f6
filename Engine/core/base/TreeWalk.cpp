#include "Engine/core/base/TreeWalk.h"

#include "Engine/core/base/Descriptor.h"

#include <algorithm>
#include <cerrno>
#include <memory>
#include <vector>

#include <dirent.h>
#include <fcntl.h>
#include <unistd.h>

namespace Pelnar::Engine
{
namespace
{

/// The folder of \a path below \a folderFd, opened name by name, so that no link is followed and a path may have any
/// length.
UniqueFd OpenFolderBelow(int folderFd, std::string const& path)
{
    UniqueFd folder = OpenFolder(folderFd, ".");
    for (std::size_t begin = 0; folder && begin < path.size();)
    {
        std::size_t const end = std::min(path.find('/', begin), path.size());
        folder = OpenFolder(folder.Get(), path.substr(begin, end - begin));
        begin = end + 1;
    }
    return folder;
}

/// Gives this user the rights to a folder that will be removed. A failure appears when the folder cannot be removed.
void UnlockFolder(int parentFd, std::string const& name, struct stat const& status)
{
    if ((status.st_mode & S_IRWXU) != S_IRWXU)
    {
        static_cast<void>(::fchmodat(parentFd, name.c_str(), S_IRWXU, AT_SYMLINK_NOFOLLOW));
    }
}

} // namespace

std::optional<std::vector<std::string>> ListFolder(int folderFd)
{
    // A copy of the descriptor would share its position, so the folder is opened a second time.
    int const own = ::openat(folderFd, ".", O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    std::unique_ptr<DIR, decltype(&::closedir)> const stream(own < 0 ? nullptr : ::fdopendir(own), &::closedir);
    if (!stream)
    {
        return std::nullopt;
    }
    std::vector<std::string> names;
    for (;;)
    {
        errno = 0;
        dirent const* const entry = ::readdir(stream.get());
        if (!entry)
        {
            return errno == 0 ? std::optional(std::move(names)) : std::nullopt;
        }
        std::string const name = entry->d_name;
        if (name != "." && name != "..")
        {
            names.push_back(name);
        }
    }
}

bool WalkTree(int folderFd, TreeVisit const& visit)
{
    std::vector<std::string> pending{{}};
    while (!pending.empty())
    {
        std::string const path = std::move(pending.back());
        pending.pop_back();
        UniqueFd const folder = OpenFolderBelow(folderFd, path);
        auto const names = folder ? ListFolder(folder.Get()) : std::nullopt;
        if (!names)
        {
            return false;
        }
        for (std::string const& name : *names)
        {
            struct stat status;
            if (::fstatat(folder.Get(), name.c_str(), &status, AT_SYMLINK_NOFOLLOW) != 0)
            {
                return false;
            }
            std::string const entryPath = path.empty() ? name : path + '/' + name;
            visit(entryPath, folder.Get(), name, status);
            struct stat own;
            bool const isFolder = S_ISDIR(status.st_mode) && ::fstat(folder.Get(), &own) == 0;
            if (isFolder && own.st_dev == status.st_dev)
            {
                pending.push_back(entryPath);
            }
        }
    }
    return true;
}

bool SyncTree(int folderFd)
{
    if (::syncfs(folderFd) == 0)
    {
        return true;
    }
    if (errno != ENOSYS && errno != EPERM)
    {
        return false;
    }
    bool isSynced = true;
    int failure = 0;
    auto const sync = [&](std::string const&, int parentFd, std::string const& name, struct stat const& status)
    {
        if (S_ISLNK(status.st_mode))
        {
            return; // belongs to its folder
        }
        UniqueFd const entry(::openat(parentFd, name.c_str(), O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC));
        if (isSynced && (!entry || ::fsync(entry.Get()) != 0))
        {
            isSynced = false;
            failure = errno;
        }
    };
    if (!WalkTree(folderFd, sync) || !isSynced)
    {
        errno = isSynced ? errno : failure;
        return false;
    }
    return ::fsync(folderFd) == 0;
}

bool RemoveTree(int parentFd, std::string const& name)
{
    struct stat status;
    if (::fstatat(parentFd, name.c_str(), &status, AT_SYMLINK_NOFOLLOW) != 0)
    {
        return errno == ENOENT;
    }
    if (!S_ISDIR(status.st_mode))
    {
        return ::unlinkat(parentFd, name.c_str(), 0) == 0;
    }
    UnlockFolder(parentFd, name, status);
    UniqueFd const root = OpenFolder(parentFd, name);
    if (!root)
    {
        return false;
    }
    std::vector<std::string> folders;
    auto const remove = [&](std::string const& path, int folderFd, std::string const& entry, struct stat const& kind)
    {
        if (S_ISDIR(kind.st_mode))
        {
            if (kind.st_dev == status.st_dev) // a folder on another disk stays unchanged
            {
                UnlockFolder(folderFd, entry, kind);
            }
            folders.push_back(path);
        }
        else
        {
            // A failure appears when the folder that holds the entry cannot be removed.
            static_cast<void>(::unlinkat(folderFd, entry.c_str(), 0));
        }
    };
    static_cast<void>(WalkTree(root.Get(), remove));
    for (auto path = folders.rbegin(); path != folders.rend(); ++path)
    {
        std::size_t const slash = path->rfind('/');
        UniqueFd const parent = OpenFolderBelow(root.Get(), slash == std::string::npos ? "" : path->substr(0, slash));
        std::string const last = slash == std::string::npos ? *path : path->substr(slash + 1);
        static_cast<void>(::unlinkat(parent.Get(), last.c_str(), AT_REMOVEDIR));
    }
    return ::unlinkat(parentFd, name.c_str(), AT_REMOVEDIR) == 0;
}

} // namespace Pelnar::Engine
