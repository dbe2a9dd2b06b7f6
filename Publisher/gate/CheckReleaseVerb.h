// CheckReleaseVerb.h: the verb "check-release": what is published, judged as installed clients judge it.
#pragma once

#include "Publisher/Verb.h"

namespace Pelnar::Publisher
{

/// "--machine", which may be given again; \a otherwise says what happens without it.
void AddMachineOption(CLI::App& verb, std::vector<std::string>& names, std::string const& otherwise);
/// "--public-key", which may be given again.
void AddPublicKeysOption(CLI::App& verb, std::vector<std::string>& keys, std::string const& description);
/// Throws Refusal for a text that is no key.
void CheckPublicKeys(std::vector<std::string> const& keys);

} // namespace Pelnar::Publisher
