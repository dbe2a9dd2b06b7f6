// ProcessFootprint.h: what this process holds of the system, for tests of what must not grow.
#pragma once

#include <string>
#include <vector>

namespace Pelnar::Testing
{

struct ProcessFootprint
{
    std::vector<std::string> descriptors; ///< what the open ones stand for, sorted; without the one that looks
    int threads = 0;
    long residentKibibytes = 0; ///< after the allocator has given back what it can
};

ProcessFootprint MeasureFootprint();

/// Fails unless this process soon holds no more than \a before, but for one hundredth of the memory. Sanitizers keep
/// freed blocks: under them the memory does not count. Answers what it holds now.
ProcessFootprint ExpectNoGrowth(ProcessFootprint const& before);

} // namespace Pelnar::Testing
