#include "Publisher/gate/PrivateKeys.h"

#include "Engine/core/base/TreeWalk.h"
#include "Engine/core/bundle/TrustedKeys.h"
#include "Publisher/keys/Signer.h"

#include <QFile>
#include <QRegularExpression>

#include <algorithm>
#include <cctype>
#include <cerrno>
#include <filesystem>
#include <iterator>
#include <string_view>

#include <fcntl.h>
#include <sodium.h>

namespace Pelnar::Publisher
{
namespace
{

namespace fs = std::filesystem;

constexpr std::size_t SEED_BYTES = crypto_sign_ed25519_SEEDBYTES;
constexpr std::size_t SECRET_BYTES = crypto_sign_ed25519_SECRETKEYBYTES;
/// Of PKCS #8: the seed follows.
constexpr std::uint8_t WRAPPING[] = {0x30, 0x2e, 0x02, 0x01, 0x00, 0x30, 0x05, 0x06,
                                     0x03, 0x2b, 0x65, 0x70, 0x04, 0x22, 0x04, 0x20};
constexpr std::size_t WRAPPED_SEED_BYTES = sizeof WRAPPING + SEED_BYTES;
QString const MEND_OF_PUBLISHED =
    u"if the key was published before, make a new key as docs/guide/keys.md says for a stolen one"_s;
/// A larger file is no file with a key.
constexpr off_t MOST_FILE_BYTES = 64 * 1024;
/// A file with a key that is written in several lines is smaller.
constexpr std::size_t MOST_LINES_BYTES = 4 * 1024;
/// The texts of a file that are tried as keys: a file of data may have thousands that are long enough.
constexpr int MOST_TRIES = 256;

using KeyBytes = std::vector<std::uint8_t>;

bool IsInBase64(char character)
{
    return (character >= 'A' && character <= 'Z') || (character >= 'a' && character <= 'z') ||
           (character >= '0' && character <= '9') || character == '+' || character == '/';
}

bool IsInHexadecimal(char character)
{
    return std::isxdigit(static_cast<unsigned char>(character)) != 0;
}

KeyBytes FromBase64(std::string_view text)
{
    constexpr std::size_t GROUP = 4;
    std::string const padding((GROUP - text.size() % GROUP) % GROUP, '=');
    return Engine::DecodeBase64(std::string(text) + padding).value_or(KeyBytes());
}

KeyBytes FromHexadecimal(std::string_view text)
{
    QByteArray const bytes = QByteArray::fromHex(QByteArray(text.data(), int(text.size())));
    return KeyBytes(bytes.begin(), bytes.end());
}

/// A way to write a key in text.
struct KeyAlphabet
{
    bool (*isInside)(char);
    KeyBytes (*decode)(std::string_view);
    std::vector<std::size_t> lengths; ///< of a seed, of a seed with its public key, and of PKCS #8
};

std::vector<KeyAlphabet> const ALPHABETS{{IsInBase64, FromBase64, {43, 86, 64}},
                                         {IsInHexadecimal, FromHexadecimal, {64, 128, 96}}};

/// The base64 in each block of \a text that PEM marks as a private key.
std::vector<std::string> MarkedTexts(std::string const& text)
{
    // An encrypted one may have headers.
    static QRegularExpression const BLOCK(u"-----BEGIN ([A-Z0-9 ]*PRIVATE KEY(?: BLOCK)?)-----"
                                          "(?:\\s+(?:[A-Za-z-]+: .*\n)+)?([^<>-]*)-----END \\1-----"_s);
    static QRegularExpression const BREAKS(u"\\\\[nr]|[^A-Za-z0-9+/]"_s); // in a text of JSON too
    std::vector<std::string> texts;
    if (text.find("PRIVATE KEY") == std::string::npos)
    {
        return texts;
    }
    QRegularExpressionMatchIterator matches = BLOCK.globalMatch(QString::fromLatin1(text.data(), int(text.size())));
    while (matches.hasNext())
    {
        texts.push_back(matches.next().captured(2).remove(BREAKS).toStdString());
    }
    return texts;
}

/// True if \a content is a text with a private key for any use. A small archive may contain the test key of a server,
/// and a document may say how a key begins and ends.
bool HasMarkedKey(std::string const& content)
{
    constexpr std::size_t LEAST = 43; // of a seed
    std::vector<std::string> const texts =
        content.find('\0') == std::string::npos ? MarkedTexts(content) : std::vector<std::string>();
    return std::any_of(texts.begin(), texts.end(), [](std::string const& text) { return text.size() >= LEAST; });
}

/// \a text without what separates the bytes of a key that is written in several lines.
std::string WithoutSeparators(std::string text)
{
    auto const isSeparator = [](char character)
    { return character == ':' || std::isspace(static_cast<unsigned char>(character)) != 0; };
    text.erase(std::remove_if(text.begin(), text.end(), isSeparator), text.end());
    return text;
}

class KeySearch
{
public:
    explicit KeySearch(std::set<QString> const& knownIds)
    {
        std::transform(knownIds.begin(), knownIds.end(), std::inserter(m_knownIds, m_knownIds.end()),
                       [](QString const& id) { return id.toStdString(); });
    }

    [[nodiscard]] bool Finds(std::string const& content)
    {
        m_tried.clear();
        KeyBytes const raw(content.begin(), content.begin() + std::ptrdiff_t(std::min(content.size(), SECRET_BYTES)));
        std::vector<std::string> const marked = MarkedTexts(content);
        return IsKey(raw) || HasKeyText(content) ||
               (content.size() <= MOST_LINES_BYTES && HasKeyText(WithoutSeparators(content))) ||
               std::any_of(marked.begin(), marked.end(),
                           [this](std::string const& text) { return HoldsKnown(FromBase64(text)); });
    }

private:
    /// True if a public key that is known, or that follows the seed, belongs to the seed.
    bool IsKey(KeyBytes const& bytes)
    {
        bool const isWrapped = bytes.size() == WRAPPED_SEED_BYTES;
        if (bytes.size() < SEED_BYTES ||
            (isWrapped && !std::equal(std::begin(WRAPPING), std::end(WRAPPING), bytes.begin())) ||
            !m_tried.insert(bytes).second)
        {
            return false;
        }
        Engine::Ed25519Key publicKey;
        unsigned char secret[SECRET_BYTES];
        ::crypto_sign_ed25519_seed_keypair(publicKey.data(), secret, bytes.data() + (isWrapped ? sizeof WRAPPING : 0));
        return (bytes.size() == SECRET_BYTES && std::equal(bytes.begin(), bytes.end(), secret)) ||
               IsKnown(publicKey.data());
    }

    bool IsKnown(std::uint8_t const* publicKey) const
    {
        Engine::Ed25519Key key;
        std::copy_n(publicKey, key.size(), key.begin());
        return m_knownIds.count(Engine::KeyIdOf(key)) != 0;
    }

    bool HasKeyText(std::string_view text)
    {
        return std::any_of(ALPHABETS.begin(), ALPHABETS.end(),
                           [&](KeyAlphabet const& alphabet) { return HasKeyText(text, alphabet); });
    }

    bool HasKeyText(std::string_view text, KeyAlphabet const& alphabet)
    {
        int tries = 0;
        for (auto begin = text.begin(); begin != text.end() && tries < MOST_TRIES;)
        {
            auto const end = std::find_if_not(begin, text.end(), alphabet.isInside);
            for (std::size_t const length : alphabet.lengths)
            {
                // Something else may precede the key without a blank.
                bool const isLongEnough = std::size_t(end - begin) >= length;
                tries += isLongEnough ? 1 : 0;
                if (isLongEnough && IsKey(alphabet.decode({&*(end - std::ptrdiff_t(length)), length})))
                {
                    return true;
                }
            }
            begin = std::find_if(end, text.end(), alphabet.isInside);
        }
        return false;
    }

    /// True if a marked private key has a known public key in it: it may be encrypted. Otherwise it is the key of
    /// something else, such as a server.
    bool HoldsKnown(KeyBytes const& bytes) const
    {
        for (std::size_t at = 0; at + SEED_BYTES <= bytes.size(); ++at)
        {
            if (IsKnown(bytes.data() + at))
            {
                return true;
            }
        }
        return false;
    }

    std::set<std::string> m_knownIds;
    std::set<KeyBytes> m_tried; ///< of the content that is searched; its texts are tried with and without separators
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

/// The content of \a file, if a file of \a size bytes may hold a key. Empty, with errno set, if it cannot be read.
std::optional<std::string> ContentOf(Engine::UniqueFd const& file, off_t size)
{
    if (size < off_t(SEED_BYTES) || size > MOST_FILE_BYTES)
    {
        return std::string();
    }
    return file ? Engine::ReadStart(file.Get(), MOST_FILE_BYTES) : std::nullopt;
}

void WarnOfOtherKeys(QString const& archive, QStringList names, Console const& console)
{
    constexpr int MOST_NAMED = 5;
    names.sort();
    if (!names.isEmpty())
    {
        QString const more = names.size() > MOST_NAMED ? u" and %1 more"_s.arg(names.size() - MOST_NAMED) : QString();
        console.Warn({archive,
                      u"contains a private key that everybody who downloads the archive can read: \"%1\"%2"_s.arg(
                          names.mid(0, MOST_NAMED).join(u"\", \""_s), more),
                      u"if it is secret, replace it where it is used, and publish a new version without it"_s});
    }
}

/// True if this user may not read something: then this user does not upload it.
bool IsForbidden(int errorNumber)
{
    return errorNumber == EACCES || errorNumber == ENOENT;
}

} // namespace

std::set<QString> KnownKeyIds(std::vector<GatedVersion> const& versions)
{
    std::set<QString> ids;
    for (GatedVersion const& version : versions)
    {
        AddKeysOf(version, ids);
    }
    ids.erase(QString()); // of a malformed key
    return ids;
}

void CheckPrivateKeys(BundleTree const& bundle, GatedVersion const& version, std::set<QString> knownIds,
                      Console const& console, RefusalList& refusals)
{
    AddKeysOf(version, knownIds);
    knownIds.erase(QString());
    KeySearch search(knownIds);
    QStringList others;
    auto const visit = [&](std::string const& path, int folder, std::string const& entry, struct stat const& status)
    {
        if (!S_ISREG(status.st_mode))
        {
            return;
        }
        QString const name = QString::fromStdString(bundle.Name() + '/' + path);
        Engine::UniqueFd const file(::openat(folder, entry.c_str(), O_RDONLY | O_NOFOLLOW | O_CLOEXEC));
        auto const content = ContentOf(file, status.st_size);
        if (!content)
        {
            RefuseReading(version.path + u'/' + name, errno);
        }
        if (search.Finds(*content))
        {
            refusals.Add(
                {version.path,
                 u"contains a private key, so everybody who downloads the archive could sign updates with it: \"%1\""_s
                     .arg(name),
                 u"remove the file and pack the archive again; "_s + MEND_OF_PUBLISHED});
        }
        else if (HasMarkedKey(*content))
        {
            others.append(name);
        }
    };
    if (!Engine::WalkTree(bundle.Descriptor(), visit))
    {
        RefuseReading(version.path, errno);
    }
    WarnOfOtherKeys(version.path, others, console);
}

void CheckFolderForKeys(QString const& folder, std::set<QString> const& knownIds, RefusalList& refusals)
{
    KeySearch search(knownIds);
    std::error_code error;
    fs::recursive_directory_iterator entry(QFile::encodeName(folder).toStdString(),
                                           fs::directory_options::skip_permission_denied, error);
    for (; !error && entry != fs::recursive_directory_iterator(); entry.increment(error))
    {
        std::error_code ignored; // an entry that vanishes is no file
        fs::file_status const status = entry->symlink_status(ignored);
        if (fs::is_directory(status) && entry->path().filename().native().front() == '.')
        {
            entry.disable_recursion_pending(); // as of a version control system
        }
        if (!fs::is_regular_file(status))
        {
            continue;
        }
        QString const path = QFile::decodeName(entry->path().c_str());
        Engine::UniqueFd const file(::open(entry->path().c_str(), O_RDONLY | O_NOFOLLOW | O_CLOEXEC));
        auto const content = ContentOf(file, off_t(entry->file_size(ignored)));
        if (!content && !IsForbidden(errno))
        {
            RefuseReading(path, errno);
        }
        if (content && (HasMarkedKey(*content) || search.Finds(*content)))
        {
            refusals.Add({path, u"contains a private key, and everything in this folder is uploaded"_s,
                          u"move it to another folder; "_s + MEND_OF_PUBLISHED});
        }
    }
    if (error)
    {
        RefuseReading(folder, error.value());
    }
}

} // namespace Pelnar::Publisher
