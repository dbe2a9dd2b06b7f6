// SUUpdater.h: the engine's front: one updater for the running bundle.
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

/// The updater of the main bundle, the same object at every call.
+ (SUUpdater*)sharedUpdater;

/// Not retained; nil to detach.
@property (nonatomic, assign) id<SUUpdaterDelegate> delegate;

/// The feed's address. When it has not been set: the main bundle's "SUFeedURL" (user default before information
/// dictionary).
@property (nonatomic, copy) NSURL* feedURL;

/// Kept for the interface's sake: the engine starts no check by itself.
@property (nonatomic, assign) BOOL automaticallyChecksForUpdates;
/// Kept for the interface's sake: the engine sends no profile, no matter what the value is.
@property (nonatomic, assign) BOOL sendsSystemProfile;
/// The user default "SUAutomaticallyUpdate", else the information dictionary's, else NO. Setting it writes the default.
@property (nonatomic, assign) BOOL automaticallyDownloadsUpdates;

/// YES from the start of a check until its last callback has returned to the event loop at the latest, so that a check
/// started by a timer posted in that callback is accepted; YES too while a download, an extraction or a prepared
/// installation is alive.
@property (nonatomic, readonly) BOOL updateInProgress;

/// The three checks. Each returns at once and answers through the delegate later; one that is started while another
/// runs is ignored, with a log line.

/// A probe: fetches the feed and reports; shows nothing and downloads nothing.
- (void)checkForUpdateInformation;
/// A check that the user did not ask for: nothing is shown unless an update is found.
- (void)checkForUpdatesInBackground;
/// A check that the user asked for, with the engine's windows. \a sender is ignored.
- (void)checkForUpdates:(id)sender;

@end
