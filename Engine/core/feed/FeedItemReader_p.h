// FeedItemReader_p.h: one <item> of a feed with its deltas. Thread: any, one at a time. Ownership: the walker and the
// context outlive the call.
#pragma once

#include "Engine/core/feed/FeedWalker.h"

#include <optional>

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

/// Reads the current item to its end. Empty if all its enclosures name other platforms.
[[nodiscard]] std::optional<FeedItem> ReadFeedItem(FeedWalker& walker, FeedItemContext const& context);

} // namespace Pelnar::Engine
