#include "Engine/core/fetch/FetchRules.h"

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

int PortOf(QUrl const& url)
{
    return url.port(IsHttps(url) ? 443 : 80);
}

bool IsVisibleAscii(QByteArray const& text)
{
    return std::all_of(text.begin(), text.end(), [](char character) { return character > ' ' && character < 0x7f; });
}

/// Judges an address for a network connection, from every source.
Result<void> JudgeNetworkAddress(QUrl const& url, InsecureHttp insecureHttp)
{
    if (url.host().isEmpty())
    {
        return Failure(ErrorCause::InvalidAddress);
    }
    if (IsHttp(url) && insecureHttp == InsecureHttp::LoopbackOnly && !IsLoopback(url))
    {
        return Failure(ErrorCause::InsecureAddress);
    }
    return {};
}

} // namespace

bool IsHttps(QUrl const& url)
{
    return url.scheme() == QLatin1String("https");
}

bool IsSameOrigin(QUrl const& a, QUrl const& b)
{
    return a.scheme() == b.scheme() && a.host() == b.host() && PortOf(a) == PortOf(b);
}

Result<void> JudgeFeedAddress(QUrl const& url, InsecureHttp insecureHttp)
{
    if (url.isEmpty())
    {
        return Failure(ErrorCause::NoFeedAddress);
    }
    if (!url.isValid() || url.isRelative())
    {
        return Failure(ErrorCause::InvalidAddress);
    }
    if (url.isLocalFile())
    {
        // A host name would make it a network share.
        return url.host().isEmpty() || IsLoopback(url) ? Result<void>() : Failure(ErrorCause::FileOnOtherHost);
    }
    return JudgeArchiveAddress(url, AddressReach::ThisComputer, insecureHttp);
}

Result<void> JudgeArchiveAddress(QUrl const& url, AddressReach feedReach, InsecureHttp insecureHttp)
{
    if (!url.isValid() || url.isRelative())
    {
        return Failure(ErrorCause::InvalidAddress);
    }
    if (!IsHttp(url) && !IsHttps(url))
    {
        return Failure(ErrorCause::SchemeRefused);
    }
    if (ReachOf(url) > feedReach)
    {
        return Failure(ErrorCause::AddressNotPublic);
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

Result<FetchRequest> JudgeRedirect(FetchRequest const& request, AddressReach answeredFrom,
                                   std::vector<QByteArray> const& locations, int hop, InsecureHttp insecureHttp,
                                   FetchLimits const& limits)
{
    if (hop > limits.maxRedirects)
    {
        return Failure(ErrorCause::TooManyRedirects);
    }
    if (locations.empty() || locations.front().isEmpty())
    {
        return Failure(ErrorCause::RedirectWithoutLocation);
    }
    QByteArray const& location = locations.front();
    QUrl const target = QUrl::fromEncoded(location, QUrl::StrictMode);
    if (locations.size() > 1 || location.size() > MAX_LOCATION_BYTES || !IsVisibleAscii(location) || !target.isValid())
    {
        return Failure(ErrorCause::RedirectInvalid);
    }
    QUrl const url = request.url.resolved(target).adjusted(QUrl::RemoveUserInfo | QUrl::RemoveFragment);
    if (!IsHttp(url) && !IsHttps(url))
    {
        return Failure(ErrorCause::RedirectScheme);
    }
    if (url.host().isEmpty())
    {
        return Failure(ErrorCause::RedirectInvalid);
    }
    if ((IsHttps(request.url) && !IsHttps(url)) || !JudgeNetworkAddress(url, insecureHttp))
    {
        return Failure(ErrorCause::RedirectDowngrade);
    }
    if (ReachOf(url) > answeredFrom)
    {
        return Failure(ErrorCause::AddressNotPublic);
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
