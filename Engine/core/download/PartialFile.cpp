#include "Engine/core/download/PartialFile.h"

#include "Engine/core/base/PathText.h"
#include "Engine/core/download/DownloadFolder_p.h"
#include "Engine/core/faults/UpdateFault.h"
#include "Engine/core/helper/NoteFile.h"

#include <QCryptographicHash>
#include <QFile>
#include <QUrl>

#include <cerrno>
#include <ctime>
#include <utility>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace Pelnar::Engine
{
namespace
{

/// Between opening and locking, another process may have replaced the file, but not repeatedly.
constexpr int MAX_LOCK_ATTEMPTS = 10;

/// Different after every boot; empty if it cannot be read.
std::string SystemStart()
{
    QFile file(QStringLiteral("/proc/sys/kernel/random/boot_id"));
    return file.open(QIODevice::ReadOnly) ? file.read(64).trimmed().toStdString() : std::string();
}

/// True for an error of the system that says nothing about the disk.
bool IsScarce(int errorNumber)
{
    return errorNumber == EMFILE || errorNumber == ENFILE || errorNumber == ENOMEM;
}

/// \a record without costs that are too old to count.
std::optional<PartialRecord> Recent(std::optional<PartialRecord> record, std::time_t written)
{
    if (record && std::time(nullptr) - written > ABANDONED_SECONDS)
    {
        record->spent = {};
    }
    return record;
}

} // namespace

PartialPlace PlaceOf(QString const& folder, QUrl const& url, std::uint64_t declaredBytes, QString const& signature)
{
    QByteArray const address = url.adjusted(QUrl::RemoveUserInfo | QUrl::RemoveFragment).toEncoded();
    // Addresses and numbers contain no line feed, so two different triples never give the same text.
    QByteArray const text = address + '\n' + QByteArray::number(quint64{declaredBytes}) + '\n' + signature.toUtf8();
    QByteArray const name = QCryptographicHash::hash(text, QCryptographicHash::Sha256).toHex() + ARCHIVE_ENDING;
    return {PathBytes(folder), name.toStdString(), address.toStdString(), declaredBytes};
}

PartialFile::PartialFile(PartialPlace place) : m_place(std::move(place)) {}

Result<void> PartialFile::Open()
{
    m_found = {0, m_place.declaredBytes, {}};
    if (Result<void> const locked = OpenFolder().and_then([this] { return Lock(); }); !locked)
    {
        return locked;
    }
    struct stat status
    {
    };
    if (fstat(m_reader.Get(), &status) != 0)
    {
        return Failure(OpenError(errno));
    }
    Result<std::optional<PartialRecord>> const record = ReadRecord();
    if (!record)
    {
        return Failure(record.error());
    }
    FoundFile const file{static_cast<std::uint64_t>(status.st_size), status.st_ino, SystemStart()};
    m_record = {m_place.url, m_place.declaredBytes, file.fileNumber, file.systemStart, 0, {}, {}};
    if (*record)
    {
        TakeRecord(**record, file);
    }
    m_written = m_found.bytes;
    RemoveOtherArchives(m_folder, m_place.name);
    if (m_found.bytes == m_place.declaredBytes)
    {
        return {}; // no further write
    }
    if (Result<void> const done = OpenWriter(); !done)
    {
        return done;
    }
    if (file.bytes > m_found.bytes && Retried([this] { return ftruncate(m_writer.Get(), off_t(m_found.bytes)); }) != 0)
    {
        return Failure(FailedWrite(errno));
    }
    return CheckRoom();
}

void PartialFile::TakeRecord(PartialRecord const& record, FoundFile const& file)
{
    m_found.bytes = TrustedBytes(record, file, m_place.url, m_place.declaredBytes);
    m_record.spent = record.spent;
    // A killed program had no time to record all bytes that it received.
    m_record.spent.receivedBytes = std::max<std::uint64_t>(record.spent.receivedBytes, m_found.bytes);
    if (m_found.bytes > 0)
    {
        m_found.validators = record.validators;
        m_record.durableBytes = std::min<std::uint64_t>(record.durableBytes, m_found.bytes);
        m_record.validators = record.validators;
    }
}

Result<void> PartialFile::OpenFolder()
{
    Result<UniqueFd> folder = OpenDownloadFolder(m_place.folder);
    if (!folder)
    {
        return Failure(folder.error());
    }
    m_folder = *std::move(folder);
    return {};
}

Result<void> PartialFile::OpenReader()
{
    for (int attempt = 0; attempt < MAX_LOCK_ATTEMPTS; ++attempt)
    {
        m_reader = OpenFileAt(m_folder, m_place.name, O_RDONLY | O_CREAT);
        struct stat status
        {
        };
        if (m_reader && fstat(m_reader.Get(), &status) == 0 && IsOurs(status))
        {
            return {};
        }
        if (!m_reader && IsScarce(errno))
        {
            return Failure(OpenError(errno));
        }
        if (!m_reader && (errno == ENOSPC || errno == EDQUOT))
        {
            return Failure(RoomError(errno));
        }
        if (Result<void> const done = MakeWay(m_place.name); !done)
        {
            return done;
        }
    }
    return Failure(ErrorCause::DownloadFolderUnusable, Described(EEXIST));
}

Result<void> PartialFile::MakeWay(std::string const& name)
{
    try
    {
        FreeName(m_folder.Get(), name);
        return {};
    }
    catch (UpdateRefusal const& refusal)
    {
        return Failure(OpenError(refusal.ErrorNumber()));
    }
}

Result<void> PartialFile::Lock()
{
    for (int attempt = 0; attempt < MAX_LOCK_ATTEMPTS; ++attempt)
    {
        if (Result<void> const done = OpenReader(); !done)
        {
            return done;
        }
        if (Retried([this] { return flock(m_reader.Get(), LOCK_EX | LOCK_NB); }) != 0)
        {
            if (errno == EWOULDBLOCK)
            {
                return Failure(ErrorCause::DownloadBusy);
            }
            // Deliberate: some network file systems cannot lock a file that is opened for reading. There, two processes
            // may write the same file. Then the archive's signature does not match, and the archive is fetched again.
            if (errno != EBADF && errno != ENOLCK && errno != EOPNOTSUPP && errno != EINVAL && errno != ENOSYS)
            {
                return Failure(OpenError(errno));
            }
        }
        if (IsAt(m_reader.Get(), m_folder.Get(), m_place.name))
        {
            return {};
        }
    }
    return Failure(ErrorCause::DownloadBusy);
}

Result<void> PartialFile::OpenWriter()
{
    m_writer = OpenFileAt(m_folder, m_place.name, O_WRONLY);
    struct stat reader
    {
    };
    struct stat writer
    {
    };
    if (!m_writer || fstat(m_reader.Get(), &reader) != 0 || fstat(m_writer.Get(), &writer) != 0)
    {
        return Failure(OpenError(errno));
    }
    bool const isSame = reader.st_dev == writer.st_dev && reader.st_ino == writer.st_ino;
    return isSame ? Result<void>() : Failure(ErrorCause::DownloadBusy);
}

Result<void> PartialFile::CheckRoom() const
{
    std::uint64_t const missing = m_place.declaredBytes - m_written;
    DiskRoom const room = RoomIn(m_folder);
    return room.UsableBytes() < missing
               ? Failure(MakeRoomError(ErrorCause::DownloadNoRoom, missing + room.reservedBytes, room.freeBytes))
               : Result<void>();
}

Result<std::optional<PartialRecord>> PartialFile::ReadRecord() const
{
    UniqueFd const file = OpenFileAt(m_folder, m_place.name + RECORD_ENDING, O_RDONLY);
    if (!file && IsScarce(errno))
    {
        return Failure(OpenError(errno));
    }
    struct stat status
    {
    };
    if (!file || fstat(file.Get(), &status) != 0 || !IsOurs(status))
    {
        return std::optional<PartialRecord>();
    }
    std::optional<std::string> const bytes = ReadStart(file.Get(), MAX_PARTIAL_RECORD_BYTES + 1);
    return bytes ? Recent(DecodePartialRecord(*bytes), status.st_mtime) : std::optional<PartialRecord>();
}

Result<void> PartialFile::Restart(Validators const& validators)
{
    // The record must never name a version while the file still has bytes of another one.
    if (Retried([this] { return ftruncate(m_writer.Get(), 0); }) != 0 || lseek(m_writer.Get(), 0, SEEK_SET) != 0)
    {
        return Failure(FailedWrite(errno));
    }
    m_written = 0;
    m_record.durableBytes = 0;
    m_record.validators = validators;
    return {};
}

Result<void> PartialFile::Append(Bytes bytes)
{
    // Other programs write to the disk too.
    if (RoomIn(m_folder).UsableBytes() < bytes.size())
    {
        return Failure(FailedWrite(ENOSPC));
    }
    if (!WriteAllAt(m_writer.Get(), m_written, bytes))
    {
        return Failure(FailedWrite(errno));
    }
    m_written += bytes.size();
    return {};
}

Result<void> PartialFile::SyncBytes()
{
    std::uint64_t const written = m_written;
    if (Retried([this] { return fdatasync(m_writer.Get()); }) != 0)
    {
        // After any failure the kernel may take pages for written that never reached the disk.
        int const errorNumber = errno;
        Remove();
        return Failure(MakeSystemError(errorNumber));
    }
    m_record.durableBytes = written;
    return {};
}

Result<void> PartialFile::StageRecord()
{
    std::string const name = m_place.name + STAGED_ENDING;
    if (Result<void> const done = MakeWay(name); !done)
    {
        return done;
    }
    m_staged = OpenFileAt(m_folder, name, O_WRONLY | O_CREAT | O_EXCL);
    std::string const bytes = EncodePartialRecord(m_record);
    return m_staged && WriteAll(m_staged.Get(), View(bytes)) ? Result<void>() : Failure(FailedWrite(errno));
}

Result<void> PartialFile::SyncRecord()
{
    if (m_record.durableBytes == 0)
    {
        return {}; // losing it loses only a count
    }
    return Retried([this] { return fdatasync(m_staged.Get()); }) == 0 ? Result<void>() : Failure(FailedWrite(errno));
}

Result<void> PartialFile::PublishRecord()
{
    std::string const staged = m_place.name + STAGED_ENDING;
    std::string const name = m_place.name + RECORD_ENDING;
    try
    {
        return RenameOver(m_folder.Get(), staged, name) ? Result<void>() : Failure(FailedWrite(errno));
    }
    catch (UpdateRefusal const& refusal)
    {
        return Failure(FailedWrite(refusal.ErrorNumber()));
    }
}

Result<void> PartialFile::SyncFolder()
{
    if (m_record.durableBytes == 0)
    {
        return {};
    }
    return Retried([this] { return fsync(m_folder.Get()); }) == 0 ? Result<void>() : Failure(FailedWrite(errno));
}

UniqueFd PartialFile::Finish()
{
    m_writer = UniqueFd();
    return std::move(m_reader);
}

void PartialFile::Unlock()
{
    if (m_reader)
    {
        flock(m_reader.Get(), LOCK_UN);
    }
}

void PartialFile::RemoveArchive()
{
    Engine::RemoveArchive(m_folder, m_place.name, ArchiveRecord::Kept);
}

void PartialFile::Remove()
{
    if (!HoldsItsName())
    {
        return;
    }
    // An open file keeps its blocks even without names. A failing disk may refuse this and still remove the names.
    static_cast<void>(!m_writer || ftruncate(m_writer.Get(), 0) == 0);
    Engine::RemoveArchive(m_folder, m_place.name, ArchiveRecord::Removed);
}

bool PartialFile::HoldsItsName() const
{
    // Fails only if it was unlocked and another process or another download has the file now.
    bool const isTaken =
        Retried([this] { return flock(m_reader.Get(), LOCK_EX | LOCK_NB); }) != 0 && errno == EWOULDBLOCK;
    return !isTaken && IsAt(m_reader.Get(), m_folder.Get(), m_place.name);
}

EngineError PartialFile::RoomError(int errorNumber) const
{
    ErrorCause const cause = errorNumber == EDQUOT ? ErrorCause::DownloadQuotaReached : ErrorCause::DownloadNoRoom;
    DiskRoom const room = RoomIn(m_folder);
    return MakeRoomError(cause, m_place.declaredBytes + room.reservedBytes, room.freeBytes);
}

EngineError PartialFile::MakeSystemError(int errorNumber) const
{
    switch (errorNumber)
    {
    case EMFILE:
    case ENFILE:
    case ENOMEM:
        return MakeError(ErrorCause::DownloadSystemBusy, Described(errorNumber));
    case ENOSPC:
    case EDQUOT:
        return RoomError(errorNumber);
    case EFBIG:
        return MakeError(ErrorCause::DownloadFileTooLarge);
    }
    return MakeError(ErrorCause::DownloadDiskFailed, Described(errorNumber));
}

EngineError PartialFile::FailedWrite(int errorNumber)
{
    // A full disk gets its space back, and the content of a failing disk is not reliable.
    if (!IsScarce(errorNumber))
    {
        Remove();
    }
    return MakeSystemError(errorNumber);
}

UniqueFd RemovePartialFile(PartialPlace const& place)
{
    UniqueFd const folder = OpenFolder(AT_FDCWD, place.folder);
    UniqueFd file = folder ? OpenFileAt(folder, place.name, O_RDONLY) : UniqueFd();
    if (folder)
    {
        RemoveArchive(folder, place.name, ArchiveRecord::Kept);
    }
    return file;
}

void ClearDownloadFolder(QString const& path)
{
    if (UniqueFd const folder = Engine::OpenFolder(AT_FDCWD, PathBytes(path)))
    {
        RemoveAllArchives(folder);
    }
}

} // namespace Pelnar::Engine
