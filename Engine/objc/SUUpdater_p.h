// SUUpdater_p.h: the updater's entries for tests and for the engine's plain C++ face; for the engine only.
// Thread: main. Ownership: none.
#pragma once

#import <Sparkle/SUUpdater.h>

#include "Engine/core/fetch/FetchPolicy.h"

namespace Pelnar::Engine
{
class IUpdateParts;
class IUserInterface;
} // namespace Pelnar::Engine

@interface SUUpdater (Engine)

/// Takes the place of the limits that ship, the feed's size excepted, from the next check on.
- (void)setFetchLimits:(Pelnar::Engine::FetchLimits const&)limits;

/// Take the place of what ships from the next check on; a null pointer puts what ships back. Not owned.
- (void)setUpdateParts:(Pelnar::Engine::IUpdateParts*)parts;
- (void)setUpdateWindows:(Pelnar::Engine::IUserInterface*)windows;

/// See Pelnar::ConfirmGoodStart.
- (void)confirmGoodStart;

@end
