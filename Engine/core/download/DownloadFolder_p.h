// DownloadFolder_p.h: the folder with an application's archives. It is opened safely, keeps a share of its disk free,
// and is cleared of other downloads' files.
#pragma once

#include "Engine/core/base/Descriptor.h"
#include "Engine/core/faults/Result.h"

#include <cerrno>
#include <ctime>
#include <string>

#include <sys/stat.h>

namespace Pelnar::Engine
{

constexpr char ARCHIVE_ENDING[] = ".archive";
constexpr char RECORD_ENDING[] = ".record";     ///< follows an archive's name
constexpr char STAGED_ENDING[] = ".record.new"; ///< also follows it
/// After this time a file left here is abandoned.
constexpr std::time_t ABANDONED_SECONDS = 30 * 24 * 3600;

template <typename Call>
int Retried(Call call)
{
    int answer = -1;
    do
    {
        answer = call();
    } while (answer != 0 && errno == EINTR);
    return answer;
}

QString Described(int errorNumber);
/// The error of a call that opens or creates something.
EngineError OpenError(int errorNumber);

/// A regular file of this user with one name that no other user can write.
[[nodiscard]] bool IsOurs(struct stat const& status);

/// Follows no links, and does not block on an object in the file's place.
UniqueFd OpenFileAt(UniqueFd const& folder, std::string const& name, int flags);
/// Creates the folder if it is missing. Refuses a folder that other users can write.
[[nodiscard]] Result<UniqueFd> OpenDownloadFolder(std::string const& path);

/// The space on the folder's disk, without the share that stays free.
struct DiskRoom
{
    std::uint64_t freeBytes = 0;
    std::uint64_t reservedBytes = 0;

    std::uint64_t UsableBytes() const { return freeBytes > reservedBytes ? freeBytes - reservedBytes : 0; }
};
DiskRoom RoomIn(UniqueFd const& folder);

/// The record of a removed archive.
enum class ArchiveRecord
{
    Kept, ///< the archive's cost is remembered
    Removed,
};
void RemoveArchive(UniqueFd const& folder, std::string const& name, ArchiveRecord record);

/// Removes all archives except \a keptName and those in use. Some of their records are kept for a while.
void RemoveOtherArchives(UniqueFd const& folder, std::string const& keptName);
/// Removes all archives and records that are not in use.
void RemoveAllArchives(UniqueFd const& folder);

} // namespace Pelnar::Engine
