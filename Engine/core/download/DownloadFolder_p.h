// DownloadFolder_p.h: the folder in which an application's archives grow: opened safely, with a share of its disk left
// free, and cleared of what other downloads left.
// Thread: any; no state. Ownership: descriptors are their caller's.
#pragma once

#include "Engine/core/EngineError.h"
#include "Engine/core/delta/TreeAccess.h"

#include <cerrno>
#include <ctime>
#include <string>
#include <variant>

#include <sys/stat.h>

namespace Pelnar::Engine
{

constexpr char ARCHIVE_ENDING[] = ".archive";
constexpr char RECORD_ENDING[] = ".record";     ///< behind an archive's name
constexpr char STAGED_ENDING[] = ".record.new"; ///< as well
/// After so long nobody counts on what was left here.
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
/// The error of a call that opens or makes something.
EngineError OpenError(int errorNumber);

/// A regular file of this user with one name, which nobody else can write.
[[nodiscard]] bool IsOurs(struct stat const& status);
[[nodiscard]] bool IsSameFile(struct stat const& a, struct stat const& b);

/// Without following links, and without waiting for what may stand in the file's place.
UniqueFd OpenFileAt(UniqueFd const& folder, std::string const& name, int flags);
UniqueFd OpenFolderNamed(std::string const& path);
/// Makes the folder if it is missing. Refuses one that is not this user's alone to write.
std::variant<UniqueFd, EngineError> OpenDownloadFolder(std::string const& path);

/// The room on the folder's disk, without the share that is left free.
struct DiskRoom
{
    std::uint64_t freeBytes = 0;
    std::uint64_t reservedBytes = 0;

    std::uint64_t UsableBytes() const { return freeBytes > reservedBytes ? freeBytes - reservedBytes : 0; }
};
DiskRoom RoomIn(UniqueFd const& folder);

/// Of an archive that is not kept.
enum class ArchiveRecord
{
    Kept, ///< what the archive has cost is not forgotten
    Removed,
};
void RemoveArchive(UniqueFd const& folder, std::string const& name, ArchiveRecord record);

/// Removes all archives but the one named \a keptName, unless somebody uses them. Their records are kept for a while, a
/// few of them.
void RemoveOtherArchives(UniqueFd const& folder, std::string const& path, std::string const& keptName);
/// Removes all archives and records, unless somebody uses them.
void RemoveAllArchives(UniqueFd const& folder, std::string const& path);

} // namespace Pelnar::Engine
