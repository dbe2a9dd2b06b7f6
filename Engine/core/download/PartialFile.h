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

    /// Makes the folder and the file if they are missing, locks the file, and cuts it to what can be trusted. Refuses a
    /// disk without room for the rest.
    Fault Open();
    /// What was there. REQUIRES: opened.
    PartialArchive const& Found() const { return m_found; }

    /// Forgets every byte; from now on bytes of the version with \a validators come.
    Fault Restart(Validators const& validators);
    Fault Append(Bytes bytes);

    /// The steps that make what has been written so far durable and then say so, in this order. Those that sync may
    /// take long; they change nothing, so that nobody has to wait for them before the file is opened anew.
    Fault SyncBytes();
    Fault StageRecord();
    Fault SyncRecord();
    Fault PublishRecord();
    Fault SyncFolder();

    /// Ends the writing; the descriptor can only be read from, and keeps the lock.
    UniqueFd Finish();
    /// Lets another process, or another download of this one, have the file.
    void Unlock();
    /// Removes file and record, and gives the disk's blocks back.
    void Remove();

private:
    Fault OpenFolder();
    Fault OpenReader();
    Fault Lock();
    Fault OpenWriter();
    Fault MakeWay();
    Fault CheckRoom();
    /// Removes what other downloads left here long ago and nobody has open: of versions that nobody wants any more.
    void RemoveAbandoned();
    std::optional<PartialRecord> ReadRecord() const;
    Fault Record();
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

/// Removes what PartialFile left at \a place, in use or not: who uses it keeps a file without a name. The answer, if
/// there was a file, is the last hold on it, unless somebody uses it.
[[nodiscard]] UniqueFd RemovePartialFile(PartialPlace const& place);

} // namespace Pelnar::Engine
