#include "Publisher/diff/FeedDiff.h"

#include "App/UpdateChecker/SparkleImpl/Choice/VersionOperators.h"
#include "App/UpdateChecker/SparkleImpl/Choice/VersionText.h"

#include <algorithm>
#include <limits>
#include <map>

namespace Pelnar::Publisher
{
namespace
{

using App::Session::VersionFromStringNoexcept;

/// Where outcomes may begin to differ: at a minimum, and right above a maximum.
struct Border
{
    Core::Version first; ///< system above the border, by all four components
    QString from;
    QString to;
};

/// The system right above \a version; invalid when there is none.
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
            borders.push_back(
                {version, QStringLiteral("from %1").arg(minimum), QStringLiteral("below %1").arg(minimum)});
        }
        Core::Version const version = VersionFromStringNoexcept(maximum);
        Core::Version const above = version.IsValid() ? RightAbove(version) : version;
        if (above.IsValid())
        {
            borders.push_back(
                {above, QStringLiteral("above %1").arg(maximum), QStringLiteral("up to %1").arg(maximum)});
        }
    }
}

bool IsSame(Outcome const& a, Outcome const& b)
{
    return a.version == b.version && a.updateType == b.updateType && a.deltaFrom == b.deltaFrom && a.url == b.url &&
           a.length == b.length;
}

QString LongTextOf(Outcome const& outcome)
{
    return outcome.IsUpdate()
               ? QStringLiteral("%1 (%2 bytes, %3)").arg(TextOf(outcome)).arg(outcome.length).arg(outcome.url)
               : TextOf(outcome);
}

/// " on all systems: 5.1 BUNDLE -> 5.2 DELTA from 5.0"
QString EffectOf(OutcomeChange const& change)
{
    QString const before = TextOf(change.before);
    QString const after = TextOf(change.after);
    bool const isOtherDownload = before == after;
    return QStringLiteral(" on %1: %2 -> %3")
        .arg(TextOf(change.systems), isOtherDownload ? LongTextOf(change.before) : before,
             isOtherDownload ? LongTextOf(change.after) : after);
}

/// "5.0 to 5.2, 5.4": \a changed, where three or more follow each other among \a versions the first and the last.
QString RunsOf(QStringList const& changed, std::vector<NamedVersion> const& versions)
{
    QStringList runs;
    QStringList run;
    auto const endRun = [&]
    {
        runs += run.size() < 3 ? run : QStringList(run.first() + QStringLiteral(" to ") + run.last());
        run.clear();
    };
    for (NamedVersion const& version : versions)
    {
        if (changed.contains(version.text))
        {
            run.append(version.text);
        }
        else
        {
            endRun();
        }
    }
    endRun();
    return runs.join(QStringLiteral(", "));
}

} // namespace

QString TextOf(SystemRange const& range)
{
    if (range.from.isEmpty() && range.to.isEmpty())
    {
        return QStringLiteral("all systems");
    }
    QStringList words{QStringLiteral("systems"), range.from, range.to};
    words.removeAll(QString());
    return words.join(QLatin1Char(' '));
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

std::vector<OutcomeChange> DiffFeeds(std::vector<Engine::FeedItem> const& oldItems,
                                     std::vector<Engine::FeedItem> const& newItems,
                                     std::vector<NamedVersion> const& versions,
                                     Engine::Installation const& installation)
{
    std::vector<SystemRange> const ranges = SystemRanges(oldItems, newItems);
    FeedChooser oldFeed(oldItems, installation);
    FeedChooser newFeed(newItems, installation);
    std::vector<OutcomeChange> changes;
    for (NamedVersion const& version : versions)
    {
        bool isContinued = false; // the last change reaches to this range
        for (SystemRange const& range : ranges)
        {
            Client const client{version.version, range.first};
            Outcome const before = OutcomeFor(oldFeed, client);
            Outcome const after = OutcomeFor(newFeed, client);
            if (IsSame(before, after))
            {
                isContinued = false;
                continue;
            }
            if (isContinued && IsSame(changes.back().before, before) && IsSame(changes.back().after, after))
            {
                changes.back().systems.to = range.to;
                continue;
            }
            changes.push_back({version.text, range, before, after});
            isContinued = true;
        }
    }
    return changes;
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
