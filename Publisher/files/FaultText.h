// FaultText.h: what a publisher is told of an archive that clients would refuse.
#pragma once

#include "Engine/core/delta/DeltaContainer.h"
#include "Engine/core/faults/UpdateFault.h"
#include "Publisher/Refusal.h"

namespace Pelnar::Publisher
{

/// The sentence and the mend for \a fault of the file \a name; \a errorNumber is 0 where no system call failed.
Problem ProblemOf(Engine::UpdateFault fault, int errorNumber, QString const& name);
Problem ProblemOf(Engine::UpdateRefusal const& refusal, QString const& name);
/// Whether this computer is to blame, or what the file holds.
RefusalCause CauseOf(Engine::UpdateFault fault);
/// The same for a delta that cannot be made, read or applied.
Problem ProblemOf(Engine::DeltaOutcome const& outcome, QString const& name);

} // namespace Pelnar::Publisher
