// Extensions.h: which attributes of a feed item are extensions, and the keys that the session looks up. Plain C++,
// private to the session. Pure functions and constants.
#pragma once

#include <QString>

#include <optional>

namespace Pelnar::App::Session
{

namespace Extensions
{

extern QString const VERSION; ///< of the extension scheme; part of the prefix
extern QString const PREFIX;  ///< the start of every extension's name
/// The extension that overrides the relaunch path. Keys of the extension map are in upper case, so this is too.
extern QString const KEY_OVERRIDE_PATH_TO_RELAUNCH;

} // namespace Extensions

/// The key of the attribute \a name in the extension map, in upper case; empty if it is not an extension.
std::optional<QString> ExtensionKey(QString const& name);

} // namespace Pelnar::App::Session
