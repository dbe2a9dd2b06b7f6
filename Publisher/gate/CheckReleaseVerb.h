// CheckReleaseVerb.h: the verb "check-release": judges a published release as installed clients do.
#pragma once

#include "Publisher/Verb.h"

namespace Pelnar::Publisher
{

/// "--machine", which may be repeated; \a otherwise describes the effect without it.
void AddMachineOption(CLI::App& verb, std::vector<std::string>& names, std::string const& otherwise);
/// "--public-key", which may be repeated.
void AddPublicKeysOption(CLI::App& verb, std::vector<std::string>& keys, std::string const& description);
/// Throws Refusal for a text that is not a key.
void CheckPublicKeys(std::vector<std::string> const& keys);

} // namespace Pelnar::Publisher
