#include "Publisher/FeedOptions.h"

#include "App/UpdateChecker/SparkleImpl/Choice/VersionText.h"
#include "Publisher/Refusal.h"
#include "Publisher/gate/CheckReleaseVerb.h"
#include "Publisher/keys/KeyId.h"

#include <QJsonArray>

namespace Pelnar::Publisher
{
namespace
{

constexpr char const* ANY_MACHINE = "any";

QStringList ChannelsOf(InstallationOptions const& options)
{
    QStringList channels;
    for (QString const& channel : QString::fromStdString(options.channels).split(u','))
    {
        if (!channel.trimmed().isEmpty())
        {
            channels.append(channel.trimmed());
        }
    }
    return channels;
}

void AddInstallationOptions(CLI::App& verb, InstallationOptions& options)
{
    options.machine = Engine::OwnMachineName().toStdString();
    verb.add_option("--machine", options.machine,
                    "Machine of the clients, such as x86_64 or aarch64, or \"any\"; default: this machine")
        ->type_name("NAME");
    verb.add_option("--channels", options.channels, "Channels that the clients have enabled, separated by commas")
        ->type_name("LIST");
    verb.add_option("--at", options.moment,
                    "Time of the check for a staged rollout, such as 2030-01-31T12:00:00Z; default: now")
        ->type_name("TIME");
}

} // namespace

void AddFeedOption(CLI::App& verb, std::string& feed)
{
    verb.add_option("FEED", feed, "Path or address of the feed, or - for standard input")->required();
}

void AddPlatformOption(CLI::App& verb, std::string& platform)
{
    verb.add_option("--platform", platform, "Platform of the clients")
        ->capture_default_str()
        ->check(CLI::IsMember({"macos", "linux"}));
}

void AddRolloutGroupOption(CLI::App& verb, InstallationOptions& options)
{
    verb.add_option("--rollout-group", options.rolloutGroup,
                    "Answer for an automatic check in this group of a staged rollout; default: for a check that a "
                    "person started")
        ->check(CLI::Range(1, Engine::ROLLOUT_GROUPS))
        ->type_name("N");
}

Engine::Installation InstallationOf(InstallationOptions const& options)
{
    Engine::Installation installation;
    installation.machine = options.machine == ANY_MACHINE ? QString() : QString::fromStdString(options.machine);
    installation.channels = ChannelsOf(options);
    installation.now = QDateTime::currentDateTimeUtc();
    if (!options.moment.empty())
    {
        QString const moment = QString::fromStdString(options.moment);
        installation.now = QDateTime::fromString(moment, Qt::ISODate);
        if (!installation.now.isValid())
        {
            throw Refusal({u"--at: \"%1\" is not a time"_s.arg(moment), u"write it like 2030-01-31T12:00:00Z"_s});
        }
    }
    if (options.rolloutGroup > 0)
    {
        installation.rolloutGroup = [group = options.rolloutGroup - 1](QString const&) { return group; };
    }
    CheckPublicKeys(options.publicKeys);
    for (std::string const& key : options.publicKeys)
    {
        installation.trustedKeys.append(KeyIdOf(key));
    }
    return installation;
}

void AddInstallation(QJsonObject& object, InstallationOptions const& options)
{
    object.insert(u"machine"_s, QString::fromStdString(options.machine));
    object.insert(u"channels"_s, QJsonArray::fromStringList(ChannelsOf(options)));
    object.insert(u"rolloutGroup"_s,
                  options.rolloutGroup > 0 ? QJsonValue(options.rolloutGroup) : QJsonValue(QJsonValue::Null));
}

void AddPublishedAtOption(CLI::App& verb, std::string& address)
{
    verb.add_option("--published-at", address,
                    "Address at which the feed is published, for its relative addresses; default: where it is read")
        ->type_name("URL");
}

void AddClientOptions(CLI::App& verb, FeedQuestion& question)
{
    AddPlatformOption(verb, question.platform);
    AddInstallationOptions(verb, question.installation);
    AddPublishedAtOption(verb, question.publishedAt);
    verb.add_flag("--json", question.isJson, "Print one JSON object");
}

NamedVersion ParseLocalVersion(QString const& option, QString const& text)
{
    Core::Version const version = App::Session::VersionFromStringNoexcept(text);
    if (!version.IsValid())
    {
        throw Refusal({u"%1: \"%2\" is not a version"_s.arg(option, text),
                       u"give one to four numbers separated by dots, such as 5.1.2"_s});
    }
    return {text, version};
}

NamedVersion ParseSystemVersion(QString const& option, QString const& text)
{
    return text == QLatin1String(UNKNOWN_SYSTEM) ? NamedVersion{text, Core::Version()}
                                                 : ParseLocalVersion(option, text);
}

std::vector<NamedVersion> ParseVersionList(QString const& option, std::string const& text,
                                           NamedVersion (*parse)(QString const&, QString const&))
{
    std::vector<NamedVersion> versions;
    QStringList const entries = QString::fromStdString(text).split(u',');
    for (QString const& entry : entries)
    {
        versions.push_back(parse(option, entry.trimmed()));
    }
    return versions;
}

ParsedFeed ReadItems(FeedQuestion const& question, std::string const& feedName, QString const& machine,
                     Console const& console)
{
    bool const isMac = question.platform == Engine::NameOf(Engine::FeedPlatform::MacOS).toStdString();
    ParsedFeed feed{
        Need(ReadFeed(QString::fromStdString(feedName), QString::fromStdString(question.publishedAt), console)), {}};
    Engine::FeedParseResult parsed =
        Engine::ParseFeed(feed.source.bytes, feed.source.address,
                          {isMac ? Engine::FeedPlatform::MacOS : Engine::FeedPlatform::Linux, machine});
    if (!parsed)
    {
        QString const& detail = parsed.error().detail;
        throw Refusal({feed.source.name, parsed.error().line, parsed.error().column,
                       WithoutFullStop(parsed.error().sentence.English()) +
                           (detail.isEmpty() ? QString() : u" (%1)"_s.arg(detail)),
                       u"pelnar-appcast lint says how to correct the feed"_s});
    }
    feed.items = std::move(parsed->items);
    return feed;
}

} // namespace Pelnar::Publisher
