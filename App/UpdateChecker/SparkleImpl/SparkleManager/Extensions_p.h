// Extensions_p.h: which attributes of a feed item are extensions, and the keys that the session looks up. Plain C++,
// private to the session. Thread: values and constants.
#pragma once

#include <QString>

#include <optional>

namespace Pelnar::App::Session
{

namespace Extensions
{

extern QString const VERSION; ///< of the extension scheme; part of the prefix
extern QString const PREFIX;  ///< what the names of extensions begin with
/// The extension that overrides the relaunch path. Keys of the extension map are in upper case, so this is too.
extern QString const KEY_OVERRIDE_PATH_TO_RELAUNCH;

} // namespace Extensions

/// The key in the extension map of the attribute \a name, its name in upper case; nothing when it is no extension.
std::optional<QString> ExtensionKey(QString const& name);

} // namespace Pelnar::App::Session
