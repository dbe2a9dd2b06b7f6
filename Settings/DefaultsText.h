// DefaultsText.h: user defaults as the text of a property list, and what one of its values means.
// Thread: any; no state. Ownership: values only.
#pragma once

#include "Engine/core/payload/PropertyList.h"
#include "common/SettingKeys.h"

#include <QVariant>

#include <map>
#include <optional>
#include <string>
#include <string_view>

namespace Pelnar::Settings
{

/// Every entry of the list, those that nobody here knows included.
using DefaultsEntries = std::map<std::string, Engine::PropertyListValue>;

/// Nothing for text that is no dictionary; an empty text is an empty dictionary.
std::optional<DefaultsEntries> ParseDefaults(std::string_view text);

/// One entry a line, for a person to read and to change.
std::string FormatDefaults(DefaultsEntries const& entries);

/// The value as \a type has it: text, a boolean, a number (qlonglong) or a time. What is of another type comes as the
/// text that it is, or as a null value of type list when it is no text.
QVariant MeaningOf(Engine::PropertyListValue const& value, Core::SettingType type);

/// The entry that MeaningOf() reads as \a value.
Engine::PropertyListValue EntryFor(QVariant const& value);

} // namespace Pelnar::Settings
