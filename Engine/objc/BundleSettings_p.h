// BundleSettings_p.h: what the running bundle and the user defaults say about updates; the keys stand in
// common/SettingKeys.h. Plain C++.
// Thread: main. Ownership: values only.
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

void WriteSkippedVersion(QString const& version);
/// Both have \a chores put it on the disk; it counts at once.
void WriteLastCheckTime(DiskChores& chores);
void WriteBackOff(BackOffState const& state, DiskChores& chores);
/// Where the feed of the last check is kept.
FeedFolder ReadFeedFolder();
FeedRecord ReadFeedRecord();
/// Has \a chores store \a ours, unless another process of the application has stored a record of a later feed
/// meanwhile. ReadFeedRecord() knows of it at once.
void KeepFeedRecord(FeedRecord const& ours, DiskChores& chores);

} // namespace Pelnar::Engine
