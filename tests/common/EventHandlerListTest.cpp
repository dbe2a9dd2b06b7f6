#include "common/EventHandlerList.h"
#include "tests/support/ThreadState.h"

#include <gtest/gtest.h>

#include <atomic>
#include <functional>
#include <future>
#include <stdexcept>
#include <string>
#include <thread>
#include <type_traits>
#include <vector>

namespace
{

using Pelnar::Core::EventHandlerList;
using Pelnar::Core::EventPublisher;
using Pelnar::Core::SyncExecutePolicy;

struct Handler
{
    std::function<void()> onEvent;
    int calls = 0;

    void OnEvent()
    {
        ++calls;
        if (onEvent)
        {
            onEvent();
        }
    }
};

using List = EventHandlerList<Handler, SyncExecutePolicy>;

static_assert(std::is_base_of_v<EventPublisher<Handler>, List>);
static_assert(std::is_polymorphic_v<EventPublisher<Handler>> && std::has_virtual_destructor_v<EventPublisher<Handler>>);

void Notify(List& list)
{
    list.PerformForEachEventHandler(&Handler::OnEvent);
}

std::vector<Handler*> Registered(List& list)
{
    std::vector<Handler*> handlers;
    list.PerformForEachEventHandler([&handlers](Handler* handler) { handlers.push_back(handler); });
    return handlers;
}

/// A thread that can be checked for waiting inside its call.
class WaitingThread
{
public:
    explicit WaitingThread(std::function<void()> const& call)
        : m_thread(
              [this, call]
              {
                  m_id = Pelnar::Testing::RunningThread();
                  call();
                  m_finished = true;
              })
    {
    }
    ~WaitingThread() { m_thread.join(); }

    /// Returns once the thread sleeps in the kernel (true) or has ended (false).
    [[nodiscard]] bool IsBlocked()
    {
        while (!m_finished)
        {
            if (m_id != 0 && Pelnar::Testing::IsAsleep(m_id))
            {
                return !m_finished;
            }
            std::this_thread::yield();
        }
        return false;
    }

private:
    std::atomic<std::uint64_t> m_id{0};
    std::atomic<bool> m_finished{false};
    std::thread m_thread;
};

TEST(EventHandlerList, RegisteringTwiceKeepsOneEntry)
{
    List list;
    Handler a;
    Handler b;
    list.RegisterEventHandler(&a);
    list.RegisterEventHandler(&b);
    list.RegisterEventHandler(&a);
    EXPECT_EQ(Registered(list), (std::vector<Handler*>{&a, &b}));
}

TEST(EventHandlerList, RegisteringNullChangesNothing)
{
    List list;
    Handler a;
    list.RegisterEventHandler(&a);
    list.RegisterEventHandler(nullptr);
    EXPECT_EQ(Registered(list), (std::vector<Handler*>{&a}));
}

TEST(EventHandlerList, UnregisteringAnUnknownHandlerOrNullChangesNothing)
{
    List list;
    Handler a;
    Handler unknown;
    list.RegisterEventHandler(&a);
    list.UnregisterEventHandler(&unknown);
    list.UnregisterEventHandler(nullptr);
    EXPECT_EQ(Registered(list), (std::vector<Handler*>{&a}));
}

TEST(EventHandlerList, UnregisteringKeepsTheOrderOfTheOthers)
{
    List list;
    Handler handlers[4];
    for (Handler& handler : handlers)
    {
        list.RegisterEventHandler(&handler);
    }
    list.UnregisterEventHandler(&handlers[1]);
    EXPECT_EQ(Registered(list), (std::vector<Handler*>{&handlers[0], &handlers[2], &handlers[3]}));
    list.RegisterEventHandler(&handlers[1]);
    EXPECT_EQ(Registered(list), (std::vector<Handler*>{&handlers[0], &handlers[2], &handlers[3], &handlers[1]}));
}

TEST(EventHandlerList, WorksThroughItsPublisherInterface)
{
    List list;
    EventPublisher<Handler>& publisher = list;
    Handler a;
    publisher.RegisterEventHandler(&a);
    EXPECT_EQ(Registered(list), (std::vector<Handler*>{&a}));
    publisher.UnregisterEventHandler(&a);
    EXPECT_TRUE(Registered(list).empty());
}

TEST(EventHandlerList, PassOverAnEmptyListCallsNothing)
{
    List list;
    list.PerformForEachEventHandler([](Handler*) { FAIL() << "there is no callback"; });
}

TEST(EventHandlerList, HandlersAreCalledInTheOrderOfAdditionOnTheNotifyingThread)
{
    List list;
    Handler handlers[3];
    std::vector<int> order;
    std::thread::id const caller = std::this_thread::get_id();
    for (int i = 0; i < 3; ++i)
    {
        handlers[i].onEvent = [&order, i, caller]
        {
            order.push_back(i);
            EXPECT_EQ(std::this_thread::get_id(), caller);
        };
        list.RegisterEventHandler(&handlers[i]);
    }
    Notify(list);
    EXPECT_EQ(order, (std::vector<int>{0, 1, 2}));
}

TEST(EventHandlerList, HandlerThatUnregistersItselfIsNotCalledInLaterPasses)
{
    List list;
    Handler first;
    Handler second;
    first.onEvent = [&] { list.UnregisterEventHandler(&first); };
    list.RegisterEventHandler(&first);
    list.RegisterEventHandler(&second);
    Notify(list);
    EXPECT_EQ(first.calls, 1);
    EXPECT_EQ(second.calls, 1) << "the rest of the pass is not changed";
    Notify(list);
    EXPECT_EQ(first.calls, 1);
    EXPECT_EQ(second.calls, 2);
}

TEST(EventHandlerList, HandlerRemovedByAnotherIsStillCalledInThatPass)
{
    List list;
    Handler first;
    Handler second;
    first.onEvent = [&] { list.UnregisterEventHandler(&second); };
    list.RegisterEventHandler(&first);
    list.RegisterEventHandler(&second);
    Notify(list);
    EXPECT_EQ(second.calls, 1);
    Notify(list);
    EXPECT_EQ(second.calls, 1);
}

TEST(EventHandlerList, HandlerAddedInAPassIsFirstCalledInTheNext)
{
    List list;
    Handler first;
    Handler added;
    first.onEvent = [&] { list.RegisterEventHandler(&added); };
    list.RegisterEventHandler(&first);
    Notify(list);
    EXPECT_EQ(added.calls, 0);
    Notify(list);
    EXPECT_EQ(added.calls, 1);
}

TEST(EventHandlerList, IteratingCanEmptyTheList)
{
    List list;
    Handler handlers[5];
    for (Handler& handler : handlers)
    {
        list.RegisterEventHandler(&handler);
    }
    list.PerformForEachEventHandler([&list](Handler* handler) { list.UnregisterEventHandler(handler); });
    EXPECT_TRUE(Registered(list).empty());
}

TEST(EventHandlerList, NestedPassRunsInsideTheHandlerOverTheListAsItIsThen)
{
    List list;
    Handler outer;
    Handler added;
    outer.onEvent = [&]
    {
        if (outer.calls == 1)
        {
            list.RegisterEventHandler(&added);
            Notify(list);
            EXPECT_EQ(added.calls, 1) << "the nested pass has its own snapshot";
        }
    };
    list.RegisterEventHandler(&outer);
    Notify(list);
    EXPECT_EQ(outer.calls, 2);
    EXPECT_EQ(added.calls, 1);
}

TEST(EventHandlerList, PassOfAnotherThreadWaitsForTheRunningOne)
{
    List list;
    std::atomic<int> running{0};
    bool otherThreadWaited = false;
    Handler handler;
    list.RegisterEventHandler(&handler);
    std::unique_ptr<WaitingThread> other;
    list.PerformForEachEventHandler(
        [&](Handler*)
        {
            ++running;
            other = std::make_unique<WaitingThread>(
                [&] { list.PerformForEachEventHandler([&running](Handler*) { EXPECT_EQ(running, 0); }); });
            otherThreadWaited = other->IsBlocked();
            --running;
        });
    other.reset();
    EXPECT_TRUE(otherThreadWaited);
}

TEST(EventHandlerList, WaitingPassHasItsSnapshotAndHoldsUpNoRegistration)
{
    List list;
    Handler first;
    Handler removed;
    Handler added;
    list.RegisterEventHandler(&first);
    list.RegisterEventHandler(&removed);
    std::vector<Handler*> seenByOther;
    std::unique_ptr<WaitingThread> other;
    first.onEvent = [&]
    {
        other = std::make_unique<WaitingThread>([&] { seenByOther = Registered(list); });
        ASSERT_TRUE(other->IsBlocked());
        // If the two locks were ever held together, these calls would never return.
        list.UnregisterEventHandler(&removed);
        list.RegisterEventHandler(&added);
    };
    Notify(list);
    other.reset();
    EXPECT_EQ(seenByOther, (std::vector<Handler*>{&first, &removed}));
    EXPECT_EQ(Registered(list), (std::vector<Handler*>{&first, &added}));
}

TEST(EventHandlerList, AnotherThreadRegistersAndUnregistersWhileAHandlerRuns)
{
    List list;
    Handler running;
    Handler added;
    running.onEvent = [&]
    {
        std::async(std::launch::async,
                   [&]
                   {
                       list.RegisterEventHandler(&added);
                       list.UnregisterEventHandler(&running);
                   })
            .get();
    };
    list.RegisterEventHandler(&running);
    Notify(list);
    EXPECT_EQ(added.calls, 0);
    EXPECT_EQ(Registered(list), (std::vector<Handler*>{&added}));
}

TEST(EventHandlerList, ExceptionEndsThePassAndReachesTheNotifier)
{
    List list;
    Handler first;
    Handler throwing;
    Handler later;
    throwing.onEvent = [] { throw std::runtime_error("no"); };
    for (Handler* const handler : {&first, &throwing, &later})
    {
        list.RegisterEventHandler(handler);
    }
    EXPECT_THROW(Notify(list), std::runtime_error);
    EXPECT_EQ(first.calls, 1);
    EXPECT_EQ(later.calls, 0);
    EXPECT_EQ(Registered(list), (std::vector<Handler*>{&first, &throwing, &later}));
}

TEST(EventHandlerList, ExceptionReleasesBothLocks)
{
    List list;
    Handler throwing;
    Handler added;
    throwing.onEvent = [] { throw std::runtime_error("no"); };
    list.RegisterEventHandler(&throwing);
    EXPECT_THROW(Notify(list), std::runtime_error);
    // A lock left behind would belong to this thread, so another thread asks.
    std::vector<Handler*> const seen = std::async(std::launch::async,
                                                  [&]
                                                  {
                                                      list.RegisterEventHandler(&added);
                                                      list.UnregisterEventHandler(&throwing);
                                                      return Registered(list);
                                                  })
                                           .get();
    EXPECT_EQ(seen, (std::vector<Handler*>{&added}));
}

TEST(EventHandlerList, ExceptionOfANestedPassLeavesTheOuterOneLockedUntilItsEnd)
{
    List list;
    Handler handler;
    std::unique_ptr<WaitingThread> other;
    handler.onEvent = [&]
    {
        if (handler.calls == 1)
        {
            EXPECT_THROW(Notify(list), std::runtime_error);
            other = std::make_unique<WaitingThread>([&] { (void)Registered(list); });
            EXPECT_TRUE(other->IsBlocked());
            return;
        }
        throw std::runtime_error("no");
    };
    list.RegisterEventHandler(&handler);
    Notify(list);
    other.reset();
    EXPECT_EQ(handler.calls, 2);
}

TEST(EventHandlerList, HandlerMayDestroyTheListWhichEndsThePass)
{
    auto list = std::make_unique<List>();
    Handler destroying;
    Handler later;
    destroying.onEvent = [&] { list.reset(); };
    list->RegisterEventHandler(&destroying);
    list->RegisterEventHandler(&later);
    Notify(*list);
    EXPECT_EQ(destroying.calls, 1);
    EXPECT_EQ(later.calls, 0) << "it may have gone with the list";
}

TEST(EventHandlerList, HandlerMayDestroyTheListAndThrow)
{
    auto list = std::make_unique<List>();
    Handler destroying;
    destroying.onEvent = [&]
    {
        list.reset();
        throw std::runtime_error("no");
    };
    list->RegisterEventHandler(&destroying);
    EXPECT_THROW(Notify(*list), std::runtime_error);
}

TEST(EventHandlerList, HandlerMayDestroyTheListInsideANestedPass)
{
    auto list = std::make_unique<List>();
    Handler handler;
    Handler later;
    handler.onEvent = [&]
    {
        if (handler.calls == 1)
        {
            Notify(*list);
            return;
        }
        list.reset();
    };
    list->RegisterEventHandler(&handler);
    list->RegisterEventHandler(&later);
    Notify(*list);
    EXPECT_EQ(handler.calls, 2);
    EXPECT_EQ(later.calls, 0);
}

TEST(EventHandlerList, ConcurrentChangesAndPassesKeepTheListWhole)
{
    List list;
    Handler kept;
    list.RegisterEventHandler(&kept);
    std::vector<std::thread> threads;
    for (int i = 0; i < 4; ++i)
    {
        threads.emplace_back(
            [&list]
            {
                Handler own;
                for (int round = 0; round < 500; ++round)
                {
                    list.RegisterEventHandler(&own);
                    list.PerformForEachEventHandler([](Handler*) {});
                    list.UnregisterEventHandler(&own);
                }
            });
    }
    for (std::thread& thread : threads)
    {
        thread.join();
    }
    EXPECT_EQ(Registered(list), (std::vector<Handler*>{&kept}));
}

} // namespace
