// ServeVerb.h: the verb "serve": a test server for a publisher's dry run. Its command line is in the tool, its work in
// the late library. Thread: the main thread.
#pragma once

#include "Publisher/Verb.h"

#include <cstdint>
#include <string>
#include <vector>

namespace Pelnar::Publisher
{

struct ServeOptions
{
    std::string folder;
    std::uint16_t port = 0;
    std::vector<std::string> faults;
    std::vector<std::string> hosts;
    std::vector<std::string> tls;
    bool endsWithInput = false;
};

/// Prints the server's address, then serves until a signal arrives or standard input ends. Throws Refusal.
ExitStatus Serve(Console const& console, ServeOptions const& options);

} // namespace Pelnar::Publisher
