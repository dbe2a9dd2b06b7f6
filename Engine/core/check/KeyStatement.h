// KeyStatement.h: what the publisher's root key says of the keys that sign: docs/formats/key-statement.md.
// Thread: any; no state. Ownership: values only. Pure decisions; no byte is looked at as XML.
#pragma once

#include "Engine/core/EngineError.h"
#include "Engine/core/payload/TrustedKeys.h"

#include <QByteArray>
#include <QDateTime>

#include <optional>
#include <string>
#include <string_view>
#include <variant>
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
    QDateTime expires;                ///< from then on it counts no more
    std::vector<std::string> bundles; ///< identifiers of the bundles that it is for
    TrustedKeys validKeys;            ///< the keys that count, in the place of the bundle's own
    std::vector<std::string> revoked; ///< ids of keys that must never count again
};

/// The statement that \a text is; nothing unless it keeps every rule of the format.
[[nodiscard]] std::optional<KeyStatement> ParseKeyStatement(std::string_view text);

/// The one text of \a statement, which the root key signs.
[[nodiscard]] std::string TextOf(KeyStatement const& statement);

/// The line of a feed, its end included. REQUIRES: \a signature is base64 of 64 bytes.
[[nodiscard]] QByteArray KeyStatementLine(std::string const& text, std::string const& signature);

/// A statement's text and its signature, as they stand in a feed. Whose signature it is is not looked at.
struct SignedKeyStatement
{
    std::string text;
    std::string signature;
    int offset = 0; ///< of the line in the feed
    int size = 0;   ///< of the line, its end included
};

enum class KeyStatementFault
{
    Missing,
    Malformed, ///< stands twice, or not alone on its line, or is not of the right form
};

/// Finds the statement in the bytes of a feed.
[[nodiscard]] std::variant<SignedKeyStatement, KeyStatementFault> FindKeyStatement(QByteArray const& feed);

/// Whom a bundle trusts by itself, and what it remembers.
struct KeyTrust
{
    TrustedKeys ownKeys;
    std::string rootKey; ///< base64; empty: the bundle's own keys count
    std::string bundleIdentifier;
    qint64 lowestSerial = 0; ///< of the statements that were believed before
};

/// The keys by which a feed and what it offers are judged.
struct BelievedKeys
{
    TrustedKeys keys;
    qint64 serial = 0;                ///< of the statement; 0 without a root key
    std::vector<std::string> revoked; ///< ids
};

/// Without a root key the bundle's own keys. With one, those of the statement in \a feed, or why it is not believed: it
/// must be there, signed by the root key, for this bundle, no older than one that was believed before, and not expired
/// at \a now.
[[nodiscard]] std::variant<BelievedKeys, EngineError> BelieveKeys(QByteArray const& feed, KeyTrust const& trust,
                                                                  QDateTime const& now);

} // namespace Pelnar::Engine
