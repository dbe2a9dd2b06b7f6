// PrepareUpdate.h: the helper's first half: from a downloaded archive to a checked bundle in the staging folder.
// Thread: the process' only one; the process is confined for good. Ownership: descriptors stay the caller's.
#pragma once

#include "Engine/core/payload/UpdateJob.h"
#include "Installer/ReportChannel.h"

namespace Pelnar::Installer
{

struct PrepareDescriptors
{
    int archive;
    int staging;
    int target; ///< the installed bundle's folder; deltas and installer programs only
};

/// Throws UpdateRefusal. On success the prepared bundle has been reported, and every byte of it is on the disk.
void PrepareUpdate(Engine::PrepareJob const& job, PrepareDescriptors const& descriptors, ReportChannel& report);

} // namespace Pelnar::Installer
