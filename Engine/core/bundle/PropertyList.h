// PropertyList.h: a small strict reader of text property lists, in the old style of braces and in XML. Pure functions.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace Pelnar::Engine
{

struct PropertyListValue
{
    enum class Kind
    {
        Text, ///< strings, numbers, dates, truth values, data: as written
        List,
        Dictionary,
    };

    Kind kind = Kind::Text;
    std::string text;
    std::vector<PropertyListValue> items;                              ///< List
    std::vector<std::pair<std::string, PropertyListValue>> properties; ///< Dictionary, in the file's order

    /// The text under \a key, or an empty text if the value is missing or of another kind.
    std::optional<std::string> TextOf(std::string_view key) const;
};

constexpr std::size_t PROPERTY_LIST_MAX_BYTES = std::size_t{1} << 20;
constexpr int PROPERTY_LIST_MAX_DEPTH = 32;
constexpr std::size_t PROPERTY_LIST_MAX_KEYS = 4096; ///< in one dictionary

/// The value of \a text. Empty if the text exceeds a limit, names a key twice, or is not a property list from its first
/// byte to its last.
std::optional<PropertyListValue> ParsePropertyList(std::string_view text);

/// The line, from 1, at which \a text stops being a property list; 0 if another rule is broken.
int FaultLineOfPropertyList(std::string_view text);

} // namespace Pelnar::Engine
