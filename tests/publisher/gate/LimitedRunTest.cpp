// LimitedRunTest.cpp: runs of "generate" under limits of the system: every run ends with a whole new release, or with a
// sentence and the folder as it was.

#include "tests/publisher/gate/UnpublishedVersion.h"
#include "tests/support/Sanitizers.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QProcess>
#include <QTemporaryDir>

#include <string>

namespace Pelnar::Testing
{
namespace
{

/// How a run ends under "ulimit -\a limit".
struct LimitedEnd
{
    LimitedEnd(char const* limit, QStringList const& arguments, QString const& temporary)
    {
        QProcess process;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("TMPDIR"), temporary);
        process.setProcessEnvironment(environment);
        QString const script = QStringLiteral("ulimit -%1 && exec \"$0\" \"$@\"").arg(QLatin1String(limit));
        process.start(QStringLiteral("/bin/sh"),
                      QStringList{QStringLiteral("-c"), script, AppcastProgram()} + arguments);
        EXPECT_TRUE(process.waitForFinished(60000));
        told = process.readAllStandardError().toStdString();
        status = process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1;
    }

    std::string told;
    int status = -1;
};

/// Returns true if the release was published.
bool IsPublished(std::string const& limit)
{
    SCOPED_TRACE(limit);
    QTemporaryDir const temporary;
    if (LimitedEnd(limit.c_str(), {QStringLiteral("--version")}, temporary.path()).status != 0)
    {
        return false; // the system's libraries do not even start
    }
    UnpublishedVersion const version;
    Files const before = FilesOf(version.folder);
    LimitedEnd const end(limit.c_str(), version.Arguments(), temporary.path());
    SCOPED_TRACE(end.told);
    Files const after = FilesOf(version.folder);
    bool const isPublished = end.status == 0;
    EXPECT_TRUE(isPublished || end.status == 1 || end.status == 2) << end.status;
    EXPECT_TRUE(QDir(temporary.path()).isEmpty());
    EXPECT_TRUE(isPublished ? after.count("Test-1.0-3.0.delta") == 1 && after.count("Test-2.0-3.0.delta") == 1
                            : after == before);
    EXPECT_EQ(isPublished, end.told.find("error: ") == std::string::npos);
    EXPECT_TRUE(isPublished || end.told.find("; ") != std::string::npos);
    EXPECT_EQ(end.told.find("/Test.app/"), std::string::npos) << "a path of a folder that is gone";
    EXPECT_EQ(end.told.find("no information file"), std::string::npos);
    return isPublished;
}

} // namespace

TEST(LimitedRun, OfOpenFilesEndsWithTheOldReleaseOrTheNewOne)
{
    int number = 4;
    while (number < 100 && !IsPublished("n " + std::to_string(number)))
    {
        ++number;
    }
    EXPECT_GT(number, 10);
    EXPECT_LT(number, 100);
}

TEST(LimitedRun, OfTheSizeOfFilesEndsWithTheOldReleaseOrTheNewOne)
{
    for (char const* const limit : {"f 0", "f 1", "f 2", "f 8", "f 50"})
    {
        EXPECT_FALSE(IsPublished(limit)); // the program's data are larger
    }
    EXPECT_TRUE(IsPublished("f 200"));
}

TEST(LimitedRun, OfMemoryEndsWithTheOldReleaseOrTheNewOne)
{
    if (IS_SANITIZED)
    {
        GTEST_SKIP() << "the sanitizer needs more address space than any limit";
    }
    int refused = 0;
    for (int kilobytes = 50000; kilobytes <= 200000; kilobytes += 10000)
    {
        refused += IsPublished("v " + std::to_string(kilobytes)) ? 0 : 1;
    }
    EXPECT_GT(refused, 0);
    EXPECT_LT(refused, 16);
}

} // namespace Pelnar::Testing
