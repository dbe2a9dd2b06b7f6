// Serving.cpp: the work of the verb "serve".

#include "Publisher/serve/ServeVerb.h"

#include "Publisher/Refusal.h"
#include "Publisher/files/InputFile.h"
#include "Publisher/serve/FileServer.h"
#include "Publisher/serve/RequestRules.h"
#include "Publisher/serve/ServedFile.h"

#include <QDir>
#include <QFile>
#include <QRegularExpression>

#include <cerrno>
#include <mutex>
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
    ServerCertificate certificate{ReadInputFile(OpenInputFile(certificateFile), MOST_PEM_BYTES, mend),
                                  ReadInputFile(OpenInputFile(keyFile), MOST_PEM_BYTES, mend)};
    if (!certificate.chain.contains("-----BEGIN CERTIFICATE-----"))
    {
        throw Refusal({certificateFile, u"contains no certificate"_s, mend});
    }
    return certificate;
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

void WaitForEndOfInput()
{
    char bytes[256];
    ssize_t count = 0;
    do
    {
        count = ::read(STDIN_FILENO, bytes, sizeof bytes);
    } while (count > 0 || (count < 0 && errno == EINTR));
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
    ServerManners manners{ParseFaults(options.faults), ParseHosts(options.hosts), {}};
    for (ServerFault const& fault : manners.faults)
    {
        if (fault.kind != ServerFaultKind::Status && !OpenServedFile(folder.Get(), fault.name).file)
        {
            throw Refusal(
                {u"--fault: \"%1\" is not a served file"_s.arg(fault.name), u"give its path below the folder"_s});
        }
    }
    if (!options.tls.empty())
    {
        manners.certificate =
            ReadCertificate(QString::fromStdString(options.tls.at(0)), QString::fromStdString(options.tls.at(1)));
    }
    for (QString const& key : FindHiddenKeys(folder.Get()))
    {
        console.Warn(
            {QDir(name).filePath(key),
             u"is not served, because it is or resembles a private key; an upload of this folder would publish it"_s,
             u"move it to another folder"_s});
    }
    std::mutex logging;
    FileServer server(std::move(folder), std::move(manners),
                      [&](QString const& line)
                      {
                          std::lock_guard const guard(logging);
                          console.err.stream << Printable(line).toStdString() << std::endl;
                      });
    server.Listen(options.port);
    console.Print(server.Address());
    if (!console.out.stream.flush())
    {
        return ExitStatus::Findings; // nobody would learn the address; the program reports the failure at its end
    }
    while (!options.endsWithInput)
    {
        ::pause(); // until a signal ends the program
    }
    WaitForEndOfInput();
    return ExitStatus::Clean;
}

} // namespace Pelnar::Publisher
