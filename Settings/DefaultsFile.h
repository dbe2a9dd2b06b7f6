// DefaultsFile.h: the file of an application's user defaults. Linux.
// Thread: any; several processes may change one file at once. Ownership: values only.
#pragma once

#include "Settings/ApplicationFolder.h"
#include "Settings/DefaultsText.h"

#include <QStringList>

#include <functional>
#include <optional>
#include <string>

namespace Pelnar::Settings
{

constexpr char DEFAULTS_FILE[] = "updates.plist";

/// What the file in the application's folder \a place says, and what \a earlierFiles say as long as they have not been
/// taken over. What cannot be read is logged once and counts as absent.
DefaultsEntries ReadDefaults(ApplicationFolder const& place, QStringList const& earlierFiles);

/// Has \a change change the entries, which are on the disk when this answers. Takes over what \a earlierFiles say. What
/// is no list of defaults gets another name first. False when that failed, which the log says; the file is as before.
[[nodiscard]] bool ChangeDefaults(ApplicationFolder const& place, QStringList const& earlierFiles,
                                  std::function<void(DefaultsEntries&)> const& change);

} // namespace Pelnar::Settings
