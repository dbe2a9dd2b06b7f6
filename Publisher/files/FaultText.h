// FaultText.h: the messages for a publisher about an archive or release notes that clients would refuse.
#pragma once

#include "Engine/core/delta/DeltaContainer.h"
#include "Engine/core/faults/UpdateFault.h"
#include "Engine/core/notes/ReleaseNotesFilter.h"
#include "Publisher/Refusal.h"

namespace Pelnar::Publisher
{

/// The sentence and the correction for \a fault of the file \a name; \a errorNumber is 0 if no system call failed.
Problem ProblemOf(Engine::UpdateFault fault, int errorNumber, QString const& name);
Problem ProblemOf(Engine::UpdateRefusal const& refusal, QString const& name);
/// Whether the cause is this computer or the content of the file.
RefusalCause CauseOf(Engine::UpdateFault fault);
/// The same for a delta that cannot be made, read or applied.
Problem ProblemOf(Engine::DeltaOutcome const& outcome, QString const& name);
/// Why clients would show release notes as plain text.
QString ReasonOf(Engine::ReleaseNotesRefusal refusal);

} // namespace Pelnar::Publisher
