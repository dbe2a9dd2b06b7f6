// SeparateApplier.h: makes a tree from a container in which each file's data are separate.
// Thread: as for DeltaApplier.h. Ownership: descriptors stay the caller's.
#pragma once

#include "Engine/core/delta/BinaryPatch.h"
#include "Engine/core/delta/DeltaContainer.h"

#include <functional>
#include <vector>

namespace Pelnar::Engine
{

struct DeltaWork
{
    int containerFd;
    int oldBundleFd;
    int stagingFd;
    std::uint64_t dataOffset;
};

/// Called after each entry that is made.
using EntryDone = std::function<void(DeltaEntry const& entry)>;

[[nodiscard]] DeltaOutcome ApplySeparateDelta(DeltaWork const& work, DeltaManifest const& manifest,
                                              EntryDone const& done);

/// The streams as an applier of patches reads them.
[[nodiscard]] PatchSources SourcesOf(std::vector<DeltaStream>& streams);
[[nodiscard]] bool AreAtEnd(std::vector<DeltaStream>& streams);

/// The outcome of a patch. Reads errno.
[[nodiscard]] DeltaOutcome OutcomeOf(PatchVerdict verdict);

} // namespace Pelnar::Engine
