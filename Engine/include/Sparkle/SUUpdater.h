// SUUpdater.h: the engine's main class: one updater for the running bundle.
// Thread: main, with Qt's event loop running. Ownership: the shared updater lives as long as the process; it does not
// retain its delegate.
#pragma once

#import <Foundation/Foundation.h>

#include <memory>

#import <Sparkle/SUExport.h>

namespace Pelnar::Engine
{
class Updater;
}

@protocol SUUpdaterDelegate;

SU_EXPORT
@interface SUUpdater : NSObject
{
@private
    std::shared_ptr<Pelnar::Engine::Updater> m_updater;
}

/// The updater of the main bundle; every call returns the same object.
+ (SUUpdater*)sharedUpdater;

/// Not retained; nil to detach.
@property (nonatomic, assign) id<SUUpdaterDelegate> delegate;

/// The feed's address. If it is not set, the main bundle's "SUFeedURL" counts (user default before information
/// dictionary).
@property (nonatomic, copy) NSURL* feedURL;

/// Exists only for the interface: the engine starts no check by itself.
@property (nonatomic, assign) BOOL automaticallyChecksForUpdates;
/// Exists only for the interface: the engine sends no profile, with any value.
@property (nonatomic, assign) BOOL sendsSystemProfile;
/// The user default "SUAutomaticallyUpdate", else the information dictionary's value, else NO. The setter writes the
/// user default.
@property (nonatomic, assign) BOOL automaticallyDownloadsUpdates;

/// YES from the start of a check. It is NO at the latest when the check's last callback has returned to the event loop,
/// so that a timer posted in that callback can start another check. It is also YES during a download, an extraction or
/// a prepared installation.
@property (nonatomic, readonly) BOOL updateInProgress;

/// The three checks. Each returns immediately; the delegate gets the result later. A check that starts while another
/// runs is ignored, with a log line.

/// A probe: fetches the feed and reports the result. It shows nothing and downloads nothing.
- (void)checkForUpdateInformation;
/// A check that the user did not request: it shows something only if it finds an update.
- (void)checkForUpdatesInBackground;
/// A check that the user requested, with the engine's windows. \a sender is ignored.
- (void)checkForUpdates:(id)sender;

@end
