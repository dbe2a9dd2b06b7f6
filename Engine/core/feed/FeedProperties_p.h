// FeedProperties_p.h: any element of a feed as a value: text, a map of its attributes and children, a list of repeated
// names. Thread: any, one at a time.
#pragma once

#include "Engine/core/feed/FeedText_p.h"
#include "Engine/core/feed/FeedWalker.h"

#include <QVariantMap>

namespace Pelnar::Engine
{

/// The content of an element.
struct FeedElement
{
    QString text;                       ///< directly inside it, cleaned
    QVariant value;                     ///< the text, or a map if it has attributes or children
    bool hasFeedCriticalUpdate = false; ///< one of its children is the feed's criticalUpdate
};

/// Reads the current element to its end.
[[nodiscard]] FeedElement ReadFeedElement(FeedWalker& walker, FeedTextKind kind);

/// The attributes of the current tag.
[[nodiscard]] QVariantMap ReadFeedAttributes(FeedWalker& walker);

/// Adds \a value under \a name. Values with the same name become a list.
void AddFeedProperty(QVariantMap& properties, QString const& name, QVariant value);

} // namespace Pelnar::Engine
