#include "Publisher/serve/ServedFile.h"

#include "Engine/core/base/TreeAccess.h"
#include "Engine/core/base/TreeWalk.h"
#include "Engine/core/bundle/Ed25519Signature.h"
#include "Publisher/Console.h"

#include <QFile>
#include <QStringList>

#include <algorithm>

#include <fcntl.h>
#include <sys/stat.h>

namespace Pelnar::Publisher
{
namespace
{

constexpr mode_t READ_BY_OTHERS = S_IRGRP | S_IROTH;
/// Of a folder: others may open the files whose names they know.
constexpr mode_t ENTERED_BY_OTHERS = S_IXGRP | S_IXOTH;
/// A larger file is an archive and not a private key.
constexpr qint64 MOST_KEY_BYTES = 64 * 1024;
/// The lengths of a signing key: the seed, or the seed with the public key.
constexpr std::size_t SIGNING_KEY_BYTES[] = {32, 64};

bool HasDottedName(QString const& path)
{
    QStringList const names = path.split(u'/');
    return std::any_of(names.begin(), names.end(), [](QString const& name) { return name.startsWith(u'.'); });
}

/// True if a folder on the way to \a path can be entered by its owner only.
bool IsInPrivateFolder(int folderFd, QString const& path)
{
    for (int end = path.indexOf(u'/'); end >= 0; end = path.indexOf(u'/', end + 1))
    {
        struct stat status;
        QByteArray const folder = QFile::encodeName(path.left(end));
        if (end > 0 && ::fstatat(folderFd, folder.constData(), &status, AT_SYMLINK_NOFOLLOW) == 0 &&
            (status.st_mode & ENTERED_BY_OTHERS) == 0)
        {
            return true;
        }
    }
    return false;
}

bool HasKeyName(QString const& path)
{
    constexpr char const* ENDINGS[] = {".key", ".p8", ".p12", ".pfx", ".jks"};
    return EndsWithOneOf(path, ENDINGS);
}

bool IsPemKey(QByteArray const& content)
{
    QList<QByteArray> const lines = content.split('\n');
    return std::any_of(lines.begin(), lines.end(),
                       [](QByteArray const& line)
                       { return line.startsWith("-----BEGIN ") && line.contains("PRIVATE KEY"); });
}

/// The marks of private keys in PEM and similar text formats.
bool IsMarkedKey(QByteArray const& content)
{
    return content.contains("AGE-SECRET-KEY-") || content.startsWith("PuTTY-User-Key-File-") ||
           (content.startsWith("untrusted comment:") && content.left(content.indexOf('\n')).contains("secret key"));
}

/// PKCS #8, RSA or EC in DER: a sequence that begins with a private key's version number.
bool IsDerKey(QByteArray const& content)
{
    constexpr int MOST_HEADER_BYTES = 4;
    QByteArray const start = content.left(MOST_HEADER_BYTES + 4);
    int const version = start.indexOf(QByteArray("\x02\x01", 2));
    bool const isSequence = start.startsWith('\x30') && version >= 2 && version <= MOST_HEADER_BYTES;
    QByteArray const rest = isSequence ? content.mid(version + 2, 2) : QByteArray();
    return rest == QByteArray("\0\x30", 2) || rest == QByteArray("\0\x02", 2) || rest == QByteArray("\x01\x04", 2);
}

bool HasKeyLength(std::size_t size)
{
    return std::find(std::begin(SIGNING_KEY_BYTES), std::end(SIGNING_KEY_BYTES), size) != std::end(SIGNING_KEY_BYTES);
}

/// As many bytes as a signing key has, in base64 or raw. A file with only a public key or a signature looks the same;
/// clients do not need such a file.
bool IsSigningKey(QByteArray const& content)
{
    auto const bytes = Engine::DecodeBase64(content.trimmed().toStdString());
    QString const text = QString::fromUtf8(content);
    bool const isText =
        std::none_of(text.begin(), text.end(),
                     [](QChar c) { return c == QChar::ReplacementCharacter || (!c.isPrint() && !c.isSpace()); });
    return (bytes && HasKeyLength(bytes->size())) || (!isText && HasKeyLength(std::size_t(content.size())));
}

bool HoldsKey(int file, qint64 size)
{
    if (size > MOST_KEY_BYTES)
    {
        return false;
    }
    QByteArray content(int(size), '\0');
    ssize_t const count = Engine::ReadUpTo(file, 0, content.data(), std::size_t(size));
    if (count < 0)
    {
        return true; // an unreadable file is not served
    }
    content.truncate(int(count));
    return IsPemKey(content) || IsMarkedKey(content) || IsDerKey(content) || IsSigningKey(content);
}

bool IsKey(int file, QString const& path, qint64 size)
{
    return HasKeyName(path) || HoldsKey(file, size);
}

} // namespace

ServedFile OpenServedFile(int folderFd, QString const& path)
{
    Engine::UniqueFd file =
        path.isEmpty() ? Engine::UniqueFd() : Engine::TreeAccess(folderFd).OpenFile(path.toStdString());
    struct stat status;
    if (!file || ::fstat(file.Get(), &status) != 0 || !S_ISREG(status.st_mode))
    {
        return {};
    }
    if (HasDottedName(path))
    {
        return {{}, u"its name begins with a dot"_s};
    }
    if ((status.st_mode & READ_BY_OTHERS) == 0 || IsInPrivateFolder(folderFd, path))
    {
        return {{}, u"only its owner may read it"_s};
    }
    if (IsKey(file.Get(), path, status.st_size))
    {
        return {{}, u"it is a private key"_s};
    }
    return {std::move(file), {}};
}

std::vector<QString> FindHiddenKeys(int folderFd)
{
    std::vector<QString> paths;
    auto const visit = [&](std::string const& path, int, std::string const&, struct stat const& status)
    {
        bool const isOfVersionControl = path.front() == '.' || path.find("/.") != std::string::npos;
        Engine::UniqueFd const file = S_ISREG(status.st_mode) && !isOfVersionControl
                                          ? Engine::TreeAccess(folderFd).OpenFile(path)
                                          : Engine::UniqueFd();
        QString const name = QFile::decodeName(path.c_str());
        if (file && IsKey(file.Get(), name, status.st_size))
        {
            paths.push_back(name);
        }
    };
    static_cast<void>(Engine::WalkTree(folderFd, visit)); // what cannot be read is not served either
    std::sort(paths.begin(), paths.end());
    return paths;
}

} // namespace Pelnar::Publisher
