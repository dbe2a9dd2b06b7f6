#include "Installer/ChildProcess.h"

#include "Engine/core/faults/UpdateFault.h"

#include <algorithm>
#include <cerrno>
#include <climits>

#include <poll.h>
#include <signal.h>
#include <spawn.h>
#include <sys/stat.h>
#include <time.h>
#include <unistd.h>

namespace Pelnar::Installer
{
namespace
{

using Engine::UpdateFault;
using Engine::UpdateRefusal;

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

std::int64_t NowInMilliseconds()
{
    timespec now{};
    ::clock_gettime(CLOCK_MONOTONIC, &now);
    return static_cast<std::int64_t>(now.tv_sec) * 1000 + now.tv_nsec / 1000000;
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

bool WaitForEnd(int processFd, std::uint64_t seconds)
{
    std::int64_t const end = NowInMilliseconds() + static_cast<std::int64_t>(seconds) * 1000;
    for (;;)
    {
        pollfd ended{processFd, POLLIN, 0};
        std::int64_t const left = std::clamp<std::int64_t>(end - NowInMilliseconds(), 0, INT_MAX);
        int const count = ::poll(&ended, 1, seconds == 0 ? -1 : static_cast<int>(left));
        if (count > 0 && (ended.revents & POLLIN) != 0)
        {
            return true;
        }
        if (count == 0)
        {
            return false;
        }
        if (count > 0 || errno != EINTR)
        {
            throw UpdateRefusal(UpdateFault::DescriptorUnusable, count > 0 ? 0 : errno);
        }
    }
}

} // namespace Pelnar::Installer
