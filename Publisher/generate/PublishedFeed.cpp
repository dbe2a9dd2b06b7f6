#include "Publisher/generate/PublishedFeed.h"

#include "Engine/core/bundle/CheckBundle.h"
#include "Publisher/Refusal.h"
#include "Publisher/choice/ClientInstallation.h"

#include <QXmlStreamReader>

#include <algorithm>

namespace Pelnar::Publisher
{
namespace
{

constexpr char BYTE_ORDER_MARK[] = "\xEF\xBB\xBF";
constexpr Engine::FeedPlatform PLATFORMS[] = {Engine::FeedPlatform::MacOS, Engine::FeedPlatform::Linux};

} // namespace

PublishedFeed::PublishedFeed(QString name, QByteArray bytes, QUrl const& address)
    : m_name(std::move(name))
    , m_bytes(std::move(bytes))
    , m_text(QString::fromUtf8(m_bytes.constData(), m_bytes.size()))
    , m_hasMark(m_bytes.startsWith(BYTE_ORDER_MARK))
{
    // Read as clients do first: no item may be added to a feed that they refuse.
    for (Engine::FeedPlatform const platform : PLATFORMS)
    {
        TakeItems({platform}, address);
    }
    bool const namesMachines = std::any_of(
        m_items.begin(), m_items.end(), [](PublishedItem const& each) { return !each.item.policy.machines.isEmpty(); });
    for (std::string const& machine : namesMachines ? Engine::MachineNames() : std::vector<std::string>())
    {
        TakeItems({Engine::FeedPlatform::Linux, QString::fromStdString(machine)}, address);
    }
    if ((m_hasMark ? BYTE_ORDER_MARK + m_text.toUtf8() : m_text.toUtf8()) != m_bytes)
    {
        throw Refusal(
            {m_name, 1, 0, u"is not UTF-8; items can be added to UTF-8 feeds only"_s, u"convert the feed to UTF-8"_s});
    }
    FindItems();
}

void PublishedFeed::TakeItems(Engine::FeedTarget const& target, QUrl const& address)
{
    Engine::FeedParseResult const feed = Engine::ParseFeed(m_bytes, address, target);
    if (!feed)
    {
        throw Refusal({m_name, feed.error().line, feed.error().column, feed.error().sentence.English(),
                       u"correct the feed, or move it away to start a new one"_s});
    }
    for (Engine::FeedItem const& item : feed->items)
    {
        auto const known = std::find_if(m_items.begin(), m_items.end(),
                                        [&item](PublishedItem const& other) {
                                            return other.item.line == item.line && other.item.column == item.column &&
                                                   other.item.fileUrl == item.fileUrl;
                                        });
        if (known != m_items.end())
        {
            known->platforms.insert(target.platform);
            continue;
        }
        m_items.push_back({item, {target.platform}, WholeVersion(item.versionString), -1});
    }
}

void PublishedFeed::FindItems()
{
    QXmlStreamReader reader(m_text);
    int channelEnd = -1;
    QStringList path;
    while (!reader.atEnd())
    {
        QXmlStreamReader::TokenType const token = reader.readNext();
        int const offset = int(reader.characterOffset());
        if (token == QXmlStreamReader::StartElement)
        {
            path << reader.name().toString();
            for (QXmlStreamNamespaceDeclaration const& declaration : reader.namespaceDeclarations())
            {
                bool const holdsItems = path.size() <= 2 && !declaration.prefix().isEmpty();
                if (holdsItems && declaration.namespaceUri() == QLatin1String(Engine::FEED_NAMESPACE))
                {
                    m_feedPrefix = declaration.prefix().toString();
                }
            }
            if (path.size() == 3 && path.last() == "item"_l)
            {
                int const start = m_text.lastIndexOf(u'<', offset - 1);
                for (PublishedItem& item : m_items)
                {
                    bool const isThis = item.item.line == int(reader.lineNumber()) &&
                                        item.item.column == int(reader.columnNumber()) + 1;
                    item.start = isThis ? start : item.start;
                }
                m_firstItem = m_firstItem < 0 ? start : m_firstItem;
            }
        }
        else if (token == QXmlStreamReader::EndElement)
        {
            if (path.size() == 3 && path.last() == "item"_l)
            {
                m_itemsEnd = offset;
            }
            else if (path.size() == 2 && path.last() == "channel"_l)
            {
                channelEnd = m_text.lastIndexOf(u'<', offset - 1);
            }
            path.removeLast();
        }
    }
    if (channelEnd < 0 || m_text.midRef(channelEnd, 2) != "</"_l)
    {
        throw Refusal({m_name, 1, 0, u"has no channel for new items"_s,
                       u"write <rss><channel> and </channel></rss> around the items"_s});
    }
    if (m_firstItem < 0)
    {
        // After the last child, before the blanks that indent the end tag.
        m_itemsEnd = channelEnd;
        while (m_itemsEnd > 0 && m_text.at(m_itemsEnd - 1).isSpace())
        {
            --m_itemsEnd;
        }
    }
}

QString PublishedFeed::Indentation() const
{
    int const lineStart = m_text.lastIndexOf(u'\n', m_firstItem) + 1;
    QString const before = m_firstItem < 0 ? QString() : m_text.mid(lineStart, m_firstItem - lineStart);
    bool const isBlank = std::all_of(before.begin(), before.end(), [](QChar c) { return c.isSpace(); });
    return m_firstItem >= 0 && isBlank ? before : u"    "_s;
}

int PublishedFeed::PlaceFor(Core::Version const& version) const
{
    int place = -1;
    for (PublishedItem const& item : m_items)
    {
        bool const isOlder = item.start >= 0 && item.version.IsValid() && item.version < version;
        if (isOlder && (place < 0 || item.start < place))
        {
            place = item.start;
        }
    }
    return place;
}

QByteArray PublishedFeed::With(std::vector<Addition> const& additions) const
{
    if (additions.empty())
    {
        return m_bytes;
    }
    QString const lineEnd = m_text.contains("\r\n"_l) ? u"\r\n"_s : u"\n"_s;
    QString const between = lineEnd + Indentation();
    std::vector<std::pair<int, QString>> pieces; // by place; those with the same place in their order
    for (Addition const& addition : additions)
    {
        QString text = addition.text;
        text.replace("\r\n"_l, "\n"_l).replace("\n"_l, lineEnd);
        int const place = PlaceFor(addition.version);
        pieces.emplace_back(place < 0 ? m_itemsEnd : place, place < 0 ? between + text : text + between);
    }
    std::stable_sort(pieces.begin(), pieces.end(), [](auto const& a, auto const& b) { return a.first < b.first; });
    QString result;
    int done = 0;
    for (auto const& [place, text] : pieces)
    {
        result += m_text.midRef(done, place - done) + text;
        done = place;
    }
    result += m_text.midRef(done);
    return m_hasMark ? BYTE_ORDER_MARK + result.toUtf8() : result.toUtf8();
}

} // namespace Pelnar::Publisher
