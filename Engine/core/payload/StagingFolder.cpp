#include "Engine/core/payload/StagingFolder.h"

#include "Engine/core/delta/ContentHasher.h"
#include "Engine/core/payload/UpdateFault.h"

#include <cerrno>
#include <climits>
#include <memory>

#include <dirent.h>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/random.h>
#include <sys/stat.h>
#include <unistd.h>

namespace Pelnar::Engine
{
namespace
{

constexpr std::size_t TARGET_HASH_BYTES = 8;
constexpr std::size_t RANDOM_BYTES = 8;
constexpr mode_t PRIVATE_MODE = 0700;
constexpr int FOLDER_FLAGS = O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC;

std::string Hexadecimal(Bytes bytes)
{
    constexpr char DIGITS[] = "0123456789abcdef";
    std::string text;
    for (std::uint8_t const byte : bytes)
    {
        text += DIGITS[byte >> 4];
        text += DIGITS[byte & 15];
    }
    return text;
}

std::string NameFor(std::string_view targetName)
{
    ContentHash const hash = HashOf(Bytes(reinterpret_cast<std::uint8_t const*>(targetName.data()), targetName.size()));
    return ".pelnar-" + Hexadecimal(Bytes(hash.data(), TARGET_HASH_BYTES));
}

} // namespace

std::string UpdateFilePrefix(std::string_view targetName)
{
    return NameFor(targetName) + "-";
}

std::string SwapJournalName(std::string_view targetName)
{
    return NameFor(targetName) + ".journal";
}

std::string FailedVersionName(std::string_view targetName)
{
    return NameFor(targetName) + ".failed";
}

bool HasUpdateFiles(int folderFd, std::string_view targetName)
{
    int const copy = ::openat(folderFd, ".", FOLDER_FLAGS);
    std::unique_ptr<DIR, decltype(&::closedir)> const stream(copy < 0 ? nullptr : ::fdopendir(copy), &::closedir);
    std::string const prefix = NameFor(targetName);
    while (dirent const* const entry = stream ? ::readdir(stream.get()) : nullptr)
    {
        if (std::string_view(entry->d_name).substr(0, prefix.size()) == prefix)
        {
            return true;
        }
    }
    return !stream;
}

StagingFolder::StagingFolder(UniqueFd folder, std::string name) : m_folder(std::move(folder)), m_name(std::move(name))
{
}

StagingFolder StagingFolder::Create(int parentFd, std::string_view targetName)
{
    for (;;)
    {
        std::uint8_t random[RANDOM_BYTES];
        if (::getrandom(random, sizeof random, 0) != static_cast<ssize_t>(sizeof random))
        {
            ThrowErrno(errno);
        }
        std::string name = UpdateFilePrefix(targetName) + Hexadecimal(Bytes(random, sizeof random));
        if (::mkdirat(parentFd, name.c_str(), PRIVATE_MODE) != 0)
        {
            if (errno == EEXIST)
            {
                continue;
            }
            ThrowErrno(errno);
        }
        UniqueFd folder(::openat(parentFd, name.c_str(), FOLDER_FLAGS));
        if (!folder)
        {
            ThrowErrno(errno);
        }
        // Between its making and its locking a folder looks abandoned, and may be tidied away: then make another.
        struct stat status;
        if (::flock(folder.Get(), LOCK_EX | LOCK_NB) == 0 && ::fstat(folder.Get(), &status) == 0 && status.st_nlink > 0)
        {
            return StagingFolder(std::move(folder), std::move(name));
        }
    }
}

std::string RealPathOf(int folderFd)
{
    std::string path(PATH_MAX, '\0');
    ssize_t const size = ::readlink(("/proc/self/fd/" + std::to_string(folderFd)).c_str(), path.data(), path.size());
    bool const isWhole = size > 0 && static_cast<std::size_t>(size) < path.size() && path.front() == '/';
    path.resize(isWhole ? static_cast<std::size_t>(size) : 0);
    return path;
}

bool IsSafeUpToTheRoot(int folderFd)
{
    UniqueFd folder(::openat(folderFd, ".", O_PATH | O_DIRECTORY | O_CLOEXEC));
    for (struct stat below{}; folder;)
    {
        struct stat status;
        if (::fstat(folder.Get(), &status) != 0)
        {
            return false;
        }
        bool const isOwnerTrusted = status.st_uid == 0 || status.st_uid == ::geteuid();
        bool const isOpenToOthers = (status.st_mode & (S_IWGRP | S_IWOTH)) != 0 && (status.st_mode & S_ISVTX) == 0;
        if (!isOwnerTrusted || isOpenToOthers)
        {
            return false;
        }
        if (status.st_dev == below.st_dev && status.st_ino == below.st_ino)
        {
            return true; // only the root is its own parent
        }
        below = status;
        folder = UniqueFd(::openat(folder.Get(), "..", O_PATH | O_DIRECTORY | O_CLOEXEC));
    }
    return false;
}

} // namespace Pelnar::Engine
