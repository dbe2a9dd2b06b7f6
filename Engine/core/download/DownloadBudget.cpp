#include "Engine/core/download/DownloadBudget.h"

#include <algorithm>
#include <limits>

namespace Pelnar::Engine
{
namespace
{

constexpr std::uint64_t KIBIBYTE = 1024;
constexpr std::uint64_t MEBIBYTE = KIBIBYTE * KIBIBYTE;
constexpr std::uint64_t FREE_ATTEMPTS = 64;
constexpr std::uint64_t BYTES_PER_ATTEMPT = 64 * KIBIBYTE;
constexpr std::uint64_t FREE_SECONDS = 30 * 60;
constexpr std::uint64_t SLOWEST_BYTES_PER_SECOND = 2 * KIBIBYTE;
constexpr std::uint64_t MOST_SECONDS = 24 * 60 * 60;

} // namespace

DownloadSpending BudgetOf(std::uint64_t declaredBytes)
{
    DownloadSpending budget;
    bool const isHuge = declaredBytes > std::numeric_limits<std::uint64_t>::max() / 2;
    budget.receivedBytes = isHuge ? std::numeric_limits<std::uint64_t>::max() : 2 * declaredBytes;
    budget.attempts = FREE_ATTEMPTS + declaredBytes / BYTES_PER_ATTEMPT;
    budget.seconds = std::min(MOST_SECONDS, FREE_SECONDS + declaredBytes / SLOWEST_BYTES_PER_SECOND);
    return budget;
}

Result<void> JudgeSpending(DownloadSpending const& spent, std::uint64_t declaredBytes, std::uint64_t missingBytes)
{
    DownloadSpending const budget = BudgetOf(declaredBytes);
    if (spent.receivedBytes > budget.receivedBytes || budget.receivedBytes - spent.receivedBytes < missingBytes)
    {
        return Failure(ErrorCause::DownloadTooMuch);
    }
    if (spent.attempts >= budget.attempts)
    {
        return Failure(ErrorCause::DownloadTooOften);
    }
    if (spent.seconds >= budget.seconds)
    {
        return Failure(ErrorCause::DownloadTooLong);
    }
    return {};
}

std::uint64_t DiskReserve(std::uint64_t diskBytes)
{
    return std::min(std::clamp(diskBytes / 20, 256 * MEBIBYTE, 4 * KIBIBYTE * MEBIBYTE), diskBytes / 4);
}

} // namespace Pelnar::Engine
