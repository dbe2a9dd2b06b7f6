#include "Engine/core/fetch/FetchPolicy.h"

#include <QHostAddress>

#include <algorithm>

namespace Pelnar::Engine
{
namespace
{

constexpr int MAX_LOCATION_BYTES = 8 * 1024;
constexpr int MAX_PAGE_START_BYTES = 256;

bool IsHttp(QUrl const& url)
{
    return url.scheme() == QLatin1String("http");
}

bool IsHttps(QUrl const& url)
{
    return url.scheme() == QLatin1String("https");
}

int PortOf(QUrl const& url)
{
    return url.port(IsHttps(url) ? 443 : 80);
}

bool IsVisibleAscii(QByteArray const& text)
{
    return std::all_of(text.begin(), text.end(), [](char character) { return character > ' ' && character < 0x7f; });
}

/// Judges an address for a network connection, whatever led to it.
std::optional<ErrorCause> JudgeNetworkAddress(QUrl const& url, InsecureHttp insecureHttp)
{
    if (url.host().isEmpty())
    {
        return ErrorCause::InvalidAddress;
    }
    if (IsHttp(url) && insecureHttp == InsecureHttp::LoopbackOnly && !IsLoopback(url))
    {
        return ErrorCause::InsecureAddress;
    }
    return std::nullopt;
}

} // namespace

bool IsLoopback(QUrl const& url)
{
    QString const host = url.host();
    return host == QLatin1String("localhost") || QHostAddress(host).isLoopback();
}

bool IsSameOrigin(QUrl const& a, QUrl const& b)
{
    return a.scheme() == b.scheme() && a.host() == b.host() && PortOf(a) == PortOf(b);
}

std::optional<ErrorCause> JudgeFeedAddress(QUrl const& url, InsecureHttp insecureHttp)
{
    if (url.isEmpty())
    {
        return ErrorCause::NoFeedAddress;
    }
    if (!url.isValid() || url.isRelative())
    {
        return ErrorCause::InvalidAddress;
    }
    if (url.isLocalFile())
    {
        // A host name would make it a network share.
        return url.host().isEmpty() || IsLoopback(url) ? std::nullopt : std::optional(ErrorCause::FileOnOtherHost);
    }
    return JudgeArchiveAddress(url, insecureHttp);
}

std::optional<ErrorCause> JudgeArchiveAddress(QUrl const& url, InsecureHttp insecureHttp)
{
    if (!url.isValid() || url.isRelative())
    {
        return ErrorCause::InvalidAddress;
    }
    if (!IsHttp(url) && !IsHttps(url))
    {
        return ErrorCause::SchemeRefused;
    }
    return JudgeNetworkAddress(url, insecureHttp);
}

FetchRequest RequestFor(QUrl const& url)
{
    FetchRequest request{url.adjusted(QUrl::RemoveUserInfo | QUrl::RemoveFragment), {}, {}};
    if (!url.userInfo().isEmpty())
    {
        QString const credentials =
            url.userName(QUrl::FullyDecoded) + QLatin1Char(':') + url.password(QUrl::FullyDecoded);
        request.fields.push_back({"Authorization", "Basic " + credentials.toUtf8().toBase64()});
    }
    return request;
}

bool IsRedirect(int status)
{
    switch (status)
    {
    case 301:
    case 302:
    case 303:
    case 307:
    case 308:
        return true;
    }
    return false;
}

std::variant<FetchRequest, ErrorCause> JudgeRedirect(FetchRequest const& request,
                                                     std::vector<QByteArray> const& locations, int hop,
                                                     InsecureHttp insecureHttp, FetchLimits const& limits)
{
    if (hop > limits.maxRedirects)
    {
        return ErrorCause::TooManyRedirects;
    }
    if (locations.empty() || locations.front().isEmpty())
    {
        return ErrorCause::RedirectWithoutLocation;
    }
    QByteArray const& location = locations.front();
    QUrl const target = QUrl::fromEncoded(location, QUrl::StrictMode);
    if (locations.size() > 1 || location.size() > MAX_LOCATION_BYTES || !IsVisibleAscii(location) || !target.isValid())
    {
        return ErrorCause::RedirectInvalid;
    }
    QUrl const url = request.url.resolved(target).adjusted(QUrl::RemoveUserInfo | QUrl::RemoveFragment);
    if (!IsHttp(url) && !IsHttps(url))
    {
        return ErrorCause::RedirectScheme;
    }
    if (url.host().isEmpty())
    {
        return ErrorCause::RedirectInvalid;
    }
    if ((IsHttps(request.url) && !IsHttps(url)) || JudgeNetworkAddress(url, insecureHttp))
    {
        return ErrorCause::RedirectDowngrade;
    }
    return FetchRequest{url, IsSameOrigin(request.url, url) ? request.fields : std::vector<HeaderField>(),
                        request.rangeFields};
}

bool BeginsAsWebPage(QByteArray const& bytes)
{
    constexpr char BYTE_ORDER_MARK[] = "\xef\xbb\xbf";
    QByteArray begin = bytes.left(MAX_PAGE_START_BYTES);
    if (begin.startsWith(BYTE_ORDER_MARK))
    {
        begin.remove(0, 3);
    }
    begin = begin.trimmed().toLower();
    return begin.startsWith("<!doctype html") || begin.startsWith("<html");
}

QByteArray SerializedRequest(FetchRequest const& request)
{
    // Fully encoded parts hold visible ASCII only, so nothing here can end a line early.
    QByteArray target = request.url.path(QUrl::FullyEncoded).toLatin1();
    if (!target.startsWith('/'))
    {
        target.prepend('/');
    }
    if (request.url.hasQuery())
    {
        target += '?' + request.url.query(QUrl::FullyEncoded).toLatin1();
    }
    QByteArray host = request.url.host(QUrl::FullyEncoded).toLatin1();
    if (host.contains(':'))
    {
        host = '[' + host.replace('[', "").replace(']', "") + ']';
    }
    if (request.url.port() != -1)
    {
        host += ':' + QByteArray::number(request.url.port());
    }
    QByteArray bytes = "GET " + target + " HTTP/1.1\r\nHost: " + host +
                       "\r\nUser-Agent: PelnarUpdateEngine\r\nAccept: application/rss+xml, application/xml, */*;q=0.5"
                       "\r\nAccept-Encoding: identity\r\nCache-Control: no-cache\r\nConnection: close\r\n";
    for (std::vector<HeaderField> const* const fields : {&request.fields, &request.rangeFields})
    {
        for (HeaderField const& field : *fields)
        {
            bytes += field.name + ": " + field.value + "\r\n";
        }
    }
    return bytes + "\r\n";
}

} // namespace Pelnar::Engine
