// JoinedApplier.h: makes a tree from a container whose files' data are joined in streams.
// Thread: as for DeltaApplier.h. Ownership: descriptors stay the caller's.
#pragma once

#include "Engine/core/delta/ImageLayout.h"
#include "Engine/core/delta/SeparateApplier.h"

#include <vector>

namespace Pelnar::Engine
{

/// Sets the hash of each file in \a manifest.
[[nodiscard]] DeltaOutcome ApplyJoinedDelta(DeltaWork const& work, DeltaManifest& manifest, EntryDone const& done);

/// The segments of a program from those of its old version, \a layout, and their \a changes.
[[nodiscard]] std::vector<ImageSpan> ChangedSpans(ImageLayout const& layout, std::vector<SpanChange> const& changes);

} // namespace Pelnar::Engine
