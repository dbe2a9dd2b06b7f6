// PropertyListReader_p.h: a position in the text and its operations, shared by the readers of both styles of property
// list.
// Thread: one at a time. Ownership: the caller owns the text.
#pragma once

#include "Engine/core/bundle/PropertyList.h"

namespace Pelnar::Engine
{

class PropertyListCursor
{
public:
    explicit PropertyListCursor(std::string_view text) : m_rest(text) {}

    bool IsAtEnd() const { return m_rest.empty(); }
    /// The next character, or NUL at the end.
    char Next() const { return m_rest.empty() ? '\0' : m_rest.front(); }
    void Skip(std::size_t count = 1) { m_rest.remove_prefix(count); }
    /// Consumes \a word if it comes next.
    bool Take(std::string_view word);
    /// Consumes everything before \a mark and the mark itself; empty if the mark does not appear.
    std::optional<std::string_view> TakeUntil(std::string_view mark);
    void SkipBlanks();
    /// The bytes that are not consumed yet.
    std::size_t Left() const { return m_rest.size(); }

private:
    std::string_view m_rest;
};

/// Puts \a key and \a value into \a dictionary; false if the key already exists or the dictionary is full.
[[nodiscard]] bool AddProperty(PropertyListValue& dictionary, std::string key, PropertyListValue value);
/// Writes the code point in UTF-8; false if text must not contain it.
[[nodiscard]] bool AppendCodePoint(std::string& text, unsigned long codePoint);

bool ReadOldStyleValue(PropertyListCursor& cursor, int depth, PropertyListValue& value);
void SkipOldStyleBlanks(PropertyListCursor& cursor);
bool ReadXmlPropertyList(PropertyListCursor& cursor, PropertyListValue& value);

} // namespace Pelnar::Engine
