#include "Engine/core/bundle/PropertyListReader_p.h"

namespace Pelnar::Engine
{
namespace
{

bool IsPlain(char character)
{
    return (character >= 'a' && character <= 'z') || (character >= 'A' && character <= 'Z') ||
           (character >= '0' && character <= '9') ||
           (character != '\0' && std::string_view("$+/:._-").find(character) != std::string_view::npos);
}

int DigitOf(char character, int base)
{
    int const digit = character >= '0' && character <= '9'   ? character - '0'
                      : character >= 'a' && character <= 'f' ? character - 'a' + 10
                      : character >= 'A' && character <= 'F' ? character - 'A' + 10
                                                             : base;
    return digit < base ? digit : -1;
}

/// Up to \a maxDigits digits as a code point; at least one.
bool ReadNumber(PropertyListCursor& cursor, int base, int maxDigits, std::string& text)
{
    unsigned long number = 0;
    int digits = 0;
    for (; digits < maxDigits && DigitOf(cursor.Next(), base) >= 0; ++digits)
    {
        number = number * static_cast<unsigned long>(base) + static_cast<unsigned long>(DigitOf(cursor.Next(), base));
        cursor.Skip();
    }
    return digits > 0 && AppendCodePoint(text, number);
}

bool ReadEscape(PropertyListCursor& cursor, std::string& text)
{
    char const letter = cursor.Next();
    if (DigitOf(letter, 8) >= 0)
    {
        return ReadNumber(cursor, 8, 3, text);
    }
    if (cursor.IsAtEnd())
    {
        return false;
    }
    cursor.Skip();
    if (letter == 'U' || letter == 'u')
    {
        return ReadNumber(cursor, 16, 4, text);
    }
    constexpr std::string_view LETTERS = "abtnvfr";
    constexpr std::string_view MEANINGS = "\a\b\t\n\v\f\r";
    std::size_t const place = LETTERS.find(letter);
    text += place == std::string_view::npos ? letter : MEANINGS[place];
    return true;
}

bool ReadText(PropertyListCursor& cursor, std::string& text)
{
    if (!cursor.Take("\""))
    {
        while (IsPlain(cursor.Next()))
        {
            text += cursor.Next();
            cursor.Skip();
        }
        return !text.empty();
    }
    while (!cursor.Take("\""))
    {
        if (cursor.IsAtEnd())
        {
            return false;
        }
        if (cursor.Take("\\"))
        {
            if (!ReadEscape(cursor, text))
            {
                return false;
            }
            continue;
        }
        text += cursor.Next();
        cursor.Skip();
    }
    return true;
}

bool ReadDictionary(PropertyListCursor& cursor, int depth, PropertyListValue& value)
{
    value.kind = PropertyListValue::Kind::Dictionary;
    for (;;)
    {
        SkipOldStyleBlanks(cursor);
        if (cursor.Take("}"))
        {
            return true;
        }
        std::string key;
        PropertyListValue property;
        if (!ReadText(cursor, key))
        {
            return false;
        }
        SkipOldStyleBlanks(cursor);
        if (!cursor.Take("="))
        {
            return false;
        }
        SkipOldStyleBlanks(cursor);
        if (!ReadOldStyleValue(cursor, depth + 1, property) || !AddProperty(value, std::move(key), std::move(property)))
        {
            return false;
        }
        SkipOldStyleBlanks(cursor);
        // The last property may omit its semicolon.
        if (!cursor.Take(";") && cursor.Next() != '}')
        {
            return false;
        }
    }
}

bool ReadList(PropertyListCursor& cursor, int depth, PropertyListValue& value)
{
    value.kind = PropertyListValue::Kind::List;
    for (;;)
    {
        SkipOldStyleBlanks(cursor);
        if (cursor.Take(")"))
        {
            return true;
        }
        value.items.emplace_back();
        if (!ReadOldStyleValue(cursor, depth + 1, value.items.back()))
        {
            return false;
        }
        SkipOldStyleBlanks(cursor);
        if (!cursor.Take(",") && cursor.Next() != ')')
        {
            return false;
        }
    }
}

} // namespace

void SkipOldStyleBlanks(PropertyListCursor& cursor)
{
    for (;;)
    {
        cursor.SkipBlanks();
        if (cursor.Take("//"))
        {
            while (!cursor.IsAtEnd() && cursor.Next() != '\n')
            {
                cursor.Skip();
            }
        }
        else if (!cursor.Take("/*") || !cursor.TakeUntil("*/"))
        {
            return;
        }
    }
}

bool ReadOldStyleValue(PropertyListCursor& cursor, int depth, PropertyListValue& value)
{
    if (depth > PROPERTY_LIST_MAX_DEPTH)
    {
        return false;
    }
    if (cursor.Take("{"))
    {
        return ReadDictionary(cursor, depth, value);
    }
    if (cursor.Take("("))
    {
        return ReadList(cursor, depth, value);
    }
    if (cursor.Take("<")) // data in hexadecimal, or a number, truth value or date after a star
    {
        auto const body = cursor.TakeUntil(">");
        value.text = body.value_or("");
        return body.has_value();
    }
    return ReadText(cursor, value.text);
}

} // namespace Pelnar::Engine
