// SafeText.h: which characters of others' texts are shown to a person or written to a log: one rule for all places.
// Thread: any; no state. Ownership: values only.
#pragma once

#include <QChar>
#include <QString>

namespace Pelnar::Engine
{

/// True for a character beyond ASCII as IsHidden().
[[nodiscard]] bool IsHiddenBeyondAscii(char32_t codePoint);

/// True for a character that a person does not see, or that changes how others are seen. These are: controls (line ends
/// and tabs too), line and paragraph separators, direction marks, joiners and other characters without a width,
/// variation selectors, annotations, tags, single surrogates, private use, and numbers that Unicode gives no character.
/// A place that wants line ends and tabs asks for them first.
[[nodiscard]] inline bool IsHidden(char32_t codePoint)
{
    return codePoint < 0x20 || (codePoint >= 0x7F && IsHiddenBeyondAscii(codePoint));
}

/// The character at \a index and how many units it has; half a character is one of its own.
struct CodePoint
{
    char32_t value = 0;
    int units = 1;
};
[[nodiscard]] CodePoint CodePointAt(ushort const* units, int index, int size);

/// \a text with \a replacement in the place of each hidden character.
[[nodiscard]] QString WithoutHidden(QString const& text, QChar replacement);

} // namespace Pelnar::Engine
