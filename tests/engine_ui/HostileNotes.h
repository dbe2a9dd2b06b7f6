// HostileNotes.h: release notes that try to load, to run, to deceive or to exhaust.
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

/// Every document in which something refers to a file or an address names \a canaryPath (an absolute path) or
/// \a canaryAddress (host and port).
[[nodiscard]] std::vector<HostileNotes> AllHostileNotes(std::string const& canaryPath,
                                                        std::string const& canaryAddress);

} // namespace Pelnar::Testing
