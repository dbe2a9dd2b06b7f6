// JoinedManifest.h: the manifest of the joined format, and the rules for units. docs/formats/delta.md describes the
// format.
#pragma once

#include "Engine/core/delta/ManifestBytes.h"

namespace Pelnar::Engine
{

/// Reads the part after the two version texts.
void ReadJoinedManifest(ManifestBytes::Reader& reader, DeltaLimits const& limits, DeltaManifest& manifest);
/// The rules for units and streams, for a manifest whose tree is accepted.
[[nodiscard]] DeltaManifestVerdict CheckUnits(DeltaManifest const& manifest, DeltaLimits const& limits);

} // namespace Pelnar::Engine
