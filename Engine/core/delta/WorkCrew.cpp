#include "Engine/core/delta/WorkCrew.h"

#include <algorithm>
#include <condition_variable>
#include <exception>
#include <mutex>
#include <thread>
#include <vector>

namespace Pelnar::Engine
{

void DoAll(std::size_t count, std::function<void(std::size_t)> const& work, std::function<void()> const& told)
{
    std::mutex mutex;
    std::condition_variable changed;
    std::size_t next = 0;
    std::size_t done = 0;
    std::exception_ptr failure;
    auto const workOn = [&]
    {
        for (std::unique_lock lock(mutex); next < count && !failure;)
        {
            std::size_t const number = next++;
            lock.unlock();
            std::exception_ptr thrown;
            try
            {
                work(number);
            }
            catch (...)
            {
                thrown = std::current_exception();
            }
            lock.lock();
            ++done;
            failure = failure ? failure : thrown;
            changed.notify_one();
        }
    };
    std::vector<std::thread> threads;
    for (std::size_t i = 0; i < std::min<std::size_t>(count, std::max(1u, std::thread::hardware_concurrency())); ++i)
    {
        threads.emplace_back(workOn);
    }
    for (std::size_t known = 0; known < count; ++known)
    {
        std::unique_lock lock(mutex);
        changed.wait(lock, [&] { return done > known || failure; });
        if (failure)
        {
            break;
        }
        lock.unlock();
        told();
    }
    for (std::thread& thread : threads)
    {
        thread.join();
    }
    if (failure)
    {
        std::rethrow_exception(failure);
    }
}

} // namespace Pelnar::Engine
