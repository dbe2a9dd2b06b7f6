// RecoverSwap.h: puts right what an interrupted update left beside a bundle, and tidies up what nobody uses any more.
// Thread: the process' only one. Ownership: descriptors stay the caller's.
#pragma once

#include "Engine/core/payload/HelperReport.h"

#include <string>

namespace Pelnar::Installer
{

/// \a runningVersion is the version that asks and so has started; empty when none did. May be interrupted anywhere and
/// run again. Throws UpdateRefusal. REQUIRES: the swap lock of the folder open at \a parentFd.
Engine::RecoveryAction RecoverSwap(int parentFd, std::string const& targetName, std::string const& runningVersion);

} // namespace Pelnar::Installer
