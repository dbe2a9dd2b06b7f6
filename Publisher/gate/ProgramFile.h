// ProgramFile.h: finds programs that have the right name, mode and machine, but cannot start.
#pragma once

#include "Publisher/Refusal.h"
#include "Publisher/gate/GatedVersion.h"

namespace Pelnar::Publisher
{

/// Adds the program of \a bundle if it is a script with line ends of another system, or an ELF file that is shorter
/// than its headers say. A missing program is reported by the check of clients.
void CheckProgramFile(BundleTree const& bundle, GatedVersion const& version, RefusalList& refusals);

} // namespace Pelnar::Publisher
