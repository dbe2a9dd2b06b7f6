// Bytes.h: a view of bytes, and bytes of one's own.
#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

namespace Pelnar::Engine
{

using Bytes = std::basic_string_view<std::uint8_t>;
using ByteBuffer = std::vector<std::uint8_t>;

} // namespace Pelnar::Engine
