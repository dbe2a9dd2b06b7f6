// FetchRules.h: what the servers have, beside what the feed says of it.
// Thread: the main thread, with Qt's event loop.
#pragma once

#include "Publisher/Console.h"
#include "Publisher/lint/LintSubject.h"

#include <string>
#include <vector>

namespace Pelnar::Publisher
{

/// Fetches every download that has an address and a length, each once, into a folder that is removed again.
/// \a publicKeys: the keys of the client; with none signatures are not checked.
std::vector<LintFinding> CheckArchives(LintSubject const& subject, std::vector<std::string> const& publicKeys,
                                       Console const& console);

} // namespace Pelnar::Publisher
