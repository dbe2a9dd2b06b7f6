// UpdateError.h: what an update that was refused is to the application and to a person.
// Thread: any; no state. Ownership: values only.
#pragma once

#include "Engine/core/EngineError.h"

namespace Pelnar::Engine
{

/// The published code of \a fault, its own number beneath, its own sentence. \a errorNumber, 0 when no system call
/// failed, is named in the detail. REQUIRES: \a fault is not None.
EngineError MakeFaultError(UpdateFault fault, int errorNumber = 0);

/// Whether an archive that was refused with \a fault is to blame, so that fetching it again may help; false for what is
/// wrong with this computer or the installed application.
[[nodiscard]] bool IsArchiveToBlame(UpdateFault fault);

} // namespace Pelnar::Engine
