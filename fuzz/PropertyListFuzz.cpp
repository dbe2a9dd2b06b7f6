// PropertyListFuzz.cpp: any bytes as a property list. The limits hold. An accepted value, written in the old style,
// reads as the same value.

#include "Engine/core/bundle/PropertyList.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>

namespace
{

using namespace Pelnar::Engine;

void Require(bool holds)
{
    if (!holds)
    {
        std::abort();
    }
}

bool IsSame(PropertyListValue const& a, PropertyListValue const& b)
{
    return a.kind == b.kind && a.text == b.text &&
           std::equal(a.items.begin(), a.items.end(), b.items.begin(), b.items.end(), &IsSame) &&
           std::equal(a.properties.begin(), a.properties.end(), b.properties.begin(), b.properties.end(),
                      [](auto const& first, auto const& second)
                      { return first.first == second.first && IsSame(first.second, second.second); });
}

std::string Quoted(std::string const& text)
{
    std::string quoted = "\"";
    for (char const character : text)
    {
        quoted += character == '"' || character == '\\' ? std::string{'\\', character} : std::string{character};
    }
    return quoted + '"';
}

std::string Written(PropertyListValue const& value, int depth)
{
    Require(depth <= PROPERTY_LIST_MAX_DEPTH && value.properties.size() <= PROPERTY_LIST_MAX_KEYS);
    std::string text;
    switch (value.kind)
    {
    case PropertyListValue::Kind::Text:
        return Quoted(value.text);
    case PropertyListValue::Kind::List:
        for (PropertyListValue const& item : value.items)
        {
            text += (text.empty() ? "" : ",") + Written(item, depth + 1);
        }
        return '(' + text + ')';
    case PropertyListValue::Kind::Dictionary:
        for (auto const& [key, property] : value.properties)
        {
            text += Quoted(key) + '=' + Written(property, depth + 1) + ';';
        }
        return '{' + text + '}';
    }
    return text;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size)
{
    std::string_view const bytes(reinterpret_cast<char const*>(data), size);
    auto const value = ParsePropertyList(bytes);
    if (!value)
    {
        return 0;
    }
    Require(size <= PROPERTY_LIST_MAX_BYTES);
    std::string const written = Written(*value, 0);
    if (written.size() <= PROPERTY_LIST_MAX_BYTES) // quotes may push it over the limit
    {
        auto const again = ParsePropertyList(written);
        Require(again && IsSame(*value, *again));
    }
    return 0;
}
