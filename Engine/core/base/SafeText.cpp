#include "Engine/core/base/SafeText.h"

#include <algorithm>
#include <iterator>

namespace Pelnar::Engine
{
namespace
{

struct Range
{
    char32_t first;
    char32_t last;
};

/// Sorted; no two ranges touch.
constexpr Range HIDDEN[] = {
    {0x7F, 0x9F},         // controls
    {0xAD, 0xAD},         // soft hyphen
    {0x34F, 0x34F},       // grapheme joiner
    {0x61C, 0x61C},       // Arabic letter mark, which changes the direction
    {0x115F, 0x1160},     // Hangul fillers
    {0x17B4, 0x17B5},     // Khmer vowels without a glyph
    {0x180B, 0x180F},     // Mongolian variation selectors, a separator
    {0x200B, 0x200F},     // spaces and joiners of zero width, direction marks
    {0x2028, 0x202E},     // line and paragraph separators, embeddings and overrides
    {0x2060, 0x206F},     // joiners, invisible operators, isolates, deprecated characters
    {0x3164, 0x3164},     // Hangul filler
    {0xD800, 0xF8FF},     // surrogates, private use
    {0xFDD0, 0xFDEF},     // noncharacters
    {0xFE00, 0xFE0F},     // variation selectors
    {0xFEFF, 0xFEFF},     // byte order mark
    {0xFFA0, 0xFFA0},     // Hangul filler
    {0xFFF0, 0xFFFC},     // annotations, object replacement
    {0x13430, 0x1345F},   // controls of hieroglyphs
    {0x1BCA0, 0x1BCA3},   // controls of shorthand
    {0x1D173, 0x1D17A},   // controls of music
    {0xE0000, 0xE0FFF},   // tags, variation selectors
    {0xF0000, 0xFFFFFFFF} // private use, noncharacters
};

} // namespace

bool IsHiddenBeyondAscii(char32_t codePoint)
{
    auto const* const range = std::lower_bound(std::begin(HIDDEN), std::end(HIDDEN), codePoint,
                                               [](Range const& row, char32_t value) { return row.last < value; });
    bool const isInRange = range != std::end(HIDDEN) && range->first <= codePoint;
    return isInRange || (codePoint & 0xFFFE) == 0xFFFE; // the last two of each plane are noncharacters
}

CodePoint CodePointAt(ushort const* units, int index, int size)
{
    ushort const unit = units[index];
    bool const isPair = QChar::isHighSurrogate(unit) && index + 1 < size && QChar::isLowSurrogate(units[index + 1]);
    return isPair ? CodePoint{QChar::surrogateToUcs4(unit, units[index + 1]), 2} : CodePoint{unit, 1};
}

QString WithoutHidden(QString const& text, QChar replacement)
{
    QString safe;
    safe.reserve(text.size());
    for (int index = 0; index < text.size();)
    {
        CodePoint const character = CodePointAt(text.utf16(), index, text.size());
        if (IsHidden(character.value))
        {
            safe += replacement;
        }
        else
        {
            safe += text.midRef(index, character.units);
        }
        index += character.units;
    }
    return safe;
}

} // namespace Pelnar::Engine
