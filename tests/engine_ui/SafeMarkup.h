// SafeMarkup.h: the strict grammar of the release-notes filter's output, checked by separate code.
#pragma once

#include <string>
#include <string_view>

namespace Pelnar::Testing
{

/// The first rule that \a html breaks, in words, with the text around it; empty if it breaks no rule. The rules: only
/// known elements, well nested; only the attributes "dir" and "href"; links of three schemes; text without control
/// characters; limits for the depth of elements and tables and for the number of elements and bytes.
[[nodiscard]] std::string BrokenPromiseOf(std::string_view html);

} // namespace Pelnar::Testing
