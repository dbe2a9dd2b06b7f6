// FeedEdits.h: what a publisher does to the items of a published feed. All of them throw Refusal and have changed
// nothing then.
#pragma once

#include "Publisher/edit/FeedEdit.h"
#include "Publisher/generate/FolderScan.h"

namespace Pelnar::Publisher
{

/// Marks the items of \a version as withdrawn. What is marked already stays.
void Withdraw(FeedEdit& feed, QString const& version);

/// Puts the items of \a version into \a channel, or, when that is empty, offers them to everybody.
void Promote(FeedEdit& feed, QString const& version, QString const& channel);

/// Puts \a notes in the place of the descriptions of the items of \a version.
void EditNotes(FeedEdit& feed, QString const& version, std::vector<ReleaseNotes> const& notes);

/// Removes the items of all but the newest \a keptVersions versions. Withdrawn items stay, since they keep their
/// archives from being published again. Refuses when a client would be offered something else afterwards.
void Prune(FeedEdit& feed, int keptVersions);

} // namespace Pelnar::Publisher
