#include "Engine/core/download/DownloadFolder_p.h"

#include "Engine/core/base/PathText.h"
#include "Engine/core/base/TreeWalk.h"
#include "Engine/core/download/DownloadBudget.h"
#include "Engine/core/helper/NoteFile.h"

#include <cstring>
#include <map>
#include <set>
#include <vector>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/statvfs.h>
#include <unistd.h>

namespace Pelnar::Engine
{
namespace
{

constexpr mode_t FILE_MODE = 0600;
constexpr mode_t OTHERS_CAN_WRITE = 0022;
constexpr std::size_t HASH_CHARACTERS = 64;
constexpr std::size_t MAX_OTHER_RECORDS = 16;

/// The archive to which the file \a name belongs; empty for a file that no download created.
std::string ArchiveNameOf(std::string const& name)
{
    std::string const ending = name.size() > HASH_CHARACTERS ? name.substr(HASH_CHARACTERS) : std::string();
    std::string const archive = ARCHIVE_ENDING;
    bool const isOfDownload =
        ending == archive || ending == archive + RECORD_ENDING || ending == archive + STAGED_ENDING;
    return isOfDownload ? name.substr(0, HASH_CHARACTERS) + archive : std::string();
}

std::set<std::string> ArchiveNames(UniqueFd const& folder)
{
    std::set<std::string> names;
    for (std::string const& entry : ListFolder(folder.Get()).value_or(std::vector<std::string>()))
    {
        names.insert(ArchiveNameOf(entry));
    }
    names.erase(std::string());
    return names;
}

bool IsInUse(UniqueFd const& archive)
{
    return archive && Retried([&archive] { return flock(archive.Get(), LOCK_EX | LOCK_NB); }) != 0 &&
           errno == EWOULDBLOCK;
}

/// Removes the archive \a name unless it is in use. Returns true if it was removed.
[[nodiscard]] bool HasRemoved(UniqueFd const& folder, std::string const& name, ArchiveRecord record)
{
    // The lock is held until the name is removed, so that no process starts to use the archive in between.
    UniqueFd const archive = OpenFileAt(folder, name, O_RDONLY);
    if (IsInUse(archive))
    {
        return false;
    }
    RemoveArchive(folder, name, record);
    return true;
}

} // namespace

QString Described(int errorNumber)
{
    return QString::fromLocal8Bit(std::strerror(errorNumber));
}

EngineError OpenError(int errorNumber)
{
    switch (errorNumber)
    {
    case EMFILE:
    case ENFILE:
    case ENOMEM:
        return MakeError(ErrorCause::DownloadSystemBusy, Described(errorNumber));
    }
    return MakeError(ErrorCause::DownloadFolderUnusable, Described(errorNumber));
}

bool IsOurs(struct stat const& status)
{
    return S_ISREG(status.st_mode) && status.st_uid == geteuid() && status.st_nlink == 1 &&
           (status.st_mode & OTHERS_CAN_WRITE) == 0;
}

UniqueFd OpenFileAt(UniqueFd const& folder, std::string const& name, int flags)
{
    int descriptor = -1;
    do
    {
        // A FIFO in the file's place must not block the process.
        descriptor = openat(folder.Get(), name.c_str(), flags | O_NONBLOCK | O_NOFOLLOW | O_CLOEXEC, FILE_MODE);
    } while (descriptor < 0 && errno == EINTR);
    if (descriptor >= 0 && (flags & O_CREAT) != 0)
    {
        LetOwnerWrite(descriptor);
    }
    return UniqueFd(descriptor);
}

Result<UniqueFd> OpenDownloadFolder(std::string const& path)
{
    QString const shownPath = PathText(path);
    UniqueFd folder = OpenPrivateFolder(path);
    if (!folder)
    {
        int const errorNumber = errno;
        struct stat status;
        bool const isInTheWay =
            (errorNumber == ENOTDIR || errorNumber == ELOOP) && ::lstat(path.c_str(), &status) == 0; // else it is above
        return Failure(errorNumber == EPERM || isInTheWay ? MakeError(ErrorCause::DownloadFolderUnsafe, shownPath)
                                                          : OpenError(errorNumber));
    }
    return folder;
}

DiskRoom RoomIn(UniqueFd const& folder)
{
    struct statvfs status
    {
    };
    if (fstatvfs(folder.Get(), &status) != 0)
    {
        return {};
    }
    return {std::uint64_t{status.f_bavail} * status.f_frsize,
            DiskReserve(std::uint64_t{status.f_blocks} * status.f_frsize)};
}

void RemoveArchive(UniqueFd const& folder, std::string const& name, ArchiveRecord record)
{
    unlinkat(folder.Get(), (name + STAGED_ENDING).c_str(), 0);
    if (record == ArchiveRecord::Removed)
    {
        unlinkat(folder.Get(), (name + RECORD_ENDING).c_str(), 0);
    }
    unlinkat(folder.Get(), name.c_str(), 0);
}

void RemoveOtherArchives(UniqueFd const& folder, std::string const& keptName)
{
    std::multimap<std::time_t, std::string, std::greater<>> recordsByTime;
    for (std::string const& name : ArchiveNames(folder))
    {
        struct stat record
        {
        };
        if (name != keptName && HasRemoved(folder, name, ArchiveRecord::Kept) &&
            fstatat(folder.Get(), (name + RECORD_ENDING).c_str(), &record, AT_SYMLINK_NOFOLLOW) == 0)
        {
            recordsByTime.emplace(record.st_mtime, name);
        }
    }
    std::size_t kept = 0;
    for (auto const& [time, name] : recordsByTime)
    {
        bool const isOld = std::time(nullptr) - time > ABANDONED_SECONDS;
        if (isOld || ++kept > MAX_OTHER_RECORDS)
        {
            RemoveArchive(folder, name, ArchiveRecord::Removed);
        }
    }
}

void RemoveAllArchives(UniqueFd const& folder)
{
    for (std::string const& name : ArchiveNames(folder))
    {
        (void)HasRemoved(folder, name, ArchiveRecord::Removed);
    }
}

} // namespace Pelnar::Engine
