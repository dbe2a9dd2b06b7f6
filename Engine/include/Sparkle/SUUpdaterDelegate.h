// SUUpdaterDelegate.h: the questions and notifications of the engine to its delegate.
// Thread: main, from Qt's event loop. Ownership: the updater does not retain its delegate. Every method is optional;
// the engine does not call a missing one.
#pragma once

#import <Foundation/Foundation.h>

#import <Sparkle/SUVersionComparisonProtocol.h>

@class SUAppcast;
@class SUAppcastItem;
@class SUUpdater;

@protocol SUUpdaterDelegate <NSObject>
@optional

/// Returns the item of \a appcast to offer, or nil for none. If the answer is a delta, the engine calls the method
/// exactly once more in the same check, to get a full item as the fallback.
- (SUAppcastItem*)bestValidUpdateInAppcast:(SUAppcast*)appcast forUpdater:(SUUpdater*)updater;
/// nil means the engine's own comparator.
- (id<SUVersionComparison>)versionComparatorForUpdater:(SUUpdater*)updater;

/// The result of a check: exactly one of these three comes first. After updaterDidNotFindUpdate: a background or
/// interactive check also sends updater:didAbortWithError: with SUNoUpdateError, in the same turn of the event loop.
- (void)updater:(SUUpdater*)updater didFindValidUpdate:(SUAppcastItem*)item;
- (void)updaterDidNotFindUpdate:(SUUpdater*)updater;
- (void)updater:(SUUpdater*)updater didAbortWithError:(NSError*)error;

/// A silently downloaded update is verified and unpacked, and will be installed when the application quits. Argument 2
/// of \a invocation (BOOL) is "relaunch", preset to YES; argument 3 (BOOL) is "show user interface", preset to NO.
/// Invoke it during this call or later to install immediately.
- (void)updater:(SUUpdater*)updater
          willInstallUpdateOnQuit:(SUAppcastItem*)item
    immediateInstallationInvocation:(NSInvocation*)invocation;
- (void)updater:(SUUpdater*)updater didCancelInstallUpdateOnQuit:(SUAppcastItem*)item;

/// NO discards the prepared update: nothing is installed.
- (BOOL)updaterShouldRelaunchApplication:(SUUpdater*)updater;
/// The installing helper has been started; the application should quit.
- (void)updaterWillRelaunchApplication:(SUUpdater*)updater;
/// The bundle to start after the installation. It is never the place where the update is installed.
- (NSString*)pathToRelaunchForUpdater:(SUUpdater*)updater;

@end
