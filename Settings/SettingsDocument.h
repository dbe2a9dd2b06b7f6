// SettingsDocument.h: the page about all settings, generated from their table. Pure functions.
#pragma once

#include <string>

namespace Pelnar::Settings
{

/// The text of docs/guide/settings.md.
std::string SettingsAsMarkdown();

} // namespace Pelnar::Settings
