#include "Engine/core/helper/NoteFile.h"

#include "Engine/core/base/Descriptor.h"
#include "Engine/core/faults/UpdateFault.h"
#include "Engine/core/helper/StagingFolder.h"

#include <algorithm>
#include <cerrno>

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

void SyncOrThrow(int descriptor)
{
    if (::fsync(descriptor) != 0)
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
    for (std::size_t end = path.find('/', 1); end != std::string::npos; end = path.find('/', end + 1))
    {
        static_cast<void>(MakePrivateFolder(AT_FDCWD, path.substr(0, end)));
    }
}

UniqueFd OpenPrivateFolder(std::string const& path)
{
    if (!MakePrivateFolder(AT_FDCWD, path) && errno == ENOENT)
    {
        MakeFoldersAbove(path);
        static_cast<void>(MakePrivateFolder(AT_FDCWD, path)); // a failure appears below
    }
    return OpenOwnFolder(path);
}

UniqueFd OpenOwnFolder(std::string const& path)
{
    UniqueFd folder = OpenFolder(AT_FDCWD, path);
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

void WriteNote(int folderFd, std::string const& name, std::string_view bytes)
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
    SyncOrThrow(file.Get());
    if (!RenameOver(folderFd, newName, name))
    {
        ThrowErrno(errno);
    }
    SyncOrThrow(folderFd);
}

void RemoveNote(int folderFd, std::string const& name)
{
    FreeName(folderFd, name);
    FreeName(folderFd, name + ".new");
}

} // namespace Pelnar::Engine
