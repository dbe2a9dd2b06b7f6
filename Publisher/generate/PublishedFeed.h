// PublishedFeed.h: a published feed, to which items are added without any other change.
#pragma once

#include "HostFramework/Version.h"
#include "Publisher/files/FeedText.h"

#include <QUrl>

#include <set>
#include <vector>

namespace Pelnar::Publisher
{

/// An item with one of its downloads: it may have one for each system and machine.
struct PublishedItem
{
    Engine::FeedItem item;
    std::set<Engine::FeedPlatform> platforms; ///< that take the item
    Core::Version version; ///< all four components present; invalid if the item's version cannot be read
    int start = -1;        ///< of its text, in characters; -1 for an item outside the channel
};

/// The text of a new item, and the version that decides its place.
struct Addition
{
    Core::Version version;
    QString text; ///< its lines are indented as PublishedFeed::Indentation says
};

class PublishedFeed
{
public:
    /// Reads \a bytes. \a name is for messages, \a address for relative addresses. Throws Refusal if clients cannot
    /// read the feed or nothing can be added to it (not UTF-8, no channel).
    PublishedFeed(QString name, QByteArray const& bytes, QUrl const& address);

    QString const& Name() const { return m_name; }
    std::vector<PublishedItem> const& Items() const { return m_items; }
    /// The prefix that is bound to the feed's namespace at every place for an item; empty without a common one.
    QString const& FeedPrefix() const { return m_feedPrefix; }
    /// The blanks before the tags of items.
    QString Indentation() const;
    /// The feed with \a additions, newest first, each before the first older item. Without additions the same bytes
    /// that were read.
    QByteArray With(std::vector<Addition> const& additions) const;

private:
    void TakeItems(QByteArray const& bytes, Engine::FeedTarget const& target, QUrl const& address);
    void FindPlaces(XmlElement const& document);
    void TakePrefix(XmlElement const& element);
    int PlaceFor(Core::Version const& version) const;

    QString m_name;
    FeedText m_text;
    QString m_feedPrefix;
    std::vector<PublishedItem> m_items;
    int m_firstItem = -1; ///< the start of its tag; -1 without items
    int m_itemsEnd = 0;   ///< after the last item; without items after the channel's last child
};

} // namespace Pelnar::Publisher
