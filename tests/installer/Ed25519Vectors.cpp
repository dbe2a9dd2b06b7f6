#include "tests/installer/Ed25519Vectors.h"

#include <sodium.h>

#include <algorithm>
#include <stdexcept>

namespace Pelnar::Testing
{
namespace
{

/// The order of the prime-order group, 2^252 + 27742317777372353535851937790883648493, little end first.
constexpr Bytes32 GROUP_ORDER{0xed, 0xd3, 0xf5, 0x5c, 0x1a, 0x63, 0x12, 0x58, 0xd6, 0x9c, 0xf7,
                              0xa2, 0xde, 0xf9, 0xde, 0x14, 0,    0,    0,    0,    0,    0,
                              0,    0,    0,    0,    0,    0,    0,    0,    0,    0x10};

Bytes32 SmallY(std::uint8_t y)
{
    Bytes32 encoded{};
    encoded[0] = y;
    return encoded;
}

/// p - 1 + \a offset for the field's prime p = 2^255 - 19, the sign bit as asked.
Bytes32 NearPrime(int offset, bool isNegative)
{
    Bytes32 encoded;
    encoded.fill(0xff);
    encoded[0] = static_cast<std::uint8_t>(0xec + offset);
    encoded[31] = isNegative ? 0xff : 0x7f;
    return encoded;
}

/// GROUP_ORDER times \a point by doubling and adding; false when the encoding is no point.
bool MultiplyByOrder(Bytes32 const& point, Bytes32& result)
{
    result = SmallY(1);
    for (int bit = 255; bit >= 0; --bit)
    {
        if (crypto_core_ed25519_add(result.data(), result.data(), result.data()) != 0)
        {
            return false;
        }
        bool const isSet = (GROUP_ORDER[static_cast<std::size_t>(bit / 8)] >> (bit % 8) & 1) != 0;
        if (isSet && crypto_core_ed25519_add(result.data(), result.data(), point.data()) != 0)
        {
            return false;
        }
    }
    return true;
}

} // namespace

KeyPair MakeKeyPair(std::uint8_t seedByte)
{
    if (sodium_init() < 0)
    {
        throw std::runtime_error("the cryptography library does not start");
    }
    Bytes32 seed;
    seed.fill(seedByte);
    KeyPair pair;
    crypto_sign_ed25519_seed_keypair(pair.point.data(), pair.secret.data(), seed.data());
    std::array<std::uint8_t, 64> wide{};
    crypto_sign_ed25519_sk_to_curve25519(wide.data(), pair.secret.data());
    crypto_core_ed25519_scalar_reduce(pair.scalar.data(), wide.data());
    pair.publicKey = Base64(pair.point);
    return pair;
}

std::string Base64(std::string const& bytes)
{
    std::string text(sodium_base64_encoded_len(bytes.size(), sodium_base64_VARIANT_ORIGINAL), '\0');
    sodium_bin2base64(text.data(), text.size(), reinterpret_cast<unsigned char const*>(bytes.data()), bytes.size(),
                      sodium_base64_VARIANT_ORIGINAL);
    text.pop_back(); // the terminating NUL
    return text;
}

std::string Base64(Bytes32 const& bytes)
{
    return Base64(std::string(bytes.begin(), bytes.end()));
}

std::string Sign(std::string const& message, KeyPair const& pair)
{
    std::string signature(crypto_sign_ed25519_BYTES, '\0');
    crypto_sign_ed25519_detached(reinterpret_cast<unsigned char*>(signature.data()), nullptr,
                                 reinterpret_cast<unsigned char const*>(message.data()), message.size(),
                                 pair.secret.data());
    return signature;
}

std::string Malleable(std::string signature)
{
    int carry = 0;
    for (std::size_t i = 0; i < GROUP_ORDER.size(); ++i)
    {
        int const sum = static_cast<std::uint8_t>(signature[32 + i]) + GROUP_ORDER[i] + carry;
        signature[32 + i] = static_cast<char>(sum & 0xff);
        carry = sum >> 8;
    }
    return signature;
}

std::string SignatureWithNeutralR(std::string const& message, Bytes32 const& encodedR, KeyPair const& pair)
{
    crypto_hash_sha512_state state;
    crypto_hash_sha512_init(&state);
    crypto_hash_sha512_update(&state, encodedR.data(), encodedR.size());
    crypto_hash_sha512_update(&state, pair.point.data(), pair.point.size());
    crypto_hash_sha512_update(&state, reinterpret_cast<unsigned char const*>(message.data()), message.size());
    std::array<std::uint8_t, 64> wide;
    crypto_hash_sha512_final(&state, wide.data());
    Bytes32 h;
    crypto_core_ed25519_scalar_reduce(h.data(), wide.data());
    Bytes32 s;
    crypto_core_ed25519_scalar_mul(s.data(), h.data(), pair.scalar.data());
    return std::string(encodedR.begin(), encodedR.end()) + std::string(s.begin(), s.end());
}

std::vector<Bytes32> PointsOfSmallOrder()
{
    std::vector<Bytes32> points{SmallY(1)};
    for (int y = 2; points.size() < 8 && y < 200; ++y)
    {
        Bytes32 product;
        if (MultiplyByOrder(SmallY(static_cast<std::uint8_t>(y)), product) &&
            std::find(points.begin(), points.end(), product) == points.end())
        {
            points.push_back(product);
        }
    }
    return points;
}

std::vector<Bytes32> NonCanonicalEncodings()
{
    std::vector<Bytes32> encodings;
    for (int offset = 1; offset <= 19; ++offset)
    {
        encodings.push_back(NearPrime(offset, false));
        encodings.push_back(NearPrime(offset, true));
    }
    return encodings;
}

} // namespace Pelnar::Testing
