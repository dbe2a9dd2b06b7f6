// ContentHasher.h: the hash of bytes that come in pieces: BLAKE2b with 32 bytes of output, which is fast on processors
// without instructions for hashes, too.
// Thread: one at a time. Ownership: its own state.
#pragma once

#include "Engine/core/delta/DeltaManifest.h"

#include <memory>

namespace Pelnar::Engine
{

class ContentHasher
{
public:
    /// Throws std::bad_alloc when the library cannot make a state.
    ContentHasher();
    ~ContentHasher();

    void Add(Bytes bytes);
    /// The hash of everything added; call it once, last.
    [[nodiscard]] ContentHash Finish();

private:
    struct State;
    std::unique_ptr<State> m_state;
};

[[nodiscard]] ContentHash HashOf(Bytes bytes);

} // namespace Pelnar::Engine
