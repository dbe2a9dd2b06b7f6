// KeyId.h: the short name of a public key. A feed uses it to say who signed, and whom a version trusts. See
// docs/formats/item-keys.md.
#pragma once

#include <QString>

#include <string>

namespace Pelnar::Publisher
{

/// Engine::KeyIdOf for the publisher's strings.
QString KeyIdOf(std::string const& publicKey);

} // namespace Pelnar::Publisher
