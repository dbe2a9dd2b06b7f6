// DemoProgramTest.cpp: pelnar-demo run without a person: its notifications and its pictures.

#include "tests/host/DemoProgram.h"
#include "tests/host/DemoFeeds.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QImage>
#include <QTemporaryDir>

namespace Pelnar::Testing
{
namespace
{

QString const PROGRAM = QStringLiteral(PELNAR_DEMO_PROGRAM);

class DemoProgram : public testing::Test
{
protected:
    ProgramResult Run(QStringList const& arguments)
    {
        return RunProgram(PROGRAM, arguments + QStringList{QStringLiteral("--screenshot-dir"), m_pictures.path()});
    }

    ProgramResult Check(QByteArray const& version, char const* mode, char const* nag)
    {
        return Run({QStringLiteral("--scenario=check"), QStringLiteral("--feed"),
                    m_feeds.Write(FeedOf({{version, "", ""}})), QStringLiteral("--mode"), QString::fromLatin1(mode),
                    QStringLiteral("--nag"), QString::fromLatin1(nag)});
    }

    /// The names of the pictures. Each of them can be read.
    QStringList Pictures() const
    {
        QDir const folder(m_pictures.path());
        QStringList const names = folder.entryList({QStringLiteral("*.png")}, QDir::Files, QDir::Name);
        for (QString const& name : names)
        {
            EXPECT_FALSE(QImage(folder.filePath(name)).isNull()) << qPrintable(name);
        }
        return names;
    }

    FeedFolder m_feeds;
    QTemporaryDir m_pictures;
};

QString const WINDOW = QStringLiteral("PelnarDemoWindow.png");
QString const NAG = QStringLiteral("NagScreen_major_update.png");
std::string const RUNNING = "Pelnar Demo 5.9 is running";
std::string const OVER = "The check is over";
using Lines = std::vector<std::string>;

TEST_F(DemoProgram, LeavesAPictureOfEveryDialogAndOfTheNagScreen)
{
    ProgramResult const result = Run({QStringLiteral("--scenario=dialogs")});
    EXPECT_EQ(result.status, 0) << result.errors;
    EXPECT_EQ(Pictures(), (QStringList{NAG, WINDOW, QStringLiteral("SparkleUpdater_updateErrorDialog.png"),
                                       QStringLiteral("SparkleUpdater_updateIsAlreadyRunningDialog.png"),
                                       QStringLiteral("SparkleUpdater_updateIsReadyToInstallDialog.png")}));
}

TEST_F(DemoProgram, ListsTheNotificationsOfAnAutomaticCheck)
{
    ProgramResult const result = Check("5.10", "automatic", "available");
    EXPECT_EQ(result.status, 0) << result.errors;
    EXPECT_EQ(result.lines, (Lines{RUNNING, "Checking for updates (automatic)", "OnUpdateFound current=5.9 remote=5.10",
                                   "OnUpdateDialogOpening", "OnUpdateDialogClosed", OVER}));
    EXPECT_TRUE(Pictures().contains(WINDOW));
}

TEST_F(DemoProgram, AMajorUpdateShowsTheNagScreenAndTellsNobody)
{
    ProgramResult const result = Check("6.0", "automatic", "available");
    EXPECT_EQ(result.status, 0) << result.errors;
    EXPECT_EQ(result.lines, (Lines{RUNNING, "Checking for updates (automatic)", OVER}));
    EXPECT_EQ(Pictures(), (QStringList{NAG, WINDOW}));
}

TEST_F(DemoProgram, ASilentMajorUpdateShowsNoNagScreen)
{
    ProgramResult const result = Check("6.0", "silent", "available");
    EXPECT_EQ(result.lines, (Lines{RUNNING, "Checking for updates (silent)", OVER}));
    EXPECT_EQ(Pictures(), (QStringList{WINDOW}));
}

TEST_F(DemoProgram, AMajorUpdateWithoutNagContentTakesTheWayOfAnyOther)
{
    ProgramResult const result = Check("6.0", "silent", "none");
    EXPECT_EQ(result.lines,
              (Lines{RUNNING, "Checking for updates (silent)", "OnUpdateFound current=5.9 remote=6.0", OVER}));
}

TEST_F(DemoProgram, AMajorUpdateWaitsForNagContentThatComesLater)
{
    ProgramResult const result = Check("6.0", "automatic", "later");
    EXPECT_EQ(result.lines, (Lines{RUNNING, "Checking for updates (automatic)", OVER}));
    EXPECT_EQ(Pictures(), (QStringList{NAG, WINDOW}));
}

TEST_F(DemoProgram, BadArgumentsEndWith2)
{
    ProgramResult const result = Run({QStringLiteral("--mode=loud")});
    EXPECT_EQ(result.status, 2);
    EXPECT_NE(result.errors.find("pelnar-demo: --mode: \"loud\" is not one of user|automatic|silent; see --help\n"),
              std::string::npos)
        << result.errors;
}

TEST_F(DemoProgram, HelpLeavesNoTemporaryFolder)
{
    QTemporaryDir const folder;
    QByteArray const before = qgetenv("TMPDIR");
    qputenv("TMPDIR", QFile::encodeName(folder.path()));
    ProgramResult const result = RunProgram(PROGRAM, {QStringLiteral("--help")});
    before.isNull() ? qunsetenv("TMPDIR") : qputenv("TMPDIR", before);
    EXPECT_EQ(result.status, 0);
    EXPECT_TRUE(QDir(folder.path()).entryList({QStringLiteral("qt_temp*")}).isEmpty());
    EXPECT_FALSE(result.lines.empty());
}

TEST_F(DemoProgram, PicturesThatCannotBeWrittenAreAnError)
{
    QString const file = m_feeds.Write("x", QStringLiteral("file"));
    ProgramResult const result =
        RunProgram(PROGRAM, {QStringLiteral("--scenario=dialogs"), QStringLiteral("--screenshot-dir"),
                             file + QStringLiteral("/in")});
    EXPECT_EQ(result.status, 1);
    EXPECT_NE(result.errors.find("cannot write "), std::string::npos) << result.errors;
}

} // namespace
} // namespace Pelnar::Testing
