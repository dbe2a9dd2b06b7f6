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
        return Problem{QStringLiteral("<stdin>"), 0, 0, QStringLiteral("the feed is larger than a client accepts"),
                       QStringLiteral("drop old items until it is below 4 MiB")};
    }
    return FeedBytes{QStringLiteral("<stdin>"), QUrl::fromLocalFile(QDir::currentPath() + QLatin1Char('/')),
                     std::move(*bytes)};
}

QString MendOf(int httpStatus)
{
    switch (httpStatus)
    {
    case 401:
    case 403:
        return QStringLiteral("let everybody read the feed; clients have no password");
    case 404:
    case 410:
        return QStringLiteral("check the address, and upload the feed there");
    }
    return QStringLiteral("look at the server's own log, and try again");
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
        return Problem{name, 0, 0, QStringLiteral("the server answered with status %1").arg(outcome.error->httpStatus),
                       MendOf(outcome.error->httpStatus)};
    }
    QString const& detail = outcome.error->detail;
    return Problem{name, 0, 0, outcome.error->sentence.English(),
                   detail.isEmpty() ? QString() : QStringLiteral("detail: ") + detail};
}

std::variant<FeedBytes, Problem> ReadNamed(QString const& name, Console const& console)
{
    if (name == QLatin1String("-"))
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
        return Problem{
            QString(), 0, 0, QStringLiteral("--published-at: \"%1\" is no address").arg(publishedAt),
            QStringLiteral("give the feed's whole address, such as https://updates.example.com/appcast.xml")};
    }
    std::variant<FeedBytes, Problem> result = ReadNamed(name, console);
    if (auto* const feed = std::get_if<FeedBytes>(&result); feed && !publishedAt.isEmpty())
    {
        feed->address = address;
    }
    return result;
}

} // namespace Pelnar::Publisher
