#include "Publisher/keys/SigningKey.h"

#include "Engine/core/bundle/TrustedKeys.h"
#include "Publisher/Refusal.h"
#include "Publisher/files/FaultText.h"

#include <QFile>

#include <cerrno>
#include <cstring>
#include <new>

#include <fcntl.h>
#include <sodium.h>
#include <sys/stat.h>
#include <unistd.h>

namespace Pelnar::Publisher
{
namespace
{

constexpr std::size_t SEED_BYTES = crypto_sign_ed25519_SEEDBYTES;
constexpr std::size_t SECRET_BYTES = crypto_sign_ed25519_SECRETKEYBYTES;
constexpr std::size_t MOST_TEXT_BYTES = 256; ///< of a key file
constexpr auto BASE64 = sodium_base64_VARIANT_ORIGINAL;
QString const STANDARD_INPUT = u"-"_s;

void StartLibrary()
{
    if (::sodium_init() < 0)
    {
        throw Refusal({u"the cryptography library does not start"_s, {}});
    }
}

/// True for text that looks like a key itself and not like the name of a file with one.
bool LooksLikeKey(QString const& text)
{
    auto const bytes = Engine::DecodeBase64(text.toStdString());
    return bytes && (bytes->size() == SEED_BYTES || bytes->size() == SECRET_BYTES) && !QFile::exists(text);
}

void CheckKeyFile(int descriptor, QString const& path)
{
    struct stat status;
    if (::fstat(descriptor, &status) != 0)
    {
        RefuseReading(path, errno);
    }
    if (!S_ISREG(status.st_mode))
    {
        throw Refusal(
            {path, u"is not a plain file"_s, u"give the private key's own file, or \"-\" for standard input"_s});
    }
    if (status.st_uid != ::geteuid())
    {
        throw Refusal({path, u"belongs to another user"_s, u"become its owner, and find out who has read it"_s});
    }
    if ((status.st_mode & 077) != 0)
    {
        throw Refusal(
            {path, u"other users may read this private key (mode %1)"_s.arg(status.st_mode & 07777, 4, 8, QChar(u'0')),
             u"chmod 600 the file, and consider whether the key is still a secret"_s});
    }
}

Engine::UniqueFd OpenKeyFile(QString const& path)
{
    if (LooksLikeKey(path))
    {
        // Deliberate: the text is not printed. It would be in one more place then.
        throw Refusal({u"a private key must not be an argument, because all users can list arguments"_s,
                       u"put it in a file of mode 0600 or on standard input (\"-\"), and make a new key "
                       "if others use this computer"_s});
    }
    int const flags = O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC;
    Engine::UniqueFd descriptor(::open(QFile::encodeName(path).constData(), flags));
    if (!descriptor && errno == ELOOP)
    {
        throw Refusal({path, u"is a link, whose target may change"_s, u"give the private key's own file"_s});
    }
    if (!descriptor)
    {
        RefuseFile(path, u"the private key cannot be read"_s, errno,
                   u"check the name, or make a key with \"keys generate\""_s);
    }
    CheckKeyFile(descriptor.Get(), path);
    return descriptor;
}

/// Reads \a descriptor to its end into \a text; returns the number of bytes.
std::size_t ReadSecret(int descriptor, QString const& name, SecretBytes& text)
{
    std::size_t size = 0;
    for (;;)
    {
        if (size == text.Size())
        {
            throw Refusal({name, u"is too long for a private key"_s, u"give a file made by \"keys generate\""_s});
        }
        ssize_t const count = ::read(descriptor, text.Data() + size, text.Size() - size);
        if (count < 0 && errno != EINTR)
        {
            RefuseReading(name, errno);
        }
        if (count == 0)
        {
            return size;
        }
        size += count < 0 ? 0 : static_cast<std::size_t>(count);
    }
}

[[noreturn]] void RefuseKeyText(QString const& name)
{
    throw Refusal({name, 1, 0, u"is not a private key"_s,
                   u"a key is one line: 32 or 64 bytes in base64, as \"keys generate\" writes it"_s});
}

std::string SignatureText(SecretBytes const& secret, unsigned char const* bytes, std::size_t size)
{
    Engine::Ed25519SignatureBytes signature;
    ::crypto_sign_ed25519_detached(signature.data(), nullptr, bytes, size, secret.Data());
    char text[sodium_base64_ENCODED_LEN(Engine::ED25519_SIGNATURE_BYTES, BASE64)];
    ::sodium_bin2base64(text, sizeof text, signature.data(), signature.size(), BASE64);
    return text;
}

} // namespace

SecretBytes::SecretBytes(std::size_t size) : m_size(size)
{
    StartLibrary();
    m_bytes.reset(static_cast<unsigned char*>(::sodium_malloc(size)));
    if (!m_bytes)
    {
        throw std::bad_alloc();
    }
    std::memset(m_bytes.get(), 0, size);
}

void SecretBytes::Wipe::operator()(unsigned char* bytes) const
{
    ::sodium_free(bytes);
}

SigningKey::SigningKey(SecretBytes secret) : m_secret(std::move(secret)) {}

SigningKey SigningKey::Generate()
{
    SecretBytes secret(SECRET_BYTES);
    Engine::Ed25519Key publicKey;
    ::crypto_sign_ed25519_keypair(publicKey.data(), secret.Data());
    return SigningKey(std::move(secret));
}

SigningKey SigningKey::Load(QString const& path)
{
    SecretBytes text(MOST_TEXT_BYTES);
    if (path == STANDARD_INPUT)
    {
        // Not through the program's streams, because their buffers are not wiped.
        std::size_t const size = ReadSecret(STDIN_FILENO, u"<stdin>"_s, text);
        return FromText(u"<stdin>"_s, text, size);
    }
    Engine::UniqueFd const file = OpenKeyFile(path);
    std::size_t const size = ReadSecret(file.Get(), path, text);
    return FromText(path, text, size);
}

SigningKey SigningKey::FromText(QString const& name, SecretBytes const& text, std::size_t size)
{
    auto const* const characters = reinterpret_cast<char const*>(text.Data());
    while (size > 0 && (characters[size - 1] == '\n' || characters[size - 1] == '\r' || characters[size - 1] == ' '))
    {
        --size;
    }
    SecretBytes given(MOST_TEXT_BYTES);
    std::size_t givenSize = 0;
    char const* end = nullptr;
    bool const isBase64 =
        ::sodium_base642bin(given.Data(), given.Size(), characters, size, nullptr, &givenSize, &end, BASE64) == 0 &&
        end == characters + size;
    if (!isBase64 || (givenSize != SEED_BYTES && givenSize != SECRET_BYTES))
    {
        RefuseKeyText(name);
    }
    SecretBytes secret(SECRET_BYTES);
    Engine::Ed25519Key publicKey;
    ::crypto_sign_ed25519_seed_keypair(publicKey.data(), secret.Data(), given.Data());
    if (givenSize == SECRET_BYTES && ::sodium_memcmp(given.Data(), secret.Data(), SECRET_BYTES) != 0)
    {
        throw Refusal(
            {name, 1, 0, u"the two halves of the key do not belong together"_s, u"restore the key from its backup"_s});
    }
    return SigningKey(std::move(secret));
}

QString SigningKey::PublicKeyText() const
{
    char text[sodium_base64_ENCODED_LEN(Engine::ED25519_KEY_BYTES, BASE64)];
    ::sodium_bin2base64(text, sizeof text, m_secret.Data() + SEED_BYTES, Engine::ED25519_KEY_BYTES, BASE64);
    return QString::fromLatin1(text);
}

SecretBytes SigningKey::SecretText(KeyForm form) const
{
    std::size_t const size = form == KeyForm::Seed ? SEED_BYTES : SECRET_BYTES;
    SecretBytes text(::sodium_base64_encoded_len(size, BASE64) + 1);
    auto* const characters = reinterpret_cast<char*>(text.Data());
    ::sodium_bin2base64(characters, text.Size() - 1, m_secret.Data(), size, BASE64);
    characters[text.Size() - 2] = '\n';
    return text;
}

void SigningKey::Save(QString const& path) const
{
    QByteArray const name = QFile::encodeName(path);
    Engine::UniqueFd const file(::open(name.constData(), O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, 0600));
    if (!file && errno == EEXIST)
    {
        throw Refusal({path, u"exists already; a lost private key cannot be made again"_s,
                       u"give another name, or move this file away"_s});
    }
    if (!file)
    {
        RefuseFile(path, u"cannot be made"_s, errno, u"check that the folder exists, and that you may write to it"_s);
    }
    SecretBytes const text = SecretText(KeyForm::Seed);
    bool const isWritten = ::fchmod(file.Get(), 0600) == 0 &&
                           Engine::WriteAll(file.Get(), Engine::Bytes(text.Data(), text.Size() - 1)) &&
                           ::fsync(file.Get()) == 0;
    if (!isWritten)
    {
        int const errorNumber = errno;
        ::unlink(name.constData());
        RefuseFile(path, u"cannot be written"_s, errorNumber, u"check the disk"_s);
    }
}

ArchiveSignature SigningKey::Sign(InputFile const& archive) const
{
    CheckArchiveSize(archive);
    Engine::FileMapping const mapping(archive.descriptor.Get(), archive.size);
    if (!mapping.IsValid())
    {
        RefuseReading(archive.name, errno);
    }
    std::string const text = SignatureText(m_secret, mapping.Content().data(), mapping.Content().size());
    Engine::UpdateFault const verdict =
        Engine::VerifyFileSignature(archive.descriptor.Get(), text, {PublicKeyText().toStdString()});
    if (verdict != Engine::UpdateFault::None)
    {
        throw Refusal(ProblemOf(verdict, 0, archive.name));
    }
    return {QString::fromStdString(text), archive.size};
}

std::string SigningKey::SignatureOf(QByteArray const& message) const
{
    return SignatureText(m_secret, reinterpret_cast<unsigned char const*>(message.constData()),
                         std::size_t(message.size()));
}

} // namespace Pelnar::Publisher
