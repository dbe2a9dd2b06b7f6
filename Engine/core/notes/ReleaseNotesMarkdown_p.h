// ReleaseNotesMarkdown_p.h: turns the Markdown of release notes (CommonMark, tables, strike-through) into HTML. The
// HTML is not safe yet: it passes through the same filter as notes in HTML. Pure functions.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace Pelnar::Engine
{

/// Stops soon after \a maxHtmlBytes: a wide table with many short rows can grow a thousandfold.
[[nodiscard]] std::string MarkdownToHtml(std::string_view cleanText, std::size_t maxHtmlBytes);

} // namespace Pelnar::Engine
