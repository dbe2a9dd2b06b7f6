#include "Publisher/files/InputFile.h"

#include "Engine/core/base/Descriptor.h"
#include "Publisher/Refusal.h"

#include <QFile>

#include <cerrno>

#include <fcntl.h>
#include <sys/stat.h>

namespace Pelnar::Publisher
{

bool Exists(QString const& path)
{
    struct stat status;
    if (::stat(QFile::encodeName(path).constData(), &status) == 0)
    {
        return true;
    }
    if (errno != ENOENT && errno != ENOTDIR)
    {
        RefuseFile(path, u"cannot be read"_s, errno, u"check the name and the file's permissions"_s);
    }
    return false;
}

InputFile OpenInputFile(QString const& path)
{
    // Does not block on a FIFO.
    Engine::UniqueFd descriptor(::open(QFile::encodeName(path).constData(), O_RDONLY | O_NONBLOCK | O_CLOEXEC));
    struct stat status;
    if (!descriptor || ::fstat(descriptor.Get(), &status) != 0)
    {
        RefuseFile(path, u"cannot be read"_s, errno, u"check the name and the file's permissions"_s);
    }
    if (!S_ISREG(status.st_mode))
    {
        throw Refusal({path, u"is not a plain file"_s, u"give a plain file, or a link to one"_s});
    }
    auto const size = static_cast<std::uint64_t>(status.st_size);
    return {std::move(descriptor), path, size,
            FileMark{status.st_dev, status.st_ino, size, status.st_ctim.tv_sec, status.st_ctim.tv_nsec}};
}

QByteArray ReadInputFile(InputFile const& file, std::uint64_t maxBytes, QString const& mend)
{
    if (file.size > maxBytes)
    {
        throw Refusal({file.name, u"has %1 bytes, but at most %2 are allowed"_s.arg(file.size).arg(maxBytes), mend});
    }
    QByteArray bytes(static_cast<int>(file.size), '\0');
    ssize_t const count = Engine::ReadUpTo(file.descriptor.Get(), 0, bytes.data(), std::size_t(bytes.size()));
    char next = 0;
    ssize_t const more =
        count == bytes.size() ? Engine::ReadUpTo(file.descriptor.Get(), file.size, &next, sizeof next) : 0;
    if (count != bytes.size() || more != 0)
    {
        RefuseFile(file.name, u"cannot be read to its end"_s, count < 0 || more < 0 ? errno : EIO,
                   u"check the disk, and that nobody changes the file meanwhile"_s);
    }
    return bytes;
}

} // namespace Pelnar::Publisher
