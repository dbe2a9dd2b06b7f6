// IdleProcess.h: runs the small hosts of these tests, with the update checker's libraries in a folder of the test's.
// Thread: main, with Qt's event loop. Ownership: the place owns its folder.
#pragma once

#include "tests/support/OddNameFolder.h"

#include <QString>
#include <QStringList>

namespace Pelnar::Testing
{

/// The output lines of \a program, standard output first.
QStringList LinesOf(QString const& program, QStringList const& words);

/// The names of the loaded libraries in the last of \a lines.
QStringList LibrariesIn(QStringList const& lines);

/// A folder with the update checker, for a host. So it must contain the session, too.
class LibraryPlace
{
public:
    LibraryPlace();

    QString Path(QString const& name) const { return m_folder.filePath(name); }
    QString SessionPath() const { return Path(QStringLiteral("libPelnarUpdateSession.so.1")); }
    QString EnginePath() const { return Path(QStringLiteral("libPelnarUpdateEngine.so.1")); }
    /// As Path of a feed with version 5.10, as an address.
    QString Feed() const;
    static void Copy(QString const& from, QString const& to);

    /// Runs the host with this folder. \a libraryPath says how the loader finds it.
    QStringList Run(QStringList const& words) const;
    QStringList RunWith(QString const& libraryPath, QStringList const& words) const;

private:
    OddNameFolder m_folder;
};

} // namespace Pelnar::Testing
