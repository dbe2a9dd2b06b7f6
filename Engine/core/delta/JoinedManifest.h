// JoinedManifest.h: the manifest of the format that joins the files' data in streams, and its rules for units.
// The format is described in docs/formats/delta.md.
#pragma once

#include "Engine/core/delta/ManifestBytes.h"

namespace Pelnar::Engine
{

/// Reads what follows the two versions' texts.
void ReadJoinedManifest(ManifestBytes::Reader& reader, DeltaLimits const& limits, DeltaManifest& manifest);
/// The rules for units and streams, for a manifest whose tree is accepted.
[[nodiscard]] DeltaManifestVerdict CheckUnits(DeltaManifest const& manifest, DeltaLimits const& limits);

} // namespace Pelnar::Engine
