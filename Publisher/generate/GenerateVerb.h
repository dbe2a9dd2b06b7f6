// GenerateVerb.h: the verb "generate": a feed from a folder of archives.
// Thread: the main thread. Ownership: see Verb.h.
#pragma once

#include "Publisher/Verb.h"

namespace Pelnar::Publisher
{

void AddGenerate(CLI::App& program, VerbContext& context);

} // namespace Pelnar::Publisher
