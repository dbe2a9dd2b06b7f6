#include "Publisher/gate/PrivateKeys.h"

#include "Engine/core/base/TreeWalk.h"
#include "Engine/core/bundle/Ed25519Signature.h"
#include "Publisher/keys/Signer.h"

#include <algorithm>
#include <cerrno>
#include <set>
#include <string_view>

#include <fcntl.h>
#include <sodium.h>

namespace Pelnar::Publisher
{
namespace
{

constexpr std::size_t SEED_BYTES = crypto_sign_ed25519_SEEDBYTES;
constexpr std::size_t SECRET_BYTES = crypto_sign_ed25519_SECRETKEYBYTES;
/// Of PKCS #8: the seed after a fixed header.
constexpr std::size_t WRAPPED_SEED_BYTES = 48;
/// The same in base64, without padding.
constexpr std::size_t TEXT_LENGTHS[] = {43, 86, 64};
/// A larger file is no file with a key.
constexpr off_t MOST_FILE_BYTES = 64 * 1024;
/// The part of a file that is searched.
constexpr std::size_t MOST_SEARCHED_BYTES = 4 * 1024;

enum class Likeness
{
    None,
    Form, ///< as many bytes as a seed, alone in their file, and not a public key
    Key,
};

std::vector<std::uint8_t> BytesOf(std::string_view text)
{
    constexpr std::size_t GROUP = 4;
    std::string const padding((GROUP - text.size() % GROUP) % GROUP, '=');
    return Engine::DecodeBase64(std::string(text) + padding).value_or(std::vector<std::uint8_t>());
}

bool IsInBase64(char character)
{
    return (character >= 'A' && character <= 'Z') || (character >= 'a' && character <= 'z') ||
           (character >= '0' && character <= '9') || character == '+' || character == '/';
}

class KeySearch
{
public:
    explicit KeySearch(std::set<QString> knownIds) : m_knownIds(std::move(knownIds)) {}

    /// \a start: of a file that has \a fileSize bytes.
    [[nodiscard]] Likeness Judge(std::string const& start, std::size_t fileSize) const
    {
        std::vector<std::uint8_t> const raw(start.begin(),
                                            start.begin() + std::ptrdiff_t(std::min(start.size(), SECRET_BYTES)));
        if (IsKey(raw) || HasKeyText(start))
        {
            return Likeness::Key;
        }
        return start.size() == fileSize && HasSeedForm(start) ? Likeness::Form : Likeness::None;
    }

private:
    /// True if a public key that is known, or that follows the seed, belongs to the seed.
    bool IsKey(std::vector<std::uint8_t> const& bytes) const
    {
        if (bytes.size() < SEED_BYTES)
        {
            return false;
        }
        auto const seed = bytes.size() == WRAPPED_SEED_BYTES ? bytes.end() - SEED_BYTES : bytes.begin();
        Engine::Ed25519Key publicKey;
        unsigned char secret[SECRET_BYTES];
        ::crypto_sign_ed25519_seed_keypair(publicKey.data(), secret, &*seed);
        if (bytes.size() == SECRET_BYTES && std::equal(bytes.begin(), bytes.end(), secret))
        {
            return true;
        }
        QByteArray const text(reinterpret_cast<char const*>(publicKey.data()), int(publicKey.size()));
        return m_knownIds.count(KeyIdOf(text.toBase64().toStdString())) != 0;
    }

    bool HasKeyText(std::string_view text) const
    {
        auto const isEnd = [](char character) { return !IsInBase64(character); };
        for (auto begin = text.begin(); begin != text.end();)
        {
            auto const end = std::find_if(begin, text.end(), isEnd);
            for (std::size_t const length : TEXT_LENGTHS)
            {
                // Something else may precede the key without a blank.
                bool const isLongEnough = std::size_t(end - begin) >= length;
                if (isLongEnough && IsKey(BytesOf({&*(end - std::ptrdiff_t(length)), length})))
                {
                    return true;
                }
            }
            begin = std::find_if(end, text.end(), IsInBase64);
        }
        return false;
    }

    static bool HasSeedForm(std::string const& text)
    {
        std::string const line = QByteArray::fromStdString(text).trimmed().toStdString();
        auto const bytes = Engine::DecodeBase64(line);
        Engine::Ed25519Key publicKey;
        // One seed in sixteen is also a valid public key.
        return bytes && bytes->size() == SEED_BYTES &&
               Engine::ParsePublicKey(line, publicKey) != Engine::UpdateFault::None;
    }

    std::set<QString> m_knownIds;
};

void AddKeysOf(GatedVersion const& version, std::set<QString>& ids)
{
    for (QStringList const& some : {version.signerIds, version.trustedIds})
    {
        ids.insert(some.begin(), some.end());
    }
    if (!version.bundle)
    {
        return;
    }
    ids.insert(KeyIdOf(version.bundle->rootKey));
    for (std::vector<std::string> const& keys : {version.bundle->publicKeys.Texts(), version.bundle->knownKeys})
    {
        for (std::string const& key : keys)
        {
            ids.insert(KeyIdOf(key));
        }
    }
}

Problem ProblemOf(Likeness likeness, QString const& archive, QString const& entry)
{
    QString const mend =
        u"remove the file and pack the archive again; if the key was published before, make a new key as docs/guide/keys.md says for a stolen one"_s;
    if (likeness == Likeness::Key)
    {
        return {
            archive,
            u"contains a private key, so everybody who downloads the archive could sign updates with it: \"%1\""_s.arg(
                entry),
            mend};
    }
    return {archive, u"contains a file that looks like a private key: \"%1\""_s.arg(entry),
            mend + u"; if it is something else, write a name before the value"_s};
}

} // namespace

void CheckPrivateKeys(BundleTree const& bundle, GatedVersion const& version, std::vector<GatedVersion> const& all,
                      RefusalList& refusals)
{
    std::set<QString> ids;
    AddKeysOf(version, ids);
    for (GatedVersion const& other : all)
    {
        AddKeysOf(other, ids);
    }
    ids.erase(QString()); // of a malformed key
    KeySearch const search(std::move(ids));
    auto const visit = [&](std::string const& path, int folder, std::string const& name, struct stat const& status)
    {
        if (!S_ISREG(status.st_mode) || status.st_size < off_t(SEED_BYTES) || status.st_size > MOST_FILE_BYTES)
        {
            return;
        }
        Engine::UniqueFd const file(::openat(folder, name.c_str(), O_RDONLY | O_NOFOLLOW | O_CLOEXEC));
        auto const start = file ? Engine::ReadStart(file.Get(), MOST_SEARCHED_BYTES) : std::nullopt;
        QString const entry = QString::fromStdString(bundle.Name() + '/' + path);
        if (!start)
        {
            RefuseReading(version.path + u'/' + entry, errno);
        }
        Likeness const likeness = search.Judge(*start, std::size_t(status.st_size));
        if (likeness != Likeness::None)
        {
            refusals.Add(ProblemOf(likeness, version.path, entry));
        }
    };
    if (!Engine::WalkTree(bundle.Descriptor(), visit))
    {
        RefuseReading(version.path, errno);
    }
}

} // namespace Pelnar::Publisher
