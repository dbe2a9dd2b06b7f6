#include "Publisher/serve/FileServer.h"

#include "Publisher/Refusal.h"
#include "Publisher/serve/RequestRules.h"
#include "Publisher/serve/ServedFile.h"

#include <QDateTime>
#include <QLocale>
#include <QMimeDatabase>

#include <algorithm>
#include <chrono>
#include <cstring>
#include <thread>

#include <microhttpd.h>
#include <netinet/in.h>
#include <sys/stat.h>
#include <unistd.h>

namespace Pelnar::Publisher
{
namespace
{

constexpr std::size_t PIECE_BYTES = 64 * 1024;
constexpr qint64 SLOW_STEPS_PER_SECOND = 10;

QByteArray TypeOf(QString const& path)
{
    QByteArray const type = QMimeDatabase().mimeTypeForFile(path, QMimeDatabase::MatchExtension).name().toLatin1();
    return type.startsWith("text/") ? type + "; charset=utf-8" : type;
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

/// The path below the served folder, without "/" at its start; empty if \a target is not valid.
QString PathOf(QByteArray const& target)
{
    QByteArray const path = QByteArray::fromPercentEncoding(target.mid(1));
    return target.startsWith('/') && !path.contains('\0') ? QString::fromUtf8(path) : QString();
}

void Reset(MHD_Connection* connection)
{
    sockaddr const none{AF_UNSPEC, {}}; // Linux resets a connection that is to have no partner
    ::connect(MHD_get_connection_info(connection, MHD_CONNECTION_INFO_CONNECTION_FD)->connect_fd, &none, sizeof none);
}

/// A file's bytes on their way to a client.
struct ServedBody
{
    Engine::UniqueFd file;
    ByteRange range;
    ServerFault const* fault = nullptr;
    MHD_Connection* connection = nullptr;

    static void Delete(void* body) { delete static_cast<ServedBody*>(body); }

    static ssize_t Read(void* self, std::uint64_t position, char* bytes, std::size_t most)
    {
        auto const& body = *static_cast<ServedBody*>(self);
        auto wanted = qint64(most);
        if (body.fault && body.fault->kind == ServerFaultKind::Slow)
        {
            // Sends at least one byte at a time; lower rates use longer intervals.
            qint64 const piece = std::max<qint64>(1, body.fault->number / SLOW_STEPS_PER_SECOND);
            std::this_thread::sleep_for(std::chrono::milliseconds(1000 * piece / body.fault->number));
            wanted = std::min(wanted, piece);
        }
        else if (body.fault)
        {
            wanted = std::min(wanted, body.fault->number - qint64(position));
        }
        ssize_t const count = ::pread(body.file.Get(), bytes, std::size_t(wanted), body.range.first + qint64(position));
        if (wanted == 0 && body.fault->kind == ServerFaultKind::Drop)
        {
            Reset(body.connection);
        }
        return count > 0 ? count : ssize_t(MHD_CONTENT_READER_END_WITH_ERROR);
    }
};

} // namespace

/// The answer to one request.
class ServerAnswer
{
public:
    /// As MHD_AccessHandlerCallback. MHD_NO ends the connection.
    static MHD_Result To(void* server, MHD_Connection* connection, char const* target, char const* method,
                         char const* version, char const*, std::size_t*, void**)
    {
        *static_cast<bool*>(MHD_get_connection_info(connection, MHD_CONNECTION_INFO_SOCKET_CONTEXT)->socket_context) =
            true;
        return ServerAnswer(*static_cast<FileServer*>(server), connection, target, method).Give(version);
    }

    /// As MHD_NotifyConnectionCallback. The library itself refuses what it cannot read, and does not say so.
    static void Watch(void* server, MHD_Connection*, void** hasRequest, MHD_ConnectionNotificationCode code)
    {
        if (code == MHD_CONNECTION_NOTIFY_STARTED)
        {
            *hasRequest = new bool(false);
            return;
        }
        std::unique_ptr<bool> const had(static_cast<bool*>(*hasRequest));
        if (!*had)
        {
            static_cast<FileServer*>(server)->m_log(u"? ended without a valid HTTP request; https needs --tls"_s);
        }
    }

private:
    struct Header
    {
        char const* name;
        QByteArray value;
    };

    ServerAnswer(FileServer const& server, MHD_Connection* connection, char const* target, char const* method)
        : m_server(server), m_connection(connection), m_method(method), m_path(PathOf(target))
    {
    }

    MHD_Result Give(QByteArray const& version)
    {
        int hosts = 0;
        auto const count = [](void* counted, MHD_ValueKind, char const* name, char const*)
        {
            *static_cast<int*>(counted) += qstricmp(name, "host") == 0 ? 1 : 0;
            return MHD_YES;
        };
        MHD_get_connection_values(m_connection, MHD_HEADER_KIND, count, &hosts);
        if (hosts > 1 || (hosts == 0 && version != "HTTP/1.0"))
        {
            return GiveStatus(MHD_HTTP_BAD_REQUEST);
        }
        if (hosts == 1 && !IsAskedByItsName())
        {
            return GiveStatus(MHD_HTTP_MISDIRECTED_REQUEST, {},
                              u" for \"%1\", which no --host names"_s.arg(QString::fromLatin1(Asked("Host"))));
        }
        if (m_method != "GET" && m_method != "HEAD")
        {
            return GiveStatus(MHD_HTTP_METHOD_NOT_ALLOWED, {{"Allow", "GET, HEAD"}});
        }
        auto const& faults = m_server.m_manners.faults;
        auto const fault = std::find_if(faults.begin(), faults.end(),
                                        [this](ServerFault const& candidate) { return candidate.name == m_path; });
        m_fault = fault == faults.end() ? nullptr : &*fault;
        if (m_fault && m_fault->kind == ServerFaultKind::Status)
        {
            return GiveStatus(unsigned(m_fault->number));
        }
        if (m_fault && m_fault->kind == ServerFaultKind::Drop && m_fault->number == 0)
        {
            Log(u"reset"_s);
            Reset(m_connection);
            return MHD_NO;
        }
        ServedFile found = OpenServedFile(m_server.m_folder.Get(), m_path);
        struct stat status;
        if (!found.file || ::fstat(found.file.Get(), &status) != 0)
        {
            return GiveStatus(MHD_HTTP_NOT_FOUND, {},
                              found.hiddenBecause.isEmpty() ? QString() : u" hidden: "_s + found.hiddenBecause);
        }
        return GiveFile(std::move(found.file), status);
    }

    MHD_Result GiveFile(Engine::UniqueFd file, struct stat const& status)
    {
        QByteArray const tag = TagOf(status);
        QByteArray const changed = HttpDate(status.st_mtim.tv_sec);
        QByteArray const size = QByteArray::number(qint64(status.st_size));
        std::vector<Header> headers = {{"ETag", tag}, {"Last-Modified", changed}};
        // A requested fault must have a visible effect.
        if (!m_fault && HasVersion({Asked("If-None-Match"), Asked("If-Modified-Since")}, tag, status.st_mtim.tv_sec))
        {
            Log(u"304"_s);
            return SendPart(MHD_HTTP_NOT_MODIFIED, headers, {std::move(file), {0, status.st_size}});
        }
        QByteArray const version = Asked("If-Range");
        bool const isRangeWanted = version.isEmpty() || version == tag || version == changed;
        ByteRange range;
        RangeKind const kind = RangeOf(isRangeWanted ? Asked("Range") : QByteArray(), status.st_size, range);
        if (kind == RangeKind::Unsatisfiable)
        {
            return GiveStatus(MHD_HTTP_RANGE_NOT_SATISFIABLE, {{"Content-Range", "bytes */" + size}});
        }
        headers.push_back({"Content-Type", TypeOf(m_path)});
        headers.push_back({"Accept-Ranges", "bytes"});
        if (kind == RangeKind::Part)
        {
            headers.push_back({"Content-Range", "bytes " + QByteArray::number(range.first) + '-' +
                                                    QByteArray::number(range.end - 1) + '/' + size});
        }
        unsigned const code = kind == RangeKind::Part ? MHD_HTTP_PARTIAL_CONTENT : MHD_HTTP_OK;
        Log(u"%1 %2 bytes"_s.arg(QString::number(code), QString::number(range.end - range.first)));
        return SendPart(code, headers, {std::move(file), range, m_fault, m_connection});
    }

    MHD_Result SendPart(unsigned status, std::vector<Header> const& headers, ServedBody body)
    {
        auto const length = std::uint64_t(body.range.end - body.range.first);
        return Send(status, headers,
                    MHD_create_response_from_callback(length, PIECE_BYTES, &ServedBody::Read,
                                                      new ServedBody(std::move(body)), &ServedBody::Delete));
    }

    /// \a remark appears only in the log.
    MHD_Result GiveStatus(unsigned status, std::vector<Header> const& headers = {}, QString const& remark = {})
    {
        Log(QString::number(status) + remark);
        return Send(status, headers, MHD_create_response_from_buffer(0, nullptr, MHD_RESPMEM_PERSISTENT));
    }

    MHD_Result Send(unsigned status, std::vector<Header> const& headers, MHD_Response* response)
    {
        for (Header const& header : headers)
        {
            MHD_add_response_header(response, header.name, header.value.constData());
        }
        MHD_add_response_header(response, "Connection", "close");
        MHD_Result const isSent = MHD_queue_response(m_connection, status, response);
        MHD_destroy_response(response);
        return isSent;
    }

    void Log(QString const& what) const
    {
        m_server.m_log(u"%1 /%2 %3"_s.arg(QString::fromLatin1(m_method), m_path, what));
    }

    QByteArray Asked(char const* header) const
    {
        return MHD_lookup_connection_value(m_connection, MHD_HEADER_KIND, header);
    }

    bool IsAskedByItsName() const
    {
        QByteArray const name = HostName(Asked("Host"));
        auto const& hosts = m_server.m_manners.hosts;
        return name == "localhost" || name == "127.0.0.1" || name == "::1" ||
               std::find(hosts.begin(), hosts.end(), name) != hosts.end();
    }

    FileServer const& m_server;
    MHD_Connection* m_connection;
    QByteArray m_method;
    QString m_path;
    ServerFault const* m_fault = nullptr;
};

FileServer::FileServer(Engine::UniqueFd folder, ServerManners manners, ServerLog log)
    : m_folder(std::move(folder))
    , m_manners(std::move(manners))
    , m_log(std::move(log))
    , m_daemon(nullptr, &MHD_stop_daemon)
{
}

void FileServer::Listen(quint16 port)
{
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_port = htons(port);
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    std::vector<MHD_OptionItem> secrets;
    unsigned flags = MHD_USE_AUTO_INTERNAL_THREAD | MHD_USE_THREAD_PER_CONNECTION;
    if (m_manners.certificate)
    {
        flags |= MHD_USE_TLS;
        secrets.push_back({MHD_OPTION_HTTPS_MEM_CERT, 0, m_manners.certificate->chain.data()});
        secrets.push_back({MHD_OPTION_HTTPS_MEM_KEY, 0, m_manners.certificate->key.data()});
    }
    secrets.push_back({MHD_OPTION_END, 0, nullptr});
    // PathOf decodes: a decoded NUL would end the library's text early.
    auto const keep = [](void*, MHD_Connection*, char* text) { return std::strlen(text); };
    std::size_t (*const unescape)(void*, MHD_Connection*, char*) = keep;
    m_daemon.reset(MHD_start_daemon(flags, port, nullptr, nullptr, &ServerAnswer::To, this, MHD_OPTION_SOCK_ADDR,
                                    &address, MHD_OPTION_NOTIFY_CONNECTION, &ServerAnswer::Watch, this,
                                    MHD_OPTION_UNESCAPE_CALLBACK, unescape, nullptr, MHD_OPTION_ARRAY, secrets.data(),
                                    MHD_OPTION_END));
    if (!m_daemon)
    {
        throw Refusal(
            {u"cannot listen on port %1"_s.arg(port) +
                 (m_manners.certificate ? u" with this certificate and key"_s : QString()),
             u"leave --port out to get a free port"_s +
                 (m_manners.certificate ? u", and give the key of the certificate, without a password"_s : QString())});
    }
}

QString FileServer::Address() const
{
    return u"%1://127.0.0.1:%2"_s.arg(
        m_manners.certificate ? u"https"_s : u"http"_s,
        QString::number(MHD_get_daemon_info(m_daemon.get(), MHD_DAEMON_INFO_BIND_PORT)->port));
}

} // namespace Pelnar::Publisher
