// FailingAllocator.h: the memory that a test shares with the allocator in a program: which allocations fail, and how
// many there were.
// Thread: any; the counters are atomic, also between processes. Ownership: both sides map the file.
#pragma once

#include <atomic>
#include <cstdint>

namespace Pelnar::Testing
{

/// The number of the inherited file with the plan. One digit, because the shell can open only these.
constexpr int ALLOCATION_PLAN_DESCRIPTOR = 9;

struct AllocationPlan
{
    enum class Mode : std::uint64_t
    {
        One,     ///< that one fails
        AllFrom, ///< that one and all after it fail
    };

    Mode mode = Mode::One;
    std::uint64_t firstRefused = 0; ///< from 1
    std::atomic<std::uint64_t> asked = 0;
    std::atomic<std::uint64_t> refused = 0;
};

} // namespace Pelnar::Testing
