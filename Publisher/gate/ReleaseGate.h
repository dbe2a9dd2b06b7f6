// ReleaseGate.h: what an installed client would refuse, found by the helper's own checks before it is published.
#pragma once

#include "Engine/core/bundle/CheckBundle.h"
#include "Publisher/Refusal.h"
#include "Publisher/gate/GatedVersion.h"

namespace Pelnar::Publisher
{

/// Judges the bundle of \a version as clients of every older one among \a all judge it; without an older one as a
/// client of the same product would.
void CheckBundleForClients(BundleTree const& bundle, GatedVersion const& version, std::vector<GatedVersion> const& all,
                           Engine::Machine const& machine, RefusalList& refusals);

/// Each version must trust a key that signs it, and every older version must get to each: by a key that it trusts, or
/// by versions between them that bring another one. A client without such a path never gets another update.
void CheckTrust(std::vector<GatedVersion> const& all, RefusalList& refusals);

} // namespace Pelnar::Publisher
