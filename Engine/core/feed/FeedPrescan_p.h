// FeedPrescan_p.h: one pass over the tags of a feed before the XML reader sees them. The reader takes time quadratic in
// the attributes of a tag and cannot be stopped inside one, so what it must not meet is found here.
// Thread: any; no state. Ownership: values only.
#pragma once

#include "Engine/core/feed/FeedParser.h"

namespace Pelnar::Engine
{

struct FeedPrescanFinding
{
    FeedErrorKind kind = FeedErrorKind::None; ///< DocumentType, TooManyAttributes, TagTooLong or None
    int offset = 0;                           ///< of the "<"
};

/// The first refusal in \a utf8. Knows tags, comments, CDATA sections and processing instructions; what is not
/// well-formed is left to the reader, which stops at it.
[[nodiscard]] FeedPrescanFinding PrescanFeed(QByteArray const& utf8, FeedLimits const& limits);

} // namespace Pelnar::Engine
