#include "Demo/NamedAuthorities.h"

#include <QFile>
#include <QSslCertificate>
#include <QSslConfiguration>

#include <stdexcept>

namespace Pelnar::Demo
{

void TrustNamedAuthorities()
{
    QByteArray const name = qgetenv("SSL_CERT_FILE");
    if (name.isEmpty())
    {
        return;
    }
    QFile file(QFile::decodeName(name));
    QList<QSslCertificate> const authorities =
        file.open(QIODevice::ReadOnly) ? QSslCertificate::fromDevice(&file) : QList<QSslCertificate>();
    if (authorities.isEmpty())
    {
        throw std::runtime_error("SSL_CERT_FILE: no certificate can be read from " + name.toStdString());
    }
    QSslConfiguration configuration = QSslConfiguration::defaultConfiguration();
    configuration.setCaCertificates(authorities);
    QSslConfiguration::setDefaultConfiguration(configuration);
}

} // namespace Pelnar::Demo
