#include "Publisher/files/Leftovers.h"

#include "Publisher/Console.h"

#include <QFile>

#include <atomic>
#include <csignal>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <mutex>
#include <set>
#include <sstream>
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

/// Of the byte that is no longer in its mapped file; 0 without one.
std::atomic<std::uintptr_t> missingByte = 0;

/// The thread that reads the byte stops here. The waiting thread tells of it and ends the process.
void StopAtMissingByte(int, siginfo_t* info, void*)
{
    missingByte = reinterpret_cast<std::uintptr_t>(info->si_addr);
    ::kill(::getpid(), SIGTERM);
    for (;;)
    {
        ::pause();
    }
}

/// The mapped file with that address.
QString FileAt(std::uintptr_t address)
{
    std::ifstream maps("/proc/self/maps");
    for (std::string line; std::getline(maps, line);)
    {
        std::istringstream fields(line);
        std::uintptr_t begin = 0;
        std::uintptr_t end = 0;
        char dash = 0;
        fields >> std::hex >> begin >> dash >> end;
        std::size_t const path = line.find('/');
        if (begin <= address && address < end && path != std::string::npos)
        {
            return QFile::decodeName(line.substr(path).c_str());
        }
    }
    return QStringLiteral("<file>");
}

[[noreturn]] void EndAtMissingByte()
{
    std::cerr << "error: "
              << TextOf({FileAt(missingByte), QStringLiteral("was cut short while it was read"),
                         QStringLiteral("run this again when the file is complete")})
                     .toStdString()
              << std::endl;
    ::_exit(int(ExitStatus::Unusable));
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

void RemoveLeftovers()
{
    std::lock_guard<std::mutex> const lock(Leftovers().mutex);
    for (std::string const& path : Leftovers().paths)
    {
        std::error_code error; // what cannot be removed stays
        std::filesystem::remove_all(path, error);
    }
    Leftovers().paths.clear();
}

void RemoveLeftoversWhenInterrupted()
{
    sigset_t const set = EndingSignals();
    ::pthread_sigmask(SIG_BLOCK, &set, nullptr);
    try
    {
        std::thread(
            [set]
            {
                int number = 0;
                if (::sigwait(&set, &number) == 0)
                {
                    RemoveAll();
                    missingByte == 0 ? EndBy(number) : EndAtMissingByte();
                }
            })
            .detach();
    }
    catch (std::system_error const&)
    {
        ::pthread_sigmask(SIG_UNBLOCK, &set, nullptr); // the next run then removes what this one leaves
        return;
    }
    struct sigaction action = {};
    action.sa_sigaction = StopAtMissingByte;
    action.sa_flags = SA_SIGINFO;
    ::sigaction(SIGBUS, &action, nullptr);
}

} // namespace Pelnar::Publisher
