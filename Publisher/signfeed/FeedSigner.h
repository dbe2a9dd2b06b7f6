// FeedSigner.h: writes a serial, an expiry and a signature into a feed, and changes no other byte.
// docs/formats/signed-feed.md describes the format.
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

/// A feed as it was read, without its signature.
struct FeedContent
{
    QByteArray bytes;
    bool isSigned = false; ///< it had a signature
};

struct SigningTerms
{
    std::optional<qint64> serial; ///< greater than the present one; without it, one that is certainly greater
    int validDays = 30;
};

struct SignedFeedBytes
{
    QByteArray bytes;
    Engine::FeedValidity terms;
};

/// Splits \a bytes into content and signature. Messages call the feed \a name. Throws Refusal if the signature is
/// malformed or misplaced. Also throws if it does not match, unless \a changed accepts this: a timed job must not sign
/// changes that somebody else made.
FeedContent ReadFeedContent(QString const& name, QByteArray const& bytes, ISigner const& key, ChangedFeed changed);

/// Returns \a content with the key statement from the file \a statementFile, as "keys state" prints it. It replaces the
/// present statement or is added at the end. Throws Refusal if the file has no valid line, if its serial is lower than
/// the published one, and if \a key is not valid by it.
QByteArray WithKeyStatement(QString const& name, QByteArray content, QString const& statementFile, ISigner const& key);

/// Writes the serial and the expiry into \a content and signs it. Throws Refusal if clients cannot read the feed, if it
/// is not UTF-8 or has no channel, if the serial would not grow, and if this computer's clock cannot be right.
SignedFeedBytes SignFeed(QString const& name, QByteArray const& content, ISigner const& key, SigningTerms const& terms,
                         Console const& console);

/// "signed with serial 8, expires 2026-12-20T08:00:00Z"
QString TextOf(Engine::FeedValidity const& terms);

} // namespace Pelnar::Publisher
