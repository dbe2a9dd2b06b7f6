// OSVersion.h: the version of the running operating system.
//
//     qInfo("Updates are chosen for system version %s", qPrintable(Pelnar::Util::OSVersion()));
//
// Thread: the Qt main thread. The host framework provides the definition.
#pragma once

#include "common/Export.h"

#include <QString>

namespace Pelnar::Util
{

/// Returns the running system's version as decimal components separated by ".". If the text does not parse as a
/// version, the updater ignores the system bounds of feed items. The updater calls this once per process.
PELNAR_EXPORT QString OSVersion();

} // namespace Pelnar::Util
