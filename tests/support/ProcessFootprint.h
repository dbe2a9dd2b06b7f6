// ProcessFootprint.h: the resources of this process, for tests that they do not grow.
#pragma once

#include <string>
#include <vector>

namespace Pelnar::Testing
{

struct ProcessFootprint
{
    std::vector<std::string> descriptors; ///< the open files, sorted, without the one used for reading them
    int threads = 0;
    long residentKibibytes = 0; ///< after the allocator has given back what it can
};

ProcessFootprint MeasureFootprint();

/// Fails unless this process soon holds no more than \a before, except for one fiftieth of the memory. With sanitizers
/// the memory does not count, because they keep freed blocks. Returns the resources then.
ProcessFootprint ExpectNoGrowth(ProcessFootprint const& before);

} // namespace Pelnar::Testing
