// InstallRehearsal.h: checks before a download whether this system lets an update be installed. The helper does every
// step of an update next to the bundle, with its own folders.
// Thread: any; it waits for the helper, at most one minute. It removes everything that it created.
#pragma once

#include "Engine/core/update/InstallTarget.h"
#include "Engine/core/update/SealedProgram.h"

#include <optional>

namespace Pelnar::Engine
{

/// The error of an installation that cannot succeed; empty if it can.
std::optional<EngineError> RehearseInstallation(InstallTarget const& target, SealedProgram& helper);

} // namespace Pelnar::Engine
