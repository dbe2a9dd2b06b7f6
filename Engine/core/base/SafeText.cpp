#include "Engine/core/base/SafeText.h"

#include <cstdint>

#include <unictype.h>

namespace Pelnar::Engine
{

bool IsHiddenBeyondAscii(char32_t codePoint)
{
    constexpr std::uint32_t CATEGORIES =
        UC_CATEGORY_MASK_Cc | UC_CATEGORY_MASK_Cs | UC_CATEGORY_MASK_Co | UC_CATEGORY_MASK_Zl | UC_CATEGORY_MASK_Zp;
    bool const isAnnotation = codePoint >= 0xFFF9 && codePoint <= 0xFFFC; // and a replaced object
    bool const isOfHieroglyphs = codePoint >= 0x13430 && codePoint <= 0x1345F;
    return codePoint > QChar::LastValidCodePoint || isAnnotation || isOfHieroglyphs ||
           ::uc_is_property_default_ignorable_code_point(codePoint) || ::uc_is_property_not_a_character(codePoint) ||
           ::uc_is_general_category_withtable(codePoint, CATEGORIES);
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
