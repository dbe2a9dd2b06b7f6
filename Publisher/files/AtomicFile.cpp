#include "Publisher/files/AtomicFile.h"

#include "Engine/core/base/TreeWalk.h"
#include "Publisher/Refusal.h"

#include <QFile>
#include <QFileInfo>

#include <cerrno>
#include <cstdio>
#include <cstdlib>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace Pelnar::Publisher
{
namespace
{

QString const MEND = u"check that the folder exists, that you may write to it, and the space on the disk"_s;

/// The permissions of new files of this user.
mode_t NewFileMode()
{
    mode_t const mask = ::umask(0);
    ::umask(mask);
    return 0666 & ~mask;
}

[[noreturn]] void RefuseName(QString const& path)
{
    throw Refusal({path, u"exists already"_s, u"give another name, or remove it"_s});
}

/// Renames \a hiddenName in the open folder to \a path, which is in the same folder.
void NameFinally(int folderFd, QByteArray const& hiddenName, QString const& path, ExistingFile existing)
{
    QByteArray const name = QFile::encodeName(QFileInfo(path).fileName());
    unsigned const flags = existing == ExistingFile::Keep ? unsigned(RENAME_NOREPLACE) : 0;
    if (::renameat2(folderFd, hiddenName.constData(), folderFd, name.constData(), flags) == 0)
    {
        return;
    }
    if (errno == EEXIST)
    {
        RefuseName(path);
    }
    RefuseFile(path, u"cannot be renamed to its final name"_s, errno, MEND);
}

/// \a path, or the file that the link there leads to: a rename would replace the link. Throws Refusal.
QString TargetOf(QString const& path)
{
    QFileInfo const file(path);
    QString const target = file.isSymLink() ? file.canonicalFilePath() : path;
    if (target.isEmpty())
    {
        throw Refusal({path, u"is a link that leads nowhere"_s, u"remove the link, or make the file that it names"_s});
    }
    return target;
}

} // namespace

AtomicFile::AtomicFile(QString const& path) : m_path(TargetOf(path))
{
    QByteArray const folder = QFile::encodeName(QFileInfo(m_path).absolutePath());
    m_folder = Engine::UniqueFd(::open(folder.constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    bool const canBeNamed = ::access("/proc/self/fd", X_OK) == 0;
    if (m_folder && canBeNamed)
    {
        m_descriptor = Engine::UniqueFd(::openat(m_folder.Get(), ".", O_RDWR | O_TMPFILE | O_CLOEXEC, 0666));
    }
    if (!m_descriptor && m_folder)
    {
        MakeHidden(folder); // this file system has no unnamed files
    }
    if (!m_descriptor)
    {
        RefuseFile(m_path, u"cannot be made"_s, errno, MEND);
    }
}

void AtomicFile::MakeHidden(QByteArray const& folder)
{
    QByteArray hidden = folder + "/." + QFile::encodeName(QFileInfo(m_path).fileName()) + ".XXXXXX";
    m_leftover.emplace(
        [this, &hidden]
        {
            m_descriptor = Engine::UniqueFd(::mkostemp(hidden.data(), O_CLOEXEC));
            return m_descriptor ? hidden.toStdString() : std::string();
        });
    if (!m_descriptor)
    {
        return;
    }
    m_hiddenName = hidden.mid(folder.size() + 1);
    if (::fchmod(m_descriptor.Get(), NewFileMode()) != 0)
    {
        RefuseFile(m_path, u"cannot be given its permissions"_s, errno, MEND);
    }
}

AtomicFile::~AtomicFile()
{
    if (!m_isCommitted && !m_hiddenName.isEmpty())
    {
        ::unlinkat(m_folder.Get(), m_hiddenName.constData(), 0);
    }
}

void AtomicFile::Write(QByteArray const& bytes)
{
    auto const* const data = reinterpret_cast<std::uint8_t const*>(bytes.constData());
    if (!Engine::WriteAll(Descriptor(), Engine::Bytes(data, static_cast<std::size_t>(bytes.size()))))
    {
        RefuseFile(m_path, u"cannot be written"_s, errno, MEND);
    }
}

InputFile AtomicFile::ForReading() const
{
    Engine::UniqueFd copy(::fcntl(Descriptor(), F_DUPFD_CLOEXEC, 0));
    struct stat status;
    if (!copy || ::fstat(Descriptor(), &status) != 0)
    {
        RefuseFile(m_path, u"cannot be read"_s, errno, MEND);
    }
    return {std::move(copy), m_path, static_cast<std::uint64_t>(status.st_size)};
}

void AtomicFile::LinkHidden()
{
    if (!m_hiddenName.isEmpty())
    {
        return;
    }
    // A link cannot replace a file. So the file gets a hidden name first, and then its name by a rename.
    std::string const self = Engine::DescriptorPath(Descriptor());
    QFileInfo const target(m_path);
    QByteArray const hidden = '.' + QFile::encodeName(target.fileName()) + '.' + QByteArray::number(qint64(::getpid()));
    m_leftover.emplace(QFile::encodeName(target.absolutePath()).toStdString() + '/' + hidden.toStdString());
    if (::linkat(AT_FDCWD, self.c_str(), m_folder.Get(), hidden.constData(), AT_SYMLINK_FOLLOW) != 0)
    {
        RefuseFile(m_path, u"cannot be renamed to its final name"_s, errno, MEND);
    }
    m_hiddenName = hidden;
}

void AtomicFile::Sync(Engine::UniqueFd const& fileOrFolder) const
{
    if (::fsync(fileOrFolder.Get()) != 0)
    {
        RefuseFile(m_path, u"cannot be written"_s, errno, MEND);
    }
}

void AtomicFile::NameForNow()
{
    LinkHidden();
    QFileInfo const target(m_path);
    m_named.emplace(
        [&]
        {
            NameFinally(m_folder.Get(), m_hiddenName, m_path, ExistingFile::Keep);
            return QFile::encodeName(target.absoluteFilePath()).toStdString();
        });
    m_hiddenName = QFile::encodeName(target.fileName());
    m_leftover.reset();
}

void AtomicFile::CommitTogether(std::vector<std::unique_ptr<AtomicFile>> const& files, AtomicFile& last)
{
    // The slow steps come first, so that little time is left for an interruption between the first name, which may be
    // hidden, and the last.
    last.Sync(last.m_descriptor);
    for (std::unique_ptr<AtomicFile> const& file : files)
    {
        file->Sync(file->m_descriptor);
    }
    last.LinkHidden();
    for (std::unique_ptr<AtomicFile> const& file : files)
    {
        file->NameForNow();
    }
    if (!files.empty())
    {
        files.front()->Sync(files.front()->m_folder);
    }
    for (std::unique_ptr<AtomicFile> const& file : files)
    {
        file->m_named.reset(); // otherwise a signal would remove it under the last name
    }
    last.Name(ExistingFile::Replace);
    for (std::unique_ptr<AtomicFile> const& file : files)
    {
        file->m_isCommitted = true;
    }
    last.Sync(last.m_folder);
}

void AtomicFile::Commit(ExistingFile existing)
{
    Sync(m_descriptor);
    LinkHidden();
    Name(existing);
    Sync(m_folder);
}

void AtomicFile::Name(ExistingFile existing)
{
    NameFinally(m_folder.Get(), m_hiddenName, m_path, existing);
    m_isCommitted = true;
    m_leftover.reset();
}

void ReplaceFile(QString const& path, QByteArray const& bytes)
{
    AtomicFile file(path);
    file.Write(bytes);
    file.Commit(ExistingFile::Replace);
}

NewFolder::NewFolder(QString const& path) : m_path(path)
{
    QFileInfo const target(path);
    if (target.exists() || target.isSymLink())
    {
        RefuseName(path);
    }
    QByteArray const parent = QFile::encodeName(target.absolutePath());
    QByteArray hidden = parent + "/." + QFile::encodeName(target.fileName()) + ".XXXXXX";
    m_parent = Engine::UniqueFd(::open(parent.constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    m_leftover.emplace(
        [this, &hidden]
        {
            if (!m_parent || !::mkdtemp(hidden.data()))
            {
                RefuseFile(m_path, u"cannot be made"_s, errno, MEND);
            }
            return hidden.toStdString();
        });
    m_hiddenName = hidden.mid(parent.size() + 1);
    m_folder = Engine::UniqueFd(::openat(m_parent.Get(), m_hiddenName.constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (!m_folder)
    {
        RefuseFile(m_path, u"cannot be opened"_s, errno, MEND);
    }
}

NewFolder::~NewFolder()
{
    if (!m_isCommitted && !m_hiddenName.isEmpty())
    {
        static_cast<void>(Engine::RemoveTree(m_parent.Get(), m_hiddenName.toStdString()));
    }
}

void NewFolder::Commit()
{
    if (::fchmod(m_folder.Get(), 0755) != 0)
    {
        RefuseFile(m_path, u"cannot be given its permissions"_s, errno, MEND);
    }
    NameFinally(m_parent.Get(), m_hiddenName, m_path, ExistingFile::Keep);
    m_isCommitted = true;
    m_leftover.reset();
}

} // namespace Pelnar::Publisher
