// FeedPrescan_p.h: one pass over the tags of a feed before the XML reader sees them. The reader needs time quadratic in
// the attributes of a tag and cannot be stopped inside a tag. This pass refuses such tags before.
#pragma once

#include "Engine/core/feed/FeedParser.h"

#include <optional>

namespace Pelnar::Engine
{

struct FeedPrescanFinding
{
    std::optional<ErrorCause> cause; ///< FeedDocumentType, FeedTooManyAttributes, FeedTagTooLong, or empty
    int offset = 0;                  ///< of the "<"
    int limit = 0;                   ///< the exceeded limit
};

/// The first refusal in \a utf8. Knows tags, comments, CDATA sections and processing instructions. The reader stops at
/// other text that is not well-formed.
[[nodiscard]] FeedPrescanFinding PrescanFeed(QByteArray const& utf8, FeedLimits const& limits);

} // namespace Pelnar::Engine
