// Ed25519Signature.h: strict parsing of public keys and signatures. TrustedKeys.h verifies with them. Pure functions.
#pragma once

#include "Engine/core/faults/UpdateFault.h"

#include <array>
#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

namespace Pelnar::Engine
{

constexpr std::size_t ED25519_KEY_BYTES = 32;
constexpr std::size_t ED25519_SIGNATURE_BYTES = 64;

using Ed25519Key = std::array<std::uint8_t, ED25519_KEY_BYTES>;
using Ed25519SignatureBytes = std::array<std::uint8_t, ED25519_SIGNATURE_BYTES>;

/// Strict base64 of RFC 4648 section 4: the usual alphabet, padding, no blanks, no stray bits; otherwise empty.
std::optional<std::vector<std::uint8_t>> DecodeBase64(std::string_view text);

/// Writes the key of \a text to \a key: 32 bytes that are a point of the prime-order group.
[[nodiscard]] UpdateFault ParsePublicKey(std::string_view text, Ed25519Key& key);
/// Writes the signature of \a text to \a signature: 64 bytes. Only the verification decides whether they are valid.
[[nodiscard]] UpdateFault ParseSignature(std::string_view text, Ed25519SignatureBytes& signature);

} // namespace Pelnar::Engine
