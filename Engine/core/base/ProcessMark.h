// ProcessMark.h: distinguishes a process from a later one with the same number. Pure values; any thread.
#pragma once

#include <cstdint>

namespace Pelnar::Engine
{

struct ProcessMark
{
    std::uint64_t number = 0;    ///< 0: none
    std::uint64_t startTime = 0; ///< in the kernel's ticks; 0 if unknown
};

/// The start time of a running process, in the kernel's ticks; 0 if no process with that number runs.
std::uint64_t StartTimeOf(std::uint64_t process);

ProcessMark MarkOfThisProcess();
/// Also false if the mark's start time is unknown.
[[nodiscard]] bool IsRunning(ProcessMark const& process);

} // namespace Pelnar::Engine
