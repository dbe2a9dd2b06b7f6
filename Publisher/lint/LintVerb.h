// LintVerb.h: `pelnar-appcast lint`. Thread: the main thread. Ownership: as in Verb.h.
#pragma once

#include "Publisher/Verb.h"

namespace Pelnar::Publisher
{

void AddLint(CLI::App& program, VerbContext& context);

} // namespace Pelnar::Publisher
