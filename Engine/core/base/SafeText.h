// SafeText.h: which characters of foreign texts are shown to a person or written to a log: one rule for all places.
// Pure functions.
#pragma once

#include <QChar>
#include <QString>

namespace Pelnar::Engine
{

/// IsHidden() for a character beyond ASCII.
[[nodiscard]] bool IsHiddenBeyondAscii(char32_t codePoint);

/// True for a character that is invisible, or that changes how others are displayed. These are: controls (including
/// line ends and tabs), line and paragraph separators, direction marks, joiners and other characters of zero width,
/// variation selectors, annotations, tags, single surrogates, private use, and noncharacters. A caller that allows line
/// ends and tabs tests for them first.
[[nodiscard]] inline bool IsHidden(char32_t codePoint)
{
    return codePoint < 0x20 || (codePoint >= 0x7F && IsHiddenBeyondAscii(codePoint));
}

/// The character at \a index and its number of units; an unpaired surrogate counts as one character.
struct CodePoint
{
    char32_t value = 0;
    int units = 1;
};
[[nodiscard]] CodePoint CodePointAt(ushort const* units, int index, int size);

/// \a text with \a replacement in place of each hidden character.
[[nodiscard]] QString WithoutHidden(QString const& text, QChar replacement);

} // namespace Pelnar::Engine
