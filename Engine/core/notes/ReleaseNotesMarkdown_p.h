// ReleaseNotesMarkdown_p.h: the Markdown that release notes are written in, made into HTML.
// Headings, paragraphs, emphasis, code, quotes, nested lists, rules, links (inline, by reference, bare), HTML passed
// on. What comes out is not safe yet: it goes through the same filter as notes in HTML. Takes time linear in the text.
// Thread: any; no state. Ownership: values only.
#pragma once

#include <string>
#include <string_view>

namespace Pelnar::Engine
{

[[nodiscard]] std::string MarkdownToHtml(std::string_view cleanText);

} // namespace Pelnar::Engine
