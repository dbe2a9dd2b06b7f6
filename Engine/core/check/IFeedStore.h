// IFeedStore.h: where the feed that was accepted last waits for the next check.
// Thread: the check's. Ownership: outlives the checks that use it.
#pragma once

#include "Engine/core/fetch/KeptFeed.h"

#include <functional>
#include <optional>

class QObject;

namespace Pelnar::Engine
{

class IFeedStore
{
public:
    virtual ~IFeedStore() = default;

    /// Calls \a answer later, from the event loop, unless \a receiver is gone by then. The answer is nothing when there
    /// is no feed, or one of more than \a maxBytes.
    virtual void Ask(qint64 maxBytes, QObject* receiver,
                     std::function<void(std::optional<KeptFeed> const&)> answer) = 0;
    /// Keeps \a feed in place of the one before, or none. What cannot be kept is no failure of the check.
    virtual void Keep(std::optional<KeptFeed> feed) = 0;
};

} // namespace Pelnar::Engine
