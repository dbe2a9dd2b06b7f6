#include "bench/ProcessMemory.h"

#include <fstream>
#include <string>

namespace Pelnar::Bench
{

long KibibytesOf(char const* field)
{
    std::ifstream status("/proc/self/status");
    for (std::string word; status >> word;)
    {
        if (word == field)
        {
            long kibibytes = 0;
            status >> kibibytes;
            return kibibytes;
        }
    }
    return 0;
}

void ForgetPeak()
{
    std::ofstream("/proc/self/clear_refs") << "5";
}

} // namespace Pelnar::Bench
