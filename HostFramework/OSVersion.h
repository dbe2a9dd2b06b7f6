// OSVersion.h: the version of the running operating system.
//
//     qInfo("Updates are chosen for system version %s", qPrintable(Pelnar::Util::OSVersion()));
//
// Thread: the Qt main thread. Ownership: none. Declared here, provided by the host framework.
#pragma once

#include "common/Export.h"

#include <QString>

namespace Pelnar::Util
{

/// The running system's version as decimal components separated by "."; text that does not parse as a version makes
/// the updater ignore the system bounds of feed items. The updater asks once in a process.
PELNAR_EXPORT QString OSVersion();

} // namespace Pelnar::Util
