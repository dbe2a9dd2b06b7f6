// BundleSettings_p.h: what the running bundle and the user defaults say about updates. Plain C++.
// Thread: main. Ownership: values only.
// A value of the wrong type counts as absent, with a warning. Where a key may stand in both, the user default wins.
//   SUFeedURL                   text; the feed's address              bundle; both with the next key
//   PelnarAllowsFeedURLInDefaults  boolean; a user default may name another feed         bundle
//   SUAutomaticallyUpdate       boolean                                                  both
//   SUSkippedVersion            text; the version that the user skipped                  defaults
//   SULastCheckTime             date; written at the end of every check                  defaults
//   SUPublicEDKey               text; base64, the key that updates are signed with       bundle
//   PelnarNextPublicEDKey       text; base64, a second key that is trusted as well       bundle
//   CFBundleIdentifier          text; what an update must be called, too                 bundle
//   CFBundleVersion             text; the running version                                bundle
//   CFBundleShortVersionString  text; the running version for a person                   bundle
//   CFBundleDisplayName         text; the name for a person; else CFBundleName, else the bundle's own   bundle
//   PelnarUpdatesDisabled       boolean; nothing is ever sent, every check fails at once both
//   PelnarFailedChecks          number; background checks in a row that failed           defaults
//   PelnarLastFailedCheckTime   date; of the last of them                                defaults
//   PelnarRequiresSignedFeed    boolean; a feed that is not signed is refused; anything but a plain "no" asks for it
//   bundle PelnarFeedRecord            dictionary; what earlier versions knew of the feed: address, digest (text),
//   firstSeen,
//                               lastSeen (dates), serial (number); read until there is a file of FeedRecordFile.h; an
//                               entry of the wrong type counts as absent   defaults
//   PelnarFeedPlatform          "macos" or "linux": whose items are wanted; without it, the system's   both
//   PelnarAllowsInsecureFeeds   boolean; plain http to any server                        bundle
//   PelnarMaximumFeedBytes      number from 1 to 1 GiB; without it, 4 MiB                bundle
#pragma once

#include "Engine/core/check/KeptFeedFile.h"
#include "Engine/core/update/DiskChores.h"
#include "Engine/core/update/GoodStart.h"
#include "Engine/core/update/UpdateSettings.h"

#include <optional>

namespace Pelnar::Engine
{

/// The settings of a check of the feed at \a feedUrl, and of what it leads to.
UpdateSettings ReadUpdateSettings(QUrl const& feedUrl);

/// A bundle's path as PathText, without the stand-in by which a program that runs under an odd path is known to
/// Foundation.
QString BundlePathText(QString const& path);

/// The running bundle's path and version; nothing when the program runs from no bundle that says a version.
std::optional<StartedApplication> ReadStartedApplication();

/// Empty when the bundle names no feed.
QUrl ReadFeedUrl();

AutomaticDownload ReadAutomaticDownload();
void WriteAutomaticDownload(AutomaticDownload value);

void WriteLastCheckTime();
void WriteSkippedVersion(QString const& version);
void WriteBackOff(BackOffState const& state);
/// Where the feed of the last check is kept.
FeedFolder ReadFeedFolder();
FeedRecord ReadFeedRecord();
/// Has \a chores store \a ours, unless another process of the application has stored a record of a later feed
/// meanwhile. ReadFeedRecord() knows of it at once.
void KeepFeedRecord(FeedRecord const& ours, DiskChores& chores);

} // namespace Pelnar::Engine
