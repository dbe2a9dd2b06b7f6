// MatrixVerb.h: `pelnar-appcast matrix`. Thread: the main thread. Ownership: as in Verb.h.
#pragma once

#include "Publisher/Verb.h"

namespace Pelnar::Publisher
{

void AddMatrix(CLI::App& program, VerbContext& context);

} // namespace Pelnar::Publisher
