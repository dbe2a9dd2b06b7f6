#include "Publisher/FeedOptions.h"

#include "Publisher/Refusal.h"
#include "Publisher/choice/ClientOptions.h"
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

} // namespace

void AddPlatformOption(CLI::App& verb, std::string& platform)
{
    verb.add_option("--platform", platform, "Whose items count")
        ->capture_default_str()
        ->check(CLI::IsMember(PlatformNames()));
}

void AddInstallationOptions(CLI::App& verb, InstallationOptions& options)
{
    options.machine = Engine::OwnMachineName().toStdString();
    verb.add_option("--machine", options.machine,
                    "Machine of the clients, such as x86_64 or aarch64, or \"any\"; default: this one")
        ->type_name("NAME");
    verb.add_option("--channels", options.channels, "Channels that the clients list, with commas between them")
        ->type_name("LIST");
    verb.add_option("--at", options.moment,
                    "Moment of the check for a staged rollout, as 2030-01-31T12:00:00Z; default: now")
        ->type_name("TIME");
}

void AddRolloutGroupOption(CLI::App& verb, InstallationOptions& options)
{
    verb.add_option(
            "--rollout-group", options.rolloutGroup,
            "Answer as for automatic checks in this group of a staged rollout; default: as for a person who asks")
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
            throw Refusal({u"--at: \"%1\" is no moment"_s.arg(moment), u"write it as 2030-01-31T12:00:00Z"_s});
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
                    "Address of the published feed, for its relative addresses; default: where it is read")
        ->type_name("URL");
}

} // namespace Pelnar::Publisher
