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

/// Judges an address for a network connection, from every source.
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
    return JudgeArchiveAddress(url, AddressReach::ThisComputer, insecureHttp);
}

std::optional<ErrorCause> JudgeArchiveAddress(QUrl const& url, AddressReach feedReach, InsecureHttp insecureHttp)
{
    if (!url.isValid() || url.isRelative())
    {
        return ErrorCause::InvalidAddress;
    }
    if (!IsHttp(url) && !IsHttps(url))
    {
        return ErrorCause::SchemeRefused;
    }
    if (ReachOf(url) > feedReach)
    {
        return ErrorCause::AddressNotPublic;
    }
    return JudgeNetworkAddress(url, insecureHttp);
}

FetchRequest RequestFor(QUrl const& url, QUrl const& feedUrl)
{
    FetchRequest request;
    request.url = url.adjusted(QUrl::RemoveUserInfo | QUrl::RemoveFragment);
    QUrl const& teller = url.userInfo().isEmpty() && IsSameOrigin(url, feedUrl) ? feedUrl : url;
    if (!teller.userInfo().isEmpty())
    {
        QString const credentials =
            teller.userName(QUrl::FullyDecoded) + QLatin1Char(':') + teller.password(QUrl::FullyDecoded);
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

std::variant<FetchRequest, ErrorCause> JudgeRedirect(FetchRequest const& request, AddressReach answeredFrom,
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
    if (ReachOf(url) > answeredFrom)
    {
        return ErrorCause::AddressNotPublic;
    }
    FetchRequest next;
    next.url = url;
    next.rangeFields = request.rangeFields;
    next.nearest = answeredFrom;
    if (IsSameOrigin(request.url, url))
    {
        next.fields = request.fields;
    }
    return next;
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

} // namespace Pelnar::Engine
