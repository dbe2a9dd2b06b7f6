// FeedError.h: a feed that cannot be read, as a failed check.
// Thread: any; no state.
#pragma once

#include "Engine/core/faults/EngineError.h"
#include "Engine/core/feed/FeedParser.h"

namespace Pelnar::Engine
{

/// REQUIRES: error.kind is not None.
EngineError MakeFeedError(FeedParseError const& error);

} // namespace Pelnar::Engine
