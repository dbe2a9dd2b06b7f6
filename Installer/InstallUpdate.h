// InstallUpdate.h: the helper's second half: from a prepared bundle and an ended host to a running new version.
// Thread: the process's only one. A child process does the swap, so that this one can repair the state after a killed
// child. Ownership: callers own their descriptors.
#pragma once

#include "Engine/core/helper/UpdateJob.h"
#include "Installer/ReportChannel.h"

namespace Pelnar::Installer
{

struct InstallDescriptors
{
    int parent;    ///< the folder that holds the installed bundle
    int staging;   ///< the staging folder, locked by the host
    int host;      ///< a pidfd
    int records;   ///< the folder of the outcome's record; unused if none is kept
    int arguments; ///< the file of the new version's arguments; without it the version gets none
};

/// Throws UpdateRefusal: HostStillRunning, or if the record cannot be started; then nothing is changed. Any other
/// result is reported. Returns true if the new version is installed and, if requested, a program could be started.
[[nodiscard]] bool InstallUpdate(Engine::InstallJob const& job, InstallDescriptors const& descriptors,
                                 ReportChannel& report);

} // namespace Pelnar::Installer
