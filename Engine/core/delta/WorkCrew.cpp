#include "Engine/core/delta/WorkCrew.h"

#include <algorithm>
#include <condition_variable>
#include <exception>
#include <mutex>
#include <thread>
#include <vector>

namespace Pelnar::Engine
{
namespace
{

class Crew
{
public:
    Crew(std::size_t count, std::function<void(std::size_t)> const& work) : m_count(count), m_work(work) {}

    void Run(std::function<void()> const& told)
    {
        std::size_t const size = std::min<std::size_t>(m_count, std::max(1u, std::thread::hardware_concurrency()));
        std::vector<std::thread> threads;
        for (std::size_t i = 0; i < size; ++i)
        {
            threads.emplace_back([this] { Work(); });
        }
        for (std::size_t i = 0; i < m_count && WaitForOne(i); ++i)
        {
            told();
        }
        for (std::thread& thread : threads)
        {
            thread.join();
        }
        if (m_failure)
        {
            std::rethrow_exception(m_failure);
        }
    }

private:
    void Work()
    {
        for (std::unique_lock lock(m_mutex); m_next < m_count && !m_failure;)
        {
            std::size_t const number = m_next++;
            lock.unlock();
            std::exception_ptr failure;
            try
            {
                m_work(number);
            }
            catch (...)
            {
                failure = std::current_exception();
            }
            lock.lock();
            ++m_done;
            m_failure = m_failure ? m_failure : failure;
            m_changed.notify_one();
        }
    }

    /// False when a piece has failed.
    bool WaitForOne(std::size_t known)
    {
        std::unique_lock lock(m_mutex);
        m_changed.wait(lock, [this, known] { return m_done > known || m_failure; });
        return !m_failure;
    }

    std::size_t m_count;
    std::function<void(std::size_t)> const& m_work;
    std::mutex m_mutex;
    std::condition_variable m_changed;
    std::size_t m_next = 0;
    std::size_t m_done = 0;
    std::exception_ptr m_failure;
};

} // namespace

void DoAll(std::size_t count, std::function<void(std::size_t)> const& work, std::function<void()> const& told)
{
    Crew(count, work).Run(told);
}

} // namespace Pelnar::Engine
