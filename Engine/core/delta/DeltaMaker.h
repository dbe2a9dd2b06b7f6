// DeltaMaker.h: compares two versions of a bundle and writes the delta from the first to the second. It runs only on
// the publisher's computer and trusts the trees.
#pragma once

#include "Engine/core/delta/DeltaContainerWriter.h"

#include <filesystem>
#include <functional>
#include <string>

namespace Pelnar::Engine
{

struct DeltaReport
{
    DeltaOutcome outcome;
    std::uint64_t keptFiles = 0;
    std::uint64_t patchedFiles = 0;
    std::uint64_t wholeFiles = 0;
    std::uint64_t containerBytes = 0;
};

/// Called in the calling thread after each piece of the work: pieces done, and in total.
using DeltaMakerProgress = std::function<void(std::uint64_t donePieces, std::uint64_t totalPieces)>;

/// Writes the delta from the folder \a oldBundle to the folder \a newBundle into the file open at \a containerFd, which
/// must be empty. All processors work on it. The same two folders and the same effort always make the same bytes.
[[nodiscard]] DeltaReport MakeDelta(std::filesystem::path const& oldBundle, std::string const& baseVersion,
                                    std::filesystem::path const& newBundle, std::string const& targetVersion,
                                    int containerFd, DeltaMakerProgress const& progress = {},
                                    DeltaEffort effort = DeltaEffort::Usual);

} // namespace Pelnar::Engine
