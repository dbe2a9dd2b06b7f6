// FileServer.h: serves the files of a folder over HTTP or HTTPS on this computer only. It is a server for dry runs:
// GET, HEAD and byte ranges, one request per connection, and faults on demand.
// Thread: each connection has its own. Ownership: it owns its connections, and ends them with itself.
#pragma once

#include "Engine/core/base/Descriptor.h"
#include "Publisher/serve/ServerFault.h"

#include <QByteArray>

#include <functional>
#include <memory>
#include <optional>
#include <vector>

struct MHD_Daemon;

namespace Pelnar::Publisher
{

/// PEM texts.
struct ServerCertificate
{
    QByteArray chain; ///< the server's own certificate first
    QByteArray key;
};

/// Called before each response with one line: "GET /appcast.xml 200 1234 bytes". Thread: any.
using ServerLog = std::function<void(QString const& line)>;

/// The options of a server.
struct ServerManners
{
    std::vector<ServerFault> faults;
    /// Additional host names for requests. Other names are refused, so that a web page cannot read the folder under its
    /// own name (DNS rebinding).
    std::vector<QByteArray> hosts;
    std::optional<ServerCertificate> certificate;
};

class FileServer
{
public:
    /// \a folder is an open folder. The server serves nothing outside it, no link in it, and no file that
    /// OpenServedFile hides.
    FileServer(Engine::UniqueFd folder, ServerManners manners, ServerLog log);

    /// Listens on the loopback address; 0 means any free port. Throws Refusal.
    void Listen(quint16 port);
    /// "http://127.0.0.1:PORT", or https.
    QString Address() const;

private:
    friend class ServerAnswer;

    Engine::UniqueFd m_folder;
    ServerManners m_manners;
    ServerLog m_log;
    std::unique_ptr<MHD_Daemon, void (*)(MHD_Daemon*)> m_daemon;
};

} // namespace Pelnar::Publisher
