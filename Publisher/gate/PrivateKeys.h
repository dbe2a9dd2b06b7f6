// PrivateKeys.h: finds private keys in what is to be published.
#pragma once

#include "Publisher/Refusal.h"
#include "Publisher/gate/GatedVersion.h"

#include <set>

namespace Pelnar::Publisher
{

/// The ids of the keys that sign \a versions or that their clients trust.
std::set<QString> KnownKeyIds(std::vector<GatedVersion> const& versions);

/// Adds each file of \a bundle, up to 64 KiB, that contains a private key: raw, in base64, in hexadecimal or in PEM,
/// alone or between other text. A seed alone counts if it is of a key of \a version or of \a knownIds: any 32 bytes
/// could be one. A private key in PEM for another use is only a warning. Throws Refusal for a file that cannot be read.
void CheckPrivateKeys(BundleTree const& bundle, GatedVersion const& version, std::set<QString> knownIds,
                      Console const& console, RefusalList& refusals);

/// The same for the files of a folder that is uploaded, and below it. A private key in PEM counts there for any use.
/// Hidden folders and what this user may not read are left out.
void CheckFolderForKeys(QString const& folder, std::set<QString> const& knownIds, RefusalList& refusals);

} // namespace Pelnar::Publisher
