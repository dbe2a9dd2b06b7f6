#include "Publisher/edit/FeedEdits.h"

#include "App/UpdateChecker/SparkleImpl/Choice/VersionOperators.h"
#include "App/UpdateChecker/SparkleImpl/Choice/VersionText.h"
#include "Publisher/Refusal.h"
#include "Publisher/diff/FeedDiff.h"

#include <algorithm>

namespace Pelnar::Publisher
{
namespace
{

QString const FEED_NAMESPACE = u"http://www.andymatuschak.org/xml-namespaces/sparkle"_s;

bool IsChannel(EditedChild const& child)
{
    return child.namespaceUri == FEED_NAMESPACE && child.name == "channel"_l;
}

bool IsDescription(EditedChild const& child)
{
    return child.namespaceUri.isEmpty() && child.name == "description"_l;
}

QString ChannelText(QString const& channel)
{
    return u"<sparkle:channel xmlns:sparkle=\"%1\">%2</sparkle:channel>"_s.arg(FEED_NAMESPACE, channel.toHtmlEscaped());
}

QString DescriptionText(ReleaseNotes const& notes)
{
    QString html = notes.html;
    html.replace("]]>"_l, "]]]]><![CDATA[>"_l);
    QString const language =
        notes.language.isEmpty() ? QString() : u" xml:lang=\"%1\""_s.arg(notes.language.toHtmlEscaped());
    return u"<description%1><![CDATA[%2]]></description>"_s.arg(language, html);
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

/// Throws Refusal if a client of any system that lists all channels, or none, gets another item from \a after.
void RefuseOtherOutcomes(QString const& name, QByteArray const& before, QByteArray const& after)
{
    for (Engine::FeedPlatform const platform : {Engine::FeedPlatform::Linux, Engine::FeedPlatform::MacOS})
    {
        std::vector<Engine::FeedItem> const old =
            Engine::ParseFeed(before, QUrl(), platform).value_or(Engine::FeedContent()).items;
        std::vector<Engine::FeedItem> const fresh =
            Engine::ParseFeed(after, QUrl(), platform).value_or(Engine::FeedContent()).items;
        std::vector<NamedVersion> versions = VersionsOfFeed(old);
        versions.insert(versions.begin(), NamedVersion{u"0"_s, Core::Version(0)});
        Engine::Installation everywhere;
        for (Engine::FeedItem const& item : old)
        {
            everywhere.channels.append(item.policy.channel);
        }
        for (Engine::Installation const& installation : {Engine::Installation(), everywhere})
        {
            QStringList const changes = TextOf(DiffFeeds(old, fresh, versions, installation), versions);
            if (!changes.isEmpty())
            {
                throw Refusal(
                    {name, u"a client would get something else: %1"_s.arg(changes.first()), u"keep more versions"_s});
            }
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
        throw Refusal({u"--to: \"%1\" is no channel"_s.arg(channel), u"give a name without blanks and commas"_s});
    }
    for (EditedItem const* const item : feed.ItemsOf(version))
    {
        bool isPlaced = channel.isEmpty();
        for (EditedChild const& child : item->children)
        {
            if (IsChannel(child) && isPlaced)
            {
                feed.Remove(child.range);
            }
            else if (IsChannel(child))
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
        EditedChild const* last = nullptr;
        for (EditedChild const& child : item->children)
        {
            if (!IsDescription(child))
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
    QByteArray const before = feed.Bytes();
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
            feed.Remove(item.range);
        }
    }
    RefuseOtherOutcomes(feed.Name(), before, feed.Bytes());
}

} // namespace Pelnar::Publisher
