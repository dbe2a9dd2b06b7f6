// EvilArchives.h: entries that no update archive may hold, each with the fault that says why.
// Thread: any. Ownership: values only.
#pragma once

#include "Engine/core/payload/UpdateFault.h"
#include "tests/installer/ArchiveForge.h"

#include <iosfwd>
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

} // namespace Pelnar::Testing
