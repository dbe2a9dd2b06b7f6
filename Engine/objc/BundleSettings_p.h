// BundleSettings_p.h: the update settings of the running bundle and of the user defaults; the keys are in
// common/SettingKeys.h. Plain C++.
// Thread: main.
#pragma once

#include "Engine/core/base/DiskChores.h"
#include "Engine/core/check/KeptFeedFile.h"
#include "Engine/core/update/GoodStart.h"
#include "Engine/core/update/UpdateSettings.h"

#include <optional>

namespace Pelnar::Engine
{

/// The settings for a check of the feed at \a feedUrl, and for its update.
UpdateSettings ReadUpdateSettings(QUrl const& feedUrl);

/// A bundle's path as PathText. A program with a path that Foundation cannot use runs under a substitute path, which
/// this replaces.
QString BundlePathText(QString const& path);

/// The running bundle's path and version; empty unless the program runs from a bundle that has a version.
std::optional<StartedApplication> ReadStartedApplication();

/// Empty if the bundle names no feed.
QUrl ReadFeedUrl();

AutomaticDownload ReadAutomaticDownload();
/// The channels that are listed; none without the setting.
QStringList ReadChannels();
void WriteChannels(QStringList const& channels);
void WriteAutomaticDownload(AutomaticDownload value);

void WriteSkippedVersion(QString const& version);
/// For both, \a chores writes to the disk; the new value counts immediately.
void WriteLastCheckTime(DiskChores& chores);
void WriteBackOff(BackOffState const& state, DiskChores& chores);
/// The place of the last check's kept feed.
FeedFolder ReadFeedFolder();
FeedRecord ReadFeedRecord();
/// Makes \a chores store \a ours, unless another process of the application has stored a record of a later feed
/// meanwhile. ReadFeedRecord() returns it immediately.
void KeepFeedRecord(FeedRecord const& ours, DiskChores& chores);

} // namespace Pelnar::Engine
