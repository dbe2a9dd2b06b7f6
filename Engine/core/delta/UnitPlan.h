// UnitPlan.h: which old files which new ones are made from.
#pragma once

#include "Engine/core/delta/BundleReader.h"
#include "Engine/core/delta/DeltaContainerWriter.h"

#include <filesystem>
#include <vector>

namespace Pelnar::Engine
{

/// A unit for each program that has an old version, under its path or one that differs in numbers only, with the
/// changes of its segments; a unit for each packed text, except for low effort: packing takes clients ten times as long
/// as the rest; units for all other files that are not kept, of the old files that have changed or gone. In every unit
/// like files stand together.
[[nodiscard]] std::vector<DeltaUnit> PlanUnits(OldVersion const& old, std::filesystem::path const& newFolder,
                                               std::vector<DeltaEntry> const& entries, DeltaEffort effort);

} // namespace Pelnar::Engine
