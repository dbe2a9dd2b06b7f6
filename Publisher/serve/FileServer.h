// FileServer.h: serves the files of a folder over HTTP or HTTPS on this computer only. It is a server for dry runs:
// GET, HEAD and byte ranges, one request per connection, and faults on demand.
// Thread: the main thread, in its event loop. Ownership: it owns its connections.
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
    QList<QSslCertificate> chain; ///< the server's own certificate first
    QSslKey key;
};

/// Called after each response with one line: "GET /appcast.xml 200 1234 bytes".
using ServerLog = std::function<void(QString const& line)>;

/// The options of a server.
struct ServerManners
{
    std::vector<ServerFault> faults;
    /// Additional host names for requests. Other names are refused, so that a web page cannot read the folder under its
    /// own name (DNS rebinding).
    std::vector<QByteArray> hosts;
};

class FileServer : private QTcpServer
{
public:
    /// \a folder is an open folder. The server serves nothing outside it, no link in it, and no file that
    /// OpenServedFile hides.
    FileServer(Engine::UniqueFd folder, ServerManners manners, std::optional<ServerCertificate> certificate,
               ServerLog log);

    /// Listens on the loopback address; 0 means any free port. Returns false if the port is in use.
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
