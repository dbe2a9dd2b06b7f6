// SigningClock.h: whether this computer's clock can be right. A signature contains its time: with a clock that is far
// ahead, a feed gets a serial that no later feed reaches, and with one that is behind, it has expired when it is read.
#pragma once

#include "Engine/core/feed/FeedParser.h"
#include "Publisher/Console.h"

#include <QDateTime>

namespace Pelnar::Publisher
{

struct FeedSerials
{
    qint64 published = 0; ///< usually the time of the last signature
    bool isNextGiven = false;
};

/// Throws Refusal if \a now cannot be right: it is before 2020 or after 2099, or it is far from the times of
/// \a content, the feed in the file \a name. With a given serial a person vouches for the clock, and these times are
/// not compared. A feed that was never signed may be old, so \a console is only warned of one without a recent item.
void CheckClock(QString const& name, Engine::FeedContent const& content, FeedSerials const& serials,
                QDateTime const& now, Console const& console);

} // namespace Pelnar::Publisher
