// ReferenceOSVersion.h: the source of the reference framework's OSVersion, and how a host overrides it.
//
//     Pelnar::Util::SetOSVersion(QStringLiteral("12.4")); // of the system outside, where the host runs in a container
//
// Thread: the Qt main thread. Ownership: the override is kept until the process ends.
//
// macOS: the system's own version with its patch number. Linux: VERSION_ID of the first os-release file that exists. A
// system without one (a rolling release) has an empty version, and the updater then ignores the system bounds of feed
// items.
#pragma once

#include "common/Export.h"

#include <QByteArray>
#include <QOperatingSystemVersion>
#include <QString>
#include <QStringList>

namespace Pelnar::Util
{

/// Makes OSVersion return \a version. A null string restores the system's own version. Call it before the first check:
/// the updater asks once per process.
PELNAR_EXPORT void SetOSVersion(QString const& version);

/// The major, minor and patch numbers, separated by ".". Bounds of feed items include the patch number too.
PELNAR_EXPORT QString AllComponentsOf(QOperatingSystemVersion const& version);

/// The value of VERSION_ID in \a osRelease, the content of an os-release file. Quotes and escapes are resolved, and the
/// last assignment counts. Empty without an assignment.
PELNAR_EXPORT QString VersionIdOf(QByteArray const& osRelease);

/// VersionIdOf the first of \a paths that can be read; empty if none can be read.
PELNAR_EXPORT QString VersionIdFromFiles(QStringList const& paths);

} // namespace Pelnar::Util
