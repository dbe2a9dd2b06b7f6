// RecoverSwap.h: puts right what an interrupted update left beside a bundle, and tidies up what nobody uses any more.
// Thread: the process' only one. Ownership: descriptors stay the caller's.
#pragma once

#include "Engine/core/payload/HelperReport.h"
#include "Engine/core/payload/UpdateJob.h"

#include <string>

namespace Pelnar::Installer
{

struct Recovery
{
    Engine::RecoveryAction action = Engine::RecoveryAction::Nothing;
    std::string failedVersion; ///< taken back earlier for the version that asks; empty when none was
};

/// What \a job asks for; nobody runs when it names no version. May be interrupted anywhere and run again. Throws
/// UpdateRefusal. REQUIRES: the swap lock of the folder open at \a parentFd.
Recovery RecoverSwap(int parentFd, Engine::RecoverJob const& job);

/// Takes the new version of \a targetName back that stands there without a confirmation. Throws UpdateRefusal.
/// REQUIRES: the swap lock.
Engine::RecoveryAction RollBackSwap(int parentFd, std::string const& targetName);

} // namespace Pelnar::Installer
