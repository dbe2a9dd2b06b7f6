#include "Publisher/keys/KeyId.h"

#include "Engine/core/bundle/TrustedKeys.h"

namespace Pelnar::Publisher
{

QString KeyIdOf(std::string const& publicKey)
{
    return QString::fromStdString(Engine::KeyIdOf(publicKey));
}

} // namespace Pelnar::Publisher
