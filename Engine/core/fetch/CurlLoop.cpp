#include "Engine/core/fetch/CurlLoop.h"

#include "Engine/core/base/CallLater.h"
#include "Engine/core/fetch/AddressReach.h"
#include "Engine/core/fetch/FetchRules.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QPointer>
#include <QSocketNotifier>

#include <algorithm>
#include <chrono>
#include <cstddef>
#include <exception>
#include <utility>

#include <linux/tcp.h>
#include <netinet/in.h>
#include <sys/ioctl.h>
#include <sys/socket.h>

namespace Pelnar::Engine
{
namespace
{

/// Long enough for the second fetch of a check, short enough for every server.
constexpr std::chrono::seconds IDLE_TIME{30};
constexpr long MOST_IDLE_CONNECTIONS = 4;
/// Bytes may be read for this long before the event loop runs again.
constexpr qint64 TURN_MS = 2;

/// Makes \a call for libcurl, which no exception may pass through; -1 if memory runs out. Without its socket or its
/// timer a transfer runs into its time limit.
template <typename Call>
int Guarded(Call const& call) noexcept
{
    try
    {
        call();
        return 0;
    }
    catch (std::exception const&)
    {
        return -1;
    }
}

} // namespace

CurlLoop& CurlLoop::OfApplication()
{
    static QPointer<CurlLoop> loop;
    if (!loop)
    {
        static CURLcode const hasBegun = curl_global_init(CURL_GLOBAL_DEFAULT);
        static_cast<void>(hasBegun); // each transfer reports what this could not do
        loop = new CurlLoop(QCoreApplication::instance());
    }
    return *loop;
}

CurlLoop::CurlLoop(QObject* parent) : QObject(parent)
{
    m_timer.setSingleShot(true);
    m_idleTimer.setSingleShot(true);
    connect(&m_timer, &QTimer::timeout, this, [this] { Drive(CURL_SOCKET_TIMEOUT, 0); });
    connect(&m_idleTimer, &QTimer::timeout, this, &CurlLoop::LetGo);
}

CurlLoop::~CurlLoop()
{
    for (auto const& [transfer, done] : m_running)
    {
        curl_multi_remove_handle(m_multi, transfer);
    }
    m_running.clear();
    LetGo();
}

void CurlLoop::AskSettings(QUrl const& url, QObject* receiver, std::function<void(ConnectionSettings const&)> ready)
{
    ConnectionSettings settings;
    std::optional<ProxyChoice> proxy;
    // Requests to this computer never go through a proxy.
    if (ReachOf(url) == AddressReach::ThisComputer)
    {
        proxy = ProxyChoice();
    }
    else if (!(proxy = ApplicationsProxy(url)))
    {
        proxy = EnvironmentsProxy(url, &ValueInEnvironment);
    }
    settings.proxy = proxy.value_or(ProxyChoice());
    QSslConfiguration const configuration = QSslConfiguration::defaultConfiguration();
    MindTrust(configuration);
    settings.trust = m_trust;
    bool const needsTrust = !m_trust && IsHttps(url);
    if (proxy && !needsTrust)
    {
        ready(settings);
        return;
    }
    auto const tell = [this, configuration, needsTrust, receiver = QPointer<QObject>(receiver),
                       ready = std::move(ready)](ConnectionSettings const& complete)
    {
        if (needsTrust && m_trusted == configuration)
        {
            m_trust = complete.trust;
        }
        if (receiver)
        {
            ready(complete);
        }
    };
    auto ask = [this, settings, proxy, needsTrust, url, configuration, tell]() mutable
    {
        try
        {
            if (!proxy)
            {
                settings.proxy = FirstUsable(QNetworkProxyFactory::systemProxyForQuery(QNetworkProxyQuery(url)));
            }
            if (needsTrust)
            {
                settings.trust = MakeTrustStore(configuration);
            }
        }
        catch (std::exception const&) // the transfer waits for an answer
        {
            settings.areKnown = false;
        }
        CallLater(*this, [tell, settings] { tell(settings); });
    };
    m_asking.Run(std::move(ask));
}

void CurlLoop::MindTrust(QSslConfiguration const& configuration)
{
    if (m_trusted == configuration)
    {
        return;
    }
    if (m_running.empty())
    {
        LetGo();
    }
    m_trusted = configuration;
    m_trust.reset();
}

bool CurlLoop::Begin()
{
    if (m_multi)
    {
        return true;
    }
    m_multi = curl_multi_init();
    if (!m_multi)
    {
        return false;
    }
    auto const watch = +[](CURL* transfer, curl_socket_t socket, int what, void* loop, void*)
    { return Guarded([=] { static_cast<CurlLoop*>(loop)->Watch(transfer, socket, what); }); };
    auto const setTimer = +[](CURLM*, long milliseconds, void* loop)
    { return Guarded([=] { static_cast<CurlLoop*>(loop)->SetTimer(milliseconds); }); };
    curl_multi_setopt(m_multi, CURLMOPT_SOCKETFUNCTION, watch);
    curl_multi_setopt(m_multi, CURLMOPT_SOCKETDATA, this);
    curl_multi_setopt(m_multi, CURLMOPT_TIMERFUNCTION, setTimer);
    curl_multi_setopt(m_multi, CURLMOPT_TIMERDATA, this);
    curl_multi_setopt(m_multi, CURLMOPT_MAXCONNECTS, MOST_IDLE_CONNECTIONS);
    return true;
}

bool CurlLoop::Add(CURL* transfer, std::function<void(CURLcode)> done)
{
    if (!Begin() || curl_multi_add_handle(m_multi, transfer) != CURLM_OK)
    {
        return false;
    }
    m_idleTimer.stop();
    m_running[transfer] = std::move(done);
    return true;
}

bool CurlLoop::Remove(CURL* transfer)
{
    auto const running = m_running.find(transfer);
    if (running == m_running.end())
    {
        return false;
    }
    m_running.erase(running);
    // A transfer that still runs may wait on a dead connection. libcurl would keep one of HTTP/2 for the next request.
    curl_easy_setopt(transfer, CURLOPT_FORBID_REUSE, 1L);
    curl_multi_remove_handle(m_multi, transfer);
    if (m_running.empty())
    {
        m_idleTimer.start(IDLE_TIME);
    }
    return true;
}

int CurlLoop::SocketOf(CURL* transfer) const
{
    auto const found = std::find_if(m_sockets.begin(), m_sockets.end(),
                                    [transfer](auto const& entry) { return entry.second.transfer == transfer; });
    return found == m_sockets.end() ? -1 : found->first;
}

std::optional<qint64> CurlLoop::BytesReadFor(CURL* transfer) const
{
    int const socket = SocketOf(transfer);
    tcp_info info{};
    socklen_t size = sizeof info;
    int waiting = 0;
    bool const isKnown = socket >= 0 && getsockopt(socket, IPPROTO_TCP, TCP_INFO, &info, &size) == 0 &&
                         size >= offsetof(tcp_info, tcpi_bytes_received) + sizeof info.tcpi_bytes_received &&
                         ioctl(socket, FIONREAD, &waiting) == 0;
    return isKnown ? std::optional(static_cast<qint64>(info.tcpi_bytes_received) - waiting) : std::nullopt;
}

bool CurlLoop::HasUnreadBytes(CURL* transfer) const
{
    char byte = 0;
    int const socket = SocketOf(transfer);
    return socket >= 0 && recv(socket, &byte, 1, MSG_PEEK | MSG_DONTWAIT) > 0;
}

void CurlLoop::Drive(curl_socket_t socket, int events)
{
    // One call delivers one record of a secure connection. While more are available, Qt's loop does not run between two
    // of them.
    QElapsedTimer clock;
    clock.start();
    do
    {
        m_hasBytes = false;
        int running = 0;
        curl_multi_socket_action(m_multi, socket, events, &running);
    } while (m_hasBytes && socket != CURL_SOCKET_TIMEOUT && m_sockets.count(socket) != 0 && !clock.hasExpired(TURN_MS));
    TakeEnds();
}

void CurlLoop::TakeEnds()
{
    int left = 0;
    while (CURLMsg const* const message = curl_multi_info_read(m_multi, &left))
    {
        if (message->msg != CURLMSG_DONE)
        {
            continue;
        }
        CURLcode const code = message->data.result;
        CURL* const transfer = message->easy_handle; // removal deletes the message
        std::function<void(CURLcode)> const done = m_running[transfer];
        Remove(transfer);
        QMetaObject::invokeMethod(
            this, [done, code] { done(code); }, Qt::QueuedConnection);
    }
}

void CurlLoop::Watch(CURL* transfer, curl_socket_t socket, int what)
{
    if (what == CURL_POLL_REMOVE)
    {
        Unwatch(socket);
        return;
    }
    Socket& watched = m_sockets[socket];
    watched.transfer = transfer;
    bool const isRead = what == CURL_POLL_IN || what == CURL_POLL_INOUT;
    bool const isWritten = what == CURL_POLL_OUT || what == CURL_POLL_INOUT;
    if (isRead && !watched.reading)
    {
        watched.reading = MakeNotifier(socket, QSocketNotifier::Read, CURL_CSELECT_IN);
    }
    if (isWritten && !watched.writing)
    {
        watched.writing = MakeNotifier(socket, QSocketNotifier::Write, CURL_CSELECT_OUT);
    }
    for (auto const& [notifier, isWanted] : {std::pair(watched.reading, isRead), std::pair(watched.writing, isWritten)})
    {
        if (notifier)
        {
            notifier->setEnabled(isWanted);
        }
    }
}

QSocketNotifier* CurlLoop::MakeNotifier(curl_socket_t socket, int type, int events)
{
    auto* const notifier = new QSocketNotifier(socket, static_cast<QSocketNotifier::Type>(type), this);
    connect(notifier, &QSocketNotifier::activated, this, [this, socket, events] { Drive(socket, events); });
    return notifier;
}

void CurlLoop::Unwatch(curl_socket_t socket)
{
    Socket const watched = m_sockets[socket];
    m_sockets.erase(socket);
    for (QSocketNotifier* const notifier : {watched.reading, watched.writing})
    {
        if (notifier)
        {
            notifier->setEnabled(false); // the number may belong to another socket soon
            notifier->deleteLater();     // it may be the sender of this call
        }
    }
}

void CurlLoop::SetTimer(long milliseconds)
{
    milliseconds < 0 ? m_timer.stop() : m_timer.start(std::chrono::milliseconds(milliseconds));
}

void CurlLoop::LetGo()
{
    m_idleTimer.stop();
    m_timer.stop();
    if (m_multi)
    {
        curl_multi_cleanup(std::exchange(m_multi, nullptr));
    }
    while (!m_sockets.empty())
    {
        Unwatch(m_sockets.begin()->first);
    }
    m_trusted.reset();
    m_trust.reset();
}

} // namespace Pelnar::Engine
