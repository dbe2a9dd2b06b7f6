// SimulateVerb.h: `pelnar-appcast simulate`. Thread: the main thread. Ownership: as in Verb.h.
#pragma once

#include "Publisher/Verb.h"

namespace Pelnar::Publisher
{

void AddSimulate(CLI::App& program, VerbContext& context);

} // namespace Pelnar::Publisher
