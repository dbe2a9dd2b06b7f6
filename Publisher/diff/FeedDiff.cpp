#include "Publisher/diff/FeedDiff.h"

#include "App/UpdateChecker/SparkleImpl/Choice/VersionOperators.h"
#include "App/UpdateChecker/SparkleImpl/Choice/VersionText.h"

#include <algorithm>
#include <deque>
#include <iterator>
#include <limits>
#include <map>

namespace Pelnar::Publisher
{
namespace
{

using App::Session::VersionFromStringNoexcept;

/// Where outcomes may change: at a minimum, and right above a maximum.
struct Border
{
    Core::Version first; ///< the first system above the border, with all four components
    QString from;
    QString to;
};

/// The system right above \a version; invalid if \a version is the highest.
Core::Version RightAbove(Core::Version const& version)
{
    std::array<std::int32_t, Core::Version::COMPONENT_COUNT> parts =
        Core::Util::ShrinkVersion(version, Core::Version::COMPONENT_COUNT).Components();
    for (int i = Core::Version::COMPONENT_COUNT - 1; i >= 0; --i)
    {
        std::int32_t& part = parts[std::size_t(i)];
        if (part < std::numeric_limits<std::int32_t>::max())
        {
            ++part;
            return Core::Version(parts[0], parts[1], parts[2], parts[3]);
        }
        part = 0;
    }
    return {};
}

void AddBorders(std::vector<Engine::FeedItem> const& items, std::vector<Border>& borders)
{
    for (Engine::FeedItem const& item : items)
    {
        QString const& minimum = item.minimumSystemVersion;
        QString const& maximum = item.maximumSystemVersion;
        if (Core::Version const version = VersionFromStringNoexcept(minimum); version.IsValid())
        {
            borders.push_back({version, u"from %1"_s.arg(minimum), u"below %1"_s.arg(minimum)});
        }
        Core::Version const version = VersionFromStringNoexcept(maximum);
        Core::Version const above = version.IsValid() ? RightAbove(version) : version;
        if (above.IsValid())
        {
            borders.push_back({above, u"above %1"_s.arg(maximum), u"up to %1"_s.arg(maximum)});
        }
    }
}

bool IsSameItem(Engine::FeedItem const* a, Engine::FeedItem const* b)
{
    return a == b || (a && b && a->versionString == b->versionString && a->deltaFrom == b->deltaFrom &&
                      a->isDelta == b->isDelta && a->contentLength == b->contentLength && a->fileUrl == b->fileUrl);
}

bool IsSame(FeedChoice const& a, FeedChoice const& b)
{
    return IsSameItem(a.chosen, b.chosen) &&
           std::equal(a.rivals.begin(), a.rivals.end(), b.rivals.begin(), b.rivals.end(), IsSameItem);
}

QString LongTextOf(Outcome const& outcome)
{
    return outcome.IsUpdate()
               ? u"%1 (%2 bytes, %3)"_s.arg(TextOf(outcome), QString::number(outcome.length), outcome.url)
               : TextOf(outcome);
}

/// " on all systems: 5.1 BUNDLE -> 5.2 DELTA from 5.0"
QString EffectOf(OutcomeChange const& change)
{
    QString const before = TextOf(change.before);
    QString const after = TextOf(change.after);
    bool const isOtherDownload = before == after;
    return u" on %1: %2 -> %3"_s.arg(TextOf(change.systems), isOtherDownload ? LongTextOf(change.before) : before,
                                     isOtherDownload ? LongTextOf(change.after) : after);
}

/// "5.0 to 5.2, 5.4": the versions \a changed. Three or more neighbours in \a versions become a range. Both lists have
/// the same order.
QString RunsOf(QStringList const& changed, std::vector<NamedVersion> const& versions)
{
    QStringList runs;
    QStringList run;
    auto const endRun = [&]
    {
        runs += run.size() < 3 ? run : QStringList(run.first() + u" to "_s + run.last());
        run.clear();
    };
    auto next = changed.begin();
    for (NamedVersion const& version : versions)
    {
        if (next != changed.end() && *next == version.text)
        {
            run.append(*next++);
        }
        else
        {
            endRun();
        }
    }
    endRun();
    return runs.join(u", "_s);
}

QString OrNone(QString const& text)
{
    return text.isEmpty() ? u"none"_s : text;
}

QString InformationalText(Engine::FeedItem const& item)
{
    QStringList versions = item.policy.informationalFor;
    if (!item.policy.informationalBelow.isEmpty())
    {
        versions.append(u"below "_s + item.policy.informationalBelow);
    }
    QString const whom = versions.isEmpty() ? u"yes"_s : versions.join(u", "_s);
    return OrNone(item.policy.isInformational ? whom : QString());
}

QString CriticalText(Engine::FeedItem const& item)
{
    QString const& bound = item.policy.criticalBelow;
    QString const whom = bound.isEmpty() ? u"yes"_s : u"below "_s + bound;
    return OrNone(item.isCritical ? whom : QString());
}

struct ItemProperty
{
    char const* name;
    QString (*text)(Engine::FeedItem const& item);
};

constexpr ItemProperty ITEM_PROPERTIES[] = {
    {"withdrawn", [](auto const& item) { return OrNone(QLatin1String(item.policy.isWithdrawn ? "yes" : "")); }},
    {"channel", [](auto const& item) { return OrNone(item.policy.channel); }},
    {"informational", InformationalText},
    {"critical", CriticalText},
    {"phasedRolloutInterval", [](auto const& item)
     { return OrNone(item.policy.rolloutSeconds == 0 ? QString() : QString::number(item.policy.rolloutSeconds)); }},
    {"minimumUpdateVersion", [](auto const& item) { return OrNone(item.policy.minimumUpdateVersion); }},
    {"minimumAutoupdateVersion", [](auto const& item) { return OrNone(item.policy.minimumAutoupdateVersion); }},
    {"minimumSystemVersion", [](auto const& item) { return OrNone(item.minimumSystemVersion); }},
    {"maximumSystemVersion", [](auto const& item) { return OrNone(item.maximumSystemVersion); }},
};

} // namespace

QString TextOf(SystemRange const& range)
{
    if (range.from.isEmpty() && range.to.isEmpty())
    {
        return u"all systems"_s;
    }
    QStringList words{u"systems"_s, range.from, range.to};
    words.removeAll(QString());
    return words.join(u' ');
}

std::vector<SystemRange> SystemRanges(std::vector<Engine::FeedItem> const& oldItems,
                                      std::vector<Engine::FeedItem> const& newItems)
{
    std::vector<Border> borders;
    AddBorders(oldItems, borders);
    AddBorders(newItems, borders);
    // The lowest system has no border below it.
    Core::Version const lowest(0);
    borders.erase(std::remove_if(borders.begin(), borders.end(),
                                 [&](Border const& border)
                                 { return App::Session::IsSameVersion(border.first, lowest); }),
                  borders.end());
    std::stable_sort(borders.begin(), borders.end(),
                     [](Border const& a, Border const& b) { return App::Session::IsOlderVersion(a.first, b.first); });
    borders.erase(std::unique(borders.begin(), borders.end(),
                              [](Border const& a, Border const& b)
                              { return App::Session::IsSameVersion(a.first, b.first); }),
                  borders.end());
    std::vector<SystemRange> ranges{{lowest, QString(), QString()}};
    for (Border const& border : borders)
    {
        ranges.back().to = border.to;
        ranges.push_back({border.first, border.from, QString()});
    }
    return ranges;
}

std::vector<NamedVersion> ClientVersions(std::vector<Engine::FeedItem> const& oldItems,
                                         std::vector<Engine::FeedItem> const& newItems)
{
    std::vector<Engine::FeedItem> items = oldItems;
    items.insert(items.end(), newItems.begin(), newItems.end());
    std::size_t const count = items.size();
    for (std::size_t i = 0; i < count; ++i)
    {
        for (QString const& bound : {items[i].policy.minimumUpdateVersion, items[i].policy.criticalBelow})
        {
            items.emplace_back().versionString = bound;
        }
    }
    std::vector<NamedVersion> versions = VersionsOfFeed(items);
    versions.insert(versions.begin(), NamedVersion{u"0"_s, Core::Version(0)});
    return versions;
}

std::vector<OutcomeChange> DiffFeeds(std::vector<Engine::FeedItem> const& oldItems,
                                     std::vector<Engine::FeedItem> const& newItems,
                                     std::vector<NamedVersion> const& versions,
                                     Engine::Installation const& installation)
{
    std::vector<SystemRange> const ranges = SystemRanges(oldItems, newItems);
    // What a version trusts does not change when its item goes.
    FeedChooser oldFeed(oldItems, installation, newItems);
    FeedChooser newFeed(newItems, installation, oldItems);
    // Items are read once for each system, so systems are the outer loop.
    std::vector<std::vector<OutcomeChange>> changesOf(versions.size());
    std::vector<std::pair<FeedChoice, FeedChoice>> last(versions.size());
    for (SystemRange const& range : ranges)
    {
        for (std::size_t i = 0; i < versions.size(); ++i)
        {
            Client const client{versions[i].version, range.first};
            std::pair<FeedChoice, FeedChoice> now{oldFeed.Answer(client), newFeed.Answer(client)};
            bool const isChanged = !IsSame(now.first, now.second);
            if (isChanged && IsSame(now.first, last[i].first) && IsSame(now.second, last[i].second))
            {
                changesOf[i].back().systems.to = range.to;
            }
            else if (isChanged)
            {
                changesOf[i].push_back({versions[i].text, range, OutcomeOf(now.first), OutcomeOf(now.second)});
            }
            last[i] = std::move(now);
        }
    }
    std::vector<OutcomeChange> changes;
    for (std::vector<OutcomeChange>& each : changesOf)
    {
        std::move(each.begin(), each.end(), std::back_inserter(changes));
    }
    return changes;
}

std::vector<ItemChange> DiffItems(std::vector<Engine::FeedItem> const& oldItems,
                                  std::vector<Engine::FeedItem> const& newItems)
{
    using Kind = std::pair<QString, App::Session::UpdateType>;
    std::map<Kind, std::deque<Engine::FeedItem const*>> known;
    for (Engine::FeedItem const& item : oldItems)
    {
        known[{item.versionString, UpdateTypeOf(item)}].push_back(&item);
    }
    std::vector<ItemChange> changes;
    for (Engine::FeedItem const& item : newItems)
    {
        std::deque<Engine::FeedItem const*>& same = known[{item.versionString, UpdateTypeOf(item)}];
        for (ItemProperty const& property : ITEM_PROPERTIES)
        {
            QString const after = property.text(item);
            QString const before = same.empty() ? after : property.text(*same.front());
            if (before != after)
            {
                changes.push_back({item.versionString, property.name, before, after});
            }
        }
        if (!same.empty())
        {
            same.pop_front();
        }
    }
    return changes;
}

QStringList TextOf(std::vector<ItemChange> const& changes)
{
    QStringList lines;
    for (ItemChange const& change : changes)
    {
        lines.append(
            u"item %1: %2 %3 -> %4"_s.arg(change.version, QLatin1String(change.what), change.before, change.after));
    }
    return lines;
}

QStringList TextOf(std::vector<OutcomeChange> const& changes, std::vector<NamedVersion> const& versions)
{
    QStringList order;
    std::map<QString, QStringList> versionsOfChange;
    for (OutcomeChange const& change : changes)
    {
        QString const effect = EffectOf(change);
        QStringList& changed = versionsOfChange[effect];
        if (changed.isEmpty())
        {
            order.append(effect);
        }
        changed.append(change.localVersion);
    }
    QStringList lines;
    for (QString const& effect : order)
    {
        lines.append(RunsOf(versionsOfChange[effect], versions) + effect);
    }
    return lines;
}

} // namespace Pelnar::Publisher
