#include "Publisher/SharedOptions.h"

#include "App/UpdateChecker/SparkleImpl/Choice/VersionText.h"
#include "Engine/core/bundle/CheckBundle.h"
#include "Publisher/Refusal.h"
#include "Publisher/keys/Signer.h"
#include "Publisher/signfeed/FeedSigner.h"

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

void AddPlatformOption(CLI::App& verb, Engine::FeedPlatform& platform)
{
    AddChoiceOption<Engine::FeedPlatform>(
        verb, "--platform", platform, {{"macos", Engine::FeedPlatform::MacOS}, {"linux", Engine::FeedPlatform::Linux}},
        "Platform of the clients");
}

void AddRolloutGroupOption(CLI::App& verb, InstallationOptions& options)
{
    verb.add_option("--rollout-group", options.rolloutGroup,
                    "Answer for an automatic check in this group of a staged rollout; default: for a check that a "
                    "person started")
        ->check(CLI::Range(1, Engine::ROLLOUT_GROUPS))
        ->type_name("N");
}

void AddMachineOption(CLI::App& verb, std::vector<std::string>& names, std::string const& otherwise)
{
    verb.add_option("--machine", names,
                    "Machine that the programs in bundles for Linux are built for; may be repeated; default: " +
                        otherwise)
        ->type_name("NAME")
        ->allow_extra_args(false)
        ->check(CLI::IsMember(Engine::MachineNames()));
}

std::string FaultOfKey(std::string const& text)
{
    bool const isGood = text.empty() || !Engine::KeyIdOf(text).empty(); // another check refuses every empty value
    return isGood ? std::string()
                  : '"' + text + "\" is not a public key as \"keys show --format bare\" prints it: 32 bytes in base64";
}

CLI::Option& AddKeysOption(CLI::App& verb, char const* name, std::vector<std::string>& keys,
                           std::string const& description)
{
    return *verb.add_option(name, keys, description)->allow_extra_args(false)->type_name("KEY")->check(FaultOfKey);
}

void AddKeyStatementOption(CLI::App& verb, std::string& file)
{
    verb.add_option("--key-statement", file,
                    "File with the line that \"keys state\" printed. It replaces the feed's key statement")
        ->type_name("FILE");
}

void AddSigningOptions(CLI::App& verb, SigningTerms& terms)
{
    verb.add_option("--valid-for", terms.validDays, "Days until the signature expires; sign the feed again before that")
        ->type_name("DAYS")
        ->check(CLI::Range(1, 3650))
        ->capture_default_str();
    // As text: CLI11 would reduce the number to the greatest one that fits.
    verb.add_option_function<std::string>(
            "--serial",
            [&serial = terms.serial](std::string const& text)
            { serial = Engine::FeedSerial(QString::fromStdString(text)); },
            "Serial number, greater than that of the published feed; default: the next one, or the seconds since 1970 "
            "if that is greater. With it, a date of the feed that is far from this computer's clock is accepted")
        ->type_name("NUMBER")
        ->check(
            [](std::string const& text)
            {
                bool const isSerial = Engine::FeedSerial(QString::fromStdString(text)) > 0;
                return isSerial ? std::string() : text + " is not a number from 1 to 9223372036854775807";
            });
}

void AddEffortOption(CLI::App& verb, Engine::DeltaEffort& effort)
{
    AddChoiceOption<Engine::DeltaEffort>(
        verb, "--effort", effort,
        {{"low", Engine::DeltaEffort::Low}, {"usual", Engine::DeltaEffort::Usual}, {"high", Engine::DeltaEffort::High}},
        "Effort to make deltas small. \"low\" takes up to a quarter less time. Deltas are 4 to 7 % larger, "
        "or much larger if gzip files change, and clients apply them fastest. \"high\" takes up to half as "
        "long again and saves 3 to 5 %. Clients need up to half as long again");
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
    ParsedFeed feed{ReadFeed(QString::fromStdString(feedName), QString::fromStdString(question.publishedAt), console),
                    {}};
    feed.items = ParseAsClient(feed.source.name, feed.source.bytes, feed.source.address, {question.platform, machine},
                               u"pelnar-appcast lint says how to correct the feed"_s)
                     .items;
    return feed;
}

} // namespace Pelnar::Publisher
