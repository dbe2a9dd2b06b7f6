// EditVerbs.h: `pelnar-appcast promote`, `withdraw`, `edit-notes` and `prune`. Thread: the main thread. Ownership: as
// in Verb.h.
#pragma once

#include "Publisher/Verb.h"

namespace Pelnar::Publisher
{

void AddEdits(CLI::App& program, VerbContext& context);

} // namespace Pelnar::Publisher
