// FeedParser.h: from the bytes of a feed to its items, with limits.
// Outer blanks of an element's text are dropped. Control characters, line breaks and characters that change the writing
// direction become blanks, so that no text can forge a log line, control a terminal or disguise a label. Only the
// description keeps its line breaks and tabs.
#pragma once

#include "Engine/core/faults/Result.h"
#include "Engine/core/feed/FeedItem.h"

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <QUrl>

#include <utility>
#include <vector>

namespace Pelnar::Engine
{

/// The platform whose enclosures are taken. One without sparkle:os is for every platform.
enum class FeedPlatform
{
    MacOS,
    Linux,
};

/// As sparkle:os names it: "macos", "linux".
[[nodiscard]] QString NameOf(FeedPlatform platform);

/// Selects an item's enclosure.
struct FeedTarget
{
    // Deliberate: not explicit. Most callers know no machine.
    FeedTarget(FeedPlatform thePlatform, QString theMachine = {})
        : platform(thePlatform), machine(std::move(theMachine))
    {
    }

    FeedPlatform platform;
    QString machine; ///< as OwnMachineName(); empty if it does not count
};

/// The limits of the parser. The defaults are the engine's own.
struct FeedLimits
{
    int maxDepth = 64;
    int maxAttributes = 256;     ///< in one start tag
    int maxTagBytes = 64 * 1024; ///< one tag, from "<" to ">"
    int maxMarkup = 100 * 1000;  ///< elements and attributes together: their cost does not depend on their bytes
    int maxItems = 2000;         ///< items, including those that are left out; deltas are not counted
    int maxNamespaces = 64;      ///< in scope at one place, because each name is searched among them
    quint64 maxContentLength = quint64(16) << 30; ///< in bytes; a longer download has a length that is too large
};

struct FeedParseError
{
    ErrorCause cause = ErrorCause::FeedMalformed; ///< one of the feed's bytes
    int line = 0;                                 ///< from 1
    int column = 0;                               ///< from 1
    Sentence sentence;                            ///< names the line and the fault; contains no byte of the feed
    QString detail;                               ///< the XML reader's own message for FeedMalformed, otherwise empty
};
/// \a error as the error of a check.
EngineError MakeFeedError(FeedParseError const& error);

/// The channel's statements about the feed, in elements of OWN_FEED_NAMESPACE; docs/formats/signed-feed.md.
struct FeedChannel
{
    QStringList serials; ///< the text of each
    QStringList expirations;
};

/// The namespace of the feed's own names.
constexpr char FEED_NAMESPACE[] = "http://www.andymatuschak.org/xml-namespaces/sparkle";
/// The statements in our own elements.
constexpr char OWN_FEED_NAMESPACE[] = "https://pelnar.example/xml-namespaces/appcast";

struct FeedContent
{
    std::vector<FeedItem> items; ///< in the order of the feed
    FeedChannel channel;
};
using FeedParseResult = tl::expected<FeedContent, FeedParseError>;

/// Parses all \a bytes, in time linear in their number. Relative addresses are relative to \a feedUrl. An item whose
/// enclosures all name other platforms is left out. If several enclosures are for the platform, the first one for the
/// machine is taken, otherwise the first one. A document without items is a feed without items. If a text is given in
/// several languages (xml:lang), the one for the first of \a languages is taken (the most wanted first, as in
/// QLocale::uiLanguages()), otherwise the one without a language, otherwise the first.
[[nodiscard]] FeedParseResult ParseFeed(QByteArray const& bytes, QUrl const& feedUrl, FeedTarget const& target,
                                        FeedLimits const& limits = {}, QStringList const& languages = {});

} // namespace Pelnar::Engine
