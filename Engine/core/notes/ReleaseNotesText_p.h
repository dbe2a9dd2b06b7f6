// ReleaseNotesText_p.h: the text level of the release-notes filter: clean UTF-8, entities, escaping, plain text. Pure
// functions.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace Pelnar::Engine
{

[[nodiscard]] bool IsAsciiSpace(char c);
[[nodiscard]] bool IsAsciiDigit(char c);
[[nodiscard]] bool IsAsciiHexDigit(char c);
[[nodiscard]] bool IsAsciiLetter(char c);
[[nodiscard]] bool IsAsciiAlphanumeric(char c);
[[nodiscard]] std::string ToLowerAscii(std::string_view text);
[[nodiscard]] std::string_view TrimmedAscii(std::string_view text);
[[nodiscard]] bool IsBlank(std::string_view text);

/// The first bytes of \a text, at most \a maxBytes, that end between two characters.
[[nodiscard]] std::string_view PrefixOfWholeCharacters(std::string_view text, std::size_t maxBytes);

/// The first character of \a text, which is clean and not empty.
[[nodiscard]] std::string_view FirstCharacter(std::string_view text);

/// True for an accent that belongs to no single script and can be stacked on a letter.
[[nodiscard]] bool IsCombiningMark(std::string_view character);

/// Valid UTF-8 with "\n" for every kind of line end. Removed are control characters, characters that reorder text, and
/// the code points that a rich-text document uses for its own structure.
[[nodiscard]] std::string CleanText(std::string_view text);

/// Replaces the numeric entities and the well-known named ones; any other text that starts with "&" stays unchanged.
/// Characters that CleanText removes do not return this way.
[[nodiscard]] std::string DecodeEntities(std::string_view text);

void AppendEscaped(std::string& out, std::string_view text);
[[nodiscard]] std::string Escaped(std::string_view text);

enum class BareLinks
{
    MadeClickable,
    LeftAsText,
};

/// Paragraphs at blank lines, a break at every other line end, indentation kept.
[[nodiscard]] std::string PlainTextToHtml(std::string_view cleanText, BareLinks bareLinks);

} // namespace Pelnar::Engine
