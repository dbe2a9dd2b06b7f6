// Sha256Hasher.h: the hash of bytes that come in pieces.
// Thread: one at a time. Ownership: its own state.
#pragma once

#include "Engine/core/delta/DeltaManifest.h"

#include <memory>

namespace Pelnar::Engine
{

class Sha256Hasher
{
public:
    /// Throws std::bad_alloc when the library cannot make a state.
    Sha256Hasher();
    ~Sha256Hasher();

    void Add(Bytes bytes);
    /// The hash of everything added; call it once, last.
    [[nodiscard]] Sha256 Finish();

private:
    struct State;
    std::unique_ptr<State> m_state;
};

[[nodiscard]] Sha256 HashOf(Bytes bytes);

} // namespace Pelnar::Engine
