// ReleaseNotesEntities_p.h: the characters that HTML and Markdown name. A constant table.
#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

namespace Pelnar::Engine
{

/// The code point of the entity whose text between "&" and ";" is \a name: a number, or a name of HTML 4 or of a sign.
/// U+FFFD for a number that is no character; empty for an unknown name.
[[nodiscard]] std::optional<std::uint32_t> CodePointOfEntity(std::string_view name);

} // namespace Pelnar::Engine
