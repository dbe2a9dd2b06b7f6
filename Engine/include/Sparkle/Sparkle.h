// Sparkle.h: the whole interface of the update engine. Objective-C++ only.
#pragma once

#import <Sparkle/SUAppcast.h>
#import <Sparkle/SUAppcastItem.h>
#import <Sparkle/SUErrors.h>
#import <Sparkle/SUStandardVersionComparator.h>
#import <Sparkle/SUUpdater.h>
#import <Sparkle/SUUpdaterDelegate.h>
#import <Sparkle/SUVersionComparisonProtocol.h>
