// TimelineOfProgramTest.cpp: the timeline of a real check's log is complete and has no wrong event.

#include "tests/publisher/support/AppcastTool.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

namespace Pelnar::Testing
{
namespace
{

QByteArray LogOfCheck(QStringList const& more)
{
    QTemporaryDir folder;
    QFile feed(folder.filePath(QStringLiteral("appcast.xml")));
    EXPECT_TRUE(feed.open(QIODevice::WriteOnly));
    feed.write("<rss xmlns:sparkle='http://www.andymatuschak.org/xml-namespaces/sparkle'><channel><item>"
               "<enclosure url='https://a.example/a.zip' length='9' sparkle:version='5.2'/></item></channel></rss>");
    feed.close();
    QProcess program;
    program.start(QStringLiteral(PELNAR_UPDATE_CHECK_PROGRAM),
                  QStringList{QStringLiteral("--feed"), feed.fileName(), QStringLiteral("--verbose"),
                              QStringLiteral("--mode"), QStringLiteral("automatic"),
                              QStringLiteral("--local-version")} +
                      more);
    EXPECT_TRUE(program.waitForFinished());
    return program.readAllStandardError();
}

std::string TimelineOf(QByteArray const& log)
{
    ToolRun const run = RunAppcastProgram({QStringLiteral("timeline"), QStringLiteral("-")}, log);
    EXPECT_EQ(run.status, 0) << run.out << run.err << log.toStdString();
    return run.out;
}

} // namespace

TEST(TimelineOfProgram, AFoundUpdateIsToldFromTheLockToTheAnswer)
{
    std::string const text = TimelineOf(LogOfCheck({QStringLiteral("5.1")}));
    std::size_t position = 0;
    for (char const* step : {"the session starts", "taken by holder 1, FeedURL = file:///", "check 1: information only",
                             "WAITING -> FETCHING_INFO", "bestValidUpdateInAppcast:forUpdater:",
                             "the best item is 5.2, BUNDLE", "updater:didFindValidUpdate:", "UpdateType = BUNDLE",
                             "FETCHING_INFO -> WAITING", "the check is over", "every sequence is possible"})
    {
        position = text.find(step, position);
        ASSERT_NE(position, std::string::npos) << step << " is missing in\n" << text;
    }
}

TEST(TimelineOfProgram, NoUpdateIsToldAsWell)
{
    std::string const text = TimelineOf(LogOfCheck({QStringLiteral("5.2")}));
    EXPECT_NE(text.find("updaterDidNotFindUpdate:"), std::string::npos) << text;
}

} // namespace Pelnar::Testing
