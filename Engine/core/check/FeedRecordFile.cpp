#include "Engine/core/check/FeedRecordFile.h"

#include "Engine/core/base/Descriptor.h"
#include "Engine/core/base/FieldCodec.h"
#include "Engine/core/base/PathText.h"
#include "Engine/core/faults/EngineError.h"
#include "Engine/core/helper/NoteFile.h"

#include <QFileInfo>
#include <QLockFile>
#include <QUrl>

#include <glog/logging.h>

#include <algorithm>
#include <limits>

namespace Pelnar::Engine
{
namespace
{

constexpr std::string_view MAGIC = "PELNARF1";
constexpr std::string_view MAGIC_WITH_KEYS = "PELNARF2"; ///< of a bundle with a root key
constexpr int LONGEST_WAIT_MS = 500;

/// No feed can have arrived before 1970.
std::uint64_t NumberOf(QDateTime const& time)
{
    return time.isValid() ? static_cast<std::uint64_t>(std::max<qint64>(0, time.toSecsSinceEpoch())) : 0;
}

QDateTime TimeOf(std::uint64_t seconds)
{
    // The last second of the year 9999.
    constexpr std::uint64_t LATEST = 253402300799;
    return seconds == 0 || seconds > LATEST ? QDateTime()
                                            : QDateTime::fromSecsSinceEpoch(static_cast<qint64>(seconds), Qt::UTC);
}

std::string FolderOf(QString const& path)
{
    return PathBytes(QFileInfo(path).path());
}

std::string NameOf(QString const& path)
{
    return PathBytes(QFileInfo(path).fileName());
}

} // namespace

std::string EncodeFeedRecord(FeedRecord const& record)
{
    bool const hasKeys = record.keySerial != 0 || !record.serialSigner.empty();
    FieldWriter writer(hasKeys ? MAGIC_WITH_KEYS : MAGIC);
    writer.Text(record.address.toStdString());
    writer.Text(record.digest.toStdString());
    writer.Number(NumberOf(record.firstSeen));
    writer.Number(NumberOf(record.lastSeen));
    writer.Number(static_cast<std::uint64_t>(record.serial));
    if (hasKeys)
    {
        writer.Text(record.serialSigner);
        writer.Number(static_cast<std::uint64_t>(record.keySerial));
    }
    return writer.Finish();
}

std::optional<FeedRecord> DecodeFeedRecord(std::string_view bytes)
{
    bool const hasKeys = bytes.substr(0, MAGIC_WITH_KEYS.size()) == MAGIC_WITH_KEYS;
    FieldReader reader(bytes, hasKeys ? MAGIC_WITH_KEYS : MAGIC);
    FeedRecord record;
    record.address = QString::fromStdString(reader.Text());
    record.digest = QString::fromStdString(reader.Text());
    record.firstSeen = TimeOf(reader.Number());
    record.lastSeen = TimeOf(reader.Number());
    std::uint64_t const serial = reader.Number();
    record.serialSigner = hasKeys ? reader.Text() : std::string();
    std::uint64_t const keySerial = hasKeys ? reader.Number() : 0;
    constexpr auto HIGHEST = static_cast<std::uint64_t>(std::numeric_limits<qint64>::max());
    if (!reader.IsWhole() || serial > HIGHEST || keySerial > HIGHEST)
    {
        return std::nullopt;
    }
    record.serial = static_cast<qint64>(serial);
    record.keySerial = static_cast<qint64>(keySerial);
    return record;
}

QString FeedRecordPath(QString const& folder, QString const& bundleIdentifier)
{
    // Encoded, so that an identifier with a slash names no other folder.
    return folder + QStringLiteral("/PelnarFeeds/") +
           QString::fromLatin1(QUrl::toPercentEncoding(bundleIdentifier, {}, ".")) + QStringLiteral(".feed");
}

std::optional<FeedRecord> ReadFeedRecordFile(QString const& path)
{
    try
    {
        UniqueFd const folder = path.isEmpty() ? UniqueFd() : OpenOwnFolder(FolderOf(path));
        return folder ? DecodeFeedRecord(ReadNote(folder.Get(), NameOf(path))) : std::nullopt;
    }
    catch (UpdateRefusal const&)
    {
        return std::nullopt;
    }
}

bool KeepFeedRecordFile(QString const& path, FeedRecord const& earlier, FeedRecord const& ours)
{
    UniqueFd const folder = path.isEmpty() ? UniqueFd() : OpenPrivateFolder(FolderOf(path));
    if (!folder)
    {
        LOG_IF(WARNING, !path.isEmpty()) << "The record of the feed could not be saved in " << path.toStdString()
                                         << ": the folder cannot be used"; // why there is no path is told elsewhere
        return false;
    }
    // No other process of this user may write between reading and writing. A hanging process cannot block this one.
    QFileInfo const file(path);
    QLockFile lock(PathForQt(folder.Get(), file.path()) + QLatin1Char('/') + file.fileName() + QStringLiteral(".lock"));
    LOG_IF(WARNING, !lock.tryLock(LONGEST_WAIT_MS))
        << "The record of the feed is stored without its lock; another process may overwrite it";
    FeedRecord const stored = ReadFeedRecordFile(path).value_or(earlier);
    try
    {
        WriteNote(folder.Get(), NameOf(path), EncodeFeedRecord(FeedRecordToKeep(stored, ours)));
        return true;
    }
    catch (UpdateRefusal const& refusal)
    {
        LOG(WARNING) << "The record of the feed could not be saved in " << path.toStdString() << ": "
                     << MakeFaultError(refusal.Fault(), refusal.ErrorNumber()).detail.toStdString();
        return false;
    }
}

} // namespace Pelnar::Engine
