#include "Publisher/files/Leftovers.h"

#include <csignal>
#include <filesystem>
#include <mutex>
#include <set>
#include <system_error>
#include <thread>

#include <pthread.h>
#include <unistd.h>

namespace Pelnar::Publisher
{
namespace
{

struct LeftoverList
{
    std::mutex mutex;
    std::multiset<std::string> paths;
};

/// Never destroyed: the waiting thread may use it while the process ends.
LeftoverList& Leftovers()
{
    static auto& list = *new LeftoverList;
    return list;
}

sigset_t EndingSignals()
{
    sigset_t set;
    ::sigemptyset(&set);
    for (int const number : {SIGINT, SIGTERM, SIGHUP})
    {
        ::sigaddset(&set, number);
    }
    return set;
}

void RemoveAll()
{
    // The working thread continues meanwhile. A file that it adds to a folder between two steps is removed in the next
    // round. Deliberate: the lock is kept, so that no thread adds another or ends the process first.
    constexpr int MOST_ROUNDS = 100;
    Leftovers().mutex.lock();
    for (std::string const& path : Leftovers().paths)
    {
        std::error_code error;
        for (int round = 0; round < MOST_ROUNDS; ++round)
        {
            std::filesystem::remove_all(path, error);
            if (!std::filesystem::exists(std::filesystem::symlink_status(path, error)))
            {
                break;
            }
            ::usleep(10000);
        }
    }
}

[[noreturn]] void EndBy(int number)
{
    std::signal(number, SIG_DFL);
    sigset_t set;
    ::sigemptyset(&set);
    ::sigaddset(&set, number);
    ::pthread_sigmask(SIG_UNBLOCK, &set, nullptr);
    ::kill(::getpid(), number);
    ::_exit(128 + number);
}

} // namespace

Leftover::Leftover(std::string path) : m_path(std::move(path))
{
    if (!m_path.empty())
    {
        std::lock_guard<std::mutex> const lock(Leftovers().mutex);
        Leftovers().paths.insert(m_path);
    }
}

Leftover::Leftover(std::function<std::string()> const& make)
{
    std::lock_guard<std::mutex> const lock(Leftovers().mutex);
    m_path = make();
    if (!m_path.empty())
    {
        Leftovers().paths.insert(m_path);
    }
}

Leftover::~Leftover()
{
    if (!m_path.empty())
    {
        std::lock_guard<std::mutex> const lock(Leftovers().mutex);
        Leftovers().paths.erase(Leftovers().paths.find(m_path));
    }
}

void RemoveLeftoversWhenInterrupted()
{
    sigset_t const set = EndingSignals();
    ::pthread_sigmask(SIG_BLOCK, &set, nullptr);
    auto const wait = [set]
    {
        int number = 0;
        if (::sigwait(&set, &number) == 0)
        {
            RemoveAll();
            EndBy(number);
        }
    };
    try
    {
        std::thread(wait).detach();
    }
    catch (std::system_error const&)
    {
        ::pthread_sigmask(SIG_UNBLOCK, &set, nullptr); // the next run then removes what this one leaves
    }
}

} // namespace Pelnar::Publisher
