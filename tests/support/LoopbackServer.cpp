#include "tests/support/LoopbackServer.h"

#include <QHostAddress>
#include <QPointer>
#include <QTimer>

#include <memory>
#include <sys/socket.h>
#include <utility>

namespace Pelnar::Testing
{

LoopbackServer::LoopbackServer(Script script, std::optional<ServerIdentity> identity)
    : m_script(std::move(script)), m_identity(std::move(identity))
{
    if (!listen(QHostAddress::LocalHost))
    {
        qFatal("cannot listen: %s", qPrintable(errorString()));
    }
}

QUrl LoopbackServer::Url(QString const& path, QString const& host) const
{
    QUrl url;
    url.setScheme(m_identity ? QStringLiteral("https") : QStringLiteral("http"));
    url.setHost(host);
    url.setPort(serverPort());
    url.setPath(path);
    return url;
}

void LoopbackServer::incomingConnection(qintptr descriptor)
{
    ++m_connections;
    auto* const socket = new QSslSocket(this);
    socket->setSocketDescriptor(descriptor);
    connect(socket, &QSslSocket::disconnected, socket, &QObject::deleteLater);
    connect(socket, &QSslSocket::readyRead, this, [this, socket] { Read(socket); });
    if (m_identity)
    {
        socket->setLocalCertificateChain(m_identity->chain);
        socket->setPrivateKey(m_identity->key);
        socket->startServerEncryption();
    }
}

void LoopbackServer::Read(QSslSocket* socket)
{
    QByteArray const request = socket->property("request").toByteArray() + socket->readAll();
    socket->setProperty("request", request);
    if (request.endsWith("\r\n\r\n"))
    {
        socket->setProperty("request", QByteArray());
        m_requests.push_back(request);
        m_script(*socket, request, static_cast<int>(m_requests.size()) - 1);
    }
}

QByteArray OkAnswer(QByteArray const& body)
{
    return "HTTP/1.1 200 OK\r\nContent-Type: application/rss+xml\r\nContent-Length: " +
           QByteArray::number(body.size()) + "\r\nConnection: close\r\n\r\n" + body;
}

QByteArray RedirectAnswer(int status, QByteArray const& location)
{
    return "HTTP/1.1 " + QByteArray::number(status) + " Elsewhere\r\nLocation: " + location +
           "\r\nContent-Length: 0\r\nConnection: close\r\n\r\n";
}

LoopbackServer::Script Answering(QByteArray const& bytes)
{
    return [bytes](QSslSocket& socket, QByteArray const&, int)
    {
        socket.write(bytes);
        socket.disconnectFromHost();
    };
}

LoopbackServer::Script AnsweringThenReset(QByteArray const& bytes)
{
    return [bytes](QSslSocket& socket, QByteArray const&, int)
    {
        socket.write(bytes);
        while (socket.bytesToWrite() > 0 && socket.waitForBytesWritten(1000))
        {
        }
        // Closing without lingering sends a reset. On Linux the other side can read its buffer only until the reset
        // arrives, so a test must not depend on how much was read.
        linger const none{1, 0};
        setsockopt(static_cast<int>(socket.socketDescriptor()), SOL_SOCKET, SO_LINGER, &none, sizeof none);
        socket.abort();
    };
}

LoopbackServer::Script AnsweringWithoutEnd(QByteArray const& head, QByteArray const& piece)
{
    return [head, piece](QSslSocket& socket, QByteArray const&, int)
    {
        QObject::connect(&socket, &QSslSocket::bytesWritten, &socket,
                         [&socket, piece]
                         {
                             if (socket.bytesToWrite() < 4 * piece.size())
                             {
                                 socket.write(piece);
                             }
                         });
        socket.write(head + piece);
    };
}

LoopbackServer::Script Dripping(QByteArray const& head, QByteArray const& body, int intervalMs)
{
    return [head, body, intervalMs](QSslSocket& socket, QByteArray const&, int)
    {
        socket.write(head);
        auto* const timer = new QTimer(&socket);
        auto const position = std::make_shared<int>(0);
        QObject::connect(timer, &QTimer::timeout, &socket,
                         [&socket, timer, body, position]
                         {
                             socket.write(body.mid((*position)++, 1));
                             if (*position == body.size())
                             {
                                 timer->stop();
                                 socket.disconnectFromHost();
                             }
                         });
        timer->start(intervalMs);
    };
}

LoopbackServer::Script Silent()
{
    return [](QSslSocket&, QByteArray const&, int) {};
}

} // namespace Pelnar::Testing
