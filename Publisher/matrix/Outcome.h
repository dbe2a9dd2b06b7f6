// Outcome.h: the item that one client takes from a feed, as a value that can be compared with that of another feed.
#pragma once

#include "Publisher/choice/FeedChoice.h"

#include <QJsonObject>
#include <QString>

#include <vector>

namespace Pelnar::Publisher
{

/// Empty texts mean no update.
struct Outcome
{
    QString version;
    QString updateType;
    QString deltaFrom; ///< empty for a full item
    QString url;
    quint64 length = 0;
    std::vector<Outcome> rivals; ///< the client may take one of these instead: see FeedChoice

    [[nodiscard]] bool IsUpdate() const { return !version.isEmpty(); }
};

Outcome OutcomeOf(FeedChoice const& choice);
/// Reads the output of JsonOf, without addresses and lengths.
Outcome OutcomeOf(QJsonValue const& json);

/// "5.2 DELTA from 5.1", "5.2 DELTA from 5.1 or from 5.1.0", or "none".
QString TextOf(Outcome const& outcome);
/// JSON null for no update.
QJsonValue JsonOf(Outcome const& outcome);

/// All versions that the items name, as their own or as the start of a delta: each once, oldest first.
std::vector<NamedVersion> VersionsOfFeed(std::vector<Engine::FeedItem> const& items);

} // namespace Pelnar::Publisher
