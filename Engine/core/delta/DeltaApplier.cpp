#include "Engine/core/delta/DeltaApplier.h"

#include "Engine/core/delta/JoinedApplier.h"

#include <numeric>

namespace Pelnar::Engine
{

DeltaOutcome ApplyDelta(int containerFd, int oldBundleFd, int stagingFd, DeltaLimits const& limits,
                        DeltaProgress const& progress)
{
    DeltaManifest manifest;
    std::uint64_t dataOffset = 0;
    if (DeltaOutcome outcome = ReadDeltaManifest(containerFd, limits, manifest, dataOffset); !outcome.HasSucceeded())
    {
        return outcome;
    }
    std::uint64_t const total =
        std::accumulate(manifest.entries.begin(), manifest.entries.end(), std::uint64_t(0),
                        [](std::uint64_t sum, DeltaEntry const& entry) { return sum + entry.size; });
    std::uint64_t done = 0;
    EntryDone const entryDone = [&done, total, &progress](DeltaEntry const& entry)
    {
        done += entry.size;
        if (progress)
        {
            progress(done, total);
        }
    };
    DeltaWork const work{containerFd, oldBundleFd, stagingFd, dataOffset};
    return manifest.format == DeltaFormat::Joined ? ApplyJoinedDelta(work, manifest, entryDone)
                                                  : ApplySeparateDelta(work, manifest, entryDone);
}

} // namespace Pelnar::Engine
