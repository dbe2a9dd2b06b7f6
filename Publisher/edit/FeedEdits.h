// FeedEdits.h: the changes of a publisher to items of a published feed. If one of them throws Refusal, it has changed
// nothing.
#pragma once

#include "Publisher/edit/FeedEdit.h"
#include "Publisher/generate/FolderScan.h"

namespace Pelnar::Publisher
{

/// Marks the items of \a version as withdrawn. Marked items stay unchanged.
void Withdraw(FeedEdit& feed, QString const& version);

/// Moves the items of \a version to \a channel. If it is empty, offers them to all clients.
void Promote(FeedEdit& feed, QString const& version, QString const& channel);

/// Replaces the descriptions of the items of \a version by \a notes.
void EditNotes(FeedEdit& feed, QString const& version, std::vector<ReleaseNotes> const& notes);

/// Removes the items of all versions except the newest \a keptVersions. Withdrawn items stay, because they prevent that
/// their archives are published again. Throws Refusal if a client would be offered another item afterwards.
void Prune(FeedEdit& feed, int keptVersions);

} // namespace Pelnar::Publisher
