#include "Engine/core/base/LatestWriter.h"

#include <gtest/gtest.h>

#include <future>
#include <new>
#include <vector>

namespace
{

using Pelnar::Engine::DiskChores;
using Pelnar::Engine::LatestWriter;

TEST(LatestWriter, WritesTheLastValueOfThoseThatWaitAndHasOneThread)
{
    std::promise<void> begun;
    std::promise<void> go;
    std::vector<int> written; // no lock: two writing threads would race for it
    LatestWriter<int> writer;
    {
        DiskChores chores;
        auto const write = [&](int value)
        {
            if (value == 1)
            {
                begun.set_value();
                go.get_future().wait();
            }
            written.push_back(value);
            return true;
        };
        writer.Put(1, chores, write);
        begun.get_future().wait();
        writer.Put(2, chores, write);
        writer.Put(3, chores, write);
        EXPECT_EQ(writer.Waiting(), 3);
        go.set_value();
    }
    EXPECT_EQ(written, (std::vector<int>{1, 3}));
    EXPECT_EQ(writer.Waiting(), std::nullopt);
}

TEST(LatestWriter, KeepsAValueThatCannotBeWritten)
{
    LatestWriter<int> writer;
    bool isDiskUsable = false;
    auto const write = [&isDiskUsable](int) { return isDiskUsable; };
    {
        DiskChores chores;
        writer.Put(1, chores, write);
    }
    EXPECT_EQ(writer.Waiting(), 1);
    isDiskUsable = true;
    {
        DiskChores chores;
        writer.Put(2, chores, write);
    }
    EXPECT_EQ(writer.Waiting(), std::nullopt);
}

TEST(LatestWriter, WritesTheNextValueAfterAnException)
{
    LatestWriter<int> writer;
    std::vector<int> written;
    auto const write = [&written](int value)
    {
        written.push_back(value);
        return value > 1 ? true : throw std::bad_alloc();
    };
    for (int const value : {1, 2})
    {
        DiskChores chores;
        writer.Put(value, chores, write);
    }
    EXPECT_EQ(written, (std::vector<int>{1, 2}));
    EXPECT_EQ(writer.Waiting(), std::nullopt);
}

} // namespace
