#include "tests/idle/IdleProcess.h"

#include "tests/engine/FeedText.h"
#include "tests/support/ProgramOutput.h"
#include "tests/support/TestApplication.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QFileInfo>
#include <QUrl>

namespace Pelnar::Testing
{

QStringList LinesOf(QString const& program, QStringList const& words)
{
    TestApplication<> const application;
    return OutputOf(QStringList{program} + words).split(QLatin1Char('\n'), Qt::SkipEmptyParts);
}

QStringList LibrariesIn(QStringList const& lines)
{
    QStringList names;
    for (QString const& line : lines)
    {
        if (line.startsWith(QLatin1String("library ")))
        {
            names += QFileInfo(line.section(QLatin1Char(' '), 1)).fileName();
        }
    }
    return names;
}

LibraryPlace::LibraryPlace()
{
    Copy(QStringLiteral(PELNAR_CHECKER), Path(QStringLiteral("libPelnarUpdateChecker.so.1")));
    QFile feed(Path(QStringLiteral("feed.xml")));
    EXPECT_TRUE(feed.open(QIODevice::WriteOnly) && feed.write(FeedWith(ItemOf("5.10"))) > 0);
}

QString LibraryPlace::Feed() const
{
    return QUrl::fromLocalFile(Path(QStringLiteral("feed.xml"))).toString();
}

void LibraryPlace::Copy(QString const& from, QString const& to)
{
    EXPECT_TRUE(QFile::copy(from, to)) << qPrintable(from);
}

QStringList LibraryPlace::Run(QStringList const& words) const
{
    return RunWith(m_folder.path(), words);
}

QStringList LibraryPlace::RunWith(QString const& libraryPath, QStringList const& words) const
{
    return LinesOf(QStringLiteral("/usr/bin/env"),
                   QStringList{QStringLiteral("-C"), m_folder.path(), QStringLiteral("LD_LIBRARY_PATH=") + libraryPath,
                               QStringLiteral(PELNAR_IDLE_HOST), QStringLiteral("feed=") + Feed()} +
                       words);
}

} // namespace Pelnar::Testing
