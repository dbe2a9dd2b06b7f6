// Serving.h: the work of the verb "serve".
// Thread: the main thread, with Qt's event loop.
#pragma once

#include "Publisher/serve/ServeVerb.h"

namespace Pelnar::Publisher
{

/// Prints the server's address and serves until it is interrupted, or until standard input ends. Throws Refusal.
ExitStatus Serve(Console const& console, ServeOptions const& options);

} // namespace Pelnar::Publisher
