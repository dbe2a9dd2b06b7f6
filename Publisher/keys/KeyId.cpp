#include "Publisher/keys/KeyId.h"

#include "Engine/core/payload/Ed25519Signature.h"

#include <QCryptographicHash>

namespace Pelnar::Publisher
{

QString KeyIdOf(std::string const& publicKey)
{
    constexpr int ID_BYTES = 8;
    Engine::Ed25519Key key;
    if (Engine::ParsePublicKey(publicKey, key) != Engine::UpdateFault::None)
    {
        return {};
    }
    QByteArray const bytes(reinterpret_cast<char const*>(key.data()), int(key.size()));
    return QString::fromLatin1(QCryptographicHash::hash(bytes, QCryptographicHash::Sha256).left(ID_BYTES).toHex());
}

} // namespace Pelnar::Publisher
