// FeedItemReader_p.h: one <item> of a feed with its deltas.
// Thread: any, one at a time. Ownership: values only; the walker and the context outlive the call.
#pragma once

#include "Engine/core/feed/FeedWalker.h"

#include <optional>

namespace Pelnar::Engine
{

/// What every item of one feed is read with.
struct FeedItemContext
{
    QUrl const& feedUrl;
    FeedPlatform platform;
    QString const& machine;
    FeedLimits const& limits;
    QStringList const& languages;
};

/// Reads the item just entered, to its end. Nothing when its enclosures all name other platforms.
[[nodiscard]] std::optional<FeedItem> ReadFeedItem(FeedWalker& walker, FeedItemContext const& context);

} // namespace Pelnar::Engine
