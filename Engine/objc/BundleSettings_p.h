// BundleSettings_p.h: what the running bundle and the user defaults say about updates. Plain C++.
// Thread: main. Ownership: values only.
// A value of the wrong type counts as absent, with a warning. Where a key may stand in both, the user default wins.
//   SUFeedURL                   text; the feed's address                                 both
//   SUAutomaticallyUpdate       boolean                                                  both
//   SUSkippedVersion            text; the version that the user skipped                  defaults
//   SULastCheckTime             date; written at the end of every check                  defaults
//   CFBundleVersion             text; the running version                                bundle
//   PelnarFeedPlatform          "macos" or "linux": whose items are wanted; without it, the system's   both
//   PelnarAllowsInsecureFeeds   boolean; plain http to any server                        bundle
//   PelnarMaximumFeedBytes      number from 1 to 1 GiB; without it, 4 MiB                bundle
#pragma once

#include "Engine/core/check/CheckRun.h"

namespace Pelnar::Engine
{

/// The settings of a check of the feed at \a feedUrl.
CheckSettings ReadCheckSettings(QUrl const& feedUrl);

/// Empty when the bundle names no feed.
QUrl ReadFeedUrl();

enum class AutomaticDownload
{
    Off,
    On,
};
AutomaticDownload ReadAutomaticDownload();
void WriteAutomaticDownload(AutomaticDownload value);

void WriteLastCheckTime();

} // namespace Pelnar::Engine
