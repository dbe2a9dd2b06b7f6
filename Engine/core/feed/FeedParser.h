// FeedParser.h: from the bytes of a feed to its items, behind limits.
// Texts: outer blanks of an element's text are dropped. Control characters, line breaks and characters that turn the
// writing direction become blanks in every text but the description (which keeps its line breaks and tabs), so that
// no title, version, address or property can forge a line of a log, drive a terminal or disguise a label.
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

/// Whose enclosures are taken: one without sparkle:os belongs to every platform.
enum class FeedPlatform
{
    MacOS,
    Linux,
};

/// Which of an item's enclosures is taken.
struct FeedTarget
{
    // Deliberate: not explicit. Most readers of a feed know no machine.
    FeedTarget(FeedPlatform thePlatform, QString theMachine = {})
        : platform(thePlatform), machine(std::move(theMachine))
    {
    }

    FeedPlatform platform;
    QString machine; ///< as OwnMachineName(); empty when it does not count
};

/// What a feed may ask of the parser. The defaults are what the engine ships with.
struct FeedLimits
{
    int maxDepth = 64;
    int maxAttributes = 256;     ///< in one start tag
    int maxTagBytes = 64 * 1024; ///< one tag, from "<" to ">"
    int maxMarkup = 100 * 1000;  ///< elements and attributes, all together: what they cost, their bytes do not show
    int maxItems = 2000;         ///< items, those left out included; deltas are not counted
    int maxNamespaces = 64;      ///< declared and in scope at one place, since each name is looked up among them
    quint64 maxContentLength = quint64(16) << 30; ///< bytes; a longer download counts as a length that is too large
};

struct FeedParseError
{
    ErrorCause cause = ErrorCause::FeedMalformed; ///< one of the feed's bytes
    int line = 0;                                 ///< from 1
    int column = 0;                               ///< from 1
    Sentence sentence; ///< one sentence that names the line and says what is wrong; no byte of the feed stands in it
    QString detail;    ///< the XML reader's own words for FeedMalformed, else empty
};
/// \a error as that of a check.
EngineError MakeFeedError(FeedParseError const& error);

/// What the channel says of the feed itself, in elements of OWN_FEED_NAMESPACE; docs/formats/signed-feed.md.
struct FeedChannel
{
    QStringList serials; ///< the text of each
    QStringList expirations;
};

/// Of the elements that are this system's own.
constexpr char OWN_FEED_NAMESPACE[] = "https://pelnar.example/xml-namespaces/appcast";

struct FeedContent
{
    std::vector<FeedItem> items; ///< in the order of the feed
    FeedChannel channel;
};
using FeedParseResult = tl::expected<FeedContent, FeedParseError>;

/// Parses \a bytes, whole, in time linear in their number. Relative addresses resolve against \a feedUrl. An item whose
/// enclosures all name other platforms is left out. Of several for the platform the first for the machine is taken,
/// else the first. A document without items is a feed without items. Of a text given in several languages (xml:lang)
/// the one for the first of \a languages (most wanted first, as of QLocale::uiLanguages()) is taken, else the one that
/// names no language, else the first.
[[nodiscard]] FeedParseResult ParseFeed(QByteArray const& bytes, QUrl const& feedUrl, FeedTarget const& target,
                                        FeedLimits const& limits = {}, QStringList const& languages = {});

} // namespace Pelnar::Engine
