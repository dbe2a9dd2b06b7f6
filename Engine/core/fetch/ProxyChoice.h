// ProxyChoice.h: through which proxy a request goes: the application's own, else the environment's, else the system's.
// Thread: any; the system's settings may take long to read, so they are asked for beside the event loop.
// Ownership: values only.
#pragma once

#include <QByteArray>
#include <QNetworkProxy>
#include <QUrl>

#include <functional>
#include <optional>

namespace Pelnar::Engine
{

struct ProxyChoice
{
    enum class Kind
    {
        Direct,
        Http,            ///< asked to forward http, and to open a tunnel for https
        Socks5,          ///< this computer looks the server's name up
        Socks5WithNames, ///< the proxy does
        Unknown,         ///< one that is not spoken here
    };
    Kind kind = Kind::Direct;
    QString host;
    quint16 port = 0;
    QString user;
    QString password;

    [[nodiscard]] bool IsDirect() const { return kind == Kind::Direct; }
};

/// The value of an environment variable, by its name; empty when it is not set.
using Environment = std::function<QByteArray(char const* name)>;
QByteArray ValueInEnvironment(char const* name);

/// What the application has set for \a url; nothing when it has set no proxy, or leaves it to the system.
[[nodiscard]] std::optional<ProxyChoice> ApplicationsProxy(QUrl const& url);

/// What http_proxy, https_proxy, all_proxy and no_proxy say of \a url, in the spellings that curl knows; nothing when
/// no proxy is named.
[[nodiscard]] std::optional<ProxyChoice> EnvironmentsProxy(QUrl const& url, Environment const& environment);

/// The first of \a proxies that can be used.
[[nodiscard]] ProxyChoice FirstUsable(QList<QNetworkProxy> const& proxies);

} // namespace Pelnar::Engine
