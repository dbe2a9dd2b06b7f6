#include "Publisher/FeedSource.h"

#include "Engine/core/fetch/FeedFile.h"
#include "Publisher/late/LatePart.h"

#include <QDir>
#include <QFileInfo>

namespace Pelnar::Publisher
{
namespace
{

bool IsAddress(QString const& name)
{
    for (char const* scheme : {"http://", "https://", "file:"})
    {
        if (name.startsWith(QLatin1String(scheme), Qt::CaseInsensitive))
        {
            return true;
        }
    }
    return false;
}

std::variant<FeedBytes, Problem> ReadStandardInput(Console const& console)
{
    std::optional<QByteArray> bytes = ReadWhole(console.in, Engine::FetchLimits().maxBodyBytes);
    if (!bytes)
    {
        return Problem{u"<stdin>"_s, u"the feed is larger than a client accepts"_s,
                       u"remove old items until it is below 4 MiB"_s};
    }
    return FeedBytes{u"<stdin>"_s, QUrl::fromLocalFile(QDir::currentPath() + u'/'), std::move(*bytes)};
}

QString MendOf(int httpStatus)
{
    switch (httpStatus)
    {
    case 401:
    case 403:
        return u"let everybody read the feed; clients have no password"_s;
    case 404:
    case 410:
        return u"check the address, and upload the feed there"_s;
    }
    return u"check the server's log and try again"_s;
}

std::variant<FeedBytes, Problem> Fetch(QString const& name, QUrl const& url)
{
    Engine::FetchOutcome outcome = FetchAddress(url);
    if (!outcome.error)
    {
        return FeedBytes{name, outcome.url, std::move(outcome.bytes)};
    }
    if (outcome.error->cause == Engine::ErrorCause::HttpStatus)
    {
        return Problem{name, u"the server answered with status %1"_s.arg(outcome.error->httpStatus),
                       MendOf(outcome.error->httpStatus)};
    }
    QString const& detail = outcome.error->detail;
    return Problem{name, outcome.error->sentence.English(), detail.isEmpty() ? QString() : u"detail: "_s + detail};
}

std::variant<FeedBytes, Problem> ReadNamed(QString const& name, Console const& console)
{
    if (name == "-"_l)
    {
        return ReadStandardInput(console);
    }
    return Fetch(name, IsAddress(name) ? QUrl(name) : QUrl::fromLocalFile(QFileInfo(name).absoluteFilePath()));
}

} // namespace

Engine::FetchOutcome FetchAddress(QUrl const& address)
{
    if (!address.isLocalFile())
    {
        return LoadLatePart().fetchFeed(address);
    }
    Engine::FetchOutcome outcome;
    outcome.url = address;
    Engine::Result<QByteArray> bytes =
        Engine::JudgeFeedAddress(address, Engine::InsecureHttp::Anywhere)
            .and_then([&] { return Engine::ReadFeedFile(address, Engine::FetchLimits().maxBodyBytes); });
    if (bytes)
    {
        outcome.bytes = *std::move(bytes);
    }
    else
    {
        outcome.error = bytes.error();
    }
    return outcome;
}

std::variant<FeedBytes, Problem> ReadFeed(QString const& name, QString const& publishedAt, Console const& console)
{
    QUrl const address(publishedAt);
    if (!publishedAt.isEmpty() && (!address.isValid() || address.isRelative()))
    {
        return Problem{u"--published-at: \"%1\" is not an address"_s.arg(publishedAt),
                       u"give the feed's whole address, such as https://updates.example.com/appcast.xml"_s};
    }
    std::variant<FeedBytes, Problem> result = ReadNamed(name, console);
    if (auto* const feed = std::get_if<FeedBytes>(&result); feed && !publishedAt.isEmpty())
    {
        feed->address = address;
    }
    return result;
}

} // namespace Pelnar::Publisher
