#include "Engine/core/archive/TreeManifest.h"

#include "Engine/core/base/Descriptor.h"
#include "Engine/core/base/TreeWalk.h"
#include "Engine/core/faults/UpdateFault.h"

#include <algorithm>
#include <cerrno>

#include <fcntl.h>
#include <unistd.h>

namespace Pelnar::Engine
{
namespace
{

constexpr std::size_t READ_BYTES = std::size_t{256} << 10;
constexpr std::size_t LINK_BYTES = 4096;

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
        ssize_t const count = ReadUpTo(file.Get(), size, buffer.data(), buffer.size());
        if (count < 0)
        {
            ThrowErrno(errno);
        }
        if (count == 0)
        {
            return hasher.Finish();
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
    hasher.Add(View(text));
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

} // namespace Pelnar::Engine
