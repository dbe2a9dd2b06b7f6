#include "Engine/core/helper/NoteFile.h"

#include "Engine/core/base/Descriptor.h"
#include "Engine/core/faults/UpdateFault.h"
#include "Engine/core/helper/StagingFolder.h"

#include <algorithm>
#include <cerrno>
#include <utility>

#include <fcntl.h>
#include <stdio.h>
#include <sys/stat.h>
#include <unistd.h>

namespace Pelnar::Engine
{
namespace
{

constexpr mode_t FOLDER_MODE = 0700;
constexpr mode_t NOTE_MODE = 0600;
constexpr mode_t OTHERS_CAN_WRITE = 0022;
constexpr mode_t ALL_BITS = 07777;

void SyncOrThrow(int descriptor, NoteSync sync)
{
    if (sync == NoteSync::Waits && ::fsync(descriptor) != 0)
    {
        ThrowErrno(errno, UpdateFault::SyncFailed);
    }
}

/// For a folder that a umask has closed to its owner. The name may lead to another folder by now.
void OpenToOwner(int parentFd, std::string const& name)
{
    UniqueFd const folder(::openat(parentFd, name.c_str(), O_PATH | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC));
    struct stat status;
    if (folder && ::fstat(folder.Get(), &status) == 0 && status.st_uid == ::geteuid() &&
        (status.st_mode & FOLDER_MODE) != FOLDER_MODE)
    {
        static_cast<void>(::chmod(DescriptorPath(folder.Get()).c_str(), FOLDER_MODE));
    }
}

/// True for an object of this user or of the administrator.
bool IsOwnOrAdministrators(struct stat const& status)
{
    return status.st_uid == ::geteuid() || status.st_uid == 0;
}

/// Another user could neither use nor remove what the administrator makes in their folders.
bool MakeFolderIn(int parentFd, std::string const& name)
{
    struct stat status;
    if (::fstat(parentFd, &status) == 0 && !IsOwnOrAdministrators(status))
    {
        errno = EPERM;
        return false;
    }
    return MakePrivateFolder(parentFd, name);
}

/// A folder as a place for other calls.
UniqueFd OpenPlace(int parentFd, std::string const& name, int flags)
{
    int folder = -1;
    do
    {
        folder = ::openat(parentFd, name.c_str(), O_PATH | O_DIRECTORY | O_CLOEXEC | flags);
    } while (folder < 0 && errno == EINTR);
    return UniqueFd(folder);
}

/// A link of another user is not followed: it could lead what the administrator writes anywhere.
UniqueFd StepInto(int folderFd, std::string const& name)
{
    struct stat status;
    if (::fstatat(folderFd, name.c_str(), &status, AT_SYMLINK_NOFOLLOW) != 0)
    {
        return UniqueFd();
    }
    bool const isLink = S_ISLNK(status.st_mode);
    if (isLink && !IsOwnOrAdministrators(status))
    {
        errno = ELOOP;
        return UniqueFd();
    }
    return OpenPlace(folderFd, name, isLink ? 0 : O_NOFOLLOW);
}

/// The folder that contains \a path. It is created if it is missing, and those above it.
UniqueFd OpenFolderAbove(std::string const& path)
{
    std::size_t const last = path.rfind('/');
    UniqueFd folder = OpenPlace(AT_FDCWD, !path.empty() && path.front() == '/' ? "/" : ".", 0);
    for (std::size_t begin = 0; folder && last != std::string::npos && begin < last;)
    {
        std::size_t const end = path.find('/', begin);
        std::string const name = path.substr(begin, end - begin);
        begin = end + 1;
        if (name.empty())
        {
            continue;
        }
        UniqueFd next = StepInto(folder.Get(), name);
        if (!next && errno == ENOENT && (MakeFolderIn(folder.Get(), name) || errno == EEXIST))
        {
            next = StepInto(folder.Get(), name);
        }
        folder = std::move(next);
    }
    return folder;
}

/// \a folder, unless another user can write there.
UniqueFd OwnFolder(UniqueFd folder)
{
    struct stat status;
    if (!folder || ::fstat(folder.Get(), &status) != 0)
    {
        return UniqueFd();
    }
    if (status.st_uid != ::geteuid() || (status.st_mode & OTHERS_CAN_WRITE) != 0)
    {
        errno = EPERM;
        return UniqueFd();
    }
    return folder;
}

} // namespace

bool MakePrivateFolder(int parentFd, std::string const& name)
{
    if (::mkdirat(parentFd, name.c_str(), FOLDER_MODE) != 0)
    {
        return false;
    }
    OpenToOwner(parentFd, name);
    return true;
}

void LetOwnerWrite(int fd)
{
    struct stat status;
    if (::fstat(fd, &status) == 0 && S_ISREG(status.st_mode) && status.st_uid == ::geteuid() &&
        (status.st_mode & ALL_BITS & ~NOTE_MODE) == 0 && (status.st_mode & NOTE_MODE) != NOTE_MODE)
    {
        static_cast<void>(::fchmod(fd, NOTE_MODE));
    }
}

void MakeFoldersAbove(std::string const& path)
{
    static_cast<void>(OpenFolderAbove(path));
}

UniqueFd OpenPrivateFolder(std::string const& path)
{
    UniqueFd const above = OpenFolderAbove(path);
    if (!above)
    {
        return UniqueFd();
    }
    std::string const name = path.substr(path.rfind('/') + 1);
    static_cast<void>(MakeFolderIn(above.Get(), name)); // it may exist; a failure appears below
    return OwnFolder(OpenFolder(above.Get(), name));
}

UniqueFd OpenOwnFolder(std::string const& path)
{
    return OwnFolder(OpenFolder(AT_FDCWD, path));
}

bool IsPrivateFile(int fd)
{
    struct stat status;
    return ::fstat(fd, &status) == 0 && S_ISREG(status.st_mode) && status.st_uid == ::geteuid() &&
           (status.st_mode & ALL_BITS) == NOTE_MODE;
}

void FreeName(int folderFd, std::string const& name)
{
    if (::unlinkat(folderFd, name.c_str(), 0) == 0 || errno == ENOENT)
    {
        return;
    }
    // Deliberate: a folder's content does not belong to this user's update.
    bool const isFolder = errno == EISDIR || errno == EPERM;
    if (!isFolder || ::renameat(folderFd, name.c_str(), folderFd, AsideName().c_str()) != 0)
    {
        ThrowErrno(errno);
    }
}

bool RenameOver(int folderFd, std::string const& from, std::string const& to)
{
    if (::renameat(folderFd, from.c_str(), folderFd, to.c_str()) == 0)
    {
        return true;
    }
    if (errno != EISDIR)
    {
        return false;
    }
    FreeName(folderFd, to);
    return ::renameat(folderFd, from.c_str(), folderFd, to.c_str()) == 0;
}

std::string ReadNote(int folderFd, std::string const& name, std::size_t maxBytes)
{
    UniqueFd const file(::openat(folderFd, name.c_str(), O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC));
    struct stat status;
    // Another name of the file may be where others can access it. Without any name, the file was just replaced.
    if (!file || !IsPrivateFile(file.Get()) || ::fstat(file.Get(), &status) != 0 || status.st_nlink > 1)
    {
        return {};
    }
    std::optional<std::string> bytes =
        ReadStart(file.Get(), std::min(maxBytes, static_cast<std::size_t>(status.st_size)));
    if (!bytes)
    {
        ThrowErrno(errno); // the file may have content
    }
    return *std::move(bytes);
}

void WriteNote(int folderFd, std::string const& name, std::string_view bytes, NoteSync sync)
{
    std::string const newName = name + ".new";
    FreeName(folderFd, newName);
    UniqueFd const file(
        ::openat(folderFd, newName.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, NOTE_MODE));
    if (file)
    {
        LetOwnerWrite(file.Get());
    }
    if (!file || !WriteAll(file.Get(), View(bytes)))
    {
        ThrowErrno(errno);
    }
    if (!IsPrivateFile(file.Get()))
    {
        throw UpdateRefusal(UpdateFault::PermissionsUnavailable);
    }
    SyncOrThrow(file.Get(), sync);
    if (!RenameOver(folderFd, newName, name))
    {
        ThrowErrno(errno);
    }
    SyncOrThrow(folderFd, sync);
}

void RemoveNote(int folderFd, std::string const& name)
{
    FreeName(folderFd, name);
    FreeName(folderFd, name + ".new");
}

} // namespace Pelnar::Engine
