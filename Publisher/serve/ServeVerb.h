// ServeVerb.h: the verb "serve": a test server for a publisher's dry run.
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

} // namespace Pelnar::Publisher
