// FeedTrust.h: whether a feed that must be signed is believed. Pure decisions.
// Thread: any; no state. Ownership: values only.
#pragma once

#include "Engine/core/EngineError.h"
#include "Engine/core/feed/FeedParser.h"
#include "Engine/core/payload/TrustedKeys.h"

#include <QByteArray>
#include <QDateTime>

#include <optional>
#include <string>
#include <variant>

namespace Pelnar::Engine
{

/// What an application asks of its feed.
enum class FeedSigning
{
    NotAsked, ///< a signature is a comment like any other
    Required,
};

/// What a signed feed says of itself.
struct FeedTerms
{
    qint64 serial = 0;       ///< from 1; grows with every feed that is signed
    QDateTime expires;       ///< from then on the feed is refused
    std::string signer = {}; ///< id of the key that signed; empty where nobody asked
};

/// The content of a feed that is signed, whole, by one of \a keys, or why it is refused. No byte is
/// looked at as XML.
[[nodiscard]] std::variant<QByteArray, EngineError> VerifyFeed(QByteArray const& bytes, TrustedKeys const& keys);

/// The serial that \a text is, blanks around it left out: a positive decimal number without leading zeros, at most
/// 9223372036854775807; 0 for anything else.
[[nodiscard]] qint64 FeedSerial(QString const& text);

/// The moment that \a text is, in the one form that feeds have; invalid for anything else.
[[nodiscard]] QDateTime FeedMoment(QString const& text);

/// The id of that one of \a keys which signed \a feed; empty when none did.
[[nodiscard]] std::string FeedSigner(QByteArray const& feed, TrustedKeys const& keys);

/// What \a channel says, or why a client that requires signed feeds refuses it: each must be there once and be
/// readable.
[[nodiscard]] std::variant<FeedTerms, EngineError> ReadFeedTerms(FeedChannel const& channel);

/// Why a feed that was verified is refused: it is older than the one with the serial \a floor (0 when there was none),
/// or has expired at \a now.
[[nodiscard]] std::optional<EngineError> JudgeFeedTerms(FeedTerms const& terms, qint64 floor, QDateTime const& now);

} // namespace Pelnar::Engine
