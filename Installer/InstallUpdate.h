// InstallUpdate.h: the helper's second half: from a prepared bundle and an ended host to a running new version.
// A child process does the swap, so that this one can repair the state after a killed child.
#pragma once

#include "Engine/core/helper/UpdateJob.h"
#include "Installer/ReportChannel.h"

namespace Pelnar::Installer
{

/// Throws UpdateRefusal: HostStillRunning, or if the record cannot be started; then nothing is changed. Any other
/// result is reported. Returns true if the new version is installed and, if requested, a program could be started.
[[nodiscard]] bool InstallUpdate(Engine::InstallJob const& job, Engine::InstallDescriptors const& descriptors,
                                 ReportChannel& report);

} // namespace Pelnar::Installer
