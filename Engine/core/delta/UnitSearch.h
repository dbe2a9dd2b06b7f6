// UnitSearch.h: finds the steps for the files of units, with all processors. Thread: as in DoAll. Ownership: it owns
// the texts during the call.
#pragma once

#include "Engine/core/delta/BundleReader.h"
#include "Engine/core/delta/TokenizedText.h"

#include <filesystem>
#include <functional>
#include <vector>

namespace Pelnar::Engine
{

/// The steps of each target of a unit, in the order of the targets.
using UnitSteps = std::vector<std::vector<PatchStep>>;

/// Called after each piece of the work: pieces done, and in total.
using SearchProgress = std::function<void(std::uint64_t done, std::uint64_t total)>;

/// The text of a packed file of a unit. Throws std::filesystem::filesystem_error if the file has changed since the unit
/// was planned.
[[nodiscard]] TokenizedText PackedTextOf(OpenedFile const& file);

/// The result depends only on the files, not on the machine. Throws std::filesystem::filesystem_error, and
/// std::bad_alloc: an old text takes six times its size in memory.
[[nodiscard]] std::vector<UnitSteps> SearchUnits(std::vector<DeltaUnit> const& units,
                                                 std::filesystem::path const& oldFolder,
                                                 std::filesystem::path const& newFolder,
                                                 std::vector<DeltaEntry> const& entries,
                                                 SearchProgress const& progress);

} // namespace Pelnar::Engine
