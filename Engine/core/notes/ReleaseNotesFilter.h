// ReleaseNotesFilter.h: from the release notes that a feed gives to markup that is safe to show.
// What comes out is made from an allow-list: no address but of a link that a person may click (http, https,
// mailto), no style, no script, no image, no attribute but "href" and "dir"; well nested, UTF-8, and within limits that
// keep a rich-text view quick. Filtering what came out once more, as HTML, changes nothing. Thread: any; no state.
// Ownership: values only.
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

/// The defaults are what the engine ships with. A rich-text view needs time that grows with the square of some of
/// these, and with two to the power of the depth of tables: each limit alone keeps it below some 40 ms.
struct ReleaseNotesLimits
{
    std::size_t maxBytes = 256 * 1024; ///< of the notes, and of the markup made of them
    std::size_t maxDepth = 32;         ///< elements open at once
    std::size_t maxTableDepth = 4;     ///< tables open at once
    std::size_t maxElements = 2000;
    std::size_t maxListItems = 600;
    std::size_t maxPreformatted = 100;
    std::size_t maxCodes = 100;            ///< code within text; more lose their font only
    std::size_t maxCells = 300;            ///< rows times the longest row, times the depth of the table
    std::size_t maxTableBytes = 12 * 1024; ///< of text in tables; counts double for each table around its own
    std::size_t maxBlockBytes = 16 * 1024; ///< of text in one paragraph, list item or the like
    std::size_t maxWordBytes = 128;        ///< a longer run without blanks may be broken anywhere
    std::size_t maxMarks = 4;              ///< accents on one letter
    std::size_t maxPlainBytes = 12 * 1024; ///< of the plain text that stands for refused markup
    std::size_t maxPlainLines = 500;       ///< of the plain text that stands for refused markup
};

/// Why notes are shown as plain text.
enum class ReleaseNotesRefusal
{
    None, ///< they are not: the markup is shown
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
    std::string html; ///< empty when there is nothing to show
    ReleaseNotesRefusal refusal = ReleaseNotesRefusal::None;
};

/// The format that a feed names ("plain-text", "markdown", "html", in any case); Html when it names none or another.
[[nodiscard]] ReleaseNotesFormat ReleaseNotesFormatFromText(std::string_view name);

/// \a notes are UTF-8; wrong bytes become U+FFFD. Takes time linear in min(their length, maxBytes).
[[nodiscard]] FilteredReleaseNotes FilterReleaseNotes(std::string_view notes, ReleaseNotesFormat format,
                                                      ReleaseNotesLimits const& limits = {});

} // namespace Pelnar::Engine
