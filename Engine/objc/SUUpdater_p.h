// SUUpdater_p.h: the updater's operations for tests and for the engine's plain C++ interface; for the engine only.
// Thread: main.
#pragma once

#import <Sparkle/SUUpdater.h>

#include "Engine/core/fetch/FetchRules.h"

namespace Pelnar::Engine
{
class IUpdateEnvironment;
class IUserInterface;
} // namespace Pelnar::Engine

@interface SUUpdater (Engine)

/// Replaces the default limits from the next check on, except the feed's size.
- (void)setFetchLimits:(Pelnar::Engine::FetchLimits const&)limits;

/// Each replaces the default from the next check on; a null pointer restores the default. Not owned.
- (void)setUpdateEnvironment:(Pelnar::Engine::IUpdateEnvironment*)parts;
- (void)setUpdateWindows:(Pelnar::Engine::IUserInterface*)windows;

/// See Pelnar::ConfirmGoodStart.
- (void)confirmGoodStart;

@end
