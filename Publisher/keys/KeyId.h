// KeyId.h: the short name of a public key, by which a feed says who signed and whom a version trusts. See
// docs/formats/item-keys.md.
#pragma once

#include <QString>

#include <string>

namespace Pelnar::Publisher
{

/// Engine::KeyIdOf as the publisher's texts have it.
QString KeyIdOf(std::string const& publicKey);

} // namespace Pelnar::Publisher
