// InstallRehearsal.h: whether this system lets an update be installed, found out before it is downloaded: the helper
// does beside the bundle all that it will do for the update, with folders of its own. Thread: any; it waits for the
// helper, for a minute at most. Ownership: everything that is made goes again.
#pragma once

#include "Engine/core/update/InstallTarget.h"
#include "Engine/core/update/SealedProgram.h"

#include <optional>

namespace Pelnar::Engine
{

/// The error of an installation that cannot succeed; nothing when nothing stands in its way.
std::optional<EngineError> RehearseInstallation(InstallTarget const& target, SealedProgram& helper);

} // namespace Pelnar::Engine
