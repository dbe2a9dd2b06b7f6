// TimelineVerb.h: `pelnar-appcast timeline`. Thread: the main thread. Ownership: as in Verb.h.
#pragma once

#include "Publisher/Verb.h"

namespace Pelnar::Publisher
{

void AddTimeline(CLI::App& program, VerbContext& context);

} // namespace Pelnar::Publisher
