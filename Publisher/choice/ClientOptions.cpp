#include "Publisher/choice/ClientOptions.h"

#include "App/UpdateChecker/SparkleImpl/Choice/VersionText.h"
#include "Publisher/Refusal.h"

namespace Pelnar::Publisher
{
NamedVersion ParseLocalVersion(QString const& option, QString const& text)
{
    Core::Version const version = App::Session::VersionFromStringNoexcept(text);
    if (!version.IsValid())
    {
        throw Refusal({QString(), 0, 0, QStringLiteral("%1: \"%2\" is no version").arg(option, text),
                       QStringLiteral("give one to four numbers with dots between them, such as 5.1.2")});
    }
    return {text, version};
}

NamedVersion ParseSystemVersion(QString const& option, QString const& text)
{
    return text == QLatin1String(UNKNOWN_SYSTEM) ? NamedVersion{text, Core::Version()}
                                                 : ParseLocalVersion(option, text);
}

std::vector<NamedVersion> ParseVersionList(QString const& option, QString const& text,
                                           NamedVersion (*parse)(QString const&, QString const&))
{
    std::vector<NamedVersion> versions;
    QStringList const entries = text.split(QLatin1Char(','));
    for (QString const& entry : entries)
    {
        versions.push_back(parse(option, entry.trimmed()));
    }
    return versions;
}

std::vector<std::string> PlatformNames()
{
    return {"macos", "linux"};
}

Engine::FeedPlatform PlatformFromName(QString const& name)
{
    return name == QLatin1String("macos") ? Engine::FeedPlatform::MacOS : Engine::FeedPlatform::Linux;
}

QString OwnPlatformName()
{
    return QStringLiteral("linux");
}

ParsedFeed ReadItems(QString const& name, QString const& publishedAt, Engine::FeedTarget const& target,
                     Console const& console)
{
    ParsedFeed feed{Need(ReadFeed(name, publishedAt, console)), {}};
    Engine::FeedParseResult parsed = Engine::ParseFeed(feed.source.bytes, feed.source.address, target);
    if (!parsed)
    {
        QString const& detail = parsed.error().detail;
        throw Refusal(
            {feed.source.name, parsed.error().line, parsed.error().column,
             parsed.error().sentence.English() + (detail.isEmpty() ? QString() : QStringLiteral(" (%1)").arg(detail)),
             QStringLiteral("pelnar-appcast lint says what to mend")});
    }
    feed.items = std::move(parsed->items);
    return feed;
}

} // namespace Pelnar::Publisher
