// CurlLoop.h: runs libcurl's transfers in Qt's event loop. Sockets and timers wake it; nothing blocks. Connections stay
// open for a while, so that the next request to the same server can reuse one.
// Thread: the application object's. Ownership: the application object owns the only loop; the makers of transfers own
// them.
#pragma once

#include "Engine/core/base/DiskChores.h"
#include "Engine/core/fetch/ProxyChoice.h"
#include "Engine/core/fetch/TrustStore.h"

#include <QObject>
#include <QSslConfiguration>
#include <QTimer>

#include <functional>
#include <map>
#include <optional>

#include <curl/curl.h>

class QSocketNotifier;

namespace Pelnar::Engine
{

/// What a connection needs to know about this computer.
struct ConnectionSettings
{
    ProxyChoice proxy;
    TrustStore trust;     ///< for https only
    bool areKnown = true; ///< false if memory ran out while they were read
};

class CurlLoop : public QObject
{
    Q_OBJECT
public:
    /// REQUIRES: there is an application object.
    static CurlLoop& OfApplication();
    ~CurlLoop() override;

    /// Calls \a ready with the settings for \a url: immediately if they are available, otherwise later, if \a receiver
    /// still exists.
    void AskSettings(QUrl const& url, QObject* receiver, std::function<void(ConnectionSettings const&)> ready);

    /// Runs \a transfer and calls \a done once, from the event loop. Returns false if libcurl does not accept the
    /// transfer.
    [[nodiscard]] bool Add(CURL* transfer, std::function<void(CURLcode)> done);
    /// Ends \a transfer and its connection if it still runs; returns false if it does not. Its maker may destroy it
    /// afterwards. Not to be called by one of its callbacks.
    bool Remove(CURL* transfer);
    /// A transfer's callback calls this: bytes have arrived, and more may be available immediately.
    void NoteBytes() { m_hasBytes = true; }
    /// The bytes that arrived on the connection of \a transfer since it was made.
    std::optional<qint64> BytesReadFor(CURL* transfer) const;
    /// True if more bytes wait on the connection of \a transfer.
    [[nodiscard]] bool HasUnreadBytes(CURL* transfer) const;

private:
    struct Socket
    {
        CURL* transfer = nullptr;
        QSocketNotifier* reading = nullptr;
        QSocketNotifier* writing = nullptr;
    };

    explicit CurlLoop(QObject* parent);
    /// The socket that \a transfer uses, or -1.
    int SocketOf(CURL* transfer) const;
    [[nodiscard]] bool Begin();
    void Drive(curl_socket_t socket, int events);
    void TakeEnds();
    void Watch(CURL* transfer, curl_socket_t socket, int what);
    void Unwatch(curl_socket_t socket);
    QSocketNotifier* MakeNotifier(curl_socket_t socket, int type, int events);
    void SetTimer(long milliseconds);
    /// Closes the connections that have been idle for a while.
    void LetGo();
    /// Discards connections and authorities of an outdated configuration.
    void MindTrust(QSslConfiguration const& configuration);

    CURLM* m_multi = nullptr;
    std::map<CURL*, std::function<void(CURLcode)>> m_running;
    std::map<curl_socket_t, Socket> m_sockets;
    std::optional<QSslConfiguration> m_trusted; ///< the configuration whose authorities m_trust has
    TrustStore m_trust;
    bool m_hasBytes = false;
    QTimer m_timer;
    QTimer m_idleTimer;
    DiskChores m_asking; ///< destroyed first
};

} // namespace Pelnar::Engine
