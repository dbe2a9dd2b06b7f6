// PartialFile.h: the file in which an archive grows, and the record beside it: opened without following anything that
// somebody put there, locked against other processes, cut to what can be trusted.
// Thread: one at a time. Ownership: its descriptors, but for the one that Finish() hands over.
#pragma once

#include "Engine/core/EngineError.h"
#include "Engine/core/delta/TreeAccess.h"
#include "Engine/core/download/PartialRecord.h"

#include <QString>

#include <optional>
#include <string>

namespace Pelnar::Engine
{

/// Where an archive belongs.
struct PartialPlace
{
    std::string folder;
    std::string name; ///< of the archive's file; the record's is longer
    std::string url;  ///< without user name and password
    std::uint64_t declaredBytes = 0;
};

/// The same archive has the same place in every run: its name is made of \a url, \a declaredBytes and \a signature.
PartialPlace PlaceOf(QString const& folder, QUrl const& url, std::uint64_t declaredBytes, QString const& signature);

/// Every operation answers with what went wrong; nothing when all is well.
class PartialFile
{
public:
    using Fault = std::optional<EngineError>;

    explicit PartialFile(PartialPlace place);

    /// Makes the folder and the file if they are missing, locks the file, cuts it to what can be trusted, and removes
    /// the application's other archives. Refuses a disk without room for the rest and for a share that is left free.
    Fault Open();
    /// What was there. REQUIRES: opened.
    PartialArchive const& Found() const { return m_found; }
    /// What the archive has cost, as far as it was told. REQUIRES: opened.
    DownloadSpending const& Spent() const { return m_record.spent; }
    void SetSpent(DownloadSpending const& spent) { m_record.spent = spent; }

    /// Forgets every byte; from now on bytes of the version with \a validators come.
    Fault Restart(Validators const& validators);
    /// REQUIRES: the record was published after Open() and after every Restart().
    Fault Append(Bytes bytes);

    /// The steps that make what has been written so far durable and then say so, in this order. Those that sync may
    /// take long; they change nothing, so that nobody has to wait for them before the file is opened again. Without the
    /// first, the others tell what is known besides.
    Fault SyncBytes();
    Fault StageRecord();
    Fault SyncRecord();
    Fault PublishRecord();
    Fault SyncFolder();

    /// Ends the writing; the descriptor can only be read from, and keeps the lock.
    UniqueFd Finish();
    /// Lets another process, or another download of this one, have the file.
    void Unlock();
    /// Removes the file and leaves the record, which tells what the archive has cost. REQUIRES: restarted.
    void RemoveArchive();

private:
    Fault OpenFolder();
    Fault OpenReader();
    Fault Lock();
    Fault OpenWriter();
    /// Frees the name for a file of ours.
    Fault MakeWay(std::string const& name);
    Fault CheckRoom() const;
    std::optional<PartialRecord> ReadRecord() const;
    void TakeRecord(PartialRecord const& record, FoundFile const& file);
    /// Removes file and record, and gives the disk's blocks back.
    void Remove();
    EngineError RoomError(int errorNumber) const;
    /// What \a errorNumber, of a call that changes the file or the record, means; leaves nothing behind on a disk that
    /// is full or fails.
    EngineError FailedWrite(int errorNumber);

    PartialPlace m_place;
    UniqueFd m_folder;
    UniqueFd m_reader; ///< holds the lock; nobody who only reads can break a later reader's lease
    UniqueFd m_writer;
    UniqueFd m_staged; ///< the record that is to replace the one before
    PartialArchive m_found;
    PartialRecord m_record;
    std::uint64_t m_written = 0;
};

/// Removes the archive that PartialFile left at \a place, in use or not: who uses it keeps a file without a name. The
/// record of what it cost stays. The answer, if there was a file, is the last hold on it, unless somebody uses it.
[[nodiscard]] UniqueFd RemovePartialFile(PartialPlace const& place);

/// Removes all archives in the folder and all that is known of them, unless somebody uses them.
void ClearDownloadFolder(QString const& path);

} // namespace Pelnar::Engine
