#include "Engine/core/bundle/TrustedKeys.h"

#include "Engine/core/base/ContentHasher.h"
#include "Engine/core/base/Descriptor.h"

#include <sodium.h>

#include <algorithm>

#include <sys/stat.h>

namespace Pelnar::Engine
{
namespace
{

constexpr std::size_t ID_BYTES = 8;

UpdateFault ReadSignature(std::string_view text, TrustedKeys const& keys, Ed25519SignatureBytes& signature)
{
    if (sodium_init() < 0)
    {
        return UpdateFault::CryptographyUnavailable;
    }
    return keys.Fault() == UpdateFault::None ? ParseSignature(text, signature) : keys.Fault();
}

UpdateFault Judge(TrustedKeys const& keys, Ed25519SignatureBytes const& signature, unsigned char const* bytes,
                  std::size_t size)
{
    bool const isSigned =
        std::any_of(keys.Keys().begin(), keys.Keys().end(),
                    [&](Ed25519Key const& key)
                    { return crypto_sign_ed25519_verify_detached(signature.data(), bytes, size, key.data()) == 0; });
    return isSigned ? UpdateFault::None : UpdateFault::SignatureMismatch;
}

} // namespace

std::string KeyIdOf(Ed25519Key const& key)
{
    ContentHash const hash = HashOf(View(key));
    return Hexadecimal(View(hash).substr(0, ID_BYTES));
}

std::string KeyIdOf(std::string_view publicKey)
{
    Ed25519Key key;
    return ParsePublicKey(publicKey, key) == UpdateFault::None ? KeyIdOf(key) : std::string();
}

bool IsKeyId(std::string_view text)
{
    return text.size() == 2 * ID_BYTES &&
           std::all_of(text.begin(), text.end(),
                       [](char c) { return (c >= '0' && c <= '9') || (c >= 'a' && c <= 'f'); });
}

TrustedKeys::TrustedKeys(std::vector<std::string> const& texts)
{
    for (std::string const& text : texts)
    {
        Add(text);
    }
}

TrustedKeys::TrustedKeys(std::initializer_list<std::string> texts) : TrustedKeys(std::vector<std::string>(texts)) {}

void TrustedKeys::Add(std::string const& text)
{
    if (text.empty())
    {
        return;
    }
    Ed25519Key key;
    UpdateFault const fault = ParsePublicKey(text, key);
    if (fault == UpdateFault::None)
    {
        m_keys.push_back(key);
        m_ids.push_back(KeyIdOf(key));
    }
    bool const isFirst = m_texts.empty();
    m_texts.push_back(text);
    m_fault = isFirst || m_fault == UpdateFault::None ? fault : m_fault;
}

bool TrustedKeys::HasId(std::string_view id) const
{
    return std::find(m_ids.begin(), m_ids.end(), id) != m_ids.end();
}

UpdateFault VerifySignature(std::string_view message, std::string_view signatureText, TrustedKeys const& keys)
{
    Ed25519SignatureBytes signature;
    if (UpdateFault const fault = ReadSignature(signatureText, keys, signature); fault != UpdateFault::None)
    {
        return fault;
    }
    return Judge(keys, signature, reinterpret_cast<unsigned char const*>(message.data()), message.size());
}

UpdateFault VerifyFileSignature(int descriptor, std::string_view signatureText, TrustedKeys const& keys)
{
    Ed25519SignatureBytes signature;
    if (UpdateFault const fault = ReadSignature(signatureText, keys, signature); fault != UpdateFault::None)
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
    FileMapping const file(descriptor, size);
    return file.IsValid() ? Judge(keys, signature, file.Content().data(), size) : UpdateFault::ArchiveUnreadable;
}

} // namespace Pelnar::Engine
