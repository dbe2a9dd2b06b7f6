#include "Publisher/FeedSource.h"

#include "Engine/core/fetch/FeedFile.h"
#include "Publisher/Refusal.h"
#include "Publisher/files/InputFile.h"
#include "Publisher/late/LatePart.h"

#include <QDir>
#include <QFileInfo>

#include <climits>

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

FeedBytes ReadStandardInput(Console const& console)
{
    std::optional<QByteArray> bytes = ReadWhole(console.in, Engine::FetchLimits().maxBodyBytes);
    if (!bytes)
    {
        throw Refusal({u"<stdin>"_s, u"the feed is larger than a client accepts"_s,
                       u"remove old items until it is below 4 MiB"_s});
    }
    return {u"<stdin>"_s, QUrl::fromLocalFile(QDir::currentPath() + u'/'), std::move(*bytes)};
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

FeedBytes Fetch(QString const& name, QUrl const& url)
{
    Engine::FetchOutcome outcome = FetchAddress(url);
    if (!outcome.error)
    {
        return {name, outcome.url, std::move(outcome.bytes)};
    }
    if (outcome.error->cause == Engine::ErrorCause::HttpStatus)
    {
        throw Refusal({name, u"the server answered with status %1"_s.arg(outcome.error->httpStatus),
                       MendOf(outcome.error->httpStatus)});
    }
    QString const& detail = outcome.error->detail;
    throw Refusal({name, outcome.error->sentence.English(), detail.isEmpty() ? QString() : u"detail: "_s + detail});
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

FeedBytes ReadFeed(QString const& name, QString const& publishedAt, Console const& console)
{
    QUrl const address(publishedAt);
    if (!publishedAt.isEmpty() && (!address.isValid() || address.isRelative()))
    {
        throw Refusal({u"--published-at: \"%1\" is not an address"_s.arg(publishedAt),
                       u"give the feed's whole address, such as https://updates.example.com/appcast.xml"_s});
    }
    QUrl const place = IsAddress(name) ? QUrl(name) : QUrl::fromLocalFile(QFileInfo(name).absoluteFilePath());
    if (name != "-"_l && place.isLocalFile())
    {
        static_cast<void>(Exists(place.toLocalFile())); // a folder that may not be entered does not say what is missing
    }
    FeedBytes feed = name == "-"_l ? ReadStandardInput(console) : Fetch(name, place);
    feed.address = publishedAt.isEmpty() ? feed.address : address;
    return feed;
}

QByteArray ReadFeedFile(QString const& name)
{
    return ReadInputFile(OpenInputFile(name), INT_MAX, u"remove old items"_s);
}

Engine::FeedContent ParseAsClient(QString const& name, QByteArray const& bytes, QUrl const& address,
                                  Engine::FeedTarget const& target, QString const& mend)
{
    Engine::FeedParseResult feed = Engine::ParseFeed(bytes, address, target);
    if (!feed)
    {
        QString const& detail = feed.error().detail;
        throw Refusal(
            {name, feed.error().line, feed.error().column,
             WithoutFullStop(feed.error().sentence.English()) + (detail.isEmpty() ? QString() : u" (%1)"_s.arg(detail)),
             mend});
    }
    return *std::move(feed);
}

} // namespace Pelnar::Publisher
