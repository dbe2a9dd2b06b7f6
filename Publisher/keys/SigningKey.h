// SigningKey.h: the private key with which a publisher signs archives and feeds. Ownership: the secret is in memory
// that is locked, guarded, excluded from core files and wiped. Only SecretText copies it out. The file is described in
// docs/formats/signing-key.md.
#pragma once

#include "Publisher/keys/Signer.h"

#include <QString>

#include <cstddef>
#include <memory>
#include <string>

namespace Pelnar::Publisher
{

/// Bytes in memory that is wiped.
class SecretBytes
{
public:
    /// \a size zeros. Throws std::bad_alloc.
    explicit SecretBytes(std::size_t size);

    unsigned char* Data() { return m_bytes.get(); }
    unsigned char const* Data() const { return m_bytes.get(); }
    std::size_t Size() const { return m_size; }

private:
    struct Wipe
    {
        void operator()(unsigned char* bytes) const;
    };

    std::size_t m_size;
    std::unique_ptr<unsigned char[], Wipe> m_bytes;
};

/// The ways to write a private key.
enum class KeyForm
{
    Seed,      ///< base64 of the 32 bytes that the key pair is derived from
    SecretKey, ///< base64 of 64 bytes: the seed and the public key
};

class SigningKey final : public ISigner
{
public:
    static SigningKey Generate();
    /// The key in the file \a path, or on standard input if it is "-". Throws Refusal for a file that others may read,
    /// a link, a file of another user, and text that is not a key.
    static SigningKey Load(QString const& path);

    QString PublicKeyText() const override;
    /// The private key in that form and a line feed. Ends with a NUL.
    SecretBytes SecretText(KeyForm form) const;
    /// Writes the seed to a new file that only its owner may read. Throws Refusal, also if the file exists.
    void Save(QString const& path) const;
    ArchiveSignature Sign(InputFile const& archive) const override;
    std::string SignatureOf(QByteArray const& message) const override;

private:
    explicit SigningKey(SecretBytes secret);
    static SigningKey FromText(QString const& name, SecretBytes const& text, std::size_t size);

    SecretBytes m_secret; ///< seed and public key
};

} // namespace Pelnar::Publisher
