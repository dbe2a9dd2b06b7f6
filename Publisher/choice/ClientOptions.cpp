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
        throw Refusal({u"%1: \"%2\" is no version"_s.arg(option, text),
                       u"give one to four numbers with dots between them, such as 5.1.2"_s});
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
    QStringList const entries = text.split(u',');
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
    return name == "macos"_l ? Engine::FeedPlatform::MacOS : Engine::FeedPlatform::Linux;
}

QString OwnPlatformName()
{
    return u"linux"_s;
}

ParsedFeed ReadItems(QString const& name, QString const& publishedAt, Engine::FeedTarget const& target,
                     Console const& console)
{
    ParsedFeed feed{Need(ReadFeed(name, publishedAt, console)), {}};
    Engine::FeedParseResult parsed = Engine::ParseFeed(feed.source.bytes, feed.source.address, target);
    if (!parsed)
    {
        QString const& detail = parsed.error().detail;
        throw Refusal({feed.source.name, parsed.error().line, parsed.error().column,
                       parsed.error().sentence.English() + (detail.isEmpty() ? QString() : u" (%1)"_s.arg(detail)),
                       u"pelnar-appcast lint says what to mend"_s});
    }
    feed.items = std::move(parsed->items);
    return feed;
}

} // namespace Pelnar::Publisher
