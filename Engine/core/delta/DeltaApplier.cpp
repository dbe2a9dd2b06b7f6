#include "Engine/core/delta/DeltaApplier.h"

#include "Engine/core/archive/TreeManifest.h"
#include "Engine/core/delta/BundleFiles.h"
#include "Engine/core/delta/JoinedApplier.h"

#include <memory>
#include <numeric>

namespace Pelnar::Engine
{
namespace
{

/// In the joined format, only the old version has the sizes of kept files. They count as the other files' sizes, which
/// were judged when the manifest was read.
DeltaOutcome FindKeptSizes(int oldBundleFd, DeltaLimits const& limits, DeltaManifest& manifest)
{
    if (manifest.format != DeltaFormat::Joined)
    {
        return {};
    }
    auto const files = std::make_unique<BundleFiles>(oldBundleFd, -1);
    std::uint64_t bytes = 0;
    for (DeltaEntry& entry : manifest.entries)
    {
        DeltaOutcome outcome;
        if (entry.kind == DeltaEntryKind::Kept)
        {
            outcome = files->FindSize(entry.sourcePath, entry.size);
        }
        if (outcome.HasSucceeded() && entry.size > limits.tree.maxBytes - bytes)
        {
            outcome = {DeltaError::TreeRefused, {}, 0, UpdateFault::TooManyBytes};
        }
        if (!outcome.HasSucceeded())
        {
            outcome.path = entry.path;
            return outcome;
        }
        bytes += entry.size;
    }
    return {};
}

/// From the hashes of the written files.
ContentHash DigestOf(std::vector<DeltaEntry> const& entries)
{
    TreeManifest tree;
    for (DeltaEntry const& entry : entries)
    {
        switch (entry.kind)
        {
        case DeltaEntryKind::Directory:
            tree.AddFolder(entry.path, 0755);
            break;
        case DeltaEntryKind::SymbolicLink:
            tree.AddLink(entry.path, entry.linkTarget);
            break;
        case DeltaEntryKind::Kept:
        case DeltaEntryKind::Patched:
        case DeltaEntryKind::Whole:
            tree.AddFile(entry.path, entry.isExecutable ? 0755 : 0644, entry.size, entry.hash);
            break;
        }
    }
    return tree.Digest();
}

} // namespace

DeltaOutcome ApplyDelta(int containerFd, int oldBundleFd, int stagingFd, DeltaLimits const& limits,
                        DeltaProgress const& progress, ContentHash& digest)
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
    bool const isJoined = manifest.format == DeltaFormat::Joined;
    DeltaOutcome outcome =
        isJoined ? ApplyJoinedDelta(work, manifest, entryDone) : ApplySeparateDelta(work, manifest, entryDone);
    if (outcome.HasSucceeded())
    {
        // The separate format has another kind of hash.
        digest = isJoined ? DigestOf(manifest.entries) : DigestTree(stagingFd);
    }
    return outcome;
}

} // namespace Pelnar::Engine
