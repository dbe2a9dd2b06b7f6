// FeedTrust.h: whether a feed that must be signed is accepted. Pure functions.
#pragma once

#include "Engine/core/bundle/TrustedKeys.h"
#include "Engine/core/faults/Result.h"
#include "Engine/core/feed/FeedParser.h"

#include <QByteArray>
#include <QDateTime>

#include <string>

namespace Pelnar::Engine
{

/// Whether an application requires a signature of its feed.
enum class FeedSigning
{
    NotAsked, ///< a signature is ignored like any comment
    Required,
};

/// The serial and expiry date of a signed feed.
struct FeedValidity
{
    qint64 serial = 0;       ///< from 1; grows with every signed feed
    QDateTime expires;       ///< from then on the feed is refused
    std::string signer = {}; ///< id of the key that signed; empty if it was not requested
};

/// The content of a feed that one of \a keys signed as a whole, or why it is refused. No byte is parsed as XML.
[[nodiscard]] Result<QByteArray> VerifyFeed(QByteArray const& bytes, TrustedKeys const& keys);

/// Parses \a text as a serial, ignoring blanks around it: a positive decimal number without leading zeros, at most
/// 9223372036854775807; 0 for any other text.
[[nodiscard]] qint64 FeedSerial(QString const& text);

/// Parses \a text as a time in the one form that feeds use; invalid for any other text.
[[nodiscard]] QDateTime FeedMoment(QString const& text);

/// The id of the key among \a keys that signed \a feed; empty if none did.
[[nodiscard]] std::string FeedSigner(QByteArray const& feed, TrustedKeys const& keys);

/// The terms in \a channel, or why a client that requires signed feeds refuses it: each must appear once and be
/// readable.
[[nodiscard]] Result<FeedValidity> ReadFeedValidity(FeedChannel const& channel);

/// Fails if a verified feed is refused: it is older than the feed with the serial \a floor (0 if there was none), or
/// has expired at \a now.
[[nodiscard]] Result<void> JudgeFeedValidity(FeedValidity const& terms, qint64 floor, QDateTime const& now);

} // namespace Pelnar::Engine
