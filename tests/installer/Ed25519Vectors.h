// Ed25519Vectors.h: makes keys, signatures and the special points for forgeries. No value is recorded: the points of
// small order are found by multiplying points of the whole curve by the prime order.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <vector>

namespace Pelnar::Testing
{

using Bytes32 = std::array<std::uint8_t, 32>;

struct KeyPair
{
    std::string publicKey; ///< base64
    Bytes32 point;
    Bytes32 scalar;                      ///< the secret scalar, reduced
    std::array<std::uint8_t, 64> secret; ///< as the library keeps it
};

/// The pair of the seed whose 32 bytes are all \a seedByte.
KeyPair MakeKeyPair(std::uint8_t seedByte);

std::string Base64(std::string const& bytes);
std::string Base64(Bytes32 const& bytes);

/// A right signature of \a message, raw.
std::string Sign(std::string const& message, KeyPair const& pair);
/// \a signature with the group's order added to its second half: the equation still holds, but the bytes differ.
std::string Malleable(std::string signature);
/// R of the given encoding and the S that fits when R is the neutral element: S = h * a.
std::string SignatureWithNeutralR(std::string const& message, Bytes32 const& encodedR, KeyPair const& pair);

/// The eight points whose order divides eight, in their canonical encodings; the neutral element is the first.
std::vector<Bytes32> PointsOfSmallOrder();
/// Every encoding with y not below the field's prime: 38 of them, sign bit included.
std::vector<Bytes32> NonCanonicalEncodings();

} // namespace Pelnar::Testing
