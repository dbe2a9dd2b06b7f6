// EvilArchives.h: entries that an update archive must not contain, each with its fault.
#pragma once

#include "Engine/core/delta/DeltaManifest.h"
#include "Engine/core/faults/UpdateFault.h"
#include "tests/installer/ArchiveForge.h"

#include <iosfwd>
#include <string>
#include <vector>

namespace Pelnar::Testing
{

struct Evil
{
    char const* name;
    std::vector<ForgedEntry> entries; ///< after the entries of a valid bundle
    Engine::UpdateFault fault;
    bool isInZip = true; ///< a zip can contain it
    bool isInTar = true; ///< a tar can contain it
};

void PrintTo(Evil const& evil, std::ostream* out);

std::vector<Evil> const& EvilArchives();

/// Those that a delta can contain too: files, folders and links below the bundle's folder.
std::vector<Evil> EvilTrees();
/// A delta from nothing to the bundle APP with these entries. It contains every file completely.
std::string MakeWholeDelta(std::vector<ForgedEntry> tree, Engine::DeltaFormat format = Engine::DeltaFormat::Joined);
/// A delta to a valid bundle of version 2.0 with the evil entries.
std::string MakeEvilDelta(Evil const& evil, Engine::DeltaFormat format = Engine::DeltaFormat::Joined);

} // namespace Pelnar::Testing
