#include "Engine/core/check/FeedRecord.h"

#include <QCryptographicHash>

#include <algorithm>
#include <limits>

namespace Pelnar::Engine
{
namespace
{

constexpr qint64 SECONDS_PER_DAY = 24 * 60 * 60;

QString AddressOf(QUrl const& url)
{
    return url.adjusted(QUrl::RemoveUserInfo).toString(QUrl::FullyEncoded);
}

} // namespace

qint64 SerialFloor(FeedRecord const& record, QUrl const& url)
{
    return record.address == AddressOf(url) ? record.serial : 0;
}

FeedRecord AfterFeed(FeedRecord const& record, QUrl const& url, QByteArray const& bytes,
                     std::optional<FeedTerms> const& terms, QDateTime const& now)
{
    FeedRecord after;
    after.address = AddressOf(url);
    after.digest = QString::fromLatin1(QCryptographicHash::hash(bytes, QCryptographicHash::Sha256).toHex());
    // A time that lies ahead was written under a wrong clock.
    bool const isKnown = record.address == after.address && record.digest == after.digest &&
                         record.firstSeen.isValid() && record.firstSeen <= now;
    after.firstSeen = isKnown ? record.firstSeen : now;
    after.lastSeen = now;
    after.serial = terms ? terms->serial : SerialFloor(record, url);
    return after;
}

FeedRecord FeedRecordToKeep(FeedRecord const& stored, FeedRecord const& ours)
{
    return stored.address == ours.address && stored.serial > ours.serial ? stored : ours;
}

int UnchangedDays(FeedRecord const& record)
{
    if (!record.firstSeen.isValid() || !record.lastSeen.isValid())
    {
        return 0;
    }
    qint64 const days = record.firstSeen.secsTo(record.lastSeen) / SECONDS_PER_DAY;
    return static_cast<int>(std::clamp<qint64>(days, 0, std::numeric_limits<int>::max()));
}

} // namespace Pelnar::Engine
