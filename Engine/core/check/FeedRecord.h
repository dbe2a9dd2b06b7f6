// FeedRecord.h: the record of an application's feed from check to check. Pure functions.
#pragma once

#include "Engine/core/check/FeedTrust.h"
#include "Engine/core/check/KeyStatement.h"

#include <QByteArray>
#include <QDateTime>
#include <QString>
#include <QUrl>

#include <optional>

namespace Pelnar::Engine
{

/// One for each application. The bundle's identifier selects it, for every feed address.
struct FeedRecord
{
    QString address;               ///< of the last feed, without credentials and fragment
    QString digest;                ///< hexadecimal SHA-256 of all its bytes
    QDateTime firstSeen;           ///< when these bytes arrived for the first time; invalid without a feed
    QDateTime lastSeen;            ///< when they arrived for the last time
    qint64 serial = 0;             ///< the highest serial of all verified feeds; 0 without one
    std::string serialSigner = {}; ///< id of the key that signed the feed with it; empty if unknown
    qint64 keySerial = 0;          ///< the highest serial of all accepted key statements; 0 without one
};

/// After this many days the log warns about an unchanged feed: an attacker may be blocking newer ones.
constexpr int STALE_FEED_DAYS = 180;

/// \a record as it counts under \a keys: a serial that a revoked key signed does not count, so that a thief of that key
/// cannot raise it forever.
[[nodiscard]] FeedRecord UnderKeys(FeedRecord record, BelievedKeys const& keys);

/// \a record after \a bytes, a readable feed, arrived from \a url. \a terms are those of a verified feed.
[[nodiscard]] FeedRecord AfterFeed(FeedRecord const& record, QUrl const& url, QByteArray const& bytes,
                                   std::optional<FeedValidity> const& terms, QDateTime const& now);

/// Merges \a ours, the record after this process's check, with \a stored, which another process of the application may
/// have written during the check. For the same address the one with the higher serial is kept, otherwise ours, with the
/// higher of the two serials. If the key statements differ, only the record under the newer one counts.
[[nodiscard]] FeedRecord FeedRecordToKeep(FeedRecord const& stored, FeedRecord const& ours);

/// For how many whole days the same bytes have arrived, as far as checks were made.
[[nodiscard]] int UnchangedDays(FeedRecord const& record);

} // namespace Pelnar::Engine
