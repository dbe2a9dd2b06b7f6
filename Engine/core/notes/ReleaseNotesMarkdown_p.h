// ReleaseNotesMarkdown_p.h: turns the Markdown of release notes (CommonMark, tables, strike-through) into HTML. The
// HTML is not safe yet: it passes through the same filter as notes in HTML. Pure functions.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace Pelnar::Engine
{

struct NotesHtml
{
    std::string html;
    bool isWhole = true;
};

/// Stops soon after \a maxHtmlBytes, because a wide table with many short rows can grow a thousandfold, and after links
/// that cost the parser too much.
[[nodiscard]] NotesHtml MarkdownToHtml(std::string_view cleanText, std::size_t maxHtmlBytes);

} // namespace Pelnar::Engine
