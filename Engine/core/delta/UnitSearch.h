// UnitSearch.h: finds the steps of the files of units, with all processors.
// Thread: DoAll's. Ownership: the texts are the search's own, and gone when it returns.
#pragma once

#include "Engine/core/delta/BundleReader.h"

#include <filesystem>
#include <functional>
#include <vector>

namespace Pelnar::Engine
{

/// The steps of each target of a unit, in their order.
using UnitSteps = std::vector<std::vector<PatchStep>>;

/// Told after each piece of the work: what is done, and in all.
using SearchProgress = std::function<void(std::uint64_t done, std::uint64_t total)>;

/// The answer depends on the files alone, and on nothing of the machine. Throws std::filesystem::filesystem_error, and
/// std::bad_alloc: an old text takes six times its size in memory.
[[nodiscard]] std::vector<UnitSteps> SearchUnits(std::vector<DeltaUnit> const& units,
                                                 std::filesystem::path const& oldFolder,
                                                 std::filesystem::path const& newFolder,
                                                 std::vector<DeltaEntry> const& entries,
                                                 SearchProgress const& progress);

} // namespace Pelnar::Engine
