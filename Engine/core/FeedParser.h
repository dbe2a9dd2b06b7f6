// FeedParser.h: from the bytes of a feed to its items, behind limits.
// Thread: any; no state. Ownership: values only.
#pragma once

#include "Engine/core/FeedItem.h"

#include <QByteArray>
#include <QString>
#include <QUrl>

#include <vector>

namespace Pelnar::Engine
{

/// Whose enclosures are taken: one without sparkle:os belongs to every platform.
enum class FeedPlatform
{
    MacOS,
    Linux,
};

/// What a feed may ask of the parser. The defaults are what the engine ships with.
struct FeedLimits
{
    int maxDepth = 64;
    int maxAttributes = 256;       ///< in one start tag
    int maxTagBytes = 64 * 1024;   ///< one tag, from "<" to ">"
    int maxItems = 2000;           ///< items and deltas are counted apart; this is the number of items
};

enum class FeedErrorKind
{
    None,
    Malformed,         ///< not well-formed XML, or text after the root element
    DocumentType,      ///< a document type declaration
    TooDeep,
    TooManyAttributes,
    TagTooLong,
    TooManyItems,
    NotAFeed,          ///< well-formed, but no feed: the root element is not "rss"
};

struct FeedParseError
{
    FeedErrorKind kind = FeedErrorKind::None;
    int line = 0;   ///< from 1
    int column = 0; ///< from 1
    QString sentence; ///< one sentence that names the line and says what is wrong; no byte of the feed stands in it
    QString detail;   ///< the XML reader's own words for Malformed, else empty
};

struct FeedParseResult
{
    FeedParseError error;        ///< kind is None on success
    std::vector<FeedItem> items; ///< in the order of the feed; empty on error

    [[nodiscard]] bool HasSucceeded() const { return error.kind == FeedErrorKind::None; }
};

/// Parses \a bytes, whole, in time linear in their number. Relative addresses resolve against \a feedUrl. An item whose
/// enclosures all name other platforms is left out.
[[nodiscard]] FeedParseResult ParseFeed(QByteArray const& bytes, QUrl const& feedUrl, FeedPlatform platform,
                                        FeedLimits const& limits = {});

} // namespace Pelnar::Engine
