// FeedParser.cpp: from the bytes of a feed to its items: decode, scan the tags, read.
#include "Engine/core/feed/FeedParser.h"

#include "Engine/core/feed/FeedEncoding.h"
#include "Engine/core/feed/FeedItemReader_p.h"
#include "Engine/core/feed/FeedPrescan_p.h"
#include "Engine/core/feed/FeedWalker.h"

namespace Pelnar::Engine
{

namespace
{

/// An error at a byte of \a utf8. As in XML, a line ends at a line feed, or at a carriage return without one.
FeedParseError ErrorAt(ErrorCause cause, QByteArray const& utf8, int offset, int limit)
{
    int line = 1;
    int lineStart = 0;
    for (int i = 0; i < offset; ++i)
    {
        bool const isLoneReturn = utf8.at(i) == '\r' && (i + 1 == utf8.size() || utf8.at(i + 1) != '\n');
        if (utf8.at(i) == '\n' || isLoneReturn)
        {
            ++line;
            lineStart = i + 1;
        }
    }
    int const column = QString::fromUtf8(utf8.constData() + lineStart, offset - lineStart).size() + 1;
    return MakeParseError(cause, line, column, limit);
}

constexpr std::size_t USUAL_ITEMS = 16;

bool IsWebPage(QXmlStreamReader const& reader)
{
    return reader.name().compare(QLatin1String("html"), Qt::CaseInsensitive) == 0;
}

/// True for the first element of a server's error, an Atom feed, a picture or a map of a web site. Other documents
/// without an item are empty feeds.
bool BeginsOtherDocument(QXmlStreamReader const& reader)
{
    for (char const* const name : {"Error", "feed", "svg", "urlset", "sitemapindex"})
    {
        if (reader.name().compare(QLatin1String(name), Qt::CaseInsensitive) == 0)
        {
            return true;
        }
    }
    return false;
}

bool IsItem(QXmlStreamReader const& reader)
{
    return reader.namespaceUri().isEmpty() && reader.name() == QLatin1String("item");
}

/// Reads the channel's own elements between the items. It takes no steps of its own: the content of these elements is
/// read as if they were not there.
class ChannelReader
{
public:
    explicit ChannelReader(FeedChannel& channel) : m_channel(channel) {}

    void Take(QXmlStreamReader::TokenType token, FeedWalker const& walker)
    {
        QXmlStreamReader const& reader = walker.Reader();
        if (token == QXmlStreamReader::StartElement && walker.Depth() == CHANNEL_DEPTH)
        {
            m_isInChannel = reader.namespaceUri().isEmpty() && reader.name() == QLatin1String("channel");
        }
        else if (token == QXmlStreamReader::StartElement && walker.Depth() == CHANNEL_DEPTH + 1)
        {
            m_texts = m_isInChannel ? TextsFor(reader) : nullptr;
            if (m_texts)
            {
                m_texts->append(QString());
            }
        }
        else if (token == QXmlStreamReader::EndElement && walker.Depth() == CHANNEL_DEPTH)
        {
            m_texts = nullptr;
        }
        else if (token == QXmlStreamReader::Characters && m_texts)
        {
            m_texts->last() += reader.text();
        }
    }

private:
    static constexpr int CHANNEL_DEPTH = 2;

    QStringList* TextsFor(QXmlStreamReader const& reader)
    {
        if (reader.namespaceUri() != QLatin1String(OWN_FEED_NAMESPACE))
        {
            return nullptr;
        }
        return reader.name() == QLatin1String("serial")    ? &m_channel.serials
               : reader.name() == QLatin1String("expires") ? &m_channel.expirations
                                                           : nullptr;
    }

    FeedChannel& m_channel;
    bool m_isInChannel = false;
    QStringList* m_texts = nullptr; ///< whose last is being read
};

std::vector<FeedItem> ReadItems(FeedWalker& walker, FeedItemContext const& context, FeedChannel& channel)
{
    std::vector<FeedItem> items;
    items.reserve(USUAL_ITEMS);
    ChannelReader channelReader(channel);
    int met = 0;
    std::optional<FeedParseError> otherDocument;
    for (;;)
    {
        QXmlStreamReader::TokenType const token = walker.Advance();
        if (token == QXmlStreamReader::EndDocument && met == 0 && otherDocument)
        {
            // "No update" would be wrong: this arrived instead of the feed.
            walker.Refuse(*std::move(otherDocument));
        }
        if (token == QXmlStreamReader::Invalid || token == QXmlStreamReader::EndDocument)
        {
            return items;
        }
        channelReader.Take(token, walker);
        if (token != QXmlStreamReader::StartElement)
        {
            continue;
        }
        if (walker.Depth() == 1 && BeginsOtherDocument(walker.Reader()))
        {
            otherDocument = MakeParseError(ErrorCause::FeedIsOtherDocument, walker.Line(), walker.Column(), 0);
        }
        if (walker.Depth() == 1 && IsWebPage(walker.Reader()))
        {
            walker.Refuse(ErrorCause::FeedIsWebPage);
        }
        // Deliberate: an item counts at any place, because some published feeds have no channel.
        else if (IsItem(walker.Reader()))
        {
            if (++met > context.limits.maxItems)
            {
                walker.Refuse(ErrorCause::FeedTooManyItems, context.limits.maxItems);
            }
            else if (!ReadFeedItem(walker, context, items.emplace_back()))
            {
                items.pop_back();
            }
        }
    }
}

} // namespace

FeedParseResult ParseFeed(QByteArray const& bytes, QUrl const& feedUrl, FeedTarget const& target,
                          FeedLimits const& limits, QStringList const& languages)
{
    FeedDocument const document = DecodeFeed(bytes);
    if (!document.isDecodable)
    {
        FeedParseError error = ErrorAt(ErrorCause::FeedMalformed, bytes, document.badOffset, 0);
        error.detail = QStringLiteral("The bytes are not text of the encoding that the feed is in.");
        return tl::unexpected(std::move(error));
    }
    FeedPrescanFinding const finding = PrescanFeed(document.utf8, limits);
    if (finding.cause)
    {
        return tl::unexpected(ErrorAt(*finding.cause, document.utf8, finding.offset, finding.limit));
    }
    FeedWalker walker(document.utf8, document.text, limits);
    FeedContent content;
    content.items = ReadItems(walker, {feedUrl, target.platform, target.machine, limits, languages}, content.channel);
    if (walker.Error())
    {
        return tl::unexpected(*walker.Error());
    }
    return content;
}

EngineError MakeFeedError(FeedParseError const& error)
{
    EngineError result = MakeError(error.cause, error.detail);
    if (result.cause != ErrorCause::FeedIsWebPage)
    {
        result.sentence = result.sentence.FollowedBy(error.sentence);
    }
    return result;
}

} // namespace Pelnar::Engine
