#include "Publisher/keys/KeyId.h"

namespace Pelnar::Publisher
{

QString KeyIdOf(std::string const& publicKey)
{
    return QString::fromStdString(Engine::KeyIdOf(publicKey));
}

QStringList KeyIdsOf(Engine::TrustedKeys const& keys)
{
    QStringList ids;
    for (std::string const& id : keys.Ids())
    {
        ids.append(QString::fromStdString(id));
    }
    return ids;
}

} // namespace Pelnar::Publisher
