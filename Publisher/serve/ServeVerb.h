// ServeVerb.h: the verb "serve": a test server for a publisher's dry run.
// Thread: the main thread. Ownership: see Verb.h.
#pragma once

#include "Publisher/Verb.h"

namespace Pelnar::Publisher
{

void AddServe(CLI::App& program, VerbContext& context);

} // namespace Pelnar::Publisher
