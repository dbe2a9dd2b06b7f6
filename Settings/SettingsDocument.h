// SettingsDocument.h: the page about all settings, made from their table.
// Thread: any; no state. Ownership: values only.
#pragma once

#include <string>

namespace Pelnar::Settings
{

/// The text of docs/guide/settings.md.
std::string SettingsAsMarkdown();

} // namespace Pelnar::Settings
