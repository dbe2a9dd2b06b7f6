// ProxyChoice.h: the proxy of a request: the application's, else the environment's, else the system's.
// The system's settings may take long to read, so a thread reads them.
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
        Http,            ///< forwards http, and opens a tunnel for https
        Socks5,          ///< this computer resolves the server's name
        Socks5WithNames, ///< the proxy resolves the name
        Unknown,         ///< not supported here
    };
    Kind kind = Kind::Direct;
    QString host;
    quint16 port = 0;
    QString user;
    QString password;

    [[nodiscard]] bool IsDirect() const { return kind == Kind::Direct; }
};

/// The value of an environment variable, by its name; empty if it is not set.
using Environment = std::function<QByteArray(char const* name)>;
QByteArray ValueInEnvironment(char const* name);

/// The application's proxy for \a url; empty if it has set no proxy, or leaves the choice to the system.
[[nodiscard]] std::optional<ProxyChoice> ApplicationsProxy(QUrl const& url);

/// What http_proxy, https_proxy, all_proxy and no_proxy say about \a url, in the spellings that curl accepts; empty if
/// no proxy is named.
[[nodiscard]] std::optional<ProxyChoice> EnvironmentsProxy(QUrl const& url, Environment const& environment);

/// The first of \a proxies that can be used.
[[nodiscard]] ProxyChoice FirstUsable(QList<QNetworkProxy> const& proxies);

} // namespace Pelnar::Engine
