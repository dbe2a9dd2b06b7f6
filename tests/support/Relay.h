// Relay.h: passes bytes between clients and a server of the test. It can forget its connections as a router does: no
// byte passes any more, and nobody is told.
// Thread: the test's, in its event loop. Ownership: a scope object; it owns its connections.
#pragma once

#include <QTcpServer>
#include <QTcpSocket>
#include <QUrl>

#include <optional>

namespace Pelnar::Testing
{

class Relay : private QTcpServer
{
public:
    /// Connects to the local server that \a url leads to.
    explicit Relay(QUrl const& url);

    /// The address of the server behind the relay.
    QUrl const& Url() const { return m_url; }
    int Connections() const { return m_connections; }
    /// Forgets the open connections. New ones work.
    void Forget();
    /// The same, as soon as the server has sent \a bytes more.
    void ForgetAfter(qint64 bytes) { m_left = bytes; }

private:
    void incomingConnection(qintptr descriptor) override;
    void Pass(QTcpSocket& server, QTcpSocket& client);

    quint16 m_serverPort;
    QUrl m_url;
    int m_connections = 0;
    std::optional<qint64> m_left;
};

} // namespace Pelnar::Testing
