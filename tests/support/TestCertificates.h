// TestCertificates.h: certificates of a throw-away authority, made by the openssl program when a test wants them.
// Thread: main. Ownership: files live in a temporary folder as long as the object.
#pragma once

#include "tests/support/LoopbackServer.h"

#include <QDateTime>
#include <QSslConfiguration>
#include <QTemporaryDir>

namespace Pelnar::Testing
{

class TestCertificates
{
public:
    /// Makes an authority that nobody trusts until told so.
    TestCertificates();

    /// The authority's certificate, also as the file AuthorityFile().
    QSslCertificate Authority() const;
    QString AuthorityFile() const { return m_folder.filePath(QStringLiteral("authority.pem")); }

    /// A server's certificate signed by the authority for \a name (an IP address or a host name).
    ServerIdentity Signed(QByteArray const& name, QDateTime const& from, QDateTime const& until);
    /// The same, valid since yesterday and for a year.
    ServerIdentity Signed(QByteArray const& name);
    /// One whose subject is \a subject, while \a alternatives ("DNS:a,IP:1.2.3.4") is its list of names; without a
    /// list where that is empty.
    ServerIdentity SignedWithNames(QByteArray const& subject, QByteArray const& alternatives);
    /// A certificate that only its own key signs.
    ServerIdentity SelfSigned(QByteArray const& name);
    /// The files of the identity made last, for another program.
    QString CertificateFile() const { return m_folder.filePath(QStringLiteral("server.pem")); }
    QString KeyFile() const { return m_folder.filePath(QStringLiteral("server.key")); }

private:
    void Run(QStringList const& arguments) const;
    ServerIdentity Signed(QByteArray const& subject, QByteArray const& extensions, QDateTime const& from,
                          QDateTime const& until);
    void WriteFile(QString const& name, QByteArray const& bytes) const;
    ServerIdentity ReadIdentity() const;

    QTemporaryDir m_folder;
};

/// Makes the process trust \a authority and nobody else while it lives.
class TrustedAuthority
{
public:
    explicit TrustedAuthority(QSslCertificate const& authority);
    ~TrustedAuthority();

private:
    QSslConfiguration m_previous;
};

} // namespace Pelnar::Testing
