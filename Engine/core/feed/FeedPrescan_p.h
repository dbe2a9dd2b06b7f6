// FeedPrescan_p.h: one pass over the tags of a feed before the XML reader sees them. The reader takes time quadratic in
// the attributes of a tag and cannot be stopped inside one, so what it must not meet is found here.
#pragma once

#include "Engine/core/feed/FeedParser.h"

#include <optional>

namespace Pelnar::Engine
{

struct FeedPrescanFinding
{
    std::optional<ErrorCause> cause; ///< FeedDocumentType, FeedTooManyAttributes, FeedTagTooLong or nothing
    int offset = 0;                  ///< of the "<"
    int limit = 0;                   ///< that is exceeded
};

/// The first refusal in \a utf8. Knows tags, comments, CDATA sections and processing instructions; what is not
/// well-formed is left to the reader, which stops at it.
[[nodiscard]] FeedPrescanFinding PrescanFeed(QByteArray const& utf8, FeedLimits const& limits);

} // namespace Pelnar::Engine
