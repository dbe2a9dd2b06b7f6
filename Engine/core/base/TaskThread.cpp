#include "Engine/core/base/TaskThread.h"

#include <system_error>
#include <utility>

namespace Pelnar::Engine
{

TaskThread::~TaskThread()
{
    {
        std::lock_guard const lock(m_mutex);
        m_isEnding = true;
    }
    m_posted.notify_one();
    if (m_thread.joinable())
    {
        m_thread.join();
    }
}

void TaskThread::Post(std::function<void()> task)
{
    if (!StartThread())
    {
        task();
        return;
    }
    {
        std::lock_guard const lock(m_mutex);
        m_tasks.push_back(std::move(task));
    }
    m_posted.notify_one();
    WaitFor(m_mostWaiting);
}

std::size_t TaskThread::Waiting() const
{
    std::lock_guard const lock(m_mutex);
    return m_tasks.size();
}

bool TaskThread::StartThread()
{
    try
    {
        m_thread = m_thread.joinable() ? std::move(m_thread) : std::thread([this] { Work(); });
    }
    catch (std::system_error const&)
    {
        return false;
    }
    return true;
}

void TaskThread::Work()
{
    for (std::unique_lock lock(m_mutex);;)
    {
        m_posted.wait(lock, [this] { return m_isEnding || (!m_tasks.empty() && !m_failure); });
        if (m_isEnding)
        {
            return;
        }
        std::function<void()> const task = std::move(m_tasks.front());
        lock.unlock();
        std::exception_ptr failure;
        try
        {
            task();
        }
        catch (...)
        {
            failure = std::current_exception();
        }
        lock.lock();
        m_failure = failure;
        m_tasks.pop_front();
        if (m_failure || m_tasks.size() <= m_wanted)
        {
            m_done.notify_one();
        }
    }
}

void TaskThread::WaitFor(std::size_t most)
{
    std::unique_lock lock(m_mutex);
    if (m_tasks.size() > most)
    {
        m_wanted = most / 2; // waking a thread takes as long as a small task, so several tasks share one wake-up
        m_done.wait(lock, [this] { return m_failure || m_tasks.size() <= m_wanted; });
    }
    if (m_failure)
    {
        std::rethrow_exception(m_failure);
    }
}

} // namespace Pelnar::Engine
