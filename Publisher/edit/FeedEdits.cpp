#include "Publisher/edit/FeedEdits.h"

#include "App/UpdateChecker/SparkleImpl/Choice/VersionOperators.h"
#include "App/UpdateChecker/SparkleImpl/Choice/VersionText.h"
#include "Engine/core/bundle/CheckBundle.h"
#include "Publisher/Refusal.h"
#include "Publisher/diff/FeedDiff.h"
#include "Publisher/generate/NewItem.h"

#include <algorithm>

namespace Pelnar::Publisher
{
namespace
{

QString ChannelText(QString const& channel)
{
    return u"<sparkle:channel xmlns:sparkle=\"%1\">%2</sparkle:channel>"_s.arg(QLatin1String(Engine::FEED_NAMESPACE),
                                                                               channel.toHtmlEscaped());
}

/// The readable versions of the items, newest first.
std::vector<Core::Version> VersionsOf(FeedEdit const& feed)
{
    std::vector<Core::Version> versions;
    for (EditedItem const& item : feed.Items())
    {
        Core::Version const version = App::Session::VersionFromStringNoexcept(item.item.versionString);
        bool const isKnown =
            std::any_of(versions.begin(), versions.end(),
                        [&](Core::Version const& other) { return App::Session::IsSameVersion(version, other); });
        if (version.IsValid() && !isKnown && !item.item.policy.isWithdrawn)
        {
            versions.push_back(version);
        }
    }
    std::sort(versions.begin(), versions.end(),
              [](Core::Version const& a, Core::Version const& b) { return App::Session::IsOlderVersion(b, a); });
    return versions;
}

/// Clients that an item may be meant for, apart from their versions and systems.
struct ClientKind
{
    QString name;
    Engine::Installation installation;
};

/// The clients on \a machine: without a channel and with each channel, in checks that a person starts and in automatic
/// checks. Automatic checks are in the last rollout group for versions that stay, and in the first one for all others:
/// no client waits longer.
std::vector<ClientKind> KindsOfClients(QString const& machine, std::vector<Engine::FeedItem> const& old,
                                       std::vector<Engine::FeedItem> const& fresh)
{
    QStringList channels{QString()};
    QStringList staged;
    for (Engine::FeedItem const& item : old)
    {
        channels.append(item.policy.channel);
    }
    channels.removeDuplicates();
    for (Engine::FeedItem const& item : fresh)
    {
        staged.append(item.policy.rolloutSeconds != 0 ? QStringList(item.versionString) : QStringList());
    }
    std::vector<ClientKind> kinds;
    for (QString const& channel : channels)
    {
        ClientKind& kind = kinds.emplace_back();
        kind.name = u"a client"_s + (machine.isEmpty() ? QString() : u" on "_s + machine) +
                    (channel.isEmpty() ? QString() : u" of the channel "_s + channel);
        kind.installation.machine = machine;
        kind.installation.channels = QStringList(channel);
        kind.installation.now = QDateTime::currentDateTimeUtc();
        if (!staged.isEmpty())
        {
            ClientKind waiting = kind;
            waiting.name += u" that waits for a staged version"_s;
            waiting.installation.rolloutGroup = [staged](QString const& version)
            { return staged.contains(version) ? Engine::ROLLOUT_GROUPS - 1 : 0; };
            kinds.push_back(std::move(waiting));
        }
    }
    return kinds;
}

/// Throws Refusal if a client on \a target would get another item from \a after.
void RefuseOtherOutcomes(QString const& name, QByteArray const& before, QByteArray const& after,
                         Engine::FeedTarget const& target)
{
    auto const old = Engine::ParseFeed(before, QUrl(), target).value_or(Engine::FeedContent()).items;
    auto const fresh = Engine::ParseFeed(after, QUrl(), target).value_or(Engine::FeedContent()).items;
    std::vector<NamedVersion> const versions = ClientVersions(old, fresh);
    for (ClientKind const& kind : KindsOfClients(target.machine, old, fresh))
    {
        QStringList const changes = TextOf(DiffFeeds(old, fresh, versions, kind.installation), versions);
        if (!changes.isEmpty())
        {
            throw Refusal(
                {name, u"%1 would get another update: %2"_s.arg(kind.name, changes.first()), u"keep more versions"_s});
        }
    }
}

} // namespace

void Withdraw(FeedEdit& feed, QString const& version)
{
    for (EditedItem const* const item : feed.ItemsOf(version))
    {
        if (!item->item.policy.isWithdrawn)
        {
            feed.InsertLine(feed.FirstPlaceIn(*item), u"<pelnar:withdrawn xmlns:pelnar=\"%1\"/>"_s.arg(
                                                          QLatin1String(Engine::OWN_FEED_NAMESPACE)));
        }
    }
}

void Promote(FeedEdit& feed, QString const& version, QString const& channel)
{
    if (!channel.isEmpty() && !Engine::IsChannelName(channel))
    {
        throw Refusal({u"--to: \"%1\" is not a channel"_s.arg(channel), u"give a name without blanks or commas"_s});
    }
    for (EditedItem const* const item : feed.ItemsOf(version))
    {
        bool isPlaced = channel.isEmpty();
        for (XmlElement const& child : item->element->children)
        {
            if (child.name.IsFeeds("channel") && isPlaced)
            {
                feed.Remove(child.range);
            }
            else if (child.name.IsFeeds("channel"))
            {
                isPlaced = true;
                if (item->item.policy.channel != channel)
                {
                    feed.Replace(child.range, ChannelText(channel));
                }
            }
        }
        if (!isPlaced)
        {
            feed.InsertLine(feed.FirstPlaceIn(*item), ChannelText(channel));
        }
    }
}

void EditNotes(FeedEdit& feed, QString const& version, std::vector<ReleaseNotes> const& notes)
{
    for (EditedItem const* const item : feed.ItemsOf(version))
    {
        std::size_t next = 0;
        XmlElement const* last = nullptr;
        for (XmlElement const& child : item->element->children)
        {
            if (!child.name.IsPlain("description"))
            {
                continue;
            }
            last = &child;
            if (next < notes.size())
            {
                feed.Replace(child.range, DescriptionText(notes[next++]));
            }
            else
            {
                feed.Remove(child.range);
            }
        }
        int const place = last ? last->range.end : feed.FirstPlaceIn(*item);
        QString rest;
        for (; next < notes.size(); ++next)
        {
            rest += DescriptionText(notes[next]);
        }
        if (!rest.isEmpty())
        {
            feed.InsertLine(place, rest);
        }
    }
}

void Prune(FeedEdit& feed, int keptVersions)
{
    QByteArray const before = feed.Text().Bytes();
    std::vector<Core::Version> const versions = VersionsOf(feed);
    if (versions.size() <= std::size_t(keptVersions))
    {
        return;
    }
    Core::Version const oldest = versions[std::size_t(keptVersions) - 1];
    for (EditedItem const& item : feed.Items())
    {
        Core::Version const version = App::Session::VersionFromStringNoexcept(item.item.versionString);
        if (version.IsValid() && !item.item.policy.isWithdrawn && App::Session::IsOlderVersion(version, oldest))
        {
            feed.Remove(item.element->range);
        }
    }
    std::vector<std::string> machines = Engine::MachineNames();
    machines.insert(machines.begin(), std::string()); // any
    for (Engine::FeedPlatform const platform : {Engine::FeedPlatform::Linux, Engine::FeedPlatform::MacOS})
    {
        for (std::string const& machine : machines)
        {
            RefuseOtherOutcomes(feed.Name(), before, feed.Text().Bytes(), {platform, QString::fromStdString(machine)});
        }
    }
}

} // namespace Pelnar::Publisher
