// SwapBundle.h: the steps that replace one bundle by another, each durable before the next begins.
#pragma once

#include "Engine/core/base/Descriptor.h"
#include "Engine/core/helper/SwapJournal.h"

#include <optional>
#include <string>

namespace Pelnar::Installer
{

/// The version of the bundle \a name in the folder; empty if it cannot be read.
std::optional<std::string> VersionOf(int folderFd, std::string const& name);

/// The journal of \a targetName; empty if it is missing or invalid.
std::optional<Engine::SwapJournal> ReadSwapJournal(int parentFd, std::string const& targetName);
/// Throws UpdateRefusal. REQUIRES: the swap lock.
void WriteSwapJournal(int parentFd, std::string const& targetName, Engine::SwapJournal const& journal);

/// Exchanges journal.stagedName of the staging folder with the target, and returns when both folders are on the disk.
/// Otherwise it restores everything and throws UpdateRefusal: OtherFileSystem, SwapFailed, SyncFailed. REQUIRES: the
/// swap lock; the journal is written.
void SwapBundle(int parentFd, std::string const& targetName, int stagingFd, Engine::SwapJournal const& journal);

/// The reverse: exchanges \a previousName of the staging folder with the target. If it stops at any point, the journal
/// allows recovery. Throws UpdateRefusal: SwapFailed, SyncFailed. REQUIRES: the swap lock; the journal exists.
void SwapBack(int parentFd, std::string const& targetName, int stagingFd, std::string const& previousName,
              Engine::SwapJournal const& journal);

} // namespace Pelnar::Installer
