#include "Engine/core/payload/NoteFile.h"

#include "Engine/core/delta/TreeAccess.h"
#include "Engine/core/payload/UpdateFault.h"

#include <cerrno>

#include <fcntl.h>
#include <stdio.h>
#include <sys/stat.h>
#include <unistd.h>

namespace Pelnar::Engine
{
namespace
{

constexpr std::size_t NOTE_MAX_BYTES = 64 * 1024;
constexpr mode_t NOTE_MODE = 0600;

void SyncOrThrow(int descriptor)
{
    if (::fsync(descriptor) != 0)
    {
        ThrowErrno(errno, UpdateFault::SyncFailed);
    }
}

} // namespace

std::string ReadNote(int folderFd, std::string const& name)
{
    UniqueFd const file(::openat(folderFd, name.c_str(), O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC));
    struct stat status;
    if (!file || ::fstat(file.Get(), &status) != 0 || !S_ISREG(status.st_mode) || status.st_uid != ::geteuid())
    {
        return {};
    }
    std::string bytes(NOTE_MAX_BYTES, '\0');
    ssize_t const count = ReadUpTo(file.Get(), 0, bytes.data(), bytes.size());
    if (count < 0)
    {
        ThrowErrno(errno); // no answer is not the answer that there is no file
    }
    bytes.resize(static_cast<std::size_t>(count));
    return bytes;
}

void WriteNote(int folderFd, std::string const& name, std::string_view bytes)
{
    std::string const newName = name + ".new";
    static_cast<void>(::unlinkat(folderFd, newName.c_str(), 0));
    UniqueFd const file(
        ::openat(folderFd, newName.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, NOTE_MODE));
    if (!file || !WriteAll(file.Get(), Bytes(reinterpret_cast<std::uint8_t const*>(bytes.data()), bytes.size())))
    {
        ThrowErrno(errno);
    }
    SyncOrThrow(file.Get());
    if (::renameat(folderFd, newName.c_str(), folderFd, name.c_str()) != 0)
    {
        ThrowErrno(errno);
    }
    SyncOrThrow(folderFd);
}

void RemoveNote(int folderFd, std::string const& name)
{
    for (std::string const& gone : {name, name + ".new"})
    {
        if (::unlinkat(folderFd, gone.c_str(), 0) != 0 && errno != ENOENT)
        {
            ThrowErrno(errno);
        }
    }
}

} // namespace Pelnar::Engine
