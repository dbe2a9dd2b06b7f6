// ReleaseNotesFilter.h: turns the release notes of a feed into markup that is safe to show. The output uses an
// allow-list: the only addresses are those of links that a person may click (http, https, mailto); no style, no script,
// no image; the only attributes are "href" and "dir". The output is well nested, UTF-8, and within limits that keep a
// rich-text view fast. Filtering the output again, as HTML, changes nothing. Pure functions.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace Pelnar::Engine
{

enum class ReleaseNotesFormat
{
    PlainText,
    Markdown,
    Html,
};

/// The engine uses the defaults. The time of a rich-text view grows with the square of some of these, and with two to
/// the power of the depth of tables: each limit alone keeps it below some 40 ms.
struct ReleaseNotesLimits
{
    std::size_t maxBytes = 256 * 1024; ///< of the notes, and of the markup made from them
    std::size_t maxDepth = 32;         ///< elements open at once
    std::size_t maxTableDepth = 4;     ///< tables open at once
    std::size_t maxElements = 2000;
    std::size_t maxListItems = 600;
    std::size_t maxPreformatted = 100;
    std::size_t maxCodes = 100;            ///< pieces of code in a text; further ones lose only their font
    std::size_t maxCells = 300;            ///< rows times the longest row, times the depth of the table
    std::size_t maxTableBytes = 12 * 1024; ///< of text in tables; doubled for each enclosing table
    std::size_t maxBlockBytes = 16 * 1024; ///< of text in one paragraph, list item or similar
    std::size_t maxWordBytes = 128;        ///< a longer run without blanks may be broken anywhere
    std::size_t maxMarks = 4;              ///< accents on one letter
    std::size_t maxPlainBytes = 12 * 1024; ///< of the plain text that replaces refused markup
    std::size_t maxPlainLines = 500;       ///< of the plain text that replaces refused markup
};

/// Why notes are shown as plain text.
enum class ReleaseNotesRefusal
{
    None, ///< the markup is shown
    TooLong,
    TooDeep,
    TablesTooDeep,
    TooManyElements,
    TooManyListItems,
    TooMuchPreformatted,
    TooManyCells,
    TooMuchTableText,
    BlockTooLong,
};

struct FilteredReleaseNotes
{
    std::string html; ///< empty if there is nothing to show
    ReleaseNotesRefusal refusal = ReleaseNotesRefusal::None;
};

/// The format that a feed names ("plain-text", "markdown", "html", in any case); Html if it names none or another.
[[nodiscard]] ReleaseNotesFormat ReleaseNotesFormatFromText(std::string_view name);

/// \a notes are UTF-8; wrong bytes become U+FFFD. The time is linear in min(their length, maxBytes).
[[nodiscard]] FilteredReleaseNotes FilterReleaseNotes(std::string_view notes, ReleaseNotesFormat format,
                                                      ReleaseNotesLimits const& limits = {});

} // namespace Pelnar::Engine
