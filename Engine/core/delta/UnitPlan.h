// UnitPlan.h: decides from which old files each new file is made. It reads the files of both versions.
#pragma once

#include "Engine/core/delta/BundleReader.h"
#include "Engine/core/delta/DeltaContainerWriter.h"

#include <filesystem>
#include <map>
#include <vector>

namespace Pelnar::Engine
{

struct UnitPlan
{
    std::vector<DeltaUnit> units;
    std::map<std::uint32_t, ByteBuffer> recipes; ///< of the targets that are packed texts
};

/// A program gets a unit with the changes of its segments. A packed text gets a unit, except with low effort, because
/// clients need ten times as long to pack it. In both cases the old file has the same path, or one that differs only in
/// numbers. All other files that are not kept are made from the old files that changed or were removed.
[[nodiscard]] UnitPlan PlanUnits(OldVersion const& old, std::filesystem::path const& newFolder,
                                 std::vector<DeltaEntry> const& entries, DeltaEffort effort);

} // namespace Pelnar::Engine
