// CurlLoop.h: libcurl's transfers within Qt's event loop: sockets and timers wake it, nothing waits. Connections stay
// open for a while, so that the next request to the same server needs no new one.
// Thread: the application object's. Ownership: the application object owns the one loop; transfers are their makers'.
#pragma once

#include "Engine/core/fetch/ProxyChoice.h"
#include "Engine/core/fetch/TrustStore.h"

#include <QObject>
#include <QSslConfiguration>
#include <QTimer>

#include <functional>
#include <future>
#include <map>
#include <memory>
#include <optional>
#include <vector>

#include <curl/curl.h>

class QSocketNotifier;

namespace Pelnar::Engine
{

/// What a connection needs to know of this computer.
struct ConnectionSettings
{
    ProxyChoice proxy;
    TrustStore trust; ///< for https only
};

class CurlLoop : public QObject
{
    Q_OBJECT
public:
    /// REQUIRES: there is an application object.
    static CurlLoop& OfApplication();
    ~CurlLoop() override;

    /// Calls \a ready with the settings for \a url: at once where they are at hand, else later, when \a receiver is
    /// still there.
    void AskSettings(QUrl const& url, QObject* receiver, std::function<void(ConnectionSettings const&)> ready);

    /// Runs \a transfer and calls \a done once, from the event loop. False when libcurl does not take it.
    [[nodiscard]] bool Add(CURL* transfer, std::function<void(CURLcode)> done);
    /// Ends \a transfer if it still runs; its maker may destroy it afterwards. Not to be called by one of its
    /// callbacks.
    void Remove(CURL* transfer);
    /// Called by a transfer's callback: bytes have come, and more may be there at once.
    void NoteBytes() { m_hasBytes = true; }
    /// The socket that \a transfer uses, or -1.
    int SocketOf(CURL* transfer) const;

private:
    struct Socket
    {
        CURL* transfer = nullptr;
        QSocketNotifier* reading = nullptr;
        QSocketNotifier* writing = nullptr;
    };

    explicit CurlLoop(QObject* parent);
    [[nodiscard]] bool Begin();
    void Drive(curl_socket_t socket, int events);
    void TakeEnds();
    void Watch(CURL* transfer, curl_socket_t socket, int what);
    void Unwatch(curl_socket_t socket);
    QSocketNotifier* MakeNotifier(curl_socket_t socket, int type, int events);
    void SetTimer(long milliseconds);
    /// Closes the connections that nobody has used for a while.
    void LetGo();
    /// Forgets connections and authorities of a configuration that holds no longer.
    void MindTrust(QSslConfiguration const& configuration);

    CURLM* m_multi = nullptr;
    std::map<CURL*, std::function<void(CURLcode)>> m_running;
    std::map<curl_socket_t, Socket> m_sockets;
    std::optional<QSslConfiguration> m_trusted; ///< whose authorities m_trust has
    TrustStore m_trust;
    bool m_hasBytes = false;
    QTimer m_timer;
    QTimer m_idleTimer;
    std::vector<std::future<void>> m_asking; ///< each waits for its end
};

} // namespace Pelnar::Engine
