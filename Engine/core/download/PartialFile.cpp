#include "Engine/core/download/PartialFile.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QUrl>

#include <array>
#include <cerrno>
#include <cstring>
#include <ctime>
#include <utility>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <sys/statvfs.h>
#include <unistd.h>

namespace Pelnar::Engine
{
namespace
{

constexpr mode_t FOLDER_MODE = 0700;
constexpr mode_t FILE_MODE = 0600;
constexpr mode_t OTHERS_CAN_WRITE = 0022;
constexpr char RECORD_ENDING[] = ".record";
constexpr char STAGED_ENDING[] = ".record.new";
constexpr char ASIDE_ENDING[] = ".aside";
/// Between opening a file and locking it somebody may have replaced it, but not again and again.
constexpr int MAX_LOCK_ATTEMPTS = 10;
constexpr std::time_t ABANDONED_SECONDS = 30 * 24 * 3600;

QString Described(int errorNumber)
{
    return QString::fromLocal8Bit(std::strerror(errorNumber));
}

/// Of a call that opens or makes something.
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

bool IsSameFile(struct stat const& a, struct stat const& b)
{
    return a.st_dev == b.st_dev && a.st_ino == b.st_ino;
}

UniqueFd OpenAt(int folder, std::string const& name, int flags)
{
    int descriptor = -1;
    do
    {
        descriptor = openat(folder, name.c_str(), flags | O_NOFOLLOW | O_CLOEXEC, FILE_MODE);
    } while (descriptor < 0 && errno == EINTR);
    return UniqueFd(descriptor);
}

UniqueFd OpenFileAt(UniqueFd const& folder, std::string const& name, int flags)
{
    // A FIFO in the file's place must not hold the process up.
    return OpenAt(folder.Get(), name, flags | O_NONBLOCK);
}

UniqueFd OpenFolderNamed(std::string const& path)
{
    return OpenAt(AT_FDCWD, path, O_RDONLY | O_DIRECTORY);
}

/// Different after every start of the system; empty when it cannot be told.
std::string SystemStart()
{
    QFile file(QStringLiteral("/proc/sys/kernel/random/boot_id"));
    return file.open(QIODevice::ReadOnly) ? file.read(64).trimmed().toStdString() : std::string();
}

std::uint64_t FreeBytes(UniqueFd const& folder)
{
    struct statvfs status
    {
    };
    return fstatvfs(folder.Get(), &status) == 0 ? std::uint64_t{status.f_bavail} * status.f_frsize : 0;
}

void RemoveNames(UniqueFd const& folder, std::string const& name)
{
    for (char const* const ending : {STAGED_ENDING, RECORD_ENDING, ""})
    {
        unlinkat(folder.Get(), (name + ending).c_str(), 0);
    }
}

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

} // namespace

PartialPlace PlaceOf(QString const& folder, QUrl const& url, std::uint64_t declaredBytes, QString const& signature)
{
    QByteArray const address = url.adjusted(QUrl::RemoveUserInfo | QUrl::RemoveFragment).toEncoded();
    // No address and no number holds a line's end, so that no two triples make the same text.
    QByteArray const text = address + '\n' + QByteArray::number(quint64{declaredBytes}) + '\n' + signature.toUtf8();
    QByteArray const name = QCryptographicHash::hash(text, QCryptographicHash::Sha256).toHex() + ".archive";
    return {QFile::encodeName(folder).toStdString(), name.toStdString(), address.toStdString(), declaredBytes};
}

PartialFile::PartialFile(PartialPlace place) : m_place(std::move(place)) {}

PartialFile::Fault PartialFile::Open()
{
    m_found = {0, m_place.declaredBytes, {}};
    if (Fault const fault = OpenFolder())
    {
        return fault;
    }
    if (Fault const fault = Lock())
    {
        return fault;
    }
    struct stat status
    {
    };
    if (fstat(m_reader.Get(), &status) != 0)
    {
        return OpenError(errno);
    }
    FoundFile const file{static_cast<std::uint64_t>(status.st_size), status.st_ino, SystemStart()};
    m_record = {m_place.url, m_place.declaredBytes, file.fileNumber, file.systemStart, 0, {}};
    if (std::optional<PartialRecord> const record = ReadRecord())
    {
        m_found.bytes = TrustedBytes(*record, file, m_place.url, m_place.declaredBytes);
        m_found.validators = record->validators;
        m_record.durableBytes = std::min<std::uint64_t>(record->durableBytes, m_found.bytes);
        m_record.validators = record->validators;
    }
    m_written = m_found.bytes;
    if (m_found.bytes == m_place.declaredBytes)
    {
        return std::nullopt; // nothing more is written
    }
    if (m_found.bytes == 0)
    {
        m_found.validators = {};
    }
    if (Fault const fault = OpenWriter())
    {
        return fault;
    }
    if (file.bytes > m_found.bytes && Retried([this] { return ftruncate(m_writer.Get(), off_t(m_found.bytes)); }) != 0)
    {
        return FailedWrite(errno);
    }
    RemoveAbandoned();
    if (Fault const fault = CheckRoom())
    {
        return fault;
    }
    // What is added from now on is added in this run of the system.
    return m_found.bytes == 0 ? std::nullopt : Record();
}

PartialFile::Fault PartialFile::OpenFolder()
{
    QString const path = QFile::decodeName(m_place.folder.c_str());
    if (mkdir(m_place.folder.c_str(), FOLDER_MODE) != 0 && errno == ENOENT)
    {
        QDir().mkpath(QFileInfo(path).path());
        mkdir(m_place.folder.c_str(), FOLDER_MODE);
    }
    m_folder = OpenFolderNamed(m_place.folder);
    if (!m_folder)
    {
        bool const isOther = errno == ENOTDIR || errno == ELOOP;
        return isOther ? MakeError(ErrorCause::DownloadFolderUnsafe, path) : OpenError(errno);
    }
    struct stat status
    {
    };
    if (fstat(m_folder.Get(), &status) != 0)
    {
        return OpenError(errno);
    }
    bool const isSafe = status.st_uid == geteuid() && (status.st_mode & OTHERS_CAN_WRITE) == 0;
    return isSafe ? std::nullopt : Fault(MakeError(ErrorCause::DownloadFolderUnsafe, path));
}

PartialFile::Fault PartialFile::OpenReader()
{
    for (int attempt = 0; attempt < MAX_LOCK_ATTEMPTS; ++attempt)
    {
        m_reader = OpenFileAt(m_folder, m_place.name, O_RDONLY | O_CREAT);
        struct stat status
        {
        };
        if (m_reader && fstat(m_reader.Get(), &status) == 0 && IsOurs(status))
        {
            return std::nullopt;
        }
        if (!m_reader && (errno == EMFILE || errno == ENFILE || errno == ENOMEM))
        {
            return OpenError(errno);
        }
        if (!m_reader && (errno == ENOSPC || errno == EDQUOT))
        {
            return RoomError(errno);
        }
        if (Fault const fault = MakeWay())
        {
            return fault;
        }
    }
    return MakeError(ErrorCause::DownloadFolderUnusable, Described(EEXIST));
}

PartialFile::Fault PartialFile::MakeWay()
{
    if (unlinkat(m_folder.Get(), m_place.name.c_str(), 0) == 0 || errno == ENOENT)
    {
        return std::nullopt;
    }
    bool const isFolder = errno == EISDIR;
    // Deliberate: a folder that somebody put here is moved aside, since what is in it is not ours to remove.
    if (isFolder && renameat2(m_folder.Get(), m_place.name.c_str(), m_folder.Get(),
                              (m_place.name + ASIDE_ENDING).c_str(), RENAME_NOREPLACE) == 0)
    {
        return std::nullopt;
    }
    return OpenError(errno);
}

PartialFile::Fault PartialFile::Lock()
{
    for (int attempt = 0; attempt < MAX_LOCK_ATTEMPTS; ++attempt)
    {
        if (Fault const fault = OpenReader())
        {
            return fault;
        }
        if (Retried([this] { return flock(m_reader.Get(), LOCK_EX | LOCK_NB); }) != 0)
        {
            if (errno == EWOULDBLOCK)
            {
                return MakeError(ErrorCause::DownloadBusy);
            }
            // Deliberate: some network file systems lock no file that is opened for reading. There two processes may
            // write the same file; then the archive's signature does not match, and it is fetched again.
            if (errno != EBADF && errno != ENOLCK && errno != EOPNOTSUPP && errno != EINVAL)
            {
                return OpenError(errno);
            }
        }
        struct stat locked
        {
        };
        struct stat named
        {
        };
        if (fstat(m_reader.Get(), &locked) == 0 &&
            fstatat(m_folder.Get(), m_place.name.c_str(), &named, AT_SYMLINK_NOFOLLOW) == 0 &&
            IsSameFile(locked, named))
        {
            return std::nullopt;
        }
    }
    return MakeError(ErrorCause::DownloadBusy);
}

PartialFile::Fault PartialFile::OpenWriter()
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
        return OpenError(errno);
    }
    return IsSameFile(reader, writer) ? std::nullopt : Fault(MakeError(ErrorCause::DownloadBusy));
}

PartialFile::Fault PartialFile::CheckRoom()
{
    std::uint64_t const needed = m_place.declaredBytes - m_found.bytes;
    std::uint64_t const free = FreeBytes(m_folder);
    return free < needed ? Fault(MakeRoomError(ErrorCause::DownloadNoRoom, needed, free)) : std::nullopt;
}

void PartialFile::RemoveAbandoned()
{
    QDir const folder(QFile::decodeName(m_place.folder.c_str()));
    std::time_t const now = std::time(nullptr);
    for (QString const& name : folder.entryList({QStringLiteral("*.archive")}, QDir::Files))
    {
        std::string const other = QFile::encodeName(name).toStdString();
        if (other.size() != m_place.name.size() || other == m_place.name)
        {
            continue;
        }
        UniqueFd const file = OpenFileAt(m_folder, other, O_RDONLY);
        struct stat status
        {
        };
        bool const isOld =
            file && fstat(file.Get(), &status) == 0 && IsOurs(status) && now - status.st_mtime > ABANDONED_SECONDS;
        if (isOld && Retried([&file] { return flock(file.Get(), LOCK_EX | LOCK_NB); }) == 0)
        {
            RemoveNames(m_folder, other);
        }
    }
}

std::optional<PartialRecord> PartialFile::ReadRecord() const
{
    UniqueFd const file = OpenFileAt(m_folder, m_place.name + RECORD_ENDING, O_RDONLY);
    struct stat status
    {
    };
    if (!file || fstat(file.Get(), &status) != 0 || !IsOurs(status))
    {
        return std::nullopt;
    }
    std::array<char, MAX_PARTIAL_RECORD_BYTES + 1> bytes{};
    std::size_t size = 0;
    for (;;)
    {
        ssize_t const count = read(file.Get(), bytes.data() + size, bytes.size() - size);
        if (count < 0 && errno == EINTR)
        {
            continue;
        }
        if (count <= 0)
        {
            return count == 0 ? DecodePartialRecord({bytes.data(), size}) : std::nullopt;
        }
        size += static_cast<std::size_t>(count);
    }
}

PartialFile::Fault PartialFile::Restart(Validators const& validators)
{
    // The record must never name a version of which the file still holds bytes of another.
    if (Retried([this] { return ftruncate(m_writer.Get(), 0); }) != 0 || lseek(m_writer.Get(), 0, SEEK_SET) != 0)
    {
        return FailedWrite(errno);
    }
    m_written = 0;
    m_record.durableBytes = 0;
    m_record.validators = validators;
    return Record();
}

PartialFile::Fault PartialFile::Append(Bytes bytes)
{
    while (!bytes.empty())
    {
        ssize_t const count = pwrite(m_writer.Get(), bytes.data(), bytes.size(), static_cast<off_t>(m_written));
        if (count < 0 && errno != EINTR)
        {
            return FailedWrite(errno);
        }
        std::size_t const written = count < 0 ? 0 : static_cast<std::size_t>(count);
        bytes.remove_prefix(written);
        m_written += written;
    }
    return std::nullopt;
}

PartialFile::Fault PartialFile::SyncBytes()
{
    std::uint64_t const written = m_written;
    if (Retried([this] { return fdatasync(m_writer.Get()); }) != 0)
    {
        return FailedWrite(errno);
    }
    m_record.durableBytes = written;
    return std::nullopt;
}

PartialFile::Fault PartialFile::StageRecord()
{
    std::string const name = m_place.name + STAGED_ENDING;
    unlinkat(m_folder.Get(), name.c_str(), 0);
    m_staged = OpenFileAt(m_folder, name, O_WRONLY | O_CREAT | O_EXCL);
    std::string const bytes = EncodePartialRecord(m_record);
    Bytes const all(reinterpret_cast<std::uint8_t const*>(bytes.data()), bytes.size());
    return m_staged && WriteAll(m_staged.Get(), all) ? std::nullopt : Fault(FailedWrite(errno));
}

PartialFile::Fault PartialFile::SyncRecord()
{
    return Retried([this] { return fdatasync(m_staged.Get()); }) == 0 ? std::nullopt : Fault(FailedWrite(errno));
}

PartialFile::Fault PartialFile::Record()
{
    Fault const fault = StageRecord();
    return fault ? fault : PublishRecord();
}

PartialFile::Fault PartialFile::PublishRecord()
{
    std::string const staged = m_place.name + STAGED_ENDING;
    std::string const name = m_place.name + RECORD_ENDING;
    return renameat(m_folder.Get(), staged.c_str(), m_folder.Get(), name.c_str()) == 0 ? std::nullopt
                                                                                       : Fault(FailedWrite(errno));
}

PartialFile::Fault PartialFile::SyncFolder()
{
    return Retried([this] { return fsync(m_folder.Get()); }) == 0 ? std::nullopt : Fault(FailedWrite(errno));
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

void PartialFile::Remove()
{
    // An open file keeps its blocks, whatever its names.
    if (m_writer && ftruncate(m_writer.Get(), 0) != 0)
    {
        return; // a disk that refuses even this gives nothing back anyway
    }
    RemoveNames(m_folder, m_place.name);
}

EngineError PartialFile::RoomError(int errorNumber) const
{
    ErrorCause const cause = errorNumber == EDQUOT ? ErrorCause::DownloadQuotaReached : ErrorCause::DownloadNoRoom;
    return MakeRoomError(cause, m_place.declaredBytes, FreeBytes(m_folder));
}

EngineError PartialFile::FailedWrite(int errorNumber)
{
    switch (errorNumber)
    {
    case EMFILE:
    case ENFILE:
    case ENOMEM:
        return MakeError(ErrorCause::DownloadSystemBusy, Described(errorNumber));
    }
    // A full disk is left as it was found, and what a failing one holds is not to be trusted.
    Remove();
    switch (errorNumber)
    {
    case ENOSPC:
    case EDQUOT:
        return RoomError(errorNumber);
    case EFBIG:
        return MakeError(ErrorCause::DownloadFileTooLarge);
    }
    return MakeError(ErrorCause::DownloadDiskFailed, Described(errorNumber));
}

UniqueFd RemovePartialFile(PartialPlace const& place)
{
    UniqueFd const folder = OpenFolderNamed(place.folder);
    UniqueFd file = folder ? OpenFileAt(folder, place.name, O_RDONLY) : UniqueFd();
    if (folder)
    {
        RemoveNames(folder, place.name);
    }
    return file;
}

} // namespace Pelnar::Engine
