#include "Publisher/choice/ClientOptions.h"

#include "App/UpdateChecker/SparkleImpl/Choice/VersionText.h"

namespace Pelnar::Publisher
{
namespace
{

Problem BadVersion(QString const& option, QString const& text)
{
    return {QString(), 0, 0, QStringLiteral("%1: \"%2\" is no version").arg(option, text),
            QStringLiteral("give one to four numbers with dots between them, such as 5.1.2")};
}

} // namespace

std::variant<NamedVersion, Problem> ParseLocalVersion(QString const& option, QString const& text)
{
    Core::Version const version = App::Session::VersionFromStringNoexcept(text);
    if (!version.IsValid())
    {
        return BadVersion(option, text);
    }
    return NamedVersion{text, version};
}

std::variant<NamedVersion, Problem> ParseSystemVersion(QString const& option, QString const& text)
{
    if (text == QLatin1String(UNKNOWN_SYSTEM))
    {
        return NamedVersion{text, Core::Version()};
    }
    return ParseLocalVersion(option, text);
}

std::variant<std::vector<NamedVersion>, Problem>
ParseVersionList(QString const& option, QString const& text,
                 std::variant<NamedVersion, Problem> (*parse)(QString const&, QString const&))
{
    std::vector<NamedVersion> versions;
    QStringList const entries = text.split(QLatin1Char(','));
    for (QString const& entry : entries)
    {
        std::variant<NamedVersion, Problem> const version = parse(option, entry.trimmed());
        if (auto const* const problem = std::get_if<Problem>(&version))
        {
            return *problem;
        }
        versions.push_back(std::get<NamedVersion>(version));
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

std::variant<ParsedFeed, Problem> ReadItems(QString const& name, QString const& publishedAt,
                                            Engine::FeedTarget const& target, Console const& console)
{
    std::variant<FeedBytes, Problem> source = ReadFeed(name, publishedAt, console);
    if (auto const* const problem = std::get_if<Problem>(&source))
    {
        return *problem;
    }
    ParsedFeed feed{std::get<FeedBytes>(std::move(source)), {}};
    Engine::FeedParseResult parsed = Engine::ParseFeed(feed.source.bytes, feed.source.address, target);
    if (!parsed.HasSucceeded())
    {
        QString const& detail = parsed.error.detail;
        return Problem{feed.source.name, parsed.error.line, parsed.error.column,
                       parsed.error.sentence.English() +
                           (detail.isEmpty() ? QString() : QStringLiteral(" (%1)").arg(detail)),
                       QStringLiteral("pelnar-appcast lint says what to mend")};
    }
    feed.items = std::move(parsed.items);
    return feed;
}

} // namespace Pelnar::Publisher
