// EventHandlerList.h: keeps handlers in the order of their addition and calls a snapshot of them.
//
//     struct IListener
//     {
//         virtual ~IListener() = default;
//         virtual void OnChanged(int value) = 0;
//     };
//     Pelnar::Core::EventHandlerList<IListener, Pelnar::Core::SyncExecutePolicy> listeners;
//     listeners.PerformForEachEventHandler([](IListener* listener) { listener->OnChanged(7); });
//
// Thread: any thread may register and notify; whole passes run one after another. Ownership: the list does not own its
// handlers. A handler may destroy the list; the pass that called it then ends. Locks: `executeMutex` is held for a
// whole pass, `handlersMutex` for each access to the list and never during a call of a handler. A pass releases
// `handlersMutex` before it waits for `executeMutex`. Both are recursive, so that a handler may register, unregister or
// start another pass; it takes `handlersMutex` within the pass then.
#pragma once

#include "common/EventPublisher.h"

#include <algorithm>
#include <atomic>
#include <functional>
#include <memory>
#include <mutex>
#include <vector>

namespace Pelnar::Core
{

/// Calls handlers on the notifying thread, one after the other.
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
    EventHandlerList() = default;
    ~EventHandlerList() override { m_state->isListGone = true; }
    EventHandlerList(EventHandlerList const&) = delete;
    EventHandlerList& operator=(EventHandlerList const&) = delete;

    void RegisterEventHandler(T* handler) override
    {
        if (!handler)
        {
            return;
        }
        std::lock_guard<std::recursive_mutex> lock(m_state->handlersMutex);
        std::vector<T*>& handlers = m_state->handlers;
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
        std::lock_guard<std::recursive_mutex> lock(m_state->handlersMutex);
        std::vector<T*>& handlers = m_state->handlers;
        auto const found = std::find(handlers.begin(), handlers.end(), handler);
        if (found != handlers.end())
        {
            handlers.erase(found);
        }
    }

    /// Calls \a functor (anything std::invoke accepts with a T*) for every handler that is registered when the pass
    /// starts. A handler removed during the pass is still called in it. A handler added during the pass is called only
    /// in the next one. An exception of a handler ends the pass and reaches the caller; both mutexes are released. If a
    /// handler destroys the list, no later handler is called: they may have been destroyed with it.
    template <class F>
    void PerformForEachEventHandler(F functor)
    {
        std::shared_ptr<State> const state = m_state; // the pass may outlive the list
        std::vector<T*> const snapshot = state->TakeSnapshot();
        std::lock_guard<std::recursive_mutex> lock(state->executeMutex);
        for (T* const handler : snapshot)
        {
            if (state->isListGone)
            {
                return;
            }
            // Two words of capture fit into the function's own buffer, so a handler needs no allocation.
            SyncExecutePolicy::Execute([&functor, handler] { std::invoke(functor, handler); });
        }
    }

private:
    struct State
    {
        std::vector<T*> TakeSnapshot()
        {
            std::lock_guard<std::recursive_mutex> lock(handlersMutex);
            return handlers;
        }

        std::vector<T*> handlers;
        std::recursive_mutex handlersMutex;
        std::recursive_mutex executeMutex;
        std::atomic<bool> isListGone{false};
    };

    std::shared_ptr<State> const m_state = std::make_shared<State>();
};

} // namespace Pelnar::Core
