// SwapBundle.h: the steps of putting one bundle in another's place, each durable before the next begins.
// Thread: the process' only one. Ownership: descriptors stay the caller's.
#pragma once

#include "Engine/core/delta/TreeAccess.h"
#include "Engine/core/payload/SwapJournal.h"

#include <optional>
#include <string>

namespace Pelnar::Installer
{

/// The version of the bundle \a name in the folder; nothing when it cannot be told.
std::optional<std::string> VersionOf(int folderFd, std::string const& name);

/// What is written in the journal of \a targetName; nothing when there is none, or none that can be understood.
std::optional<Engine::SwapJournal> ReadSwapJournal(int parentFd, std::string const& targetName);
/// Throws UpdateRefusal. REQUIRES: the swap lock.
void WriteSwapJournal(int parentFd, std::string const& targetName, Engine::SwapJournal const& journal);

/// Puts journal.stagedName of the staging folder in the target's place and the target in the staging folder, and
/// answers when both folders are on the disk; or puts everything back and throws UpdateRefusal: OtherFileSystem,
/// SwapFailed, SyncFailed. REQUIRES: the swap lock; the journal is written.
void SwapBundle(int parentFd, std::string const& targetName, int stagingFd, Engine::SwapJournal const& journal);

/// The way back: puts \a previousName of the staging folder in the target's place and the target in the staging folder.
/// Wherever it stops, what stands there can be recovered by the journal. Throws UpdateRefusal: SwapFailed, SyncFailed.
/// REQUIRES: the swap lock; the journal still stands.
void SwapBack(int parentFd, std::string const& targetName, int stagingFd, std::string const& previousName,
              Engine::SwapJournal const& journal);

} // namespace Pelnar::Installer
