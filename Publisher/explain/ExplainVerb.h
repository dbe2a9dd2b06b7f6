// ExplainVerb.h: `pelnar-appcast explain`. Thread: the main thread. Ownership: as in Verb.h.
#pragma once

#include "Publisher/Verb.h"

namespace Pelnar::Publisher
{

void AddExplain(CLI::App& program, VerbContext& context);

} // namespace Pelnar::Publisher
