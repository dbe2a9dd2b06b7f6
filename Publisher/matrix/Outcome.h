// Outcome.h: what one client takes from a feed, as a value that can be compared with another feed's.
// Thread: any. Ownership: values only.
#pragma once

#include "Publisher/choice/ClientOptions.h"
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

    [[nodiscard]] bool IsUpdate() const { return !version.isEmpty(); }
};

Outcome OutcomeFor(FeedChooser& feed, Client const& client);

/// "5.2 DELTA from 5.1", or "none".
QString TextOf(Outcome const& outcome);
/// Null for none.
QJsonValue JsonOf(Outcome const& outcome);

/// Every version that the items name, as their own or as the start of a delta: each once, oldest first.
std::vector<NamedVersion> VersionsOfFeed(std::vector<Engine::FeedItem> const& items);

} // namespace Pelnar::Publisher
