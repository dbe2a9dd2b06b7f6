#include "Engine/core/bundle/PropertyListReader_p.h"

#include <charconv>

namespace Pelnar::Engine
{
namespace
{

constexpr std::string_view TEXT_ELEMENTS[] = {"string", "integer", "real", "date", "data"};

/// Blanks and comments.
bool SkipMisc(PropertyListCursor& cursor)
{
    for (;;)
    {
        cursor.SkipBlanks();
        if (!cursor.Take("<!--"))
        {
            return true;
        }
        if (!cursor.TakeUntil("-->"))
        {
            return false;
        }
    }
}

bool AppendReference(std::string_view name, std::string& text)
{
    struct Named
    {
        std::string_view name;
        char character;
    };
    for (Named const& named : {Named{"amp", '&'}, {"lt", '<'}, {"gt", '>'}, {"quot", '"'}, {"apos", '\''}})
    {
        if (named.name == name)
        {
            text += named.character;
            return true;
        }
    }
    bool const isHexadecimal = name.substr(0, 2) == "#x";
    if (name.substr(0, 1) != "#")
    {
        return false;
    }
    name.remove_prefix(isHexadecimal ? 2 : 1);
    unsigned long codePoint = 0;
    auto const [end, error] =
        std::from_chars(name.data(), name.data() + name.size(), codePoint, isHexadecimal ? 16 : 10);
    return error == std::errc() && end == name.data() + name.size() && AppendCodePoint(text, codePoint);
}

/// Character data up to and including the end tag of \a element.
bool ReadElementText(PropertyListCursor& cursor, std::string_view element, std::string& text)
{
    for (;;)
    {
        if (cursor.IsAtEnd())
        {
            return false;
        }
        char const character = cursor.Next();
        if (character == '<')
        {
            return cursor.Take("</") && cursor.Take(element) && cursor.Take(">");
        }
        cursor.Skip();
        if (character != '&')
        {
            text += character;
            continue;
        }
        auto const name = cursor.TakeUntil(";");
        if (!name || !AppendReference(*name, text))
        {
            return false;
        }
    }
}

/// The name of the next start tag, without attributes; \a isEmpty reports "<name/>".
std::optional<std::string_view> ReadStartTag(PropertyListCursor& cursor, bool& isEmpty)
{
    if (!cursor.Take("<"))
    {
        return std::nullopt;
    }
    auto name = cursor.TakeUntil(">");
    isEmpty = name && !name->empty() && name->back() == '/';
    if (isEmpty)
    {
        name->remove_suffix(1);
    }
    return name;
}

bool ReadValue(PropertyListCursor& cursor, int depth, PropertyListValue& value);

bool ReadDictionary(PropertyListCursor& cursor, int depth, PropertyListValue& value)
{
    for (;;)
    {
        if (!SkipMisc(cursor))
        {
            return false;
        }
        if (cursor.Take("</dict>"))
        {
            return true;
        }
        std::string key;
        PropertyListValue property;
        if (!cursor.Take("<key>") || !ReadElementText(cursor, "key", key) || !SkipMisc(cursor) ||
            !ReadValue(cursor, depth + 1, property) || !AddProperty(value, std::move(key), std::move(property)))
        {
            return false;
        }
    }
}

bool ReadList(PropertyListCursor& cursor, int depth, PropertyListValue& value)
{
    for (;;)
    {
        if (!SkipMisc(cursor))
        {
            return false;
        }
        if (cursor.Take("</array>"))
        {
            return true;
        }
        value.items.emplace_back();
        if (!ReadValue(cursor, depth + 1, value.items.back()))
        {
            return false;
        }
    }
}

bool ReadValue(PropertyListCursor& cursor, int depth, PropertyListValue& value)
{
    bool isEmpty = false;
    auto const name = ReadStartTag(cursor, isEmpty);
    if (!name || depth > PROPERTY_LIST_MAX_DEPTH)
    {
        return false;
    }
    if (*name == "dict")
    {
        value.kind = PropertyListValue::Kind::Dictionary;
        return isEmpty || ReadDictionary(cursor, depth, value);
    }
    if (*name == "array")
    {
        value.kind = PropertyListValue::Kind::List;
        return isEmpty || ReadList(cursor, depth, value);
    }
    if (*name == "true" || *name == "false")
    {
        value.text = *name == "true" ? "YES" : "NO";
        return isEmpty;
    }
    for (std::string_view const element : TEXT_ELEMENTS)
    {
        if (*name == element)
        {
            return isEmpty || ReadElementText(cursor, element, value.text);
        }
    }
    return false;
}

} // namespace

bool ReadXmlPropertyList(PropertyListCursor& cursor, PropertyListValue& value)
{
    if (cursor.Take("<?xml") && !cursor.TakeUntil("?>"))
    {
        return false;
    }
    if (!SkipMisc(cursor))
    {
        return false;
    }
    if (cursor.Take("<!DOCTYPE plist"))
    {
        // A declaration with its own body could define entities.
        auto const declaration = cursor.TakeUntil(">");
        if (!declaration || declaration->find('[') != std::string_view::npos || !SkipMisc(cursor))
        {
            return false;
        }
    }
    return (cursor.Take("<plist>") || cursor.Take("<plist version=\"1.0\">") ||
            cursor.Take("<plist version=\"0.9\">")) &&
           SkipMisc(cursor) && ReadValue(cursor, 1, value) && SkipMisc(cursor) && cursor.Take("</plist>") &&
           SkipMisc(cursor);
}

} // namespace Pelnar::Engine
