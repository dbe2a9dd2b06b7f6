#include "Engine/core/delta/ContentHasher.h"

#include <sodium.h>

#include <new>

namespace Pelnar::Engine
{

struct ContentHasher::State
{
    crypto_generichash_blake2b_state hash;
};

ContentHasher::ContentHasher() : m_state(std::make_unique<State>())
{
    // The first call chooses the code for this processor: without it the hash is right, and half as fast.
    bool const isReady = sodium_init() >= 0;
    if (!isReady || crypto_generichash_blake2b_init(&m_state->hash, nullptr, 0, ContentHash().size()) != 0)
    {
        throw std::bad_alloc();
    }
}

ContentHasher::~ContentHasher() = default;

void ContentHasher::Add(Bytes bytes)
{
    crypto_generichash_blake2b_update(&m_state->hash, bytes.data(), bytes.size());
}

ContentHash ContentHasher::Finish()
{
    ContentHash hash{};
    crypto_generichash_blake2b_final(&m_state->hash, hash.data(), hash.size());
    return hash;
}

ContentHash HashOf(Bytes bytes)
{
    ContentHasher hasher;
    hasher.Add(bytes);
    return hasher.Finish();
}

} // namespace Pelnar::Engine
