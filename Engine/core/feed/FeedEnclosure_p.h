// FeedEnclosure_p.h: one <enclosure> of a feed: a download of an item, or a delta.
#pragma once

#include "Engine/core/feed/FeedWalker.h"

#include <vector>

namespace Pelnar::Engine
{

/// Its texts are null when the attribute is absent.
struct FeedEnclosure
{
    QVariantMap attributes;
    QString url;
    QString length;
    QString version;
    QString displayVersion;
    QString edSignature;
    QString installationType;
    QString operatingSystem;
    QString deltaFrom;
    QString machines;
    QString signatures;
    int line = 0;
    int column = 0;
};

/// Reads the <enclosure> just entered, to its end.
FeedEnclosure ReadFeedEnclosure(FeedWalker& walker);

[[nodiscard]] bool IsFor(FeedPlatform platform, FeedEnclosure const& enclosure);

/// The signatures by key that have the right form.
std::vector<FeedSignature> SignaturesIn(FeedEnclosure const& enclosure);

} // namespace Pelnar::Engine
