#include "Engine/core/base/ContentHasher.h"

#include <nettle/sha2.h>
#include <sodium.h>

#include <new>
#include <variant>

namespace Pelnar::Engine
{

struct ContentHasher::State
{
    std::variant<sha256_ctx, crypto_generichash_blake2b_state> hash;
};

ContentHasher::ContentHasher(HashKind kind) : m_state(std::make_unique<State>())
{
    if (kind == HashKind::Sha256)
    {
        sha256_init(&std::get<sha256_ctx>(m_state->hash));
        return;
    }
    auto& state = m_state->hash.emplace<crypto_generichash_blake2b_state>();
    // The first call selects the code for this processor. Without it the hash is correct, but takes twice as long.
    bool const isReady = sodium_init() >= 0;
    if (!isReady || crypto_generichash_blake2b_init(&state, nullptr, 0, ContentHash().size()) != 0)
    {
        throw std::bad_alloc();
    }
}

ContentHasher::~ContentHasher() = default;

void ContentHasher::Add(Bytes bytes)
{
    if (auto* const sha = std::get_if<sha256_ctx>(&m_state->hash))
    {
        sha256_update(sha, bytes.size(), bytes.data());
        return;
    }
    auto& state = std::get<crypto_generichash_blake2b_state>(m_state->hash);
    crypto_generichash_blake2b_update(&state, bytes.data(), bytes.size());
}

ContentHash ContentHasher::Finish()
{
    ContentHash hash{};
    if (auto* const sha = std::get_if<sha256_ctx>(&m_state->hash))
    {
        sha256_digest(sha, hash.size(), hash.data()); // also restarts the hash
        return hash;
    }
    auto& state = std::get<crypto_generichash_blake2b_state>(m_state->hash);
    crypto_generichash_blake2b_final(&state, hash.data(), hash.size());
    return hash;
}

ContentHash HashOf(Bytes bytes, HashKind kind)
{
    ContentHasher hasher(kind);
    hasher.Add(bytes);
    return hasher.Finish();
}

} // namespace Pelnar::Engine
