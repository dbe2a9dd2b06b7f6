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
    return url.adjusted(QUrl::RemoveUserInfo | QUrl::RemoveFragment).toString(QUrl::FullyEncoded);
}

} // namespace

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
    after.serial = terms ? std::max(terms->serial, record.serial) : record.serial;
    return after;
}

FeedRecord FeedRecordToKeep(FeedRecord const& stored, FeedRecord const& ours)
{
    bool const isTheirsLater = stored.address == ours.address && stored.serial > ours.serial;
    FeedRecord kept = isTheirsLater ? stored : ours;
    kept.serial = std::max(stored.serial, ours.serial);
    return kept;
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
