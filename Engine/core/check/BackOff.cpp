#include "Engine/core/check/BackOff.h"

#include <algorithm>
#include <limits>

namespace Pelnar::Engine
{
namespace
{

constexpr int LONGEST_HOURS = 24;
constexpr int DOUBLINGS_TO_LONGEST = 5; // 1, 2, 4, 8, 16, then the longest
constexpr qint64 SECONDS_PER_HOUR = 3600;

} // namespace

std::chrono::hours BackOffAfter(int failures)
{
    if (failures <= 0)
    {
        return std::chrono::hours(0);
    }
    return std::chrono::hours(failures > DOUBLINGS_TO_LONGEST ? LONGEST_HOURS : 1 << (failures - 1));
}

bool IsHeldBack(BackOffState const& state, QDateTime const& now)
{
    if (state.failures <= 0 || !state.lastFailure.isValid() || now < state.lastFailure)
    {
        return false;
    }
    return state.lastFailure.secsTo(now) < BackOffAfter(state.failures).count() * SECONDS_PER_HOUR;
}

BackOffState AfterFailure(BackOffState const& state, QDateTime const& now)
{
    int const before = std::clamp(state.failures, 0, std::numeric_limits<int>::max() - 1);
    return {before + 1, now};
}

} // namespace Pelnar::Engine
