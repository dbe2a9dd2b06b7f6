// SUAppcastItem_p.h: makes an object of a feed item; for the engine only.
// Thread: main.
#pragma once

#import <Sparkle/SUAppcastItem.h>

#include "Engine/core/feed/FeedItem.h"

@interface SUAppcastItem (Engine)

/// Copies everything of \a item, including its deltas. The objects of the deltas are created here, once.
- (id)initWithFeedItem:(Pelnar::Engine::FeedItem const&)item;
/// The object of delta number \a position of the item that this object was made of.
- (SUAppcastItem*)deltaAtPosition:(size_t)position;
/// The position of \a candidate among the deltas; -1 if it is not one of them. It is compared and gets no message.
- (int)positionOfDelta:(id)candidate;

@end
