#include "Engine/core/base/TaskThread.h"
#include "tests/support/NoFurtherThread.h"

#include <gtest/gtest.h>

#include <atomic>
#include <future>
#include <numeric>
#include <stdexcept>
#include <thread>
#include <vector>

namespace
{

using namespace Pelnar::Engine;

constexpr std::size_t AHEAD = 4;

/// Takes a moment, so that later tasks could overtake it.
void Dawdle(int rounds)
{
    for (int i = 0; i < rounds; ++i)
    {
        std::this_thread::yield();
    }
}

TEST(TaskThread, DoesAllTasksInTheirOrderInAnotherThread)
{
    TaskThread tasks(AHEAD);
    std::vector<int> done;
    std::thread::id thread;
    for (int i = 0; i < 1000; ++i)
    {
        tasks.Post(
            [&done, &thread, i]
            {
                thread = std::this_thread::get_id();
                done.push_back(i);
            });
    }
    tasks.Finish();
    std::vector<int> expected(1000);
    std::iota(expected.begin(), expected.end(), 0);
    EXPECT_EQ(done, expected);
    EXPECT_NE(thread, std::this_thread::get_id());
}

TEST(TaskThread, LetsOnlySoManyTasksWait)
{
    std::atomic<std::size_t> done = 0;
    TaskThread tasks(AHEAD); // last, as its thread uses the counter
    for (std::size_t posted = 1; posted <= 100; ++posted)
    {
        tasks.Post(
            [&done]
            {
                Dawdle(10);
                ++done;
            });
        EXPECT_GE(done + AHEAD, posted);
    }
}

TEST(TaskThread, CountsTheTasksThatAreNotDone)
{
    TaskThread tasks(AHEAD);
    EXPECT_EQ(tasks.Waiting(), 0u);
    std::promise<void> gate;
    std::shared_future<void> const opened = gate.get_future().share();
    tasks.Post([opened] { opened.wait(); });
    tasks.Post([] {});
    EXPECT_EQ(tasks.Waiting(), 2u);
    gate.set_value();
    tasks.Finish();
    EXPECT_EQ(tasks.Waiting(), 0u);
}

TEST(TaskThread, ThrowsWhatATaskHasThrownAndDoesNoMore)
{
    TaskThread tasks(AHEAD);
    bool isNextDone = false;
    auto const post = [&tasks, &isNextDone]
    {
        tasks.Post([] { throw std::runtime_error("no"); });
        tasks.Post([&isNextDone] { isNextDone = true; });
        tasks.Finish();
    };
    EXPECT_THROW(post(), std::runtime_error);
    EXPECT_THROW(tasks.Finish(), std::runtime_error);
    EXPECT_FALSE(isNextDone);
}

TEST(TaskThread, DropsWhatHasNotBegunWhenItEnds)
{
    constexpr int MANY = 1000; // would take seconds
    int done = 0;
    {
        TaskThread tasks(MANY);
        for (int i = 0; i < MANY; ++i)
        {
            tasks.Post(
                [&done]
                {
                    Dawdle(10000);
                    ++done;
                });
        }
    }
    EXPECT_LT(done, MANY);
}

TEST(TaskThread, DoesThemInTheCallersThreadIfTheSystemHasNoOther)
{
    Pelnar::Testing::NoFurtherThread const noThread;
    TaskThread tasks(AHEAD);
    std::thread::id thread;
    tasks.Post([&thread] { thread = std::this_thread::get_id(); });
    tasks.Finish();
    EXPECT_EQ(thread, std::this_thread::get_id());
}

} // namespace
