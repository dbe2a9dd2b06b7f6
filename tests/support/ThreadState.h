// ThreadState.h: says whether a thread of this process sleeps in the kernel, for tests of waiting.
// A number is valid as long as its thread runs.
#pragma once

#include <cstdint>

namespace Pelnar::Testing
{

/// Never 0.
std::uint64_t RunningThread();
[[nodiscard]] bool IsAsleep(std::uint64_t thread);

} // namespace Pelnar::Testing
