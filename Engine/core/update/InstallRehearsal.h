// InstallRehearsal.h: checks before a download whether this system lets an update be installed. The helper does every
// step of an update next to the bundle, with its own folders.
// Thread: any; it waits for the helper, at most one minute. It removes everything that it created.
#pragma once

#include "Engine/core/update/InstallTarget.h"
#include "Engine/core/update/SealedProgram.h"

namespace Pelnar::Engine
{

/// Fails if an installation cannot succeed.
[[nodiscard]] Result<void> RehearseInstallation(InstallTarget const& target, SealedProgram& helper);

} // namespace Pelnar::Engine
