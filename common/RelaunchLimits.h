// RelaunchLimits.h: which arguments a program can be started with after an update. Pure functions.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace Pelnar::Engine
{

constexpr std::size_t RELAUNCH_ARGUMENTS_MAX_COUNT = 1024;
/// All arguments together, including the NUL that ends each. A system can start a program with many times as much.
constexpr std::size_t RELAUNCH_ARGUMENTS_MAX_BYTES = std::size_t{64} << 10;

/// What is wrong with \a arguments, as the end of a sentence; null if a program can be started with them.
inline char const* FaultOfRelaunchArguments(std::vector<std::string> const& arguments)
{
    if (arguments.size() > RELAUNCH_ARGUMENTS_MAX_COUNT)
    {
        return "there are more than 1024";
    }
    std::size_t bytes = 0;
    for (std::string const& argument : arguments)
    {
        if (argument.find('\0') != std::string::npos)
        {
            return "one of them contains a NUL";
        }
        bytes += argument.size() + 1;
    }
    return bytes > RELAUNCH_ARGUMENTS_MAX_BYTES ? "they are longer than 64 KiB" : nullptr;
}

} // namespace Pelnar::Engine
