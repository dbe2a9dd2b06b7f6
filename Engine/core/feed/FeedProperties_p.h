// FeedProperties_p.h: any element of a feed as a value: text, a map of what it carries, a list of what stands twice.
// Thread: any, one at a time.
#pragma once

#include "Engine/core/feed/FeedText_p.h"
#include "Engine/core/feed/FeedWalker.h"

#include <QVariantMap>

namespace Pelnar::Engine
{

/// What an element turned out to hold.
struct FeedElement
{
    QString text;                       ///< directly inside it, cleaned
    QVariant value;                     ///< the text, or a map when it has attributes or children
    bool hasFeedCriticalUpdate = false; ///< one of its children is the feed's criticalUpdate
};

/// Reads the element just entered, to its end.
[[nodiscard]] FeedElement ReadFeedElement(FeedWalker& walker, FeedTextKind kind);

/// The attributes of the tag just entered.
[[nodiscard]] QVariantMap ReadFeedAttributes(FeedWalker& walker);

/// Adds \a value under \a name; values of one name become a list.
void AddFeedProperty(QVariantMap& properties, QString const& name, QVariant value);

} // namespace Pelnar::Engine
