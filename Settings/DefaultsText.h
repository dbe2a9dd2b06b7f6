// DefaultsText.h: user defaults as the text of a property list, and the meaning of one value. Pure functions.
#pragma once

#include "Engine/core/bundle/PropertyList.h"
#include "common/SettingKeys.h"

#include <QVariant>

#include <map>
#include <optional>
#include <string>
#include <string_view>

namespace Pelnar::Settings
{

/// Every entry of the list, including unknown ones.
using DefaultsEntries = std::map<std::string, Engine::PropertyListValue>;

/// Empty for text that is not a dictionary; an empty text is an empty dictionary.
std::optional<DefaultsEntries> ParseDefaults(std::string_view text);

/// One entry on each line, for a person to read and change.
std::string FormatDefaults(DefaultsEntries const& entries);

/// The value as \a type: text, a boolean, a number (qlonglong) or a time. A value of another type becomes its text, or
/// a null value of type list if it is not text.
QVariant MeaningOf(Engine::PropertyListValue const& value, Core::SettingType type);

/// The entry that MeaningOf() reads as \a value.
Engine::PropertyListValue EntryFor(QVariant const& value);

} // namespace Pelnar::Settings
