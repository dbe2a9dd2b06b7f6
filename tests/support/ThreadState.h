// ThreadState.h: whether a thread of this process sleeps in the kernel, for tests of what waits.
// Ownership: values; a number is good as long as its thread runs.
#pragma once

#include <cstdint>

namespace Pelnar::Testing
{

/// Never 0.
std::uint64_t RunningThread();
[[nodiscard]] bool IsAsleep(std::uint64_t thread);

} // namespace Pelnar::Testing
