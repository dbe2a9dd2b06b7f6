#include "Publisher/serve/Serving.h"

#include "Publisher/Refusal.h"
#include "Publisher/files/InputFile.h"
#include "Publisher/serve/FileServer.h"
#include "Publisher/serve/HttpRequest.h"
#include "Publisher/serve/ServedFile.h"

#include <QEventLoop>
#include <QFile>
#include <QRegularExpression>
#include <QSocketNotifier>

#include <cerrno>
#include <ostream>

#include <fcntl.h>
#include <unistd.h>

namespace Pelnar::Publisher
{
namespace
{

constexpr std::uint64_t MOST_PEM_BYTES = 1 << 20;

ServerCertificate ReadCertificate(QString const& certificateFile, QString const& keyFile)
{
    QString const mend = u"give two PEM files: the server's certificate chain, then its key"_s;
    QByteArray const key = ReadInputFile(OpenInputFile(keyFile), MOST_PEM_BYTES, mend);
    ServerCertificate certificate;
    certificate.chain =
        QSslCertificate::fromData(ReadInputFile(OpenInputFile(certificateFile), MOST_PEM_BYTES, mend), QSsl::Pem);
    if (certificate.chain.isEmpty())
    {
        throw Refusal({certificateFile, u"contains no certificate"_s, mend});
    }
    for (QSsl::KeyAlgorithm const algorithm : {QSsl::Rsa, QSsl::Ec})
    {
        certificate.key = QSslKey(key, algorithm);
        if (!certificate.key.isNull())
        {
            return certificate;
        }
    }
    throw Refusal({keyFile, u"contains no RSA or EC key without a password"_s, mend});
}

std::vector<ServerFault> ParseFaults(std::vector<std::string> const& texts)
{
    std::vector<ServerFault> faults;
    for (std::string const& text : texts)
    {
        std::optional<ServerFault> fault = ParseServerFault(QString::fromStdString(text));
        if (!fault)
        {
            throw Refusal(
                {u"--fault: \"%1\" is not a fault"_s.arg(QString::fromStdString(text)),
                 u"write truncate:NAME:BYTES, slow:NAME:BYTES-PER-SECOND, status:NAME:CODE or drop:NAME:BYTES"_s});
        }
        faults.push_back(std::move(*fault));
    }
    return faults;
}

std::vector<QByteArray> ParseHosts(std::vector<std::string> const& hosts)
{
    static QRegularExpression const NAME(u"^[A-Za-z0-9._-]+$|^[0-9a-fA-F:.]+$"_s);
    std::vector<QByteArray> names;
    for (std::string const& host : hosts)
    {
        QByteArray const name = HostName(QByteArray::fromStdString(host));
        if (name.isEmpty() || !NAME.match(QString::fromLatin1(name)).hasMatch())
        {
            throw Refusal({u"--host: \"%1\" is not a host name"_s.arg(QString::fromStdString(host)),
                           u"give a name such as updates.example.com"_s});
        }
        names.push_back(name);
    }
    return names;
}

/// Ends the loop when standard input ends.
void EndWithInput(QSocketNotifier& notifier, QEventLoop& loop)
{
    QObject::connect(&notifier, &QSocketNotifier::activated, &loop,
                     [&notifier, &loop]
                     {
                         char bytes[256];
                         ssize_t const count = ::read(STDIN_FILENO, bytes, sizeof bytes);
                         if (count == 0 || (count < 0 && errno != EINTR && errno != EAGAIN))
                         {
                             notifier.setEnabled(false);
                             loop.quit();
                         }
                     });
}

} // namespace

ExitStatus Serve(Console const& console, ServeOptions const& options)
{
    QString const name = QString::fromStdString(options.folder);
    Engine::UniqueFd folder(::open(QFile::encodeName(name).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (!folder)
    {
        RefuseFile(name, u"cannot be served"_s, errno, u"give the folder of the feed"_s);
    }
    std::optional<ServerCertificate> certificate;
    if (!options.tls.empty())
    {
        certificate =
            ReadCertificate(QString::fromStdString(options.tls.at(0)), QString::fromStdString(options.tls.at(1)));
    }
    ServerManners manners{ParseFaults(options.faults), {}};
    for (ServerFault const& fault : manners.faults)
    {
        if (fault.kind != ServerFaultKind::Status && !OpenServedFile(folder.Get(), fault.name).file)
        {
            throw Refusal(
                {u"--fault: \"%1\" is not a served file"_s.arg(fault.name), u"give its path below the folder"_s});
        }
    }
    manners.hosts = ParseHosts(options.hosts);
    FileServer server(std::move(folder), std::move(manners), std::move(certificate),
                      [&console](QString const& line) { console.err.stream << line.toStdString() << std::endl; });
    if (!server.Listen(options.port))
    {
        throw Refusal({u"cannot listen on port %1"_s.arg(options.port), u"leave --port out to get a free port"_s});
    }
    console.Print(server.Address());
    if (!console.out.stream.flush())
    {
        return ExitStatus::Findings; // nobody would learn the address; the program reports the failure at its end
    }
    QEventLoop loop;
    std::optional<QSocketNotifier> notifier;
    if (options.endsWithInput)
    {
        notifier.emplace(STDIN_FILENO, QSocketNotifier::Read);
        EndWithInput(*notifier, loop);
    }
    loop.exec();
    return ExitStatus::Clean;
}

} // namespace Pelnar::Publisher
