// ReferenceOSVersion.h: where the reference framework's OSVersion takes its answer from, and how a host replaces it.
//
//     Pelnar::Util::SetOSVersion(QStringLiteral("12.4")); // of the system outside, where the host runs in a container
//
// Thread: the Qt main thread. Ownership: the override is kept for the life of the process.
//
// macOS: the system's own version, with its patch number. Linux: VERSION_ID of the first os-release file that exists; a
// system without one (a rolling release) has an empty version, with which the updater ignores the system bounds of feed
// items.
#pragma once

#include "common/Export.h"

#include <QByteArray>
#include <QOperatingSystemVersion>
#include <QString>
#include <QStringList>

namespace Pelnar::Util
{

/// Makes OSVersion answer \a version from now on; a null string gives the system's own answer back. Call it before the
/// first check: the updater asks once in a process.
PELNAR_EXPORT void SetOSVersion(QString const& version);

/// The major, the minor and the patch number, with "." between them. Bounds of feed items name the patch number too.
PELNAR_EXPORT QString AllComponentsOf(QOperatingSystemVersion const& version);

/// The value of VERSION_ID in \a osRelease, the content of an os-release file: quotes and escapes resolved, the last
/// assignment wins; empty when there is none.
PELNAR_EXPORT QString VersionIdOf(QByteArray const& osRelease);

/// VersionIdOf the first of \a paths that can be read; empty when none can.
PELNAR_EXPORT QString VersionIdFromFiles(QStringList const& paths);

} // namespace Pelnar::Util
