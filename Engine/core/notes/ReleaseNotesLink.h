// ReleaseNotesLink.h: which address of a link may be passed to the desktop when a person clicks it. Pure functions.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace Pelnar::Engine
{

/// The address in normal form, or empty if it must not be followed. Accepted are http and https with a plain host (no
/// user name, no backslash, punycode for other alphabets), and mailto with only an address: parameters of a mail, such
/// as attachments, are removed. A returned address is returned unchanged when passed again.
[[nodiscard]] std::optional<std::string> SafeLink(std::string_view address);

/// The length of the http or https address at the start of \a text in running text, without the punctuation that ends
/// the sentence; 0 if none starts there.
[[nodiscard]] std::size_t BareLinkLength(std::string_view text);

} // namespace Pelnar::Engine
