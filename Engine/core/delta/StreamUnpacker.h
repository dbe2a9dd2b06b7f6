// StreamUnpacker.h: decompresses one stream of a container piece by piece: by zstd or by LZMA.
// Thread: one at a time. Ownership: its own state. Any bytes are safe. It needs little more memory than the window.
#pragma once

#include "Engine/core/delta/BinaryPatch.h"

#include <cstddef>
#include <cstdint>
#include <memory>

namespace Pelnar::Engine
{

class IUnpacker
{
public:
    enum class State
    {
        Going,
        Ended,
        Damaged,
    };
    struct Step
    {
        std::size_t made;
        State state;
    };

    virtual ~IUnpacker() = default;
    /// Fills \a target as far as \a input allows, and removes the used bytes from \a input.
    virtual Step Unpack(Bytes& input, std::uint8_t* target, std::size_t size) = 0;
};

/// \a packing is 0 for zstd, otherwise one more than the properties of LZMA. LZMA has an end mark. Throws
/// std::bad_alloc.
[[nodiscard]] std::unique_ptr<IUnpacker> MakeUnpacker(std::uint8_t packing, int windowLog);

} // namespace Pelnar::Engine
