#include "Engine/core/delta/WorkCrew.h"
#include "tests/support/NoFurtherThread.h"

#include <gtest/gtest.h>

#include <atomic>
#include <stdexcept>
#include <thread>
#include <vector>

namespace
{

using namespace Pelnar::Engine;

constexpr std::size_t MANY = 1000;

TEST(WorkCrew, DoesEachPieceOnceAndTellsOfEachInTheCallersThread)
{
    std::vector<std::atomic<int>> done(MANY);
    std::size_t told = 0;
    bool isToldElsewhere = false;
    std::thread::id const caller = std::this_thread::get_id();
    DoAll(
        MANY, [&done](std::size_t i) { ++done[i]; },
        [&]
        {
            ++told;
            isToldElsewhere = isToldElsewhere || std::this_thread::get_id() != caller;
        });
    for (std::atomic<int> const& count : done)
    {
        EXPECT_EQ(count, 1);
    }
    EXPECT_EQ(told, MANY);
    EXPECT_FALSE(isToldElsewhere);
}

TEST(WorkCrew, ThrowsWhatAPieceHasThrownAndStartsNoMore)
{
    std::atomic<std::size_t> begun = 0;
    auto const work = [&begun](std::size_t i)
    {
        ++begun;
        if (i == 2)
        {
            throw std::runtime_error("no");
        }
        std::this_thread::yield();
    };
    EXPECT_THROW(DoAll(MANY * MANY, work), std::runtime_error);
    EXPECT_LT(begun, MANY * MANY);
}

TEST(WorkCrew, DoesAllInTheCallersThreadIfTheSystemHasNoOther)
{
    Pelnar::Testing::NoFurtherThread const noThread;
    std::vector<std::thread::id> threads;
    std::size_t told = 0;
    DoAll(
        10, [&threads](std::size_t) { threads.push_back(std::this_thread::get_id()); }, [&told] { ++told; });
    EXPECT_EQ(threads, std::vector<std::thread::id>(10, std::this_thread::get_id()));
    EXPECT_EQ(told, 10u);
}

} // namespace
