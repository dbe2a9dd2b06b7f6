// ProcessMark.h: how a process is told from a later one of the same number.
// Thread: any; plain values. Ownership: values only.
#pragma once

#include <cstdint>

namespace Pelnar::Engine
{

struct ProcessMark
{
    std::uint64_t number = 0;    ///< 0: none
    std::uint64_t startTime = 0; ///< as the kernel counts it; 0 when it is not known

    bool operator==(ProcessMark const& other) const { return number == other.number && startTime == other.startTime; }
};

/// When the process of that number started, as the kernel counts; 0 when there is none, or it has ended.
std::uint64_t StartTimeOf(std::uint64_t process);

ProcessMark MarkOfThisProcess();
/// False too when the mark's start time is not known.
[[nodiscard]] bool IsRunning(ProcessMark const& process);

} // namespace Pelnar::Engine
