// RelaunchPath_p.h: where the application lives once a given version of it is installed.
// Thread: any. Ownership: none.
#pragma once

#include "HostFramework/IoPath.h"
#include "HostFramework/Version.h"

#include <string>

namespace Pelnar::App
{

/// "/Applications/First Second.app", or "/Applications/First Second N.app" from major version N = 2 on. The parts are
/// in UTF-8. Whether the path exists is not looked at.
[[nodiscard]] ioPath RelaunchPathFor(std::string const& bundleNameFirstPart, std::string const& bundleNameSecondPart,
                                     Core::Version const& version);

} // namespace Pelnar::App
