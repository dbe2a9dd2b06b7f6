#include "Engine/core/payload/Ed25519Signature.h"

#include <sodium.h>

#include <algorithm>
#include <memory>

#include <sys/mman.h>
#include <sys/stat.h>

namespace Pelnar::Engine
{
namespace
{

static_assert(ED25519_KEY_BYTES == crypto_sign_ed25519_PUBLICKEYBYTES);
static_assert(ED25519_SIGNATURE_BYTES == crypto_sign_ed25519_BYTES);

/// A file's bytes, mapped for reading while this lives.
class MappedFile
{
public:
    MappedFile(int descriptor, std::size_t size)
        : m_size(size), m_bytes(::mmap(nullptr, size, PROT_READ, MAP_PRIVATE, descriptor, 0))
    {
    }
    ~MappedFile()
    {
        if (IsMapped())
        {
            ::munmap(m_bytes, m_size);
        }
    }
    MappedFile(MappedFile const&) = delete;
    MappedFile& operator=(MappedFile const&) = delete;

    bool IsMapped() const { return m_bytes != MAP_FAILED; }
    unsigned char const* Bytes() const { return static_cast<unsigned char const*>(m_bytes); }

private:
    std::size_t m_size;
    void* m_bytes;
};

/// A signature and the keys of which one must have made it.
struct Claim
{
    std::vector<Ed25519Key> keys;
    Ed25519SignatureBytes signature;
};

UpdateFault ReadClaim(std::string_view signatureText, std::vector<std::string> const& publicKeys, Claim& claim)
{
    if (sodium_init() < 0)
    {
        return UpdateFault::CryptographyUnavailable;
    }
    if (publicKeys.empty())
    {
        return UpdateFault::KeyMissing;
    }
    claim.keys.resize(publicKeys.size());
    for (std::size_t i = 0; i < claim.keys.size(); ++i)
    {
        if (UpdateFault const fault = ParsePublicKey(publicKeys[i], claim.keys[i]); fault != UpdateFault::None)
        {
            return fault;
        }
    }
    return ParseSignature(signatureText, claim.signature);
}

UpdateFault Judge(Claim const& claim, unsigned char const* bytes, std::size_t size)
{
    bool const isSigned = std::any_of(
        claim.keys.begin(), claim.keys.end(),
        [&](Ed25519Key const& key)
        { return crypto_sign_ed25519_verify_detached(claim.signature.data(), bytes, size, key.data()) == 0; });
    return isSigned ? UpdateFault::None : UpdateFault::SignatureMismatch;
}

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

UpdateFault VerifySignature(std::string_view message, std::string_view signatureText,
                            std::vector<std::string> const& publicKeys)
{
    Claim claim;
    if (UpdateFault const fault = ReadClaim(signatureText, publicKeys, claim); fault != UpdateFault::None)
    {
        return fault;
    }
    return Judge(claim, reinterpret_cast<unsigned char const*>(message.data()), message.size());
}

UpdateFault VerifyFileSignature(int descriptor, std::string_view signatureText,
                                std::vector<std::string> const& publicKeys)
{
    Claim claim;
    if (UpdateFault const fault = ReadClaim(signatureText, publicKeys, claim); fault != UpdateFault::None)
    {
        return fault;
    }
    struct stat status;
    if (::fstat(descriptor, &status) != 0 || !S_ISREG(status.st_mode))
    {
        return UpdateFault::ArchiveUnreadable;
    }
    if (status.st_size == 0)
    {
        return UpdateFault::ArchiveEmpty;
    }
    auto const size = static_cast<std::size_t>(status.st_size);
    MappedFile const file(descriptor, size);
    if (!file.IsMapped())
    {
        return UpdateFault::ArchiveUnreadable;
    }
    return Judge(claim, file.Bytes(), size);
}

} // namespace Pelnar::Engine
