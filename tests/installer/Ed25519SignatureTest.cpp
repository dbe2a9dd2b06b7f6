#include "Engine/core/bundle/TrustedKeys.h"
#include "tests/installer/Ed25519Vectors.h"

#include <gtest/gtest.h>

#include <sodium.h>

#include <fcntl.h>
#include <sys/mman.h>
#include <unistd.h>

#include <string>

namespace
{

using namespace Pelnar::Engine;
using namespace Pelnar::Testing;

/// A file of its own in memory, closed at the end.
class MemoryFile
{
public:
    explicit MemoryFile(std::string const& bytes) : m_descriptor(::memfd_create("archive", MFD_CLOEXEC))
    {
        EXPECT_EQ(::write(m_descriptor, bytes.data(), bytes.size()), static_cast<ssize_t>(bytes.size()));
    }
    ~MemoryFile() { ::close(m_descriptor); }
    MemoryFile(MemoryFile const&) = delete;
    MemoryFile& operator=(MemoryFile const&) = delete;

    int Descriptor() const { return m_descriptor; }

private:
    int m_descriptor;
};

UpdateFault Verify(std::string const& message, std::string const& signature, std::vector<std::string> const& keys)
{
    MemoryFile const file(message);
    return VerifyFileSignature(file.Descriptor(), signature, keys);
}

TEST(TrustedKeys, NameTheirKeysByShortIds)
{
    std::string const first = MakeKeyPair(7).publicKey;
    std::string const second = MakeKeyPair(8).publicKey;
    TrustedKeys const keys{first, "", second};
    EXPECT_EQ(keys.Texts(), (std::vector<std::string>{first, second}));
    EXPECT_EQ(keys.Ids(), (std::vector<std::string>{KeyIdOf(first), KeyIdOf(second)}));
    EXPECT_EQ(keys.Fault(), UpdateFault::None);
    EXPECT_TRUE(IsKeyId(KeyIdOf(first)));
    EXPECT_TRUE(keys.HasId(KeyIdOf(second)));
    EXPECT_FALSE(keys.HasId(KeyIdOf(MakeKeyPair(9).publicKey)));
    EXPECT_FALSE(keys.HasId(""));
    // The first eight bytes of the hash that `printf KEY | base64 -d | sha256sum` prints.
    EXPECT_EQ(KeyIdOf("11qYAYKxCrfVS/7TyWQHOg7hcvPapiMlrwIaaPcHURo="), "21fe31dfa154a261");
    EXPECT_EQ(KeyIdOf("garbage"), "");
    EXPECT_FALSE(IsKeyId("21FE31DFA154A261"));
    EXPECT_FALSE(IsKeyId("21fe31dfa154a26"));
}

TEST(TrustedKeys, OneUnusableKeySpoilsAll)
{
    std::string const good = MakeKeyPair(7).publicKey;
    EXPECT_EQ(TrustedKeys().Fault(), UpdateFault::KeyMissing);
    EXPECT_EQ(TrustedKeys{""}.Fault(), UpdateFault::KeyMissing);
    EXPECT_EQ((TrustedKeys{good, "AAAA"}).Fault(), UpdateFault::KeyMalformed);
    EXPECT_EQ((TrustedKeys{"AAAA", good}).Fault(), UpdateFault::KeyMalformed);
}

class Ed25519Signature : public testing::Test
{
protected:
    std::string const message = "the bytes of an archive, all of them";
    KeyPair const pair = MakeKeyPair(7);
    KeyPair const stranger = MakeKeyPair(8);
    std::string const signature = Sign(message, pair);
};

TEST_F(Ed25519Signature, RightSignatureIsAccepted)
{
    EXPECT_EQ(Verify(message, Base64(signature), {pair.publicKey}), UpdateFault::None);
}

TEST_F(Ed25519Signature, ReadPositionOfTheFileIsNeitherUsedNorMoved)
{
    MemoryFile const file(message);
    ASSERT_EQ(::lseek(file.Descriptor(), 5, SEEK_SET), 5);
    EXPECT_EQ(VerifyFileSignature(file.Descriptor(), Base64(signature), {pair.publicKey}), UpdateFault::None);
    EXPECT_EQ(::lseek(file.Descriptor(), 0, SEEK_CUR), 5);
}

TEST_F(Ed25519Signature, AnyFlippedBitOfTheFileIsRefused)
{
    for (std::size_t bit = 0; bit < message.size() * 8; ++bit)
    {
        std::string changed = message;
        changed[bit / 8] = static_cast<char>(changed[bit / 8] ^ (1 << (bit % 8)));
        EXPECT_EQ(Verify(changed, Base64(signature), {pair.publicKey}), UpdateFault::SignatureMismatch) << bit;
    }
}

TEST_F(Ed25519Signature, AnyFlippedBitOfTheSignatureIsRefused)
{
    for (std::size_t bit = 0; bit < signature.size() * 8; ++bit)
    {
        std::string changed = signature;
        changed[bit / 8] = static_cast<char>(changed[bit / 8] ^ (1 << (bit % 8)));
        EXPECT_EQ(Verify(message, Base64(changed), {pair.publicKey}), UpdateFault::SignatureMismatch) << bit;
    }
}

TEST_F(Ed25519Signature, OneByteMoreOrLessIsRefused)
{
    EXPECT_EQ(Verify(message + '\0', Base64(signature), {pair.publicKey}), UpdateFault::SignatureMismatch);
    EXPECT_EQ(Verify(message.substr(0, message.size() - 1), Base64(signature), {pair.publicKey}),
              UpdateFault::SignatureMismatch);
}

TEST_F(Ed25519Signature, EmptyFileIsRefusedEvenWhenSigned)
{
    EXPECT_EQ(Verify("", Base64(Sign("", pair)), {pair.publicKey}), UpdateFault::ArchiveEmpty);
}

TEST_F(Ed25519Signature, WhatIsNoFileIsUnreadable)
{
    int ends[2];
    ASSERT_EQ(::pipe(ends), 0);
    EXPECT_EQ(VerifyFileSignature(ends[0], Base64(signature), {pair.publicKey}), UpdateFault::ArchiveUnreadable);
    ::close(ends[0]);
    ::close(ends[1]);
    EXPECT_EQ(VerifyFileSignature(-1, Base64(signature), {pair.publicKey}), UpdateFault::ArchiveUnreadable);
    int const folder = ::open("/", O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    EXPECT_EQ(VerifyFileSignature(folder, Base64(signature), {pair.publicKey}), UpdateFault::ArchiveUnreadable);
    ::close(folder);
}

TEST_F(Ed25519Signature, SignatureTextIsStrict)
{
    std::string const right = Base64(signature);
    std::string urlSafe = Base64(std::string(64, '\xff'));
    std::replace(urlSafe.begin(), urlSafe.end(), '/', '_');
    struct Row
    {
        char const* name;
        std::string text;
        UpdateFault fault;
    };
    for (Row const& row : {
             Row{"absent", "", UpdateFault::SignatureMissing},
             Row{"blank", " ", UpdateFault::SignatureMalformed},
             Row{"63 bytes", Base64(signature.substr(1)), UpdateFault::SignatureMalformed},
             Row{"65 bytes", Base64(signature + "x"), UpdateFault::SignatureMalformed},
             Row{"128 bytes", Base64(signature + signature), UpdateFault::SignatureMalformed},
             Row{"two signatures", right + right, UpdateFault::SignatureMalformed},
             Row{"two, comma", right + "," + right, UpdateFault::SignatureMalformed},
             Row{"blank before", " " + right, UpdateFault::SignatureMalformed},
             Row{"blank after", right + " ", UpdateFault::SignatureMalformed},
             Row{"newline after", right + "\n", UpdateFault::SignatureMalformed},
             Row{"newline inside", right.substr(0, 40) + "\n" + right.substr(40), UpdateFault::SignatureMalformed},
             Row{"no padding", right.substr(0, right.size() - 2), UpdateFault::SignatureMalformed},
             Row{"one padding", right.substr(0, right.size() - 1), UpdateFault::SignatureMalformed},
             Row{"more padding", right + "=", UpdateFault::SignatureMalformed},
             Row{"URL-safe alphabet", urlSafe, UpdateFault::SignatureMalformed},
             Row{"hex", std::string(128, 'a'), UpdateFault::SignatureMalformed},
             Row{"NUL after", right + std::string(1, '\0'), UpdateFault::SignatureMalformed},
             Row{"another key's", Base64(Sign(message, stranger)), UpdateFault::SignatureMismatch},
             Row{"all zero", Base64(std::string(64, '\0')), UpdateFault::SignatureMismatch},
         })
    {
        EXPECT_EQ(Verify(message, row.text, {pair.publicKey}), row.fault) << row.name;
    }
    // 64 bytes leave four bits of the last letter unused: they must be zero.
    std::string stray = right;
    ASSERT_EQ(stray.substr(stray.size() - 2), "==");
    stray[stray.size() - 3] = static_cast<char>(stray[stray.size() - 3] + 1);
    EXPECT_EQ(Verify(message, stray, {pair.publicKey}), UpdateFault::SignatureMalformed);
}

TEST_F(Ed25519Signature, KeyTextIsStrict)
{
    std::string const bytes(pair.point.begin(), pair.point.end());
    struct Row
    {
        char const* name;
        std::string text;
        UpdateFault fault;
    };
    for (Row const& row : {
             Row{"absent", "", UpdateFault::KeyMissing},
             Row{"31 bytes", Base64(bytes.substr(1)), UpdateFault::KeyMalformed},
             Row{"33 bytes", Base64(bytes + "x"), UpdateFault::KeyMalformed},
             Row{"all zero", Base64(std::string(32, '\0')), UpdateFault::KeyMalformed},
             Row{"blank after", pair.publicKey + " ", UpdateFault::KeyMalformed},
             Row{"no padding", pair.publicKey.substr(0, pair.publicKey.size() - 1), UpdateFault::KeyMalformed},
             Row{"words", "not a key", UpdateFault::KeyMalformed},
         })
    {
        EXPECT_EQ(Verify(message, Base64(signature), {row.text}), row.fault) << row.name;
    }
    EXPECT_EQ(Verify(message, Base64(signature), {}), UpdateFault::KeyMissing);
}

TEST_F(Ed25519Signature, EitherOfTwoKeysMaySignAndBothMustBeUsable)
{
    EXPECT_EQ(Verify(message, Base64(signature), {stranger.publicKey, pair.publicKey}), UpdateFault::None);
    EXPECT_EQ(Verify(message, Base64(signature), {pair.publicKey, stranger.publicKey}), UpdateFault::None);
    EXPECT_EQ(Verify(message, Base64(signature), {stranger.publicKey}), UpdateFault::SignatureMismatch);
    EXPECT_EQ(Verify(message, Base64(signature), {pair.publicKey, "x"}), UpdateFault::KeyMalformed);
}

TEST_F(Ed25519Signature, MalleableSecondHalfIsRefused)
{
    EXPECT_EQ(Verify(message, Base64(Malleable(signature)), {pair.publicKey}), UpdateFault::SignatureMismatch);
}

TEST_F(Ed25519Signature, KeysOfSmallOrderAreRefused)
{
    std::vector<Bytes32> const points = PointsOfSmallOrder();
    ASSERT_EQ(points.size(), 8u);
    for (Bytes32 const& point : points)
    {
        // With such a key a signature of nothing is valid for one message in eight, and with the first key for every
        // message.
        std::string const forged = std::string(points[0].begin(), points[0].end()) + std::string(32, '\0');
        EXPECT_EQ(Verify(message, Base64(forged), {Base64(point)}), UpdateFault::KeyMalformed);
    }
}

TEST_F(Ed25519Signature, FirstHalvesOfSmallOrderAreRefusedAlthoughTheEquationHolds)
{
    std::vector<Bytes32> const points = PointsOfSmallOrder();
    std::string const fitting = SignatureWithNeutralR(message, points[0], pair);
    EXPECT_EQ(Verify(message, Base64(fitting), {pair.publicKey}), UpdateFault::SignatureMismatch);

    // The test vector is effective: S times the base point is h times the key, so only the check of R refuses it.
    Bytes32 left;
    Bytes32 scalar;
    std::copy(fitting.begin() + 32, fitting.end(), scalar.begin());
    ASSERT_EQ(crypto_scalarmult_ed25519_base_noclamp(left.data(), scalar.data()), 0);
    crypto_hash_sha512_state state;
    crypto_hash_sha512_init(&state);
    crypto_hash_sha512_update(&state, points[0].data(), 32);
    crypto_hash_sha512_update(&state, pair.point.data(), 32);
    crypto_hash_sha512_update(&state, reinterpret_cast<unsigned char const*>(message.data()), message.size());
    std::array<std::uint8_t, 64> wide;
    crypto_hash_sha512_final(&state, wide.data());
    Bytes32 h;
    crypto_core_ed25519_scalar_reduce(h.data(), wide.data());
    Bytes32 right;
    ASSERT_EQ(crypto_scalarmult_ed25519_noclamp(right.data(), h.data(), pair.point.data()), 0);
    EXPECT_EQ(left, right);

    for (Bytes32 const& point : points)
    {
        std::string const odd = SignatureWithNeutralR(message, point, pair);
        EXPECT_EQ(Verify(message, Base64(odd), {pair.publicKey}), UpdateFault::SignatureMismatch);
    }
}

TEST_F(Ed25519Signature, NonCanonicalPointsAreRefusedAsKeyAndAsFirstHalf)
{
    std::vector<Bytes32> const encodings = NonCanonicalEncodings();
    ASSERT_EQ(encodings.size(), 38u);
    for (Bytes32 const& encoding : encodings)
    {
        EXPECT_EQ(Verify(message, Base64(signature), {Base64(encoding)}), UpdateFault::KeyMalformed);
        EXPECT_EQ(Verify(message, Base64(SignatureWithNeutralR(message, encoding, pair)), {pair.publicKey}),
                  UpdateFault::SignatureMismatch);
    }
}

TEST_F(Ed25519Signature, Base64OfEveryLengthComesBack)
{
    std::string bytes;
    for (int length = 0; length < 70; ++length)
    {
        auto const decoded = DecodeBase64(Base64(bytes));
        ASSERT_TRUE(decoded.has_value());
        EXPECT_EQ(std::string(decoded->begin(), decoded->end()), bytes);
        bytes.push_back(static_cast<char>(length * 37));
    }
}

} // namespace
