// Outcome.h: what one client takes from a feed, as a value that can be compared with another feed's.
#pragma once

#include "Publisher/choice/FeedChoice.h"

#include <QJsonObject>
#include <QString>

#include <vector>

namespace Pelnar::Publisher
{

/// Empty texts stand for no update.
struct Outcome
{
    QString version;
    QString updateType;
    QString deltaFrom; ///< empty for a full item
    QString url;
    quint64 length = 0;
    std::vector<Outcome> rivals; ///< of which the client may take one instead: see FeedChoice

    [[nodiscard]] bool IsUpdate() const { return !version.isEmpty(); }
};

Outcome OutcomeOf(FeedChoice const& choice);
/// What JsonOf wrote; addresses and lengths are left out.
Outcome OutcomeOf(QJsonValue const& json);

/// "5.2 DELTA from 5.1", "5.2 DELTA from 5.1 or from 5.1.0", or "none".
QString TextOf(Outcome const& outcome);
/// Null for none.
QJsonValue JsonOf(Outcome const& outcome);

/// Every version that the items name, as their own or as the start of a delta: each once, oldest first.
std::vector<NamedVersion> VersionsOfFeed(std::vector<Engine::FeedItem> const& items);

} // namespace Pelnar::Publisher
