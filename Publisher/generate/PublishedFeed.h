// PublishedFeed.h: a feed as it is published, to which items are added without a change to anything else.
#pragma once

#include "Engine/core/feed/FeedParser.h"
#include "HostFramework/Version.h"

#include <QByteArray>
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
    Core::Version version;                    ///< all four components present; invalid when the item's cannot be read
    int start = -1; ///< of its text, in characters; -1 for one that stands outside of the channel
};

/// An item's text to add and the version that decides where.
struct Addition
{
    Core::Version version;
    QString text; ///< its lines indented for the place that PublishedFeed::Indentation tells
};

class PublishedFeed
{
public:
    /// Reads \a bytes; \a name is shown, \a address is what relative addresses resolve against. Throws Refusal: for
    /// what clients cannot read, and for a feed that cannot be added to (not UTF-8, without a channel).
    PublishedFeed(QString name, QByteArray bytes, QUrl const& address);

    QString const& Name() const { return m_name; }
    std::vector<PublishedItem> const& Items() const { return m_items; }
    /// The prefix that is bound to the feed's namespace wherever an item may stand; empty when there is none.
    QString const& FeedPrefix() const { return m_feedPrefix; }
    /// The blanks before the tags of items.
    QString Indentation() const;
    /// The feed with \a additions, newest first, each before the first item that is older. Without additions the very
    /// bytes that were read.
    QByteArray With(std::vector<Addition> const& additions) const;

private:
    void FindItems();
    void TakeItems(Engine::FeedTarget const& target, QUrl const& address);
    int PlaceFor(Core::Version const& version) const;

    QString m_name;
    QByteArray m_bytes;
    QString m_text;
    bool m_hasMark = false; ///< of the byte order, before the text
    QString m_feedPrefix;
    std::vector<PublishedItem> m_items;
    int m_firstItem = -1; ///< where its tag begins; -1 without items
    int m_itemsEnd = 0;   ///< behind the last item, or without items behind the channel's last child
};

} // namespace Pelnar::Publisher
