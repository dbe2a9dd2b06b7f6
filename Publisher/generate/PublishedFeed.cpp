#include "Publisher/generate/PublishedFeed.h"

#include "Engine/core/bundle/CheckBundle.h"
#include "Publisher/FeedSource.h"
#include "Publisher/Refusal.h"
#include "Publisher/choice/ClientInstallation.h"

#include <algorithm>

namespace Pelnar::Publisher
{
namespace
{

constexpr Engine::FeedPlatform PLATFORMS[] = {Engine::FeedPlatform::MacOS, Engine::FeedPlatform::Linux};

} // namespace

PublishedFeed::PublishedFeed(QString name, QByteArray const& bytes, QUrl const& address)
    : m_name(std::move(name)), m_text(m_name, bytes)
{
    // Read as clients do first: no item may be added to a feed that they refuse.
    for (Engine::FeedPlatform const platform : PLATFORMS)
    {
        TakeItems(bytes, {platform}, address);
    }
    bool const namesMachines = std::any_of(
        m_items.begin(), m_items.end(), [](PublishedItem const& each) { return !each.item.policy.machines.isEmpty(); });
    for (std::string const& machine : namesMachines ? Engine::MachineNames() : std::vector<std::string>())
    {
        TakeItems(bytes, {Engine::FeedPlatform::Linux, QString::fromStdString(machine)}, address);
    }
    FindPlaces(ReadFeedDocument(bytes));
}

void PublishedFeed::TakeItems(QByteArray const& bytes, Engine::FeedTarget const& target, QUrl const& address)
{
    for (Engine::FeedItem const& item :
         ParseAsClient(m_name, bytes, address, target, u"correct the feed, or move it away to start a new one"_s).items)
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

void PublishedFeed::FindPlaces(XmlElement const& document)
{
    XmlElement const* channel = nullptr;
    for (XmlElement const& top : document.children)
    {
        TakePrefix(top);
        for (XmlElement const& inner : top.children)
        {
            TakePrefix(inner);
            channel = inner.name.local == "channel"_l ? &inner : channel;
            for (XmlElement const& element : inner.children)
            {
                if (element.name.local != "item"_l)
                {
                    continue;
                }
                for (PublishedItem& item : m_items)
                {
                    item.start = element.IsSourceOf(item.item) ? element.range.start : item.start;
                }
                m_firstItem = m_firstItem < 0 ? element.range.start : m_firstItem;
                m_itemsEnd = element.range.end;
            }
        }
    }
    if (!channel || channel->IsSingleTag())
    {
        throw Refusal({m_name, 1, 0, u"has no channel for new items"_s,
                       u"write <rss><channel> and </channel></rss> around the items"_s});
    }
    if (m_firstItem < 0)
    {
        // After the last child, before the blanks that indent the end tag.
        m_itemsEnd = channel->content.end;
        while (m_itemsEnd > 0 && m_text.Original().at(m_itemsEnd - 1).isSpace())
        {
            --m_itemsEnd;
        }
    }
}

void PublishedFeed::TakePrefix(XmlElement const& element)
{
    for (XmlNamespace const& declared : element.namespaces)
    {
        m_feedPrefix = IsFeedNamespaceUri(declared.uri) && !declared.prefix.isEmpty() ? declared.prefix : m_feedPrefix;
    }
}

QString PublishedFeed::Indentation() const
{
    QString const& text = m_text.Original();
    int const lineStart = text.lastIndexOf(u'\n', m_firstItem) + 1;
    QString const before = text.mid(lineStart, m_firstItem - lineStart);
    return m_firstItem >= 0 && before.trimmed().isEmpty() ? before : u"    "_s;
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
    FeedText changed = m_text;
    QString const between = m_text.LineEnd() + Indentation();
    for (Addition const& addition : additions)
    {
        QString text = addition.text;
        text.replace("\r\n"_l, "\n"_l).replace("\n"_l, m_text.LineEnd());
        int const place = PlaceFor(addition.version);
        changed.Insert(place < 0 ? m_itemsEnd : place, place < 0 ? between + text : text + between);
    }
    return changed.Bytes();
}

} // namespace Pelnar::Publisher
