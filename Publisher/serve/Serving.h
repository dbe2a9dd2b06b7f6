// Serving.h: the work of the verb "serve".
// Thread: the main thread.
#pragma once

#include "Publisher/serve/ServeVerb.h"

namespace Pelnar::Publisher
{

/// Prints the server's address, then serves until a signal arrives or standard input ends. Throws Refusal.
ExitStatus Serve(Console const& console, ServeOptions const& options);

} // namespace Pelnar::Publisher
