// KeyId.h: the short name of a public key. A feed uses it to say who signed, and whom a version trusts. See
// docs/formats/item-keys.md.
#pragma once

#include "Engine/core/bundle/TrustedKeys.h"

#include <QStringList>

#include <string>

namespace Pelnar::Publisher
{

/// Engine::KeyIdOf for the publisher's strings.
QString KeyIdOf(std::string const& publicKey);
/// The ids of \a keys.
QStringList KeyIdsOf(Engine::TrustedKeys const& keys);

} // namespace Pelnar::Publisher
