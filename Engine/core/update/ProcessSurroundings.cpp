#include "Engine/core/update/ProcessSurroundings.h"

#include <climits>
#include <cstdlib>
#include <fstream>

#include <unistd.h>

namespace Pelnar::Engine
{
namespace
{

constexpr std::uint64_t USUAL_MASK = 022;
constexpr std::uint64_t ALL_BITS = 0777;
constexpr char MASK_LINE[] = "Umask:";

} // namespace

std::string WorkingFolder()
{
    char path[PATH_MAX];
    // A folder that cannot be reached from the root has a name that is not a path.
    return ::getcwd(path, sizeof path) && path[0] == '/' ? std::string(path) : std::string();
}

std::uint64_t CreationMask()
{
    std::ifstream status("/proc/self/status");
    for (std::string line; std::getline(status, line);)
    {
        if (line.compare(0, sizeof MASK_LINE - 1, MASK_LINE) == 0)
        {
            return std::strtoull(line.c_str() + sizeof MASK_LINE - 1, nullptr, 8) & ALL_BITS;
        }
    }
    return USUAL_MASK;
}

} // namespace Pelnar::Engine
