#include "tests/support/ThreadState.h"

#include <fstream>
#include <limits>
#include <string>

#include <unistd.h>

namespace Pelnar::Testing
{

std::uint64_t RunningThread()
{
    return static_cast<std::uint64_t>(::gettid());
}

bool IsAsleep(std::uint64_t thread)
{
    std::ifstream status("/proc/self/task/" + std::to_string(thread) + "/stat");
    status.ignore(std::numeric_limits<std::streamsize>::max(), ')');
    char state = 0;
    status >> state;
    return state == 'S';
}

} // namespace Pelnar::Testing
