// FeedOptions.h: the options of a command line that several verbs about feeds share.
// Thread: the main thread. Ownership: the values are the verb's and outlive its command line.
#pragma once

#include <CLI/CLI.hpp>

#include <string>

namespace Pelnar::Publisher
{

/// "--platform"; the value that \a platform has is the default.
void AddPlatformOption(CLI::App& verb, std::string& platform);
/// "--published-at".
void AddPublishedAtOption(CLI::App& verb, std::string& address);

} // namespace Pelnar::Publisher
