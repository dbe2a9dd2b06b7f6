#include "Engine/core/delta/WorkCrew.h"

#include <algorithm>
#include <chrono>
#include <condition_variable>
#include <exception>
#include <mutex>
#include <system_error>
#include <thread>
#include <vector>

namespace Pelnar::Engine
{
namespace
{

/// Waking the caller after each small piece would take longer than the piece.
constexpr std::chrono::milliseconds TELLING_INTERVAL{20};

class Crew
{
public:
    Crew(std::size_t count, std::function<void(std::size_t)> const& work) : m_count(count), m_work(work)
    {
        std::size_t const most = std::min<std::size_t>(count, std::max(1u, std::thread::hardware_concurrency()));
        m_threads.reserve(most);
        try
        {
            while (m_threads.size() < most)
            {
                m_threads.emplace_back([this] { Work(); });
            }
        }
        catch (std::system_error const&)
        {
            // The threads that could be started do all the work.
        }
    }
    ~Crew()
    {
        for (std::thread& thread : m_threads)
        {
            thread.join();
        }
    }
    Crew(Crew const&) = delete;
    Crew& operator=(Crew const&) = delete;

    void Finish(std::function<void()> const& told)
    {
        if (m_threads.empty())
        {
            Work();
        }
        for (std::size_t known = 0; known < m_count;)
        {
            std::unique_lock lock(m_mutex);
            m_ended.wait_for(lock, TELLING_INTERVAL, [this] { return m_done == m_count || m_failure; });
            if (m_failure)
            {
                std::rethrow_exception(m_failure);
            }
            std::size_t const done = m_done;
            lock.unlock();
            for (; known < done; ++known)
            {
                told ? told() : void();
            }
        }
    }

private:
    void Work()
    {
        for (std::unique_lock lock(m_mutex); m_next < m_count && !m_failure;)
        {
            std::size_t const number = m_next++;
            lock.unlock();
            std::exception_ptr thrown;
            try
            {
                m_work(number);
            }
            catch (...)
            {
                thrown = std::current_exception();
            }
            lock.lock();
            m_failure = m_failure ? m_failure : thrown;
            if (++m_done == m_count || m_failure)
            {
                m_ended.notify_one();
            }
        }
    }

    std::size_t m_count;
    std::function<void(std::size_t)> const& m_work;
    std::mutex m_mutex;
    std::condition_variable m_ended;
    std::size_t m_next = 0;
    std::size_t m_done = 0;
    std::exception_ptr m_failure;
    std::vector<std::thread> m_threads;
};

} // namespace

void DoAll(std::size_t count, std::function<void(std::size_t)> const& work, std::function<void()> const& told)
{
    Crew(count, work).Finish(told);
}

} // namespace Pelnar::Engine
