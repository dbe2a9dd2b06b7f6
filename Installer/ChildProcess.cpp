#include "Installer/ChildProcess.h"

#include "Engine/core/faults/UpdateFault.h"

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <climits>

#include <poll.h>
#include <signal.h>
#include <spawn.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

namespace Pelnar::Installer
{
namespace
{

using Engine::UpdateFault;
using Engine::UpdateRefusal;
using Clock = std::chrono::steady_clock;
using std::chrono::milliseconds;

constexpr int MAX_REFUSALS = 20;
constexpr int REFUSAL_PAUSE_MS = 100;

std::vector<char*> Pointers(std::vector<std::string>& texts)
{
    std::vector<char*> pointers;
    for (std::string& text : texts)
    {
        pointers.push_back(text.data());
    }
    pointers.push_back(nullptr);
    return pointers;
}

} // namespace

pid_t StartProgram(std::vector<std::string> words, Surroundings surroundings, int& error)
{
    sigset_t none;
    sigset_t all;
    ::sigemptyset(&none);
    ::sigfillset(&all);
    posix_spawnattr_t attributes;
    ::posix_spawnattr_init(&attributes);
    ::posix_spawnattr_setflags(&attributes, POSIX_SPAWN_SETSID | POSIX_SPAWN_SETSIGMASK | POSIX_SPAWN_SETSIGDEF);
    ::posix_spawnattr_setsigmask(&attributes, &none);
    ::posix_spawnattr_setsigdefault(&attributes, &all);
    std::vector<char*> const arguments = Pointers(words);
    std::vector<char*> const variables = Pointers(surroundings.environment);
    pid_t process = -1;
    // The child inherits both; this process restores its own immediately.
    bool const isElsewhere = !surroundings.workingFolder.empty() && ::chdir(surroundings.workingFolder.c_str()) == 0;
    mode_t const ownMask = ::umask(surroundings.creationMask);
    error = ::posix_spawn(&process, arguments[0], nullptr, &attributes, arguments.data(), variables.data());
    ::umask(ownMask);
    static_cast<void>(isElsewhere && ::chdir("/") != 0);
    ::posix_spawnattr_destroy(&attributes);
    return error == 0 ? process : -1;
}

std::optional<int> StatusOf(pid_t child)
{
    int status = 0;
    for (int refusals = 0; ::waitpid(child, &status, 0) < 0;)
    {
        if (errno == EINTR)
        {
            continue;
        }
        if (errno == ECHILD || ++refusals > MAX_REFUSALS)
        {
            return std::nullopt;
        }
        ::poll(nullptr, 0, REFUSAL_PAUSE_MS);
    }
    return status;
}

bool HasSucceeded(std::optional<int> status)
{
    return status && WIFEXITED(*status) && WEXITSTATUS(*status) == 0;
}

WaitEnd WaitForEnd(int processFd, std::uint64_t seconds, int stopFd)
{
    Clock::time_point const end = Clock::now() + std::chrono::seconds(seconds);
    for (;;)
    {
        pollfd waiting[] = {{processFd, POLLIN, 0}, {stopFd, POLLIN, 0}};
        std::int64_t const left = std::chrono::ceil<milliseconds>(end - Clock::now()).count();
        int const count =
            ::poll(waiting, 2, seconds == 0 ? -1 : static_cast<int>(std::clamp<std::int64_t>(left, 0, INT_MAX)));
        if (count > 0 && (waiting[1].revents & POLLIN) != 0)
        {
            return WaitEnd::Stopped;
        }
        if (count > 0 && (waiting[0].revents & POLLIN) != 0)
        {
            return WaitEnd::Ended;
        }
        if (count == 0)
        {
            return WaitEnd::TimedOut;
        }
        if (count > 0 || errno != EINTR)
        {
            throw UpdateRefusal(UpdateFault::DescriptorUnusable, count > 0 ? 0 : errno);
        }
    }
}

} // namespace Pelnar::Installer
