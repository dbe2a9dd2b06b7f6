// TestCertificates.h: certificates of a temporary authority, made with the openssl program.
// Thread: main. Ownership: the object owns the files, which are in a temporary folder.
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
    /// Makes an authority. Nobody trusts it yet.
    TestCertificates();

    /// The authority's certificate. AuthorityFile() is the same as a file.
    QSslCertificate Authority() const;
    QString AuthorityFile() const { return m_folder.filePath(QStringLiteral("authority.pem")); }

    /// A server's certificate signed by the authority for \a name (an IP address or a host name).
    ServerIdentity Signed(QByteArray const& name, QDateTime const& from, QDateTime const& until);
    /// The same, valid since yesterday and for a year.
    ServerIdentity Signed(QByteArray const& name);
    /// The same for the subject \a subject, with the list of names \a alternatives ("DNS:a,IP:1.2.3.4"). If it is
    /// empty, there is no list.
    ServerIdentity SignedWithNames(QByteArray const& subject, QByteArray const& alternatives);
    /// A certificate that is signed by its own key.
    ServerIdentity SelfSigned(QByteArray const& name);
    /// The files of the last identity, for another program.
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

/// Makes the process trust only \a authority while it lives.
class TrustedAuthority
{
public:
    explicit TrustedAuthority(QSslCertificate const& authority);
    ~TrustedAuthority();

private:
    QSslConfiguration m_previous;
};

} // namespace Pelnar::Testing
