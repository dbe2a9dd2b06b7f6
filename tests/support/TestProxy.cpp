#include "tests/support/TestProxy.h"

#include <utility>

namespace Pelnar::Testing
{
namespace
{

constexpr char SOCKS_VERSION = 5;
constexpr char METHOD_NONE = 0;
constexpr char METHOD_PASSWORD = 2;
constexpr char METHOD_REFUSED = char(0xff);
constexpr char REPLY_NOT_ALLOWED = 2;
constexpr char NAME_AS_ADDRESS = 3;

/// The state of the conversation with a SOCKS client.
enum SocksStep
{
    Greeting,
    Password,
    Request,
};

} // namespace

TestProxy::TestProxy(Kind kind, quint16 serverPort, QByteArray user, QByteArray password, QHostAddress const& address)
    : m_kind(kind), m_serverPort(serverPort), m_user(std::move(user)), m_password(std::move(password))
{
    if (!listen(address))
    {
        qFatal("cannot listen: %s", qPrintable(errorString()));
    }
}

void TestProxy::incomingConnection(qintptr descriptor)
{
    auto* const client = new QTcpSocket(this);
    client->setSocketDescriptor(descriptor);
    connect(client, &QTcpSocket::disconnected, client, &QObject::deleteLater);
    connect(client, &QTcpSocket::readyRead, this, [this, client] { Read(client); });
}

void TestProxy::Read(QTcpSocket* client)
{
    if (auto* const server = client->property("server").value<QObject*>())
    {
        qobject_cast<QTcpSocket*>(server)->write(client->readAll());
        return;
    }
    QByteArray bytes = client->property("bytes").toByteArray() + client->readAll();
    m_kind == Kind::Http ? ReadHttp(client, bytes) : ReadSocks(client, bytes);
    client->setProperty("bytes", bytes);
}

bool TestProxy::IsAllowed(QByteArray const& head) const
{
    QByteArray const expected = "\r\nProxy-Authorization: Basic " + (m_user + ':' + m_password).toBase64() + "\r\n";
    return m_user.isEmpty() || head.contains(expected);
}

void TestProxy::ReadHttp(QTcpSocket* client, QByteArray& bytes)
{
    if (!bytes.endsWith("\r\n\r\n"))
    {
        return;
    }
    QByteArray const head = std::exchange(bytes, {});
    QByteArray const asked = head.left(head.indexOf(" HTTP/"));
    m_asked.push_back(asked);
    if (!m_refusal.isEmpty() || !IsAllowed(head))
    {
        QByteArray const status = m_refusal.isEmpty() ? QByteArray("407 Proxy Authentication Required") : m_refusal;
        client->write("HTTP/1.1 " + status +
                      "\r\nProxy-Authenticate: Basic realm=\"proxy\"\r\nContent-Length: 7\r\n\r\nrefused");
        return;
    }
    if (asked.startsWith("CONNECT "))
    {
        Connect(client, "HTTP/1.1 200 Connected\r\n\r\n", {});
        return;
    }
    // "GET http://name:port/path" becomes "GET /path".
    int const path = asked.indexOf('/', asked.indexOf("://") + 3);
    Connect(client, {}, "GET " + asked.mid(path) + head.mid(asked.size()));
}

void TestProxy::ReadSocks(QTcpSocket* client, QByteArray& bytes)
{
    int const step = client->property("step").toInt();
    if (step == Greeting && bytes.size() >= 2 && bytes.size() >= 2 + bytes[1])
    {
        char const method = m_user.isEmpty() ? METHOD_NONE : METHOD_PASSWORD;
        bool const isOffered = bytes.mid(2, bytes[1]).contains(method);
        client->write(QByteArray(1, SOCKS_VERSION) + (isOffered ? method : METHOD_REFUSED));
        client->setProperty("step", method == METHOD_PASSWORD ? Password : Request);
        bytes.clear();
    }
    else if (step == Password && bytes.size() >= 2)
    {
        int const userBytes = bytes[1];
        bool const isRight = bytes.mid(2, userBytes) == m_user && bytes.mid(3 + userBytes) == m_password;
        client->write(QByteArray(1, 1) + char(isRight ? 0 : 1));
        client->setProperty("step", Request);
        bytes.clear();
    }
    else if (step == Request && bytes.size() >= 5)
    {
        bool const isName = bytes[3] == NAME_AS_ADDRESS;
        QByteArray const name = isName ? bytes.mid(5, bytes[4]) : QByteArray("(an address)");
        m_asked.push_back(name);
        bytes.clear();
        char const reply = m_refusal.isEmpty() ? 0 : REPLY_NOT_ALLOWED;
        QByteArray const answer = QByteArray(1, SOCKS_VERSION) + reply + QByteArray("\0\1\0\0\0\0\0\0", 8);
        if (reply != 0)
        {
            client->write(answer);
            return;
        }
        Connect(client, answer, {});
    }
}

void TestProxy::Connect(QTcpSocket* client, QByteArray const& answer, QByteArray const& forwarded)
{
    auto* const server = new QTcpSocket(client);
    client->setProperty("server", QVariant::fromValue<QObject*>(server));
    connect(server, &QTcpSocket::connected, client,
            [client, server, answer, forwarded]
            {
                client->write(answer);
                server->write(forwarded);
            });
    connect(server, &QTcpSocket::readyRead, client, [client, server] { client->write(server->readAll()); });
    connect(server, &QTcpSocket::disconnected, client, [client] { client->disconnectFromHost(); });
    server->connectToHost(QHostAddress(QHostAddress::LocalHost), m_serverPort);
}

} // namespace Pelnar::Testing
