// SUAppcast_p.h: makes an appcast of a feed's items, and finds the item of an object; for the engine only.
// Thread: main.
#pragma once

#import <Sparkle/SUAppcast.h>

#include "Engine/core/check/CheckRun.h"

#include <optional>
#include <vector>

@interface SUAppcast (Engine)

- (id)initWithFeedItems:(std::vector<Pelnar::Engine::FeedItem> const&)items;
- (SUAppcastItem*)itemAtPlace:(Pelnar::Engine::ItemIndex const&)place;
/// The position of \a candidate. It is compared and gets no message, because an object from elsewhere may be of any
/// class, even deallocated.
- (std::optional<Pelnar::Engine::ItemIndex>)placeOfItem:(id)candidate;

@end
