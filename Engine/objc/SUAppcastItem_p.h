// SUAppcastItem_p.h: makes an item of the feed into an object; for the engine only.
// Thread: main. Ownership: the caller owns what it allocates.
#pragma once

#import <Sparkle/SUAppcastItem.h>

#include "Engine/core/feed/FeedItem.h"

@interface SUAppcastItem (Engine)

/// Takes over everything that \a item says, its deltas included. The objects of the deltas are made here, once.
- (id)initWithFeedItem:(Pelnar::Engine::FeedItem const&)item;
/// The object of delta number \a position of the item that this one was made of.
- (SUAppcastItem*)deltaAtPosition:(size_t)position;
/// The position of \a candidate, which is compared and never called, among the deltas; -1 when it is none of them.
- (int)positionOfDelta:(id)candidate;

@end
