#include "Engine/core/base/DiskChores.h"
#include "tests/support/LogCapture.h"

#include <gtest/gtest.h>

#include <atomic>
#include <csignal>
#include <future>
#include <memory>
#include <new>
#include <optional>
#include <thread>

#include <sys/resource.h>
#include <unistd.h>

namespace
{

using Pelnar::Engine::DiskChores;
using Pelnar::Testing::LogCapture;

TEST(DiskChores, RunWhileTheirCallerGoesOn)
{
    std::promise<void> go;
    std::promise<std::thread::id> ran;
    DiskChores chores;
    chores.Run(
        [&]
        {
            go.get_future().wait();
            ran.set_value(std::this_thread::get_id());
        });
    go.set_value(); // a caller that waits would not reach this
    EXPECT_NE(ran.get_future().get(), std::this_thread::get_id());
}

TEST(DiskChores, EndWaitsForAll)
{
    std::promise<void> go;
    std::shared_future<void> const gone = go.get_future().share();
    std::atomic<int> done = 0;
    std::thread later;
    {
        DiskChores chores;
        for (int chore = 0; chore < 3; ++chore)
        {
            chores.Run([&done, gone] { gone.wait(), ++done; });
        }
        later = std::thread([&go] { go.set_value(); });
    }
    EXPECT_EQ(done, 3);
    later.join();
}

TEST(DiskChores, WhatAChoreHoldsGoesBesideTheCallerToo)
{
    std::promise<std::thread::id> gone;
    {
        DiskChores chores;
        chores.Run([held = std::shared_ptr<int>(new int(1),
                                                [&gone](int* number)
                                                {
                                                    delete number;
                                                    gone.set_value(std::this_thread::get_id());
                                                })] { EXPECT_EQ(*held, 1); });
    }
    EXPECT_NE(gone.get_future().get(), std::this_thread::get_id());
}

TEST(DiskChores, RunWithNoSignalOfTheHostsAndChangeNoneOfItsOwn)
{
    sigset_t seen;
    sigset_t before;
    sigset_t after;
    ::pthread_sigmask(SIG_SETMASK, nullptr, &before);
    {
        DiskChores chores;
        chores.Run([&seen] { ::pthread_sigmask(SIG_SETMASK, nullptr, &seen); });
        ::pthread_sigmask(SIG_SETMASK, nullptr, &after);
    }
    for (int const signal : {SIGTERM, SIGCHLD, SIGALRM, SIGXFSZ, SIGUSR1})
    {
        EXPECT_EQ(::sigismember(&seen, signal), 1) << signal;
        EXPECT_EQ(::sigismember(&after, signal), ::sigismember(&before, signal)) << signal;
    }
}

TEST(DiskChores, ExceptionEndsOneChoreAndIsLogged)
{
    LogCapture log;
    bool hasRun = false;
    {
        DiskChores chores;
        chores.Run([] { throw std::bad_alloc(); });
        chores.Run([&hasRun] { hasRun = true; });
    }
    EXPECT_TRUE(hasRun);
    EXPECT_EQ(log.Texts(), std::vector<std::string>{"A task of the update engine ended early: std::bad_alloc"});
}

#if !defined(__SANITIZE_ADDRESS__) && !(defined(__has_feature) && __has_feature(address_sanitizer))
TEST(DiskChores, RunInTheCallersThreadIfNoOtherCanStart)
{
    GTEST_FLAG_SET(death_test_style, "threadsafe"); // in a process that has no stack of an ended thread
    auto const run = []
    {
        rlimit const none{1, 1}; // no stack can be mapped
        std::optional<std::thread::id> ran;
        DiskChores chores;
        bool const isScarce = ::setrlimit(RLIMIT_AS, &none) == 0;
        chores.Run([&ran] { ran = std::this_thread::get_id(); });
        ::_exit(isScarce && ran == std::this_thread::get_id() ? 0 : 1);
    };
    EXPECT_EXIT(run(), testing::ExitedWithCode(0), "");
}
#endif

} // namespace
