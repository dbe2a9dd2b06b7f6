#include "Engine/core/delta/Sha256Hasher.h"

#include <openssl/evp.h>

#include <new>

namespace Pelnar::Engine
{

struct Sha256Hasher::State
{
    std::unique_ptr<EVP_MD_CTX, void (*)(EVP_MD_CTX*)> context{EVP_MD_CTX_new(), EVP_MD_CTX_free};
};

Sha256Hasher::Sha256Hasher() : m_state(std::make_unique<State>())
{
    if (!m_state->context || EVP_DigestInit_ex(m_state->context.get(), EVP_sha256(), nullptr) != 1)
    {
        throw std::bad_alloc();
    }
}

Sha256Hasher::~Sha256Hasher() = default;

void Sha256Hasher::Add(Bytes bytes)
{
    if (EVP_DigestUpdate(m_state->context.get(), bytes.data(), bytes.size()) != 1)
    {
        throw std::bad_alloc();
    }
}

Sha256 Sha256Hasher::Finish()
{
    Sha256 hash{};
    if (EVP_DigestFinal_ex(m_state->context.get(), hash.data(), nullptr) != 1)
    {
        throw std::bad_alloc();
    }
    return hash;
}

Sha256 HashOf(Bytes bytes)
{
    Sha256Hasher hasher;
    hasher.Add(bytes);
    return hasher.Finish();
}

} // namespace Pelnar::Engine
