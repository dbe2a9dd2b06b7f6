// DefaultsFile.h: the file of an application's user defaults. Linux.
// Thread: any; several processes may change one file at the same time.
#pragma once

#include "Settings/ApplicationFolder.h"
#include "Settings/DefaultsText.h"

#include <QStringList>

#include <functional>

namespace Pelnar::Settings
{

constexpr char DEFAULTS_FILE[] = "updates.plist";

/// The values of the file in the application's folder \a place, and those of \a earlierFiles until they have been
/// copied. A file that cannot be read is logged once and counts as absent.
DefaultsEntries ReadDefaults(ApplicationFolder const& place, QStringList const& earlierFiles);

/// Lets \a change change the entries, which are on the disk on return. Copies the values of \a earlierFiles. A file
/// that is not a list of defaults is renamed first. Returns false and logs the reason if this failed; the file is then
/// unchanged.
[[nodiscard]] bool ChangeDefaults(ApplicationFolder const& place, QStringList const& earlierFiles,
                                  std::function<void(DefaultsEntries&)> const& change);

} // namespace Pelnar::Settings
