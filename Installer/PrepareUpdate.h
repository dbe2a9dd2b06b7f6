// PrepareUpdate.h: the helper's first half: from a downloaded archive to a checked bundle in the staging folder.
// Thread: the process's only one; the process is confined permanently.
#pragma once

#include "Engine/core/helper/UpdateJob.h"
#include "Installer/ReportChannel.h"

namespace Pelnar::Installer
{

/// Throws UpdateRefusal. On success it has reported the prepared bundle, and every byte of the bundle is on the disk.
void PrepareUpdate(Engine::PrepareJob const& job, Engine::PrepareDescriptors const& descriptors, ReportChannel& report);

} // namespace Pelnar::Installer
