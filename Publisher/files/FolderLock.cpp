#include "Publisher/files/FolderLock.h"

#include "Publisher/Refusal.h"

#include <QFile>

#include <cerrno>
#include <ostream>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>

namespace Pelnar::Publisher
{

FolderLock::FolderLock(QString const& folder, Console const& console)
    : m_folder(::open(QFile::encodeName(folder).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC))
{
    if (!m_folder)
    {
        RefuseFile(folder, QStringLiteral("cannot be read"), errno, QStringLiteral("name a folder that is there"));
    }
    if (::flock(m_folder.Get(), LOCK_EX | LOCK_NB) == 0 || errno != EWOULDBLOCK)
    {
        return;
    }
    console.err.stream << TextOf({folder, 0, 0, QStringLiteral("another run works here"),
                                  QStringLiteral("waiting until it has ended")})
                              .toStdString()
                       << std::endl;
    while (::flock(m_folder.Get(), LOCK_EX) != 0 && errno == EINTR)
    {
    }
}

bool FolderLock::Holds(QString const& folder) const
{
    struct stat held;
    struct stat asked;
    return ::fstat(m_folder.Get(), &held) == 0 && ::stat(QFile::encodeName(folder).constData(), &asked) == 0 &&
           held.st_dev == asked.st_dev && held.st_ino == asked.st_ino;
}

} // namespace Pelnar::Publisher
