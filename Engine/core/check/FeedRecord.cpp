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

FeedRecord UnderKeys(FeedRecord record, BelievedKeys const& keys)
{
    if (std::find(keys.revoked.begin(), keys.revoked.end(), record.serialSigner) != keys.revoked.end())
    {
        record.serial = 0;
        record.serialSigner.clear();
    }
    record.keySerial = std::max(record.keySerial, keys.serial);
    return record;
}

FeedRecord AfterFeed(FeedRecord const& record, QUrl const& url, QByteArray const& bytes,
                     std::optional<FeedValidity> const& terms, QDateTime const& now)
{
    FeedRecord after;
    after.address = AddressOf(url);
    after.digest = QString::fromLatin1(QCryptographicHash::hash(bytes, QCryptographicHash::Sha256).toHex());
    // A time in the future was written under a wrong clock.
    bool const isKnown = record.address == after.address && record.digest == after.digest &&
                         record.firstSeen.isValid() && record.firstSeen <= now;
    after.firstSeen = isKnown ? record.firstSeen : now;
    after.lastSeen = now;
    bool const isHighest = terms && terms->serial >= record.serial;
    after.serial = isHighest ? terms->serial : record.serial;
    after.serialSigner = isHighest ? terms->signer : record.serialSigner;
    after.keySerial = record.keySerial;
    return after;
}

FeedRecord FeedRecordToKeep(FeedRecord const& stored, FeedRecord const& ours)
{
    if (stored.keySerial != ours.keySerial)
    {
        return stored.keySerial > ours.keySerial ? stored : ours;
    }
    bool const isSerialTheirs = stored.serial > ours.serial;
    FeedRecord kept = isSerialTheirs && stored.address == ours.address ? stored : ours;
    kept.serial = isSerialTheirs ? stored.serial : ours.serial;
    kept.serialSigner = isSerialTheirs ? stored.serialSigner : ours.serialSigner;
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
