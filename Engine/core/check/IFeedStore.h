// IFeedStore.h: stores the last accepted feed for the next check.
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

    /// Calls \a answer later, from the event loop, unless \a receiver is destroyed by then. The answer is empty if
    /// there is no feed, or if it has more than \a maxBytes.
    virtual void Ask(qint64 maxBytes, QObject* receiver,
                     std::function<void(std::optional<KeptFeed> const&)> answer) = 0;
    /// Stores \a feed in place of the previous one, or removes it. A failure to store is not a failure of the check.
    virtual void Keep(std::optional<KeptFeed> feed) = 0;
};

} // namespace Pelnar::Engine
