#include "Publisher/files/InputFile.h"

#include "Engine/core/base/Descriptor.h"
#include "Publisher/Refusal.h"

#include <QFile>

#include <algorithm>
#include <cerrno>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace Pelnar::Publisher
{

InputFile OpenInputFile(QString const& path)
{
    // Without waiting for somebody to write into a FIFO.
    Engine::UniqueFd descriptor(::open(QFile::encodeName(path).constData(), O_RDONLY | O_NONBLOCK | O_CLOEXEC));
    struct stat status;
    if (!descriptor || ::fstat(descriptor.Get(), &status) != 0)
    {
        RefuseFile(path, QStringLiteral("cannot be read"), errno,
                   QStringLiteral("check the name and who may read the file"));
    }
    if (!S_ISREG(status.st_mode))
    {
        throw Refusal({path, 0, 0, QStringLiteral("is no plain file"), QStringLiteral("name a file")});
    }
    return {std::move(descriptor), path, static_cast<std::uint64_t>(status.st_size)};
}

QByteArray ReadInputFile(InputFile const& file, std::uint64_t maxBytes, QString const& mend)
{
    if (file.size > maxBytes)
    {
        throw Refusal({file.name, 0, 0,
                       QStringLiteral("is of %1 bytes, where at most %2 are read").arg(file.size).arg(maxBytes), mend});
    }
    QByteArray bytes(static_cast<int>(file.size), '\0');
    ssize_t const count = Engine::ReadUpTo(file.descriptor.Get(), 0, bytes.data(), std::size_t(bytes.size()));
    if (count != bytes.size())
    {
        RefuseFile(file.name, QStringLiteral("cannot be read to its end"), count < 0 ? errno : EIO,
                   QStringLiteral("check the disk, and that nobody changes the file meanwhile"));
    }
    return bytes;
}

} // namespace Pelnar::Publisher
