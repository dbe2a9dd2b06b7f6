// DiffVerb.h: `pelnar-appcast diff`. Thread: the main thread. Ownership: as in Verb.h.
#pragma once

#include "Publisher/Verb.h"

namespace Pelnar::Publisher
{

void AddDiff(CLI::App& program, VerbContext& context);

} // namespace Pelnar::Publisher
