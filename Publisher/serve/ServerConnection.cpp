#include "Publisher/serve/ServerConnection.h"

#include "Publisher/Console.h"
#include "Publisher/serve/ServedFile.h"

#include <QDateTime>
#include <QLocale>

#include <algorithm>
#include <array>

#include <sys/socket.h>
#include <sys/stat.h>
#include <unistd.h>

namespace Pelnar::Publisher
{
namespace
{

constexpr int MOST_HEAD_BYTES = 64 * 1024;
constexpr qint64 PIECE_BYTES = 64 * 1024;
constexpr int SLOW_STEPS_PER_SECOND = 10;

QByteArray ReasonOf(int status)
{
    switch (status)
    {
    case 200:
        return "OK";
    case 206:
        return "Partial Content";
    case 304:
        return "Not Modified";
    case 400:
        return "Bad Request";
    case 404:
        return "Not Found";
    case 405:
        return "Method Not Allowed";
    case 416:
        return "Range Not Satisfiable";
    case 421:
        return "Misdirected Request";
    }
    return "As Asked For";
}

QByteArray TypeOf(QString const& path)
{
    struct Type
    {
        char const* ending;
        char const* type;
    };
    constexpr Type TYPES[] = {
        {".xml", "application/xml"},
        {".html", "text/html; charset=utf-8"},
        {".md", "text/markdown; charset=utf-8"},
        {".txt", "text/plain; charset=utf-8"},
    };
    for (Type const& type : TYPES)
    {
        if (path.endsWith(QLatin1String(type.ending)))
        {
            return type.type;
        }
    }
    return "application/octet-stream";
}

/// Changes whenever the file changes.
QByteArray TagOf(struct stat const& status)
{
    return '"' + QByteArray::number(qint64(status.st_size), 16) + '-' +
           QByteArray::number(qint64(status.st_mtim.tv_sec), 16) + '-' +
           QByteArray::number(qint64(status.st_mtim.tv_nsec), 16) + '"';
}

QByteArray HttpDate(qint64 seconds)
{
    QDateTime const time = QDateTime::fromSecsSinceEpoch(seconds, Qt::UTC);
    return QLocale::c().toString(time, u"ddd, dd MMM yyyy hh:mm:ss 'GMT'"_s).toLatin1();
}

} // namespace

ServerConnection::ServerConnection(int folderFd, ServerManners const& manners, ServerLog const& log, QObject* parent)
    : QObject(parent), m_folderFd(folderFd), m_manners(manners), m_log(log)
{
    connect(&m_socket, &QIODevice::readyRead, this, &ServerConnection::Read);
    connect(&m_socket, &QAbstractSocket::disconnected, this, &QObject::deleteLater);
    m_pace.setInterval(1000 / SLOW_STEPS_PER_SECOND);
}

void ServerConnection::Start(qintptr descriptor, std::optional<ServerCertificate> const& certificate)
{
    if (!m_socket.setSocketDescriptor(descriptor))
    {
        ::close(int(descriptor));
        deleteLater();
        return;
    }
    if (certificate)
    {
        m_socket.setLocalCertificateChain(certificate->chain);
        m_socket.setPrivateKey(certificate->key);
        m_socket.startServerEncryption();
    }
}

void ServerConnection::Read()
{
    bool const isAnswered = m_head.endsWith("\r\n\r\n");
    QByteArray const bytes = m_socket.readAll();
    if (isAnswered)
    {
        return; // one request per connection
    }
    constexpr char TLS_HANDSHAKE = 0x16;
    if (m_head.isEmpty() && bytes.startsWith(TLS_HANDSHAKE))
    {
        // Without this both sides would wait for each other until a timeout.
        m_log(u"? refused: the request uses https, but the server has no --tls"_s);
        Reset();
        return;
    }
    m_head += bytes;
    int const end = m_head.indexOf("\r\n\r\n");
    if (end < 0 && m_head.size() <= MOST_HEAD_BYTES)
    {
        return;
    }
    std::optional<HttpRequest> const request = ParseHttpRequest(m_head.left(std::max(end, 0)));
    m_head = "\r\n\r\n";
    if (request)
    {
        Answer(*request);
    }
    else
    {
        AnswerStatus({"?", u"?"_s, {}, {}}, 400);
    }
}

ServerFault const* ServerConnection::FaultFor(QString const& path) const
{
    auto const found = std::find_if(m_manners.faults.begin(), m_manners.faults.end(),
                                    [&path](ServerFault const& fault) { return fault.name == path; });
    return found == m_manners.faults.end() ? nullptr : &*found;
}

bool ServerConnection::IsAskedByItsName(HttpRequest const& request) const
{
    constexpr char const* OWN_NAMES[] = {"localhost", "127.0.0.1", "::1"};
    QByteArray const name = HostName(*request.host);
    return std::find(std::begin(OWN_NAMES), std::end(OWN_NAMES), name) != std::end(OWN_NAMES) ||
           std::find(m_manners.hosts.begin(), m_manners.hosts.end(), name) != m_manners.hosts.end();
}

void ServerConnection::Answer(HttpRequest const& request)
{
    if (!request.isHostClear)
    {
        AnswerStatus(request, 400);
        return;
    }
    if (request.host && !IsAskedByItsName(request))
    {
        AnswerStatus(request, 421, {},
                     u" for \"%1\", which no --host names"_s.arg(Printable(QString::fromLatin1(*request.host))));
        return;
    }
    if (request.method != "GET" && request.method != "HEAD")
    {
        AnswerStatus(request, 405, "Allow: GET, HEAD\r\n");
        return;
    }
    m_fault = FaultFor(request.path);
    if (m_fault && m_fault->kind == ServerFaultKind::Status)
    {
        AnswerStatus(request, int(m_fault->number));
        return;
    }
    if (m_fault && m_fault->kind == ServerFaultKind::Drop && m_fault->number == 0)
    {
        m_log(u"%1 /%2 reset"_s.arg(QString::fromLatin1(request.method), Printable(request.path)));
        Reset();
        return;
    }
    ServedFile found = OpenServedFile(m_folderFd, request.path);
    if (!found.file)
    {
        AnswerStatus(request, 404, {},
                     found.hiddenBecause.isEmpty() ? QString() : u" hidden: "_s + found.hiddenBecause);
        return;
    }
    AnswerFile(request, std::move(found.file));
}

void ServerConnection::AnswerFile(HttpRequest const& request, Engine::UniqueFd file)
{
    struct stat status;
    if (::fstat(file.Get(), &status) != 0)
    {
        AnswerStatus(request, 404);
        return;
    }
    QByteArray const tag = TagOf(status);
    QByteArray const changed = HttpDate(status.st_mtim.tv_sec);
    QByteArray const version = "ETag: " + tag + "\r\nLast-Modified: " + changed + "\r\n";
    // A requested fault must have a visible effect.
    if (!m_fault && HasVersion(request, tag, status.st_mtim.tv_sec))
    {
        AnswerStatus(request, 304, version);
        return;
    }
    bool const isRangeWanted = request.ifRange.isEmpty() || request.ifRange == tag || request.ifRange == changed;
    RangeKind const kind = RangeOf(isRangeWanted ? request.range : QByteArray(), status.st_size, m_rest);
    if (kind == RangeKind::Unsatisfiable)
    {
        AnswerStatus(request, 416, "Content-Range: bytes */" + QByteArray::number(qint64(status.st_size)) + "\r\n");
        return;
    }
    int const code = kind == RangeKind::Part ? 206 : 200;
    qint64 const length = m_rest.end - m_rest.first;
    m_socket.write("HTTP/1.1 " + QByteArray::number(code) + ' ' + ReasonOf(code) +
                   "\r\nContent-Type: " + TypeOf(request.path) + "\r\nContent-Length: " + QByteArray::number(length) +
                   "\r\nAccept-Ranges: bytes\r\n" + version);
    if (kind == RangeKind::Part)
    {
        m_socket.write("Content-Range: bytes " + QByteArray::number(m_rest.first) + '-' +
                       QByteArray::number(m_rest.end - 1) + '/' + QByteArray::number(qint64(status.st_size)) + "\r\n");
    }
    m_socket.write("Connection: close\r\n\r\n");
    m_log(u"%1 /%2 %3 %4 bytes"_s.arg(QString::fromLatin1(request.method), Printable(request.path),
                                      QString::number(code), QString::number(length)));
    if (request.method == "HEAD")
    {
        End();
        return;
    }
    m_file = std::move(file);
    SendBody();
}

void ServerConnection::AnswerStatus(HttpRequest const& request, int status, QByteArray const& extraHeaders,
                                    QString const& remark)
{
    // In a 304 response, the length would be the file's length.
    m_socket.write("HTTP/1.1 " + QByteArray::number(status) + ' ' + ReasonOf(status) + "\r\n" + extraHeaders +
                   (status == 304 ? "" : "Content-Length: 0\r\n") + "Connection: close\r\n\r\n");
    m_log(u"%1 /%2 "_s.arg(Printable(QString::fromLatin1(request.method)), Printable(request.path)) +
          QString::number(status) + remark);
    End();
}

void ServerConnection::SendBody()
{
    bool const isCut =
        m_fault && (m_fault->kind == ServerFaultKind::Truncate || m_fault->kind == ServerFaultKind::Drop);
    m_untilFault = isCut ? m_fault->number : -1;
    if (m_fault && m_fault->kind == ServerFaultKind::Slow)
    {
        // Sends at least one byte at a time; lower rates use longer intervals.
        qint64 const piece = std::max<qint64>(1, m_fault->number / SLOW_STEPS_PER_SECOND);
        m_pace.setInterval(int(std::max<qint64>(1, 1000 * piece / m_fault->number)));
        connect(&m_pace, &QTimer::timeout, this, [this, piece] { SendBytes(piece); });
        m_pace.start();
        return;
    }
    auto const sendMore = [this]
    {
        if (m_file && m_socket.bytesToWrite() + m_socket.encryptedBytesToWrite() < PIECE_BYTES)
        {
            SendBytes(PIECE_BYTES);
        }
    };
    connect(&m_socket, &QIODevice::bytesWritten, this, sendMore);
    connect(&m_socket, &QSslSocket::encryptedBytesWritten, this, sendMore);
    SendBytes(PIECE_BYTES);
}

void ServerConnection::SendBytes(qint64 most)
{
    std::array<char, PIECE_BYTES> piece;
    qint64 wanted = std::min({most, qint64(piece.size()), m_rest.end - m_rest.first});
    wanted = m_untilFault >= 0 ? std::min(wanted, m_untilFault) : wanted;
    ssize_t const count = ::pread(m_file.Get(), piece.data(), std::size_t(wanted), m_rest.first);
    if (count > 0)
    {
        m_socket.write(piece.data(), count);
        m_rest.first += count;
        m_untilFault -= m_untilFault >= 0 ? count : 0;
    }
    bool const isCut = m_untilFault == 0;
    if (isCut && m_fault->kind == ServerFaultKind::Drop)
    {
        Reset();
    }
    else if (isCut || count <= 0 || m_rest.first == m_rest.end)
    {
        End();
    }
}

void ServerConnection::End()
{
    m_pace.stop();
    m_file = Engine::UniqueFd();
    m_socket.disconnectFromHost();
}

void ServerConnection::Reset()
{
    m_pace.stop();
    m_file = Engine::UniqueFd();
    // Sends the announced bytes so far. After that, closing resets the connection instead of ending it normally.
    m_socket.flush();
    linger const now{1, 0};
    ::setsockopt(int(m_socket.socketDescriptor()), SOL_SOCKET, SO_LINGER, &now, sizeof now);
    m_socket.abort();
}

} // namespace Pelnar::Publisher
