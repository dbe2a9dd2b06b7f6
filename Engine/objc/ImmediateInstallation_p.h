// ImmediateInstallation_p.h: the target of the invocation with which the delegate installs an update immediately.
// Thread: main. Ownership: the invocation retains it, and the delegate may keep the invocation for any time.
// Objective-C++ only.
#pragma once

#import <Foundation/Foundation.h>

#include "Engine/core/update/IUpdateHost.h"

#include <functional>

@interface PelnarImmediateInstallation : NSObject
{
  @private
    std::function<void(Pelnar::Engine::RelaunchWish)> m_installNow;
}

/// An invocation of installWithRelaunch:showingUserInterface: with the preset arguments YES and NO, autoreleased.
+ (NSInvocation*)invocationCalling:(std::function<void(Pelnar::Engine::RelaunchWish)> const&)installNow;

/// \a isShowing has no effect: between this call and the application's end there is nothing to show.
- (void)installWithRelaunch:(BOOL)relaunches showingUserInterface:(BOOL)isShowing;

@end
