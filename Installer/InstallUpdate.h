// InstallUpdate.h: the helper's second half: from a prepared bundle and an ended host to a new version that runs.
// Thread: the process' only one; the swap itself happens in a child process, so that this one can put right what a
// killed child leaves. Ownership: descriptors stay the caller's.
#pragma once

#include "Engine/core/payload/UpdateJob.h"
#include "Installer/ReportChannel.h"

namespace Pelnar::Installer
{

struct InstallDescriptors
{
    int parent;    ///< the folder that holds the installed bundle
    int staging;   ///< the staging folder, locked by the host
    int host;      ///< a pidfd
    int records;   ///< the folder of the outcome's record; unused when none is kept
    int arguments; ///< the file of the new version's arguments; without one it gets none
};

/// Throws UpdateRefusal: HostStillRunning, or when the record cannot be begun; nothing is touched then. Any other
/// outcome is reported; true when the new version is installed and, if that was asked for, something could be started.
[[nodiscard]] bool InstallUpdate(Engine::InstallJob const& job, InstallDescriptors const& descriptors,
                                 ReportChannel& report);

} // namespace Pelnar::Installer
