// ReleaseNotesLink.h: which address of a link may be handed to the desktop when a person clicks it.
// Thread: any; no state. Ownership: values only.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace Pelnar::Engine
{

/// The address in one normal form, or nothing when it must not be followed. Accepted are http and https with a plain
/// host (no user name, no backslash, punycode for other alphabets) and mailto with an address alone: parameters of a
/// mail, attachments among them, are cut off. What came out once comes out unchanged.
[[nodiscard]] std::optional<std::string> SafeLink(std::string_view address);

/// The length of the http or https address that starts at \a text in running text, without the punctuation that ends
/// the sentence; 0 when none starts there.
[[nodiscard]] std::size_t BareLinkLength(std::string_view text);

} // namespace Pelnar::Engine
