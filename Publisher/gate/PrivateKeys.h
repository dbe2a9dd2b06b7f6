// PrivateKeys.h: finds private keys in a bundle that is to be published.
#pragma once

#include "Publisher/Refusal.h"
#include "Publisher/gate/GatedVersion.h"

namespace Pelnar::Publisher
{

/// Adds each small file of \a bundle that is a private key in a form that this tool reads, or that contains one near
/// its start. A seed between other text counts if it is of a key that signs \a version or one of \a all, or that their
/// clients trust. Throws Refusal for a file that cannot be read.
void CheckPrivateKeys(BundleTree const& bundle, GatedVersion const& version, std::vector<GatedVersion> const& all,
                      RefusalList& refusals);

} // namespace Pelnar::Publisher
