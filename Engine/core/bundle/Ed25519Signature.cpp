#include "Engine/core/bundle/Ed25519Signature.h"

#include <sodium.h>

#include <algorithm>

namespace Pelnar::Engine
{
namespace
{

static_assert(ED25519_KEY_BYTES == crypto_sign_ed25519_PUBLICKEYBYTES);
static_assert(ED25519_SIGNATURE_BYTES == crypto_sign_ed25519_BYTES);

} // namespace

std::optional<std::vector<std::uint8_t>> DecodeBase64(std::string_view text)
{
    std::vector<std::uint8_t> bytes(text.size() / 4 * 3 + 1);
    std::size_t length = 0;
    char const* end = nullptr;
    if (sodium_base642bin(bytes.data(), bytes.size(), text.data(), text.size(), nullptr, &length, &end,
                          sodium_base64_VARIANT_ORIGINAL) != 0 ||
        end != text.data() + text.size())
    {
        return std::nullopt;
    }
    bytes.resize(length);
    return bytes;
}

UpdateFault ParsePublicKey(std::string_view text, Ed25519Key& key)
{
    if (text.empty())
    {
        return UpdateFault::KeyMissing;
    }
    auto const bytes = DecodeBase64(text);
    if (!bytes || bytes->size() != key.size() || crypto_core_ed25519_is_valid_point(bytes->data()) != 1)
    {
        return UpdateFault::KeyMalformed;
    }
    std::copy(bytes->begin(), bytes->end(), key.begin());
    return UpdateFault::None;
}

UpdateFault ParseSignature(std::string_view text, Ed25519SignatureBytes& signature)
{
    if (text.empty())
    {
        return UpdateFault::SignatureMissing;
    }
    auto const bytes = DecodeBase64(text);
    if (!bytes || bytes->size() != signature.size())
    {
        return UpdateFault::SignatureMalformed;
    }
    std::copy(bytes->begin(), bytes->end(), signature.begin());
    return UpdateFault::None;
}

} // namespace Pelnar::Engine
