// EventHandlerList.h: keeps handlers in the order of their addition and calls them over a snapshot.
//
//     struct IListener
//     {
//         virtual ~IListener() = default;
//         virtual void OnChanged(int value) = 0;
//     };
//     Pelnar::Core::EventHandlerList<IListener, Pelnar::Core::SyncExecutePolicy> listeners;
//     listeners.PerformForEachEventHandler([](IListener* listener) { listener->OnChanged(7); });
//
// Thread: registering and notifying may come from any thread; whole passes run one after another.
// Ownership: the list owns no handler. A handler may destroy the list; the pass that called it then ends.
// Locks: `executeMutex` is held for a whole pass, `handlersMutex` for each look at the list and never while a handler
// is called. A pass releases `handlersMutex` before it waits for `executeMutex`. Both are recursive, so that a handler
// may register, unregister or start a pass of its own; it takes `handlersMutex` within the pass then.
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

    /// Calls \a functor (anything std::invoke takes with a T*) for every handler registered when the pass starts.
    /// Handlers removed meanwhile are still called in this pass, handlers added meanwhile only in the next one.
    /// An exception of a handler ends the pass and reaches the caller; both mutexes are released. When a handler
    /// destroys the list, the later ones are not called: they may have gone with it.
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
            // Two words of capture fit the function's own buffer: no allocation for a handler.
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
