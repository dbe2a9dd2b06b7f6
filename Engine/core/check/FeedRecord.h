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
    QDateTime firstSeen;           ///< when these bytes came for the first time; invalid without a feed
    QDateTime lastSeen;            ///< and for the last time
    qint64 serial = 0;             ///< the highest of all feeds whose signature was verified; 0 without one
    std::string serialSigner = {}; ///< id of the key that signed the feed with it; empty while that is not known
    qint64 keySerial = 0;          ///< the highest of all key statements that were believed; 0 without one
};

/// After this many days the log warns about an unchanged feed: an attacker may be blocking newer ones.
constexpr int STALE_FEED_DAYS = 180;

/// \a record as it counts under \a keys: a serial that a revoked key signed does not, so that a thief of that key has
/// not raised it for ever.
[[nodiscard]] FeedRecord UnderKeys(FeedRecord record, BelievedKeys const& keys);

/// \a record after \a bytes, a feed that can be read, came from \a url. \a terms are those of a verified feed.
[[nodiscard]] FeedRecord AfterFeed(FeedRecord const& record, QUrl const& url, QByteArray const& bytes,
                                   std::optional<FeedTerms> const& terms, QDateTime const& now);

/// What is to be kept of \a ours, the record after this process' check, and of \a stored, which another process of the
/// application may have written while that check ran: of one address the one with the higher serial, else ours, with
/// the higher serial of the two. The record under the newer key statement counts alone.
[[nodiscard]] FeedRecord FeedRecordToKeep(FeedRecord const& stored, FeedRecord const& ours);

/// For how many whole days the same bytes have arrived, as far as checks were made.
[[nodiscard]] int UnchangedDays(FeedRecord const& record);

} // namespace Pelnar::Engine
