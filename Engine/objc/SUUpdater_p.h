// SUUpdater_p.h: the updater's entry for tests; for the engine only.
// Thread: main. Ownership: none.
#pragma once

#import <Sparkle/SUUpdater.h>

#include "Engine/core/fetch/FetchPolicy.h"

@interface SUUpdater (Engine)

/// Takes the place of the limits that ship, the feed's size excepted, from the next check on.
- (void)setFetchLimits:(Pelnar::Engine::FetchLimits const&)limits;

@end
