#include "Engine/core/helper/StagingFolder.h"

#include "Engine/core/base/ContentHasher.h"
#include "Engine/core/base/TreeWalk.h"
#include "Engine/core/faults/UpdateFault.h"
#include "Engine/core/helper/NoteFile.h"
#include "common/UpdateFiles.h"

#include <algorithm>
#include <cerrno>
#include <climits>

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
constexpr mode_t ALL_RIGHTS = 0777; ///< a folder may inherit the group of its parent, and a bit shows this
/// A new folder that others have removed is created again, but only this often.
constexpr int MAX_ATTEMPTS = 20;

std::string NameFor(std::string_view targetName)
{
    ContentHash const hash = HashOf(View(targetName), HashKind::Blake2b);
    return std::string(UPDATE_FILES_BEGIN) + Hexadecimal(Bytes(hash.data(), TARGET_HASH_BYTES));
}

std::string RandomText()
{
    std::uint8_t random[RANDOM_BYTES];
    if (::getrandom(random, sizeof random, 0) != static_cast<ssize_t>(sizeof random))
    {
        ThrowErrno(errno);
    }
    return Hexadecimal(Bytes(random, sizeof random));
}

/// Opens and locks the folder that was just created. Empty if another process has removed it: between its creation and
/// its locking it looks abandoned.
UniqueFd LockNew(int parentFd, std::string const& name)
{
    UniqueFd folder = OpenFolder(parentFd, name);
    if (!folder)
    {
        return errno == ENOENT ? UniqueFd() : (ThrowErrno(errno), UniqueFd());
    }
    if (!IsPrivateFolder(folder.Get()))
    {
        throw UpdateRefusal(UpdateFault::PermissionsUnavailable);
    }
    if (::flock(folder.Get(), LOCK_EX | LOCK_NB) != 0)
    {
        if (errno != EWOULDBLOCK && errno != EINTR)
        {
            throw UpdateRefusal(UpdateFault::LocksUnavailable, errno);
        }
        return {};
    }
    struct stat status;
    bool const isThere = ::fstat(folder.Get(), &status) == 0 && status.st_nlink > 0;
    return isThere ? std::move(folder) : UniqueFd();
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

std::string LockFileName(std::string_view targetName)
{
    return NameFor(targetName) + ".lock";
}

std::string AsideName()
{
    return std::string(ASIDE_FILES_BEGIN) + RandomText();
}

bool HasUpdateFiles(int folderFd, std::string_view targetName)
{
    auto const names = ListFolder(folderFd);
    std::string const prefix = NameFor(targetName);
    return !names ||
           std::any_of(names->begin(), names->end(),
                       [&prefix](std::string const& name) { return name.compare(0, prefix.size(), prefix) == 0; });
}

StagingFolder::StagingFolder(UniqueFd folder, std::string name) : m_folder(std::move(folder)), m_name(std::move(name))
{
}

StagingFolder StagingFolder::Create(int parentFd, std::string_view targetName)
{
    for (int attempt = 0; attempt < MAX_ATTEMPTS; ++attempt)
    {
        std::string name = UpdateFilePrefix(targetName) + RandomText();
        if (!MakePrivateFolder(parentFd, name))
        {
            if (errno == EEXIST)
            {
                continue;
            }
            ThrowErrno(errno);
        }
        try
        {
            if (UniqueFd folder = LockNew(parentFd, name))
            {
                return StagingFolder(std::move(folder), std::move(name));
            }
            static_cast<void>(::unlinkat(parentFd, name.c_str(), AT_REMOVEDIR));
        }
        catch (UpdateRefusal const&)
        {
            static_cast<void>(::unlinkat(parentFd, name.c_str(), AT_REMOVEDIR));
            throw;
        }
    }
    throw UpdateRefusal(UpdateFault::LocksUnavailable, EWOULDBLOCK);
}

UniqueFd OpenFolderOrThrow(int parentFd, std::string const& name)
{
    UniqueFd folder = OpenFolder(parentFd, name);
    if (!folder)
    {
        ThrowErrno(errno);
    }
    return folder;
}

bool IsPrivateFolder(int folderFd)
{
    struct stat status;
    return ::fstat(folderFd, &status) == 0 && S_ISDIR(status.st_mode) && status.st_uid == ::geteuid() &&
           (status.st_mode & ALL_RIGHTS) == PRIVATE_MODE;
}

std::string RealPathOf(int folderFd)
{
    std::string path(PATH_MAX, '\0');
    ssize_t const size = ::readlink(DescriptorPath(folderFd).c_str(), path.data(), path.size());
    bool const isWhole = size > 0 && static_cast<std::size_t>(size) < path.size() && path.front() == '/';
    path.resize(isWhole ? static_cast<std::size_t>(size) : 0);
    return path;
}

std::string RealPathOf(int folderFd, std::string const& name)
{
    std::string const folder = RealPathOf(folderFd);
    if (folder.empty())
    {
        return {};
    }
    return folder == "/" ? folder + name : folder + '/' + name;
}

} // namespace Pelnar::Engine
