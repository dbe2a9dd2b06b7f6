// SUAppcast_p.h: makes the items of a feed into an appcast and tells which of them an object is; for the engine only.
// Thread: main. Ownership: the caller owns what it allocates.
#pragma once

#import <Sparkle/SUAppcast.h>

#include "Engine/core/check/CheckRun.h"

#include <optional>
#include <vector>

@interface SUAppcast (Engine)

- (id)initWithFeedItems:(std::vector<Pelnar::Engine::FeedItem> const&)items;
- (SUAppcastItem*)itemAtPlace:(Pelnar::Engine::ItemPlace const&)place;
/// Where \a candidate stands. It is compared and never called, since an object that is not of this appcast may be
/// anything, even gone.
- (std::optional<Pelnar::Engine::ItemPlace>)placeOfItem:(id)candidate;

@end
