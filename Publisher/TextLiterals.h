// TextLiterals.h: texts of Qt, written as literals: u"text"_s is a QString, "text"_l a view of ASCII characters.
#pragma once

#include <QString>

namespace Pelnar
{

inline QString operator""_s(char16_t const* text, std::size_t size)
{
    return QString(reinterpret_cast<QChar const*>(text), int(size));
}

constexpr QLatin1String operator""_l(char const* text, std::size_t size)
{
    return QLatin1String(text, int(size));
}

} // namespace Pelnar
