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
        RefuseFile(folder, u"cannot be read"_s, errno, u"give an existing folder"_s);
    }
    if (::flock(m_folder.Get(), LOCK_EX | LOCK_NB) == 0 || errno != EWOULDBLOCK)
    {
        return;
    }
    console.err.stream
        << TextOf({folder, u"another run is using this folder"_s, u"waiting for it to end"_s}).toStdString()
        << std::endl;
    while (::flock(m_folder.Get(), LOCK_EX) != 0 && errno == EINTR)
    {
    }
}

bool FolderLock::Holds(QString const& folder) const
{
    struct stat held;
    struct stat asked;
    // An error must not look like another folder: a second lock of this one would wait for ever.
    if (::fstat(m_folder.Get(), &held) != 0 || ::stat(QFile::encodeName(folder).constData(), &asked) != 0)
    {
        RefuseFile(folder, u"cannot be read"_s, errno, u"give an existing folder"_s);
    }
    return held.st_dev == asked.st_dev && held.st_ino == asked.st_ino;
}

} // namespace Pelnar::Publisher
