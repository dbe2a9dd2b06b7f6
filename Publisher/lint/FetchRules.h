// FetchRules.h: compares the files on the servers with the feed. Thread: the main thread, with Qt's event loop.
#pragma once

#include "Publisher/Console.h"
#include "Publisher/lint/LintSubject.h"

#include <string>
#include <vector>

namespace Pelnar::Publisher
{

/// Fetches every download that has an address and a length, each once, into a temporary folder. \a publicKeys: the keys
/// of the client; if there are none, signatures are not checked.
std::vector<LintFinding> CheckArchives(LintSubject const& subject, std::vector<std::string> const& publicKeys,
                                       Console const& console);

} // namespace Pelnar::Publisher
