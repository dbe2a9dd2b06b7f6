// PartialFile.h: the file of a partial archive and its record. It is opened without following links, locked against
// other processes, and cut to the bytes that can be trusted.
// Thread: one at a time. Ownership: its descriptors, except the one that Finish() hands over.
#pragma once

#include "Engine/core/base/Descriptor.h"
#include "Engine/core/download/PartialRecord.h"
#include "Engine/core/faults/Result.h"

#include <QString>

#include <optional>
#include <string>

namespace Pelnar::Engine
{

/// The location of an archive.
struct PartialPlace
{
    std::string folder;
    std::string name; ///< of the archive's file; the record's name is longer
    std::string url;  ///< without user name and password
    std::uint64_t declaredBytes = 0;
};

/// The same archive has the same place in every run: its name is made from \a url, \a declaredBytes and \a signature.
PartialPlace PlaceOf(QString const& folder, QUrl const& url, std::uint64_t declaredBytes, QString const& signature);

class PartialFile
{
public:
    explicit PartialFile(PartialPlace place);

    /// Creates the folder and the file if they are missing, locks the file, cuts it to the bytes that can be trusted,
    /// and removes the application's other archives. Refuses a disk without space for the rest and for the share that
    /// stays free.
    Result<void> Open();
    /// The bytes found. REQUIRES: opened.
    PartialArchive const& Found() const { return m_found; }
    /// The recorded cost of the archive. REQUIRES: opened.
    DownloadSpending const& Spent() const { return m_record.spent; }
    void SetSpent(DownloadSpending const& spent) { m_record.spent = spent; }

    /// Discards every byte. The following bytes belong to the version with \a validators.
    Result<void> Restart(Validators const& validators);
    /// REQUIRES: the record was published after Open() and after every Restart().
    Result<void> Append(Bytes bytes);

    /// The steps that make the written bytes durable and then record this, in this order. Steps that sync may take
    /// long. They change nothing unless they fail, so the file can be opened again without waiting for them. If they
    /// fail, they remove the file, unless it has another user by then. Without the first step, the
    /// others record the remaining values.
    Result<void> SyncBytes();
    Result<void> StageRecord();
    Result<void> SyncRecord();
    Result<void> PublishRecord();
    Result<void> SyncFolder();

    /// Ends the writing. The returned descriptor is read-only and keeps the lock.
    UniqueFd Finish();
    /// Releases the file for another process or another download of this one.
    void Unlock();
    /// Removes the file and keeps the record of the archive's cost. REQUIRES: restarted.
    void RemoveArchive();

private:
    Result<void> OpenFolder();
    Result<void> OpenReader();
    Result<void> Lock();
    Result<void> OpenWriter();
    /// Frees the name for this user's file.
    Result<void> MakeWay(std::string const& name);
    Result<void> CheckRoom() const;
    /// Empty if there is no usable record. Fails if the system cannot open it now: without it, the archive's bytes
    /// would be discarded.
    Result<std::optional<PartialRecord>> ReadRecord() const;
    void TakeRecord(PartialRecord const& record, FoundFile const& file);
    /// Removes the file and the record, and frees the disk's blocks. Does nothing if the file has another user now.
    void Remove();
    /// True if the file is still under its name, and nobody else has locked it.
    [[nodiscard]] bool HoldsItsName() const;
    EngineError MakeSystemError(int errorNumber) const;
    EngineError RoomError(int errorNumber) const;
    /// The error for \a errorNumber, of a call that changes the file or the record. On a full or failing disk it
    /// removes all files.
    EngineError FailedWrite(int errorNumber);

    PartialPlace m_place;
    UniqueFd m_folder;
    UniqueFd m_reader; ///< holds the lock; being read-only, it cannot break a later reader's lease
    UniqueFd m_writer;
    UniqueFd m_staged; ///< the record that will replace the current one
    PartialArchive m_found;
    PartialRecord m_record;
    std::uint64_t m_written = 0;
};

/// Removes the archive that PartialFile left at \a place, even if it is in use: its user keeps a file without a name.
/// The record of its cost stays. If there was a file, the returned descriptor is the last reference to it, unless the
/// file is in use.
[[nodiscard]] UniqueFd RemovePartialFile(PartialPlace const& place);

/// Removes all unused archives in the folder and their records.
void ClearDownloadFolder(QString const& path);

} // namespace Pelnar::Engine
