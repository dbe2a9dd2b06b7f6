#include "Engine/core/fetch/TrustStore.h"

#include <QSslCertificate>

#include <openssl/x509.h>

namespace Pelnar::Engine
{
namespace
{

/// Qt shows only by comparison whether a configuration looks up authorities on demand: reading them ends that.
bool LooksUpOnDemand(QSslConfiguration const& configuration)
{
    QSslConfiguration naming = configuration;
    naming.setCaCertificates(configuration.caCertificates());
    return naming != configuration;
}

} // namespace

TrustStore MakeTrustStore(QSslConfiguration const& configuration)
{
    TrustStore store(X509_STORE_new(), &X509_STORE_free);
    if (!store)
    {
        return store;
    }
    QList<QSslCertificate> authorities = configuration.caCertificates();
    if (LooksUpOnDemand(configuration))
    {
        authorities += QSslConfiguration::systemCaCertificates();
    }
    for (QSslCertificate const& authority : authorities)
    {
        QByteArray const bytes = authority.toDer();
        auto const* position = reinterpret_cast<unsigned char const*>(bytes.constData());
        std::unique_ptr<X509, decltype(&X509_free)> const certificate(d2i_X509(nullptr, &position, bytes.size()),
                                                                      &X509_free);
        if (certificate)
        {
            X509_STORE_add_cert(store.get(), certificate.get()); // an authority that is already in the store stays
        }
    }
    return store;
}

} // namespace Pelnar::Engine
