#include "Engine/core/bundle/PropertyList.h"

#include "Engine/core/bundle/PropertyListReader_p.h"

#include <algorithm>

#include <unistr.h>

namespace Pelnar::Engine
{

std::optional<std::string> PropertyListValue::TextOf(std::string_view key) const
{
    auto const found = std::find_if(properties.begin(), properties.end(),
                                    [key](auto const& property) { return property.first == key; });
    if (found == properties.end() || found->second.kind != Kind::Text)
    {
        return std::nullopt;
    }
    return found->second.text;
}

bool PropertyListCursor::Take(std::string_view word)
{
    if (m_rest.substr(0, word.size()) != word)
    {
        return false;
    }
    m_rest.remove_prefix(word.size());
    return true;
}

std::optional<std::string_view> PropertyListCursor::TakeUntil(std::string_view mark)
{
    std::size_t const place = m_rest.find(mark);
    if (place == std::string_view::npos)
    {
        return std::nullopt;
    }
    std::string_view const taken = m_rest.substr(0, place);
    m_rest.remove_prefix(place + mark.size());
    return taken;
}

void PropertyListCursor::SkipBlanks()
{
    std::size_t const place = m_rest.find_first_not_of(" \t\r\n");
    m_rest.remove_prefix(place == std::string_view::npos ? m_rest.size() : place);
}

bool AddProperty(PropertyListValue& dictionary, std::string key, PropertyListValue value)
{
    if (dictionary.properties.size() == PROPERTY_LIST_MAX_KEYS)
    {
        return false;
    }
    bool const isKnown = std::any_of(dictionary.properties.begin(), dictionary.properties.end(),
                                     [&key](auto const& property) { return property.first == key; });
    if (!isKnown)
    {
        dictionary.properties.emplace_back(std::move(key), std::move(value));
    }
    return !isKnown;
}

bool AppendCodePoint(std::string& text, unsigned long codePoint)
{
    std::uint8_t bytes[6];
    int const count =
        codePoint == 0 || codePoint > 0x10ffff ? -1 : u8_uctomb(bytes, static_cast<ucs4_t>(codePoint), sizeof bytes);
    if (count <= 0)
    {
        return false;
    }
    text.append(reinterpret_cast<char const*>(bytes), static_cast<std::size_t>(count));
    return true;
}

namespace
{

[[nodiscard]] bool IsReadable(std::string_view text)
{
    return text.size() <= PROPERTY_LIST_MAX_BYTES && text.find('\0') == std::string_view::npos &&
           u8_check(reinterpret_cast<std::uint8_t const*>(text.data()), text.size()) == nullptr;
}

/// Consumes the whole text, or stops at its fault.
[[nodiscard]] bool Read(PropertyListCursor& cursor, PropertyListValue& value)
{
    cursor.SkipBlanks();
    if (cursor.Next() == '<')
    {
        return ReadXmlPropertyList(cursor, value) && cursor.IsAtEnd();
    }
    SkipOldStyleBlanks(cursor);
    if (!ReadOldStyleValue(cursor, 1, value))
    {
        return false;
    }
    SkipOldStyleBlanks(cursor);
    return cursor.IsAtEnd();
}

} // namespace

std::optional<PropertyListValue> ParsePropertyList(std::string_view text)
{
    PropertyListCursor cursor(text);
    PropertyListValue value;
    return IsReadable(text) && Read(cursor, value) ? std::optional(std::move(value)) : std::nullopt;
}

int FaultLineOfPropertyList(std::string_view text)
{
    PropertyListCursor cursor(text);
    PropertyListValue value;
    if (!IsReadable(text) || Read(cursor, value))
    {
        return 0;
    }
    std::string_view const read = text.substr(0, text.size() - cursor.Left());
    return 1 + int(std::count(read.begin(), read.end(), '\n'));
}

} // namespace Pelnar::Engine
