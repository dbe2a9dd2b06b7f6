// EvilArchives.h: entries that no update archive may hold, each with the fault that says why.
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
    std::vector<ForgedEntry> entries; ///< after a right bundle
    Engine::UpdateFault fault;
    bool isInZip = true; ///< a zip can say it too
    bool isInTar = true; ///< a tar can
};

void PrintTo(Evil const& evil, std::ostream* out);

std::vector<Evil> const& EvilArchives();

/// Those of them that a delta can say as well: files, folders and links below the bundle's folder.
std::vector<Evil> EvilTrees();
/// A delta to the bundle APP of these entries, every file of which it brings whole.
std::string MakeWholeDelta(std::vector<ForgedEntry> tree, Engine::DeltaFormat format = Engine::DeltaFormat::Joined);
/// One to a right bundle of version 2.0 and the evil entries.
std::string MakeEvilDelta(Evil const& evil, Engine::DeltaFormat format = Engine::DeltaFormat::Joined);

} // namespace Pelnar::Testing
