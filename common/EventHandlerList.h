// EventHandlerList.h: keeps handlers in the order of their addition and calls them over a snapshot.
// Thread: registering and notifying may come from any thread; whole passes run one after another.
// Ownership: the list owns no handler. Locks: `handlersMutex` for the list alone and never while a handler runs,
// `executeMutex` for a whole pass; the two are never held together. Both are recursive, so that a handler may register,
// unregister or start a pass of its own.
#pragma once

#include "common/EventPublisher.h"

#include <algorithm>
#include <functional>
#include <mutex>
#include <vector>

namespace Pelnar::Core
{

/// Handlers are called on the notifying thread, one after the other.
struct SyncExecutePolicy
{
    static void Execute(std::function<void()> const& call) { call(); }
};

template <class T, class Policy>
class EventHandlerList;

template <class T>
class EventHandlerList<T, SyncExecutePolicy> : public virtual EventPublisher<T>
{
public:
    void RegisterEventHandler(T* handler) override
    {
        if (!handler)
        {
            return;
        }
        std::lock_guard<std::recursive_mutex> lock(handlersMutex);
        if (std::find(handlers.begin(), handlers.end(), handler) == handlers.end())
        {
            handlers.push_back(handler);
        }
    }

    void UnregisterEventHandler(T* handler) override
    {
        if (!handler)
        {
            return;
        }
        std::lock_guard<std::recursive_mutex> lock(handlersMutex);
        auto const found = std::find(handlers.begin(), handlers.end(), handler);
        if (found != handlers.end())
        {
            handlers.erase(found);
        }
    }

    /// Calls \a functor (anything std::invoke takes with a T*) for every handler registered when the pass starts.
    /// Handlers removed meanwhile are still called in this pass, handlers added meanwhile only in the next one.
    /// An exception of a handler ends the pass and reaches the caller; both mutexes are released.
    template <class F>
    void PerformForEachEventHandler(F functor)
    {
        std::vector<T*> const snapshot = TakeSnapshot();
        std::lock_guard<std::recursive_mutex> lock(executeMutex);
        for (T* const handler : snapshot)
        {
            // Two words of capture fit the function's own buffer: no allocation for a handler.
            SyncExecutePolicy::Execute([&functor, handler] { std::invoke(functor, handler); });
        }
    }

private:
    std::vector<T*> TakeSnapshot()
    {
        std::lock_guard<std::recursive_mutex> lock(handlersMutex);
        return handlers;
    }

    std::vector<T*> handlers;
    std::recursive_mutex handlersMutex;
    std::recursive_mutex executeMutex;
};

} // namespace Pelnar::Core
