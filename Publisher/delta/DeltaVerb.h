// DeltaVerb.h: the verb "delta": small updates from one version of a bundle to another.
// Thread: the main thread. Ownership: see Verb.h.
#pragma once

#include "Publisher/Verb.h"

namespace Pelnar::Publisher
{

void AddDelta(CLI::App& program, VerbContext& context);

} // namespace Pelnar::Publisher
