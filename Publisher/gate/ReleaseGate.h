// ReleaseGate.h: finds what an installed client would refuse, before it is published, with the helper's own checks.
#pragma once

#include "Engine/core/bundle/CheckBundle.h"
#include "Publisher/Refusal.h"
#include "Publisher/gate/GatedVersion.h"

namespace Pelnar::Publisher
{

/// Judges the bundle of \a version as clients of every older one among \a all do. Without an older one, as a client of
/// the same product would.
void CheckBundleForClients(BundleTree const& bundle, GatedVersion const& version, std::vector<GatedVersion> const& all,
                           Engine::Machine const& machine, RefusalList& refusals);

/// What no client notices, but no publisher intends: private keys in the bundle of \a version, and a program that
/// cannot start. \a console is warned of keys that sign no update. Throws Refusal for a file that cannot be read.
void CheckContent(BundleTree const& bundle, GatedVersion const& version, std::vector<GatedVersion> const& all,
                  Console const& console, RefusalList& refusals);

/// Each version must trust a key that signs it. Clients of every older version must reach it: by a key that they trust,
/// or through versions between that bring another key. A client without such a path never gets another update.
void CheckTrust(std::vector<GatedVersion> const& all, RefusalList& refusals);

} // namespace Pelnar::Publisher
