// RelaunchPath_p.h: the path of the application after a given version of it is installed. Pure functions.
#pragma once

#include "HostFramework/IoPath.h"
#include "HostFramework/Version.h"

#include <string>

namespace Pelnar::App
{

/// "/Applications/First Second.app", or "/Applications/First Second N.app" if the major version N is at least 2. The
/// parts are in UTF-8. It does not check that the path exists.
[[nodiscard]] ioPath RelaunchPathFor(std::string const& bundleNameFirstPart, std::string const& bundleNameSecondPart,
                                     Core::Version const& version);

} // namespace Pelnar::App
