// ContentHasher.h: computes the hash of bytes that arrive in pieces. Thread: one at a time. Ownership: its own state.
#pragma once

#include "Engine/core/base/Bytes.h"

#include <array>
#include <cstdint>
#include <memory>

namespace Pelnar::Engine
{

enum class HashKind
{
    Sha256,  ///< many processors have instructions for it, which make it more than twice as fast as BLAKE2b
    Blake2b, ///< with 32 bytes of output; for names of files on disks and for deltas in the separate format
};

using ContentHash = std::array<std::uint8_t, 32>;

class ContentHasher
{
public:
    /// Throws std::bad_alloc if the library cannot allocate a state.
    explicit ContentHasher(HashKind kind = HashKind::Sha256);
    ~ContentHasher();

    void Add(Bytes bytes);
    /// The hash of all bytes since the start or the last call. REQUIRES: for BLAKE2b, the first call.
    [[nodiscard]] ContentHash Finish();

private:
    struct State;
    std::unique_ptr<State> m_state;
};

[[nodiscard]] ContentHash HashOf(Bytes bytes, HashKind kind = HashKind::Sha256);

} // namespace Pelnar::Engine
