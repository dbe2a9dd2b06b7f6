// Bytes.h: types for bytes: a view and an owned buffer, and their hexadecimal text.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
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

inline Bytes View(std::string_view text)
{
    return {reinterpret_cast<std::uint8_t const*>(text.data()), text.size()};
}

/// Two lower-case digits for each byte.
inline std::string Hexadecimal(Bytes bytes)
{
    constexpr char DIGITS[] = "0123456789abcdef";
    std::string text;
    for (std::uint8_t const byte : bytes)
    {
        text += DIGITS[byte >> 4];
        text += DIGITS[byte & 15];
    }
    return text;
}

} // namespace Pelnar::Engine
