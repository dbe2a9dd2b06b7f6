// HostileNotes.h: release notes that try to load files, run code, deceive or exhaust memory.
#pragma once

#include "Engine/core/notes/ReleaseNotesFilter.h"

#include <string>
#include <vector>

namespace Pelnar::Testing
{

struct HostileNotes
{
    std::string name;
    Engine::ReleaseNotesFormat format;
    std::string text;
};

/// Documents that refer to a file or an address use \a canaryPath (an absolute path) or \a canaryAddress (host and
/// port).
[[nodiscard]] std::vector<HostileNotes> AllHostileNotes(std::string const& canaryPath,
                                                        std::string const& canaryAddress);

} // namespace Pelnar::Testing
