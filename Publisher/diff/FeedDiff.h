// FeedDiff.h: the different effects of two feeds: which clients get another item from the second one.
#pragma once

#include "Publisher/matrix/Outcome.h"

#include <QString>
#include <QStringList>

#include <vector>

namespace Pelnar::Publisher
{

/// The systems between two bounds of the feeds. A client's outcome is the same on all of them.
struct SystemRange
{
    Core::Version first; ///< represents the range
    QString from;        ///< "from 10.13" or "above 12"; empty for the lowest
    QString to;          ///< "below 11" or "up to 12"; empty for the highest
};

/// "all systems", "systems from 10.13 up to 12".
QString TextOf(SystemRange const& range);

/// All ranges between the bounds of the items of both feeds, lowest first. Together they contain all systems.
std::vector<SystemRange> SystemRanges(std::vector<Engine::FeedItem> const& oldItems,
                                      std::vector<Engine::FeedItem> const& newItems);

struct OutcomeChange
{
    QString localVersion;
    SystemRange systems;
    Outcome before;
    Outcome after;
};

/// The versions for which the outcomes may differ: all that either feed names, including the bounds of its items, and
/// one before all of them.
std::vector<NamedVersion> ClientVersions(std::vector<Engine::FeedItem> const& oldItems,
                                         std::vector<Engine::FeedItem> const& newItems);

/// The changes for \a versions; ranges with the same change are joined.
std::vector<OutcomeChange> DiffFeeds(std::vector<Engine::FeedItem> const& oldItems,
                                     std::vector<Engine::FeedItem> const& newItems,
                                     std::vector<NamedVersion> const& versions,
                                     Engine::Installation const& installation = {});

/// A change of an item's policy: for which installations it is meant.
struct ItemChange
{
    QString version;
    char const* what = ""; ///< a permanent name, such as "channel" or "withdrawn"
    QString before;        ///< "none", "yes", "beta", "below 5.1"
    QString after;
};

/// The changes of the items that are in both feeds. Items are the same if they have the same version and kind; their
/// order decides among several.
std::vector<ItemChange> DiffItems(std::vector<Engine::FeedItem> const& oldItems,
                                  std::vector<Engine::FeedItem> const& newItems);

/// Lines for a person: "item 5.3: channel none -> beta".
QStringList TextOf(std::vector<ItemChange> const& changes);

/// Lines for a person, one for all versions with the same change: "5.0 to 5.2 on all systems: none -> 5.3 BUNDLE".
QStringList TextOf(std::vector<OutcomeChange> const& changes, std::vector<NamedVersion> const& versions);

} // namespace Pelnar::Publisher
