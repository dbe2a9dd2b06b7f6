// DownloadBudget.h: what one archive may cost over all attempts and all runs of the application, so that no server can
// keep a client downloading for ever. Pure decisions.
// Thread: any; no state. Ownership: values only.
#pragma once

#include "Engine/core/EngineError.h"

#include <chrono>
#include <cstdint>
#include <optional>

namespace Pelnar::Engine
{

/// What an archive has cost so far.
struct DownloadSpending
{
    std::uint64_t receivedBytes = 0; ///< of bodies, those that were thrown away included
    std::uint64_t attempts = 0;      ///< requests for the archive or its rest
    std::uint64_t seconds = 0;       ///< while a download ran

    friend bool operator==(DownloadSpending const& a, DownloadSpending const& b)
    {
        return a.receivedBytes == b.receivedBytes && a.attempts == b.attempts && a.seconds == b.seconds;
    }
};

/// The most that an archive may cost: twice its length; one attempt for each 64 KiB and 64 more; half an hour and the
/// time that its length takes at 2 KiB/s, but no more than a day.
[[nodiscard]] DownloadSpending BudgetOf(std::uint64_t declaredBytes);

/// Why no request for \a missingBytes of an archive may be made; nothing when it may. A request that cannot bring the
/// end of the archive within the budget is not made.
[[nodiscard]] std::optional<ErrorCause> JudgeSpending(DownloadSpending const& spent, std::uint64_t declaredBytes,
                                                      std::uint64_t missingBytes);

/// How much of a disk of \a diskBytes downloads leave free: a twentieth, at least 256 MiB and at most 4 GiB, but never
/// more than a quarter of the disk.
[[nodiscard]] std::uint64_t DiskReserve(std::uint64_t diskBytes);

} // namespace Pelnar::Engine
