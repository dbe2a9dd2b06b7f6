// FeedDiff.h: two feeds by their effect: which clients get something else from the second.
#pragma once

#include "Publisher/matrix/Outcome.h"

#include <QString>
#include <QStringList>

#include <vector>

namespace Pelnar::Publisher
{

/// Systems between two bounds of the feeds; a client's outcome is the same on all of them.
struct SystemRange
{
    Core::Version first; ///< stands for the range
    QString from;        ///< "from 10.13" or "above 12"; empty for the lowest
    QString to;          ///< "below 11" or "up to 12"; empty for the highest
};

/// "all systems", "systems from 10.13 up to 12".
QString TextOf(SystemRange const& range);

/// Every range that the bounds of the items of both feeds tell apart, lowest first; together they hold all systems.
std::vector<SystemRange> SystemRanges(std::vector<Engine::FeedItem> const& oldItems,
                                      std::vector<Engine::FeedItem> const& newItems);

struct OutcomeChange
{
    QString localVersion;
    SystemRange systems;
    Outcome before;
    Outcome after;
};

/// The changes for \a versions, ranges with the same change joined.
std::vector<OutcomeChange> DiffFeeds(std::vector<Engine::FeedItem> const& oldItems,
                                     std::vector<Engine::FeedItem> const& newItems,
                                     std::vector<NamedVersion> const& versions,
                                     Engine::Installation const& installation = {});

/// A change of what an item says of the installations that it is meant for.
struct ItemChange
{
    QString version;
    char const* what = ""; ///< a name that stays, such as "channel" or "withdrawn"
    QString before;        ///< "none", "yes", "beta", "below 5.1"
    QString after;
};

/// The changes of the items that both feeds have: those of one version and kind, in their order.
std::vector<ItemChange> DiffItems(std::vector<Engine::FeedItem> const& oldItems,
                                  std::vector<Engine::FeedItem> const& newItems);

/// Lines for a person: "item 5.3: channel none -> beta".
QStringList TextOf(std::vector<ItemChange> const& changes);

/// Lines for a person, one for all versions with the same change: "5.0 to 5.2 on all systems: none -> 5.3 BUNDLE".
QStringList TextOf(std::vector<OutcomeChange> const& changes, std::vector<NamedVersion> const& versions);

} // namespace Pelnar::Publisher
