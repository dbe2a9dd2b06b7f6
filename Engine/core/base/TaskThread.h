// TaskThread.h: runs tasks one after the other in its own thread, while the caller prepares the next. Thread: one at a
// time. Ownership: its thread, which ends with the object.
#pragma once

#include <condition_variable>
#include <deque>
#include <exception>
#include <functional>
#include <mutex>
#include <thread>

namespace Pelnar::Engine
{

class TaskThread
{
public:
    explicit TaskThread(std::size_t mostWaiting) : m_mostWaiting(mostWaiting) {}
    /// Waits for the running task. Tasks that have not begun are dropped.
    ~TaskThread();
    TaskThread(TaskThread const&) = delete;
    TaskThread& operator=(TaskThread const&) = delete;

    /// Runs \a task after all others; in the caller's thread if the system has no other. Returns when at most
    /// mostWaiting tasks remain, including \a task and the running one. Throws the exception of a task; no later task
    /// runs.
    void Post(std::function<void()> task);
    /// The number of tasks that are not done.
    std::size_t Waiting() const;
    /// Waits until all tasks are done. Throws the exception of a task.
    void Finish() { WaitFor(0); }

private:
    bool StartThread();
    void Work();
    void WaitFor(std::size_t most);

    std::size_t const m_mostWaiting;
    mutable std::mutex m_mutex;
    std::condition_variable m_posted;
    std::condition_variable m_done;
    std::deque<std::function<void()>> m_tasks; ///< the first is running
    std::size_t m_wanted = 0;                  ///< the number of tasks that the caller waits for
    std::exception_ptr m_failure;
    bool m_isEnding = false;
    std::thread m_thread; ///< set with the first task
};

} // namespace Pelnar::Engine
