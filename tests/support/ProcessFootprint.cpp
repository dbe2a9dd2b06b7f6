#include "tests/support/ProcessFootprint.h"

#include "tests/support/DialogDriver.h"
#include "tests/support/Sanitizers.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>

#include <malloc.h>
#include <unistd.h>

namespace Pelnar::Testing
{
namespace
{

/// The number of a pipe or a socket is different each time.
std::string KindOf(std::string const& target)
{
    std::size_t const colon = target.find(":[");
    return target.substr(0, colon);
}

} // namespace

ProcessFootprint MeasureFootprint()
{
    ProcessFootprint footprint;
    for (auto const& entry : std::filesystem::directory_iterator("/proc/self/fd"))
    {
        std::error_code error;
        std::string const target = std::filesystem::read_symlink(entry.path(), error).string();
        if (target != "/proc/" + std::to_string(::getpid()) + "/fd")
        {
            footprint.descriptors.push_back(KindOf(target));
        }
    }
    std::sort(footprint.descriptors.begin(), footprint.descriptors.end());
    footprint.threads = static_cast<int>(std::distance(std::filesystem::directory_iterator("/proc/self/task"), {}));
    ::malloc_trim(0);
    // Counted page by page, because the simple number is only approximate.
    std::ifstream pages("/proc/self/smaps_rollup");
    for (std::string word; pages >> word;)
    {
        if (word == "Rss:")
        {
            pages >> footprint.residentKibibytes;
        }
    }
    return footprint;
}

ProcessFootprint ExpectNoGrowth(ProcessFootprint const& before)
{
    ProcessFootprint after;
    auto const hasNoMore = [&]
    {
        after = MeasureFootprint();
        return after.threads <= before.threads && std::includes(before.descriptors.begin(), before.descriptors.end(),
                                                                after.descriptors.begin(), after.descriptors.end());
    };
    // The kernel removes a thread some time after its end.
    EXPECT_TRUE(WaitFor(hasNoMore)) << after.threads << " threads instead of " << before.threads << ", descriptors "
                                    << testing::PrintToString(after.descriptors) << " instead of "
                                    << testing::PrintToString(before.descriptors);
    EXPECT_GT(before.residentKibibytes, 0);
    if (!IS_SANITIZED)
    {
        EXPECT_LE(after.residentKibibytes, before.residentKibibytes + before.residentKibibytes / 50);
    }
    return after;
}

} // namespace Pelnar::Testing
