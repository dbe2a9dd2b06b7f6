// DownloadBudget.h: the cost limits of one archive over all attempts and all runs of the application. So no server can
// keep a client downloading forever. Pure functions.
#pragma once

#include "Engine/core/faults/Result.h"

#include <cstdint>

namespace Pelnar::Engine
{

/// The cost of an archive so far.
struct DownloadSpending
{
    std::uint64_t receivedBytes = 0; ///< body bytes, including discarded ones
    std::uint64_t attempts = 0;      ///< requests for the archive or the rest of it
    std::uint64_t seconds = 0;       ///< during which a download ran
};

/// The highest cost of an archive: twice its length; one attempt for each 64 KiB plus 64; half an hour plus the time
/// for its length at 2 KiB/s, at most a day.
[[nodiscard]] DownloadSpending BudgetOf(std::uint64_t declaredBytes);

/// Fails if no request for \a missingBytes of an archive may be made. A request that cannot complete the
/// archive within the budget is not made.
[[nodiscard]] Result<void> JudgeSpending(DownloadSpending const& spent, std::uint64_t declaredBytes,
                                         std::uint64_t missingBytes);

/// How much of a disk of \a diskBytes downloads leave free: a twentieth, at least 256 MiB and at most 4 GiB, but never
/// more than a quarter of the disk.
[[nodiscard]] std::uint64_t DiskReserve(std::uint64_t diskBytes);

} // namespace Pelnar::Engine
