// ContentHasher.h: the hash of bytes that come in pieces.
// Thread: one at a time. Ownership: its own state.
#pragma once

#include "Engine/core/base/Bytes.h"

#include <array>
#include <cstdint>
#include <memory>

namespace Pelnar::Engine
{

enum class HashKind
{
    Sha256,  ///< processors have instructions for it: more than twice as fast as the other
    Blake2b, ///< with 32 bytes of output: of names on disks and of deltas in the separate format
};

using ContentHash = std::array<std::uint8_t, 32>;

class ContentHasher
{
public:
    /// Throws std::bad_alloc when the library cannot make a state.
    explicit ContentHasher(HashKind kind = HashKind::Sha256);
    ~ContentHasher();

    void Add(Bytes bytes);
    /// The hash of everything added since the beginning or the last call. REQUIRES: for BLAKE2b, the first call.
    [[nodiscard]] ContentHash Finish();

private:
    struct State;
    std::unique_ptr<State> m_state;
};

[[nodiscard]] ContentHash HashOf(Bytes bytes, HashKind kind = HashKind::Sha256);

} // namespace Pelnar::Engine
