// FeedItemReader_p.h: one <item> of a feed with its deltas. Thread: any, one at a time. Ownership: the walker and the
// context outlive the call.
#pragma once

#include "Engine/core/feed/FeedWalker.h"

namespace Pelnar::Engine
{

/// The same for every item of one feed.
struct FeedItemContext
{
    QUrl const& feedUrl;
    FeedPlatform platform;
    QString const& machine;
    FeedLimits const& limits;
    QStringList const& languages;
};

/// Reads the current item to its end into \a item, which is new. False if all its enclosures name other platforms.
[[nodiscard]] bool ReadFeedItem(FeedWalker& walker, FeedItemContext const& context, FeedItem& item);

} // namespace Pelnar::Engine
