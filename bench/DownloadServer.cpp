#include "bench/DownloadServer.h"

#include <QFile>
#include <QProcess>

#include <openssl/ssl.h>

#include <algorithm>
#include <csignal>
#include <string>
#include <vector>

#include <netinet/in.h>
#include <sys/mman.h>
#include <sys/prctl.h>
#include <sys/sendfile.h>
#include <sys/socket.h>
#include <sys/wait.h>
#include <unistd.h>

namespace Pelnar::Bench
{
namespace
{

constexpr std::size_t PIECE_BYTES = 1 << 20;

/// A memory file with bytes that do not repeat soon.
int MakeArchiveFile(quint64 size)
{
    int const file = memfd_create("archive", MFD_CLOEXEC);
    std::vector<quint32> piece(PIECE_BYTES / sizeof(quint32));
    quint32 number = 1;
    for (quint64 done = 0; done < size; done += PIECE_BYTES)
    {
        std::generate(piece.begin(), piece.end(), [&number] { return number = number * 1664525 + 1013904223; });
        if (write(file, piece.data(), PIECE_BYTES) != static_cast<ssize_t>(PIECE_BYTES))
        {
            qFatal("no memory for the archive");
        }
    }
    return file;
}

int Listen(quint16& port)
{
    int const listener = socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    socklen_t length = sizeof address;
    if (bind(listener, reinterpret_cast<sockaddr*>(&address), length) != 0 || listen(listener, 8) != 0 ||
        getsockname(listener, reinterpret_cast<sockaddr*>(&address), &length) != 0)
    {
        qFatal("cannot listen");
    }
    port = ntohs(address.sin_port);
    return listener;
}

std::string HeadFor(quint64 size)
{
    return "HTTP/1.1 200 OK\r\nETag: \"archive\"\r\nConnection: close\r\nContent-Length: " + std::to_string(size) +
           "\r\n\r\n";
}

/// Reads a request with \a readSome; false when the client went away.
template <typename ReadSome>
[[nodiscard]] bool TakeRequest(ReadSome readSome)
{
    std::string request;
    while (request.find("\r\n\r\n") == std::string::npos)
    {
        char bytes[4096];
        auto const count = readSome(bytes, sizeof bytes);
        if (count <= 0)
        {
            return false;
        }
        request.append(bytes, static_cast<std::size_t>(count));
    }
    return true;
}

void ServePlain(int client, int file, quint64 size)
{
    if (!TakeRequest([client](char* bytes, std::size_t room) { return read(client, bytes, room); }))
    {
        return;
    }
    std::string const head = HeadFor(size);
    off_t position = 0;
    bool isGood = write(client, head.data(), head.size()) == static_cast<ssize_t>(head.size());
    while (isGood && position < static_cast<off_t>(size))
    {
        isGood = sendfile(client, file, &position, size - static_cast<quint64>(position)) > 0;
    }
}

void ServeSecure(SSL_CTX* context, int client, char const* archive, quint64 size)
{
    SSL* const session = SSL_new(context);
    SSL_set_fd(session, client);
    bool isGood = SSL_accept(session) == 1 && TakeRequest([session](char* bytes, std::size_t room)
                                                          { return SSL_read(session, bytes, static_cast<int>(room)); });
    std::string const head = HeadFor(size);
    isGood = isGood && SSL_write(session, head.data(), static_cast<int>(head.size())) > 0;
    for (quint64 position = 0; isGood && position < size; position += PIECE_BYTES)
    {
        isGood = SSL_write(session, archive + position,
                           static_cast<int>(std::min<quint64>(PIECE_BYTES, size - position))) > 0;
    }
    SSL_shutdown(session);
    SSL_free(session);
}

[[noreturn]] void Serve(Transport transport, int listener, int file, quint64 size, QByteArray const& identity)
{
    prctl(PR_SET_PDEATHSIG, SIGKILL);
    std::signal(SIGPIPE, SIG_IGN);
    SSL_CTX* const context = SSL_CTX_new(TLS_server_method());
    void* const archive = mmap(nullptr, size, PROT_READ, MAP_SHARED, file, 0);
    bool const isReady =
        transport == Transport::Plain ||
        (SSL_CTX_use_certificate_file(context, (identity + ".pem").constData(), SSL_FILETYPE_PEM) == 1 &&
         SSL_CTX_use_PrivateKey_file(context, (identity + ".key").constData(), SSL_FILETYPE_PEM) == 1 &&
         archive != MAP_FAILED);
    while (isReady)
    {
        int const client = accept(listener, nullptr, nullptr);
        if (transport == Transport::Plain)
        {
            ServePlain(client, file, size);
        }
        else
        {
            ServeSecure(context, client, static_cast<char const*>(archive), size);
        }
        close(client);
    }
    _exit(1);
}

} // namespace

DownloadServer::DownloadServer(quint64 archiveBytes) : DownloadServer(MakeArchiveFile(archiveBytes), archiveBytes) {}

DownloadServer::DownloadServer(int file, quint64 archiveBytes)
{
    QString const identity = m_folder.filePath(QStringLiteral("server"));
    QProcess openssl;
    openssl.setStandardErrorFile(QProcess::nullDevice());
    openssl.start(QStringLiteral("openssl"),
                  {QStringLiteral("req"), QStringLiteral("-x509"), QStringLiteral("-newkey"),
                   QStringLiteral("rsa:2048"), QStringLiteral("-nodes"), QStringLiteral("-days"), QStringLiteral("2"),
                   QStringLiteral("-subj"), QStringLiteral("/CN=127.0.0.1"), QStringLiteral("-addext"),
                   QStringLiteral("subjectAltName=IP:127.0.0.1"), QStringLiteral("-keyout"),
                   identity + QStringLiteral(".key"), QStringLiteral("-out"), AuthorityFile()});
    openssl.waitForFinished();
    for (Transport const transport : {Transport::Plain, Transport::Secure})
    {
        auto const index = static_cast<std::size_t>(transport);
        int const listener = Listen(m_ports[index]);
        m_processes[index] = fork();
        if (m_processes[index] == 0)
        {
            Serve(transport, listener, file, archiveBytes, QFile::encodeName(identity));
        }
        close(listener);
    }
    close(file);
}

DownloadServer::~DownloadServer()
{
    for (pid_t const process : m_processes)
    {
        kill(process, SIGKILL);
        waitpid(process, nullptr, 0);
    }
}

QUrl DownloadServer::Url(Transport transport) const
{
    QUrl url(transport == Transport::Plain ? QStringLiteral("http://127.0.0.1/archive.zip")
                                           : QStringLiteral("https://127.0.0.1/archive.zip"));
    url.setPort(m_ports[static_cast<std::size_t>(transport)]);
    return url;
}

QString DownloadServer::AuthorityFile() const
{
    return m_folder.filePath(QStringLiteral("server.pem"));
}

} // namespace Pelnar::Bench
