// FeedChoice.h: the session's rules over the items of a parsed feed, without Foundation between them.
// Thread: any. Ownership: the choice points into the items it was made from.
#pragma once

#include "Engine/core/feed/FeedItem.h"
#include "HostFramework/Version.h"

#include <vector>

namespace Pelnar::Fuzz
{

/// The item or delta that a client of \a localVersion on \a systemVersion is offered; null when there is none.
Engine::FeedItem const* ChooseItem(std::vector<Engine::FeedItem> const& items, Core::Version const& localVersion,
                                   Core::Version const& systemVersion);

} // namespace Pelnar::Fuzz
