// FailingAllocator.h: what a test and the allocator that it puts under a program share: which allocations fail, and how
// many there were.
// Thread: any; the counters are atomic, also between processes. Ownership: a file's mapping on both sides.
#pragma once

#include <atomic>
#include <cstdint>

namespace Pelnar::Testing
{

/// Under this number the program inherits the file with the plan. Of one digit, for the shell that opens it.
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
