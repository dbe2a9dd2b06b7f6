// SixteenBytes.h: operations on 16 bytes at once. Thread: any; no shared state.
#pragma once

#include <cstdint>
#include <cstring>

#ifdef __SSE2__
#include <emmintrin.h>
#endif

namespace Pelnar::Engine
{

using SixteenBytes = std::uint8_t __attribute__((vector_size(16)));

inline SixteenBytes Load(std::uint8_t const* bytes)
{
    SixteenBytes loaded;
    std::memcpy(&loaded, bytes, sizeof loaded);
    return loaded;
}

/// A bit for each byte of \a mask, set if the byte's highest bit is set.
inline std::uint32_t BitsOf(SixteenBytes mask)
{
#ifdef __SSE2__
    return static_cast<std::uint32_t>(_mm_movemask_epi8(reinterpret_cast<__m128i>(mask)));
#else
    std::uint32_t bits = 0;
    for (unsigned i = 0; i < 16; ++i)
    {
        bits |= std::uint32_t(mask[i] >> 7) << i;
    }
    return bits;
#endif
}

} // namespace Pelnar::Engine
