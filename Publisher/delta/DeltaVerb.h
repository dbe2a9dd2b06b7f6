// DeltaVerb.h: the verb "delta": small updates from one version of a bundle to another.
#pragma once

#include "Engine/core/delta/DeltaContainerWriter.h"
#include "Publisher/Verb.h"

namespace Pelnar::Publisher
{

/// Adds the option "--effort" to \a verb.
void AddEffortOption(CLI::App& verb, std::string& effort);
/// REQUIRES: what that option accepts.
Engine::DeltaEffort EffortOf(std::string const& name);

} // namespace Pelnar::Publisher
