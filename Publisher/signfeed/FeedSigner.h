// FeedSigner.h: gives a feed a serial, an expiry and a signature, and changes no other byte. The format stands in
// docs/formats/signed-feed.md.
#pragma once

#include "Engine/core/check/FeedTrust.h"
#include "Publisher/keys/Signer.h"

#include <optional>

namespace Pelnar::Publisher
{

/// What to do with a feed whose signature does not match the given key and the current bytes.
enum class ChangedFeed
{
    Refused,
    Accepted,
};

/// A feed as it was found, without its signature.
struct FeedContent
{
    QByteArray bytes;
    bool isSigned = false; ///< it had a signature
};

struct SigningTerms
{
    std::optional<qint64> serial; ///< greater than the one that is there; without this one that certainly is
    int validDays = 30;
    QDateTime now; ///< in UTC
};

struct SignedFeedBytes
{
    QByteArray bytes;
    Engine::FeedValidity terms;
};

/// Takes \a bytes apart; \a name is shown. Throws Refusal: for a signature that is not where and how it must be, and,
/// unless \a changed accepts it, for one that does not fit: anyone who signs by a timetable must not sign what somebody
/// else has written into the feed.
FeedContent ReadFeedContent(QString const& name, QByteArray const& bytes, ISigner const& key, ChangedFeed changed);

/// \a content with the key statement in the file \a statementFile, as "keys state" prints it, in the place of the one
/// that is there or at the end. Throws Refusal: for what is no such line, for a serial below the published one, and
/// when \a key is not valid by it.
QByteArray WithKeyStatement(QString const& name, QByteArray content, QString const& statementFile, ISigner const& key);

/// Writes the terms into \a content and signs it. Throws Refusal: for what clients cannot read, for what is not UTF-8
/// or has no channel, and for a serial that would not grow.
SignedFeedBytes SignFeed(QString const& name, QByteArray const& content, ISigner const& key, SigningTerms const& terms);

/// "signed with serial 8, expires 2026-12-20T08:00:00Z"
QString TextOf(Engine::FeedValidity const& terms);

} // namespace Pelnar::Publisher
