#include "Engine/core/check/KeptFeedFile.h"

#include "Engine/core/base/Descriptor.h"
#include "Engine/core/base/FieldCodec.h"
#include "Engine/core/base/PathText.h"
#include "Engine/core/faults/EngineError.h"
#include "Engine/core/helper/NoteFile.h"

#include <QCryptographicHash>
#include <QLockFile>

#include <glog/logging.h>

#include <limits>

namespace Pelnar::Engine
{
namespace
{

constexpr std::string_view MAGIC = "PELNARK1";
constexpr char NAME[] = "kept.feed";
constexpr int LONGEST_WAIT_MS = 500;
constexpr std::size_t DIGEST_BYTES = 32;
/// More than all fields except the feed's bytes can take.
constexpr qint64 MAX_OTHER_BYTES = 8 * 1024;

std::string DigestOf(std::string_view bytes)
{
    QCryptographicHash hash(QCryptographicHash::Sha256);
    hash.addData(bytes.data(), static_cast<int>(bytes.size()));
    return hash.result().toStdString();
}

QByteArray BytesOf(std::string const& text)
{
    return QByteArray(text.data(), static_cast<int>(text.size()));
}

std::optional<AddressReach> ReachFrom(std::uint64_t number)
{
    for (AddressReach const reach : {AddressReach::Network, AddressReach::Link, AddressReach::ThisComputer})
    {
        if (number == static_cast<std::uint64_t>(reach))
        {
            return reach;
        }
    }
    return std::nullopt;
}

/// Throws UpdateRefusal.
void Write(FeedFolder const& place, UniqueFd const& folder, std::optional<KeptFeed> const& feed)
{
    if (!feed)
    {
        RemoveNote(folder.Get(), NAME);
        return;
    }
    try
    {
        WriteNote(folder.Get(), NAME, EncodeKeptFeed(*feed, place.bundleIdentifier));
    }
    catch (UpdateRefusal const&)
    {
        // A full disk gets its space back, and the previous feed is no longer useful.
        RemoveNote(folder.Get(), NAME);
        throw;
    }
}

} // namespace

std::string EncodeKeptFeed(KeptFeed const& feed, QString const& bundleIdentifier)
{
    FieldWriter writer(MAGIC);
    writer.Text(bundleIdentifier.toStdString());
    writer.Text(feed.place.toStdString());
    writer.Number(static_cast<std::uint64_t>(feed.reach));
    writer.Text(feed.validators.entityTag.toStdString());
    writer.Text(feed.validators.lastModified.toStdString());
    writer.Number(static_cast<std::uint64_t>(feed.cameAt));
    writer.Text(std::string_view(feed.bytes.constData(), static_cast<std::size_t>(feed.bytes.size())));
    std::string bytes = writer.Finish();
    return bytes += DigestOf(bytes);
}

std::optional<KeptFeed> DecodeKeptFeed(std::string_view bytes, QString const& bundleIdentifier, qint64 maxBytes)
{
    if (bytes.size() < DIGEST_BYTES || static_cast<qint64>(bytes.size()) > maxBytes + MAX_OTHER_BYTES)
    {
        return std::nullopt;
    }
    std::string_view const content = bytes.substr(0, bytes.size() - DIGEST_BYTES);
    FieldReader reader(content, MAGIC);
    bool const isOurs = reader.Text() == bundleIdentifier.toStdString();
    KeptFeed feed;
    feed.place = BytesOf(reader.Text());
    std::optional<AddressReach> const reach = ReachFrom(reader.Number());
    feed.validators.entityTag = BytesOf(reader.Text());
    feed.validators.lastModified = BytesOf(reader.Text());
    std::uint64_t const cameAt = reader.Number();
    std::string const kept = reader.Blob();
    bool const isReadable = reader.IsWhole() && reach && AreUsableForFeed(feed.validators) &&
                            cameAt <= static_cast<std::uint64_t>(std::numeric_limits<qint64>::max()) &&
                            static_cast<qint64>(kept.size()) <= maxBytes;
    if (!isReadable || !isOurs || bytes.substr(content.size()) != DigestOf(content))
    {
        return std::nullopt;
    }
    feed.reach = *reach;
    feed.cameAt = static_cast<qint64>(cameAt);
    feed.bytes = BytesOf(kept);
    return feed;
}

std::optional<KeptFeed> ReadKeptFeedFile(FeedFolder const& folder, qint64 maxBytes)
{
    try
    {
        UniqueFd const descriptor = OpenOwnFolder(PathBytes(folder.path));
        // Reads one byte more than allowed, to detect a longer file.
        auto const most = static_cast<std::size_t>(maxBytes + MAX_OTHER_BYTES + 1);
        return descriptor ? DecodeKeptFeed(ReadNote(descriptor.Get(), NAME, most), folder.bundleIdentifier, maxBytes)
                          : std::nullopt;
    }
    catch (UpdateRefusal const&)
    {
        return std::nullopt;
    }
}

bool WriteKeptFeedFile(FeedFolder const& folder, std::optional<KeptFeed> const& feed)
{
    std::string const shownPath = folder.path.toStdString();
    UniqueFd const descriptor = OpenPrivateFolder(PathBytes(folder.path));
    if (!descriptor)
    {
        PLOG(WARNING) << "The feed is not kept for the next check, because the folder " << shownPath
                      << " cannot be used";
        return false;
    }
    QLockFile lock(PathForQt(descriptor.Get(), folder.path) + QLatin1Char('/') + QLatin1String(NAME) +
                   QStringLiteral(".lock"));
    if (!lock.tryLock(LONGEST_WAIT_MS))
    {
        LOG(WARNING) << "The feed is not kept for the next check, because it cannot be locked in " << shownPath;
        return false;
    }
    try
    {
        Write(folder, descriptor, feed);
        return true;
    }
    catch (UpdateRefusal const& refusal)
    {
        LOG(WARNING) << "The feed could not be kept for the next check in " << shownPath << ": "
                     << MakeFaultError(refusal.Fault(), refusal.ErrorNumber()).detail.toStdString();
        return false;
    }
}

} // namespace Pelnar::Engine
