// LoopbackServer.h: a local server whose answers a test scripts byte by byte, over TCP or TLS.
// Thread: the test's, in its event loop. Ownership: a scope object; it owns its connections.
#pragma once

#include <QByteArray>
#include <QSslCertificate>
#include <QSslKey>
#include <QSslSocket>
#include <QTcpServer>
#include <QUrl>

#include <functional>
#include <optional>
#include <vector>

namespace Pelnar::Testing
{

/// The identity of a TLS server: its certificate, the authority's, and the key of the first.
struct ServerIdentity
{
    QList<QSslCertificate> chain;
    QSslKey key;
};

class LoopbackServer : private QTcpServer
{
public:
    /// Called when the head of a request has arrived. \a number counts requests from 0.
    using Script = std::function<void(QSslSocket& socket, QByteArray const& request, int number)>;

    explicit LoopbackServer(Script script, std::optional<ServerIdentity> identity = std::nullopt);

    /// http, or https with an identity, with the host name "127.0.0.1" or \a host.
    QUrl Url(QString const& path = QStringLiteral("/feed.xml"),
             QString const& host = QStringLiteral("127.0.0.1")) const;

    /// The heads of all requests, in order.
    std::vector<QByteArray> const& Requests() const { return m_requests; }
    int Connections() const { return m_connections; }

private:
    void incomingConnection(qintptr descriptor) override;
    void Read(QSslSocket* socket);

    Script m_script;
    std::optional<ServerIdentity> m_identity;
    std::vector<QByteArray> m_requests;
    int m_connections = 0;
};

/// "HTTP/1.1 200 OK" with a length, closed after \a body.
QByteArray OkAnswer(QByteArray const& body);
/// An answer with \a status that redirects to \a location.
QByteArray RedirectAnswer(int status, QByteArray const& location);

/// Sends \a bytes to every request and closes.
LoopbackServer::Script Answering(QByteArray const& bytes);
/// Sends \a bytes and resets the connection instead of closing it.
LoopbackServer::Script AnsweringThenReset(QByteArray const& bytes);
/// Sends \a head, then \a piece repeatedly for as long as the other side reads.
LoopbackServer::Script AnsweringWithoutEnd(QByteArray const& head, QByteArray const& piece);
/// Sends \a head at once, then one byte of \a body every \a intervalMs.
LoopbackServer::Script Dripping(QByteArray const& head, QByteArray const& body, int intervalMs);
/// Never answers.
LoopbackServer::Script Silent();

} // namespace Pelnar::Testing
