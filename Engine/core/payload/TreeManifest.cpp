#include "Engine/core/payload/TreeManifest.h"

#include "Engine/core/delta/TreeAccess.h"
#include "Engine/core/faults/UpdateFault.h"

#include <algorithm>
#include <cerrno>
#include <memory>

#include <dirent.h>
#include <fcntl.h>
#include <unistd.h>

namespace Pelnar::Engine
{
namespace
{

constexpr std::size_t READ_BYTES = std::size_t{256} << 10;
constexpr std::size_t LINK_BYTES = 4096;

/// The folder of \a path below \a folderFd, opened name by name, so that no link is followed and a path may have any
/// length.
UniqueFd OpenFolder(int folderFd, std::string const& path)
{
    constexpr int FLAGS = O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC;
    UniqueFd folder(::openat(folderFd, ".", FLAGS));
    for (std::size_t begin = 0; folder && begin < path.size();)
    {
        std::size_t const end = std::min(path.find('/', begin), path.size());
        folder = UniqueFd(::openat(folder.Get(), path.substr(begin, end - begin).c_str(), FLAGS));
        begin = end + 1;
    }
    return folder;
}

/// The names in an open folder, in any order; false, with errno, if they cannot be read.
bool ListFolder(UniqueFd const& folder, std::vector<std::string>& names)
{
    int const copy = ::fcntl(folder.Get(), F_DUPFD_CLOEXEC, 0);
    std::unique_ptr<DIR, decltype(&::closedir)> const stream(copy < 0 ? nullptr : ::fdopendir(copy), &::closedir);
    if (!stream)
    {
        return false;
    }
    for (;;)
    {
        errno = 0;
        dirent const* const entry = ::readdir(stream.get());
        if (!entry)
        {
            return errno == 0;
        }
        std::string const name = entry->d_name;
        if (name != "." && name != "..")
        {
            names.push_back(name);
        }
    }
}

ContentHash HashFile(int parentFd, std::string const& name, std::uint64_t& size)
{
    UniqueFd const file(::openat(parentFd, name.c_str(), O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC));
    if (!file)
    {
        ThrowErrno(errno);
    }
    ContentHasher hasher;
    std::vector<std::uint8_t> buffer(READ_BYTES);
    size = 0;
    for (;;)
    {
        ssize_t const count = ::read(file.Get(), buffer.data(), buffer.size());
        if (count == 0)
        {
            return hasher.Finish();
        }
        if (count < 0)
        {
            if (errno == EINTR)
            {
                continue;
            }
            ThrowErrno(errno);
        }
        hasher.Add(Bytes(buffer.data(), static_cast<std::size_t>(count)));
        size += static_cast<std::uint64_t>(count);
    }
}

std::string ReadLink(int parentFd, std::string const& name)
{
    std::string target(LINK_BYTES, '\0');
    ssize_t const count = ::readlinkat(parentFd, name.c_str(), target.data(), target.size());
    if (count < 0)
    {
        ThrowErrno(errno);
    }
    target.resize(static_cast<std::size_t>(count));
    return target;
}

void AddText(ContentHasher& hasher, std::string const& text)
{
    hasher.Add(Bytes(reinterpret_cast<std::uint8_t const*>(text.data()), text.size()));
}

} // namespace

void TreeManifest::AddFolder(std::string path, std::uint32_t mode)
{
    m_entries.push_back({'d', std::move(path), mode, 0, {}, {}});
}

void TreeManifest::AddFile(std::string path, std::uint32_t mode, std::uint64_t size, ContentHash const& content)
{
    m_entries.push_back({'f', std::move(path), mode, size, content, {}});
}

void TreeManifest::AddLink(std::string path, std::string target)
{
    m_entries.push_back({'l', std::move(path), 0, 0, {}, std::move(target)});
}

ContentHash TreeManifest::Digest() const
{
    std::vector<Entry const*> entries;
    for (Entry const& entry : m_entries)
    {
        entries.push_back(&entry);
    }
    std::sort(entries.begin(), entries.end(), [](Entry const* a, Entry const* b) { return a->path < b->path; });
    ContentHasher hasher;
    for (Entry const* const entry : entries)
    {
        // Paths and link targets contain no NUL, so two different lists of entries never give the same bytes.
        std::string text(1, entry->kind);
        text += entry->path + '\0' + std::to_string(entry->mode) + '\0' + std::to_string(entry->size) + '\0' +
                entry->linkTarget + '\0';
        AddText(hasher, text);
        hasher.Add(Bytes(entry->content.data(), entry->content.size()));
    }
    return hasher.Finish();
}

bool WalkTree(int folderFd, TreeVisit const& visit)
{
    std::vector<std::string> pending{{}};
    while (!pending.empty())
    {
        std::string const path = std::move(pending.back());
        pending.pop_back();
        UniqueFd const folder = OpenFolder(folderFd, path);
        std::vector<std::string> names;
        if (!folder || !ListFolder(folder, names))
        {
            return false;
        }
        for (std::string const& name : names)
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

ContentHash DigestTree(int folderFd, std::uint32_t bitsWithin)
{
    TreeManifest manifest;
    uid_t const owner = ::geteuid();
    auto const add = [&](std::string const& path, int parentFd, std::string const& name, struct stat const& status)
    {
        if (S_ISLNK(status.st_mode))
        {
            manifest.AddLink(path, ReadLink(parentFd, name));
            return;
        }
        std::uint32_t const packed = S_ISDIR(status.st_mode) || (status.st_mode & S_IXUSR) != 0 ? 0755 : 0644;
        std::uint32_t const present = status.st_mode & 07777u;
        std::uint32_t const mode = present == (packed & bitsWithin) ? packed : present;
        if (status.st_uid != owner)
        {
            throw UpdateRefusal(UpdateFault::StagedTreeChanged);
        }
        if (S_ISDIR(status.st_mode))
        {
            manifest.AddFolder(path, mode);
        }
        else if (S_ISREG(status.st_mode))
        {
            std::uint64_t size = 0;
            ContentHash const content = HashFile(parentFd, name, size);
            manifest.AddFile(path, mode, size, content);
        }
        else
        {
            throw UpdateRefusal(UpdateFault::StagedTreeChanged);
        }
    };
    if (!WalkTree(folderFd, add))
    {
        ThrowErrno(errno);
    }
    return manifest.Digest();
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

namespace
{

/// Gives this user the rights to a folder that will be removed. A failure appears when the folder cannot be removed.
void UnlockFolder(int parentFd, std::string const& name, struct stat const& status)
{
    if ((status.st_mode & S_IRWXU) != S_IRWXU)
    {
        static_cast<void>(::fchmodat(parentFd, name.c_str(), S_IRWXU, AT_SYMLINK_NOFOLLOW));
    }
}

} // namespace

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
    UniqueFd const root(::openat(parentFd, name.c_str(), O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC));
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
        UniqueFd const parent = OpenFolder(root.Get(), slash == std::string::npos ? "" : path->substr(0, slash));
        std::string const last = slash == std::string::npos ? *path : path->substr(slash + 1);
        static_cast<void>(::unlinkat(parent.Get(), last.c_str(), AT_REMOVEDIR));
    }
    return ::unlinkat(parentFd, name.c_str(), AT_REMOVEDIR) == 0;
}

} // namespace Pelnar::Engine
