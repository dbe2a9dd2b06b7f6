#include "Engine/core/delta/DeltaApplier.h"

#include "Engine/core/delta/BundleFiles.h"
#include "Engine/core/delta/JoinedApplier.h"

#include <memory>
#include <numeric>

namespace Pelnar::Engine
{
namespace
{

/// In the joined format only the old version tells the sizes of kept files. With them the tree is judged once more,
/// before anything of it is made.
DeltaOutcome FindKeptSizes(int oldBundleFd, DeltaLimits const& limits, DeltaManifest& manifest)
{
    if (manifest.format != DeltaFormat::Joined)
    {
        return {};
    }
    auto const files = std::make_unique<BundleFiles>(oldBundleFd, -1);
    for (DeltaEntry& entry : manifest.entries)
    {
        DeltaOutcome outcome;
        if (entry.kind == DeltaEntryKind::Kept)
        {
            outcome = files->FindSize(entry.sourcePath, entry.size);
        }
        if (!outcome.HasSucceeded())
        {
            outcome.path = entry.path;
            return outcome;
        }
    }
    return OutcomeOf(CheckDeltaManifest(manifest, limits));
}

} // namespace

DeltaOutcome ApplyDelta(int containerFd, int oldBundleFd, int stagingFd, DeltaLimits const& limits,
                        DeltaProgress const& progress)
{
    DeltaManifest manifest;
    std::uint64_t dataOffset = 0;
    if (DeltaOutcome outcome = ReadDeltaManifest(containerFd, limits, manifest, dataOffset); !outcome.HasSucceeded())
    {
        return outcome;
    }
    if (DeltaOutcome outcome = FindKeptSizes(oldBundleFd, limits, manifest); !outcome.HasSucceeded())
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
