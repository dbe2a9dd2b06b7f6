// ReleaseNotesMarkdownInline_p.h: the Markdown within one paragraph, heading or list line.
// Thread: any; no state. Ownership: values only.
#pragma once

#include <map>
#include <string>
#include <string_view>

namespace Pelnar::Engine
{

/// Addresses of links by their label, as NormalLabel gives it.
using MarkdownReferences = std::map<std::string, std::string, std::less<>>;

/// Labels are the same whatever their case and blanks.
[[nodiscard]] std::string NormalLabel(std::string_view label);

[[nodiscard]] std::string MarkdownInlineToHtml(std::string_view text, MarkdownReferences const& references);

} // namespace Pelnar::Engine
