// RecoverSwap.h: repairs what an interrupted update left next to a bundle, and removes unused files.
#pragma once

#include "Engine/core/helper/HelperReport.h"
#include "Engine/core/helper/UpdateJob.h"

#include <string>

namespace Pelnar::Installer
{

struct Recovery
{
    Engine::RecoveryAction action = Engine::RecoveryAction::Nothing;
    std::string failedVersion; ///< rolled back earlier to the version that asks; empty without a rollback
};

/// Does what \a job requests. A job without a version means that no version runs. May be interrupted at any point and
/// run again. Throws UpdateRefusal. REQUIRES: the swap lock of the folder open at \a parentFd.
Recovery RecoverSwap(int parentFd, Engine::RecoverJob const& job);

/// Rolls back the installed, unconfirmed new version of \a targetName. Throws UpdateRefusal. REQUIRES: the swap lock.
Engine::RecoveryAction RollBackSwap(int parentFd, std::string const& targetName);

} // namespace Pelnar::Installer
