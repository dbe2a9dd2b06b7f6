// FileServer.h: serves the files of a folder over HTTP(S) on this computer only, byte ranges included, with faults on
// demand. Thread: the main thread, in its event loop. Ownership: it owns its connections.
// A server for dry runs: GET and HEAD, one request a connection.
#pragma once

#include "Engine/core/base/Descriptor.h"
#include "Publisher/serve/ServerFault.h"

#include <QSslCertificate>
#include <QSslKey>
#include <QTcpServer>

#include <functional>
#include <optional>
#include <vector>

namespace Pelnar::Publisher
{

struct ServerCertificate
{
    QList<QSslCertificate> chain; ///< the server's own first
    QSslKey key;
};

/// Told of each answer, on one line: "GET /appcast.xml 200 1234 bytes".
using ServerLog = std::function<void(QString const& line)>;

/// What a server does beside serving.
struct ServerManners
{
    std::vector<ServerFault> faults;
    /// More host names that requests may use. Other names are refused, so that a web page cannot read the folder under
    /// its own name.
    std::vector<QByteArray> hosts;
};

class FileServer : private QTcpServer
{
public:
    /// \a folder is an open folder; nothing outside it, no link in it and nothing that OpenServedFile hides is served.
    FileServer(Engine::UniqueFd folder, ServerManners manners, std::optional<ServerCertificate> certificate,
               ServerLog log);

    /// Listens on the loopback address; 0 stands for any free port. False when the port is in use.
    [[nodiscard]] bool Listen(quint16 port);
    /// "http://127.0.0.1:PORT", or https.
    QString Address() const;

private:
    void incomingConnection(qintptr descriptor) override;

    Engine::UniqueFd m_folder;
    ServerManners m_manners;
    std::optional<ServerCertificate> m_certificate;
    ServerLog m_log;
};

} // namespace Pelnar::Publisher
