// SafeMarkup.h: the strict grammar of what the release-notes filter may put out, checked by other means than its own.
#pragma once

#include <string>
#include <string_view>

namespace Pelnar::Testing
{

/// The first promise that \a html breaks, in words, with the text around it; empty when it keeps them all: only known
/// elements, well nested, attributes "dir" and "href" alone, links of three schemes, text without control characters,
/// the depth of elements and tables, the number of elements and bytes.
[[nodiscard]] std::string BrokenPromiseOf(std::string_view html);

} // namespace Pelnar::Testing
