// KeyStatement.h: the statement of the publisher's root key about the signing keys: docs/formats/key-statement.md. Pure
// functions; no byte is parsed as XML.
#pragma once

#include "Engine/core/bundle/TrustedKeys.h"
#include "Engine/core/faults/Result.h"

#include <QByteArray>
#include <QDateTime>

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace Pelnar::Engine
{

struct KeyStatement
{
    static constexpr std::size_t MOST_BYTES = 8192; ///< of the text
    static constexpr std::size_t MOST_BUNDLES = 8;
    static constexpr std::size_t MOST_REVOKED = 64;
    static constexpr std::size_t MOST_BUNDLE_BYTES = 255; ///< of one identifier

    qint64 serial = 0;                ///< from 1; grows with every statement
    QDateTime expires;                ///< from then on the statement is invalid
    std::vector<std::string> bundles; ///< identifiers of the bundles that the statement is for
    TrustedKeys validKeys;            ///< the valid keys, which replace the bundle's own
    std::vector<std::string> revoked; ///< ids of keys that must never be valid again
};

/// Parses \a text; empty unless it follows every rule of the format.
[[nodiscard]] std::optional<KeyStatement> ParseKeyStatement(std::string_view text);

/// The only text of \a statement, which the root key signs.
[[nodiscard]] std::string TextOf(KeyStatement const& statement);

/// The line for a feed, including its end. REQUIRES: \a signature is base64 of 64 bytes.
[[nodiscard]] QByteArray KeyStatementLine(std::string const& text, std::string const& signature);

/// A statement's text and its signature, as in a feed. The signature is not verified yet.
struct SignedKeyStatement
{
    std::string text;
    std::string signature;
    int offset = 0; ///< of the line in the feed
    int size = 0;   ///< of the line, including its end
};

/// Finds the statement in the bytes of a feed. KeyStatementMalformed: it appears twice, shares its line with other
/// text, or has a wrong form.
[[nodiscard]] Result<SignedKeyStatement> FindKeyStatement(QByteArray const& feed);

/// The root key of a bundle, and the serial that it remembers.
struct KeyTrust
{
    TrustedKeys ownKeys;
    std::string rootKey; ///< base64; empty: the bundle's own keys count
    std::string bundleIdentifier;
    qint64 lowestSerial = 0; ///< of the statements accepted before
};

/// The keys with which a feed and its downloads are verified.
struct BelievedKeys
{
    TrustedKeys keys;
    qint64 serial = 0;                ///< of the statement; 0 without a root key
    std::vector<std::string> revoked; ///< ids
};

/// Without a root key the bundle's own keys. With one, the keys of the statement in \a feed, or why it is refused: it
/// must exist, be signed by the root key, be for this bundle, have no lower serial than an earlier accepted one, and
/// not be expired at \a now.
[[nodiscard]] Result<BelievedKeys> BelieveKeys(QByteArray const& feed, KeyTrust const& trust, QDateTime const& now);

} // namespace Pelnar::Engine
