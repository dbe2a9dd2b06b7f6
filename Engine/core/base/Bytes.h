// Bytes.h: types for bytes: a view and an owned buffer.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

namespace Pelnar::Engine
{

using Bytes = std::basic_string_view<std::uint8_t>;
using ByteBuffer = std::vector<std::uint8_t>;

template <std::size_t Size>
Bytes View(std::array<std::uint8_t, Size> const& bytes)
{
    return {bytes.data(), bytes.size()};
}

inline Bytes View(ByteBuffer const& bytes)
{
    return {bytes.data(), bytes.size()};
}

} // namespace Pelnar::Engine
