// TestProxy.h: a local proxy that speaks HTTP (tunnels and forwarding) or SOCKS 5, with or without a password. For
// every name it connects to the same server of the test.
// Thread: the test's, in its event loop. Ownership: a scope object; it owns its connections.
#pragma once

#include <QByteArray>
#include <QHostAddress>
#include <QString>
#include <QTcpServer>
#include <QTcpSocket>

#include <vector>

namespace Pelnar::Testing
{

class TestProxy : private QTcpServer
{
public:
    enum class Kind
    {
        Http,
        Socks5,
    };

    /// Connects to \a serverPort. If \a user is set, it requires the user and the password. It listens at \a address.
    TestProxy(Kind kind, quint16 serverPort, QByteArray user = {}, QByteArray password = {},
              QHostAddress const& address = QHostAddress(QHostAddress::LocalHost));

    quint16 Port() const { return serverPort(); }
    /// The requests, in order: "CONNECT name:port", "GET http://name:port/…", "name:port".
    std::vector<QByteArray> const& Asked() const { return m_asked; }
    /// From now on it answers with \a status (HTTP) or a reply that means "not allowed" (SOCKS).
    void RefuseWith(QByteArray const& status) { m_refusal = status; }

private:
    void incomingConnection(qintptr descriptor) override;
    void Read(QTcpSocket* client);
    void ReadHttp(QTcpSocket* client, QByteArray& bytes);
    void ReadSocks(QTcpSocket* client, QByteArray& bytes);
    void Connect(QTcpSocket* client, QByteArray const& answer, QByteArray const& forwarded);
    [[nodiscard]] bool IsAllowed(QByteArray const& head) const;

    Kind m_kind;
    quint16 m_serverPort;
    QByteArray m_user;
    QByteArray m_password;
    QByteArray m_refusal;
    std::vector<QByteArray> m_asked;
};

} // namespace Pelnar::Testing
