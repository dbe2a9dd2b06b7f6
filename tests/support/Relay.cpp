#include "tests/support/Relay.h"

#include <QHostAddress>

#include <utility>

namespace Pelnar::Testing
{

Relay::Relay(QUrl const& url) : m_serverPort(static_cast<quint16>(url.port())), m_url(url)
{
    if (!listen(QHostAddress::LocalHost))
    {
        qFatal("cannot listen: %s", qPrintable(errorString()));
    }
    m_url.setPort(serverPort());
}

void Relay::incomingConnection(qintptr descriptor)
{
    ++m_connections;
    auto* const client = new QTcpSocket(this);
    auto* const server = new QTcpSocket(this);
    client->setSocketDescriptor(descriptor);
    server->connectToHost(QHostAddress(QHostAddress::LocalHost), m_serverPort);
    connect(client, &QTcpSocket::readyRead, server, [client, server] { server->write(client->readAll()); });
    connect(client, &QTcpSocket::disconnected, server, [server] { server->disconnectFromHost(); });
    connect(server, &QTcpSocket::readyRead, client, [this, client, server] { Pass(*server, *client); });
    connect(server, &QTcpSocket::disconnected, client, [client] { client->disconnectFromHost(); });
}

void Relay::Pass(QTcpSocket& server, QTcpSocket& client)
{
    QByteArray bytes = server.readAll();
    if (m_left && bytes.size() >= *m_left)
    {
        bytes.truncate(static_cast<int>(*std::exchange(m_left, std::nullopt)));
        client.write(bytes);
        client.flush();
        Forget();
        return;
    }
    m_left = m_left ? std::optional(*m_left - bytes.size()) : std::nullopt;
    client.write(bytes);
}

void Relay::Forget()
{
    for (QTcpSocket* const socket : findChildren<QTcpSocket*>())
    {
        socket->disconnect();
    }
}

} // namespace Pelnar::Testing
