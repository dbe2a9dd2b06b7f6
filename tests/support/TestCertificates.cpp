#include "tests/support/TestCertificates.h"

#include <QFile>
#include <QHostAddress>
#include <QProcess>

namespace Pelnar::Testing
{
namespace
{

constexpr char AUTHORITY_SETTINGS[] = "[ca]\ndefault_ca = authority\n"
                                      "[authority]\ndatabase = index.txt\nnew_certs_dir = .\nrand_serial = yes\n"
                                      "default_md = sha256\npolicy = names\nunique_subject = no\n"
                                      "certificate = authority.pem\nprivate_key = authority.key\n"
                                      "[names]\ncommonName = supplied\n"
                                      "[req]\ndistinguished_name = nobody\n[nobody]\n";

QString asText(QByteArray const& bytes)
{
    return QString::fromLatin1(bytes);
}

QString asn1Time(QDateTime const& time)
{
    return time.toUTC().toString(QStringLiteral("yyyyMMddhhmmss'Z'"));
}

QByteArray readFile(QString const& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
    {
        qFatal("cannot read %s", qPrintable(path));
    }
    return file.readAll();
}

} // namespace

TestCertificates::TestCertificates()
{
    WriteFile(QStringLiteral("settings.cnf"), AUTHORITY_SETTINGS);
    WriteFile(QStringLiteral("index.txt"), {});
    for (char const* const key : {"authority.key", "server.key"})
    {
        Run({QStringLiteral("ecparam"), QStringLiteral("-name"), QStringLiteral("prime256v1"),
             QStringLiteral("-genkey"), QStringLiteral("-noout"), QStringLiteral("-out"), QString::fromLatin1(key)});
    }
    Run({QStringLiteral("req"), QStringLiteral("-x509"), QStringLiteral("-config"), QStringLiteral("settings.cnf"),
         QStringLiteral("-key"), QStringLiteral("authority.key"), QStringLiteral("-subj"),
         QStringLiteral("/CN=Test Authority"), QStringLiteral("-days"), QStringLiteral("20000"),
         QStringLiteral("-addext"), QStringLiteral("basicConstraints=critical,CA:TRUE"), QStringLiteral("-out"),
         QStringLiteral("authority.pem")});
}

QSslCertificate TestCertificates::Authority() const
{
    return QSslCertificate(readFile(AuthorityFile()));
}

ServerIdentity TestCertificates::Signed(QByteArray const& name, QDateTime const& from, QDateTime const& until)
{
    bool const isAddress = !QHostAddress(asText(name)).isNull();
    return Signed(name, "subjectAltName = " + QByteArray(isAddress ? "IP:" : "DNS:") + name + "\n", from, until);
}

ServerIdentity TestCertificates::SignedWithNames(QByteArray const& subject, QByteArray const& alternatives)
{
    QDateTime const now = QDateTime::currentDateTimeUtc();
    QByteArray const extensions =
        alternatives.isEmpty() ? "basicConstraints = CA:FALSE\n" : "subjectAltName = " + alternatives + "\n";
    return Signed(subject, extensions, now.addDays(-1), now.addDays(365));
}

ServerIdentity TestCertificates::Signed(QByteArray const& subject, QByteArray const& extensions, QDateTime const& from,
                                        QDateTime const& until)
{
    WriteFile(QStringLiteral("name.cnf"), extensions);
    Run({QStringLiteral("req"), QStringLiteral("-new"), QStringLiteral("-config"), QStringLiteral("settings.cnf"),
         QStringLiteral("-key"), QStringLiteral("server.key"), QStringLiteral("-subj"),
         QStringLiteral("/CN=") + asText(subject), QStringLiteral("-out"), QStringLiteral("server.csr")});
    Run({QStringLiteral("ca"), QStringLiteral("-batch"), QStringLiteral("-notext"), QStringLiteral("-config"),
         QStringLiteral("settings.cnf"), QStringLiteral("-in"), QStringLiteral("server.csr"), QStringLiteral("-out"),
         QStringLiteral("server.pem"), QStringLiteral("-startdate"), asn1Time(from), QStringLiteral("-enddate"),
         asn1Time(until), QStringLiteral("-extfile"), QStringLiteral("name.cnf")});
    return ReadIdentity();
}

ServerIdentity TestCertificates::Signed(QByteArray const& name)
{
    QDateTime const now = QDateTime::currentDateTimeUtc();
    return Signed(name, now.addDays(-1), now.addDays(365));
}

ServerIdentity TestCertificates::SelfSigned(QByteArray const& name)
{
    Run({QStringLiteral("req"), QStringLiteral("-x509"), QStringLiteral("-config"), QStringLiteral("settings.cnf"),
         QStringLiteral("-key"), QStringLiteral("server.key"), QStringLiteral("-subj"),
         QStringLiteral("/CN=") + asText(name), QStringLiteral("-addext"),
         QStringLiteral("subjectAltName=IP:") + asText(name), QStringLiteral("-out"), QStringLiteral("server.pem")});
    return ReadIdentity();
}

void TestCertificates::Run(QStringList const& arguments) const
{
    QProcess process;
    process.setWorkingDirectory(m_folder.path());
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.start(QStringLiteral("openssl"), arguments);
    if (!process.waitForFinished() || process.exitStatus() != QProcess::NormalExit || process.exitCode() != 0)
    {
        qFatal("openssl %s: %s", qPrintable(arguments.join(QLatin1Char(' '))), process.readAll().constData());
    }
}

void TestCertificates::WriteFile(QString const& name, QByteArray const& bytes) const
{
    QFile file(m_folder.filePath(name));
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
    {
        qFatal("cannot write %s", qPrintable(file.fileName()));
    }
}

ServerIdentity TestCertificates::ReadIdentity() const
{
    return {QSslCertificate::fromData(readFile(CertificateFile())), QSslKey(readFile(KeyFile()), QSsl::Ec)};
}

TrustedAuthority::TrustedAuthority(QSslCertificate const& authority)
    : m_previous(QSslConfiguration::defaultConfiguration())
{
    QSslConfiguration configuration = m_previous;
    configuration.setCaCertificates({authority});
    QSslConfiguration::setDefaultConfiguration(configuration);
}

TrustedAuthority::~TrustedAuthority()
{
    QSslConfiguration::setDefaultConfiguration(m_previous);
}

} // namespace Pelnar::Testing
