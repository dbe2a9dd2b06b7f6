// InterruptedRunTest.cpp: runs of "generate" that a signal ends, and two runs at once: no file is left over and none is
// lost.

#include "tests/publisher/generate/PublisherFolder.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QElapsedTimer>
#include <QProcess>
#include <QTemporaryDir>

#include <csignal>

#include <fcntl.h>
#include <sys/file.h>

namespace Pelnar::Testing
{
namespace
{

constexpr int PATIENCE_MS = 60000;

QStringList Arguments(PublisherFolder const& folder)
{
    return {QStringLiteral("generate"),     QString::fromStdString(folder.Path()),
            QStringLiteral("--key"),        folder.KeyFile(),
            QStringLiteral("--url-prefix"), QStringLiteral("https://updates.example.com/")};
}

/// Archives that take some time.
void PutLargeVersions(PublisherFolder const& folder)
{
    for (char const* const version : {"1.0", "2.0"})
    {
        BundleText text;
        text.version = version;
        std::vector<ForgedEntry> entries = MakePublishedBundle(text);
        std::string noise(24 << 20, '\0');
        unsigned state = version[0];
        for (char& byte : noise)
        {
            state = state * 1103515245u + 12345u;
            byte = char(state >> 16);
        }
        entries.push_back({"Test.app/large", 'f', noise});
        folder.Put(std::string("Test-") + version + ".zip", MakeArchive(Container::Zip, entries));
    }
}

/// The environment of a run whose temporary folder is \a temporary.
QProcessEnvironment EnvironmentIn(QTemporaryDir const& temporary)
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("TMPDIR"), temporary.path());
    return environment;
}

/// Starts a run. Returns when it works in \a temporary or has ended.
void StartAtWork(QProcess& process, PublisherFolder const& folder, QTemporaryDir const& temporary)
{
    process.setProcessEnvironment(EnvironmentIn(temporary));
    process.start(AppcastProgram(), Arguments(folder));
    QElapsedTimer waiting;
    waiting.start();
    while (QDir(temporary.path()).isEmpty() && process.state() != QProcess::NotRunning &&
           waiting.elapsed() < PATIENCE_MS)
    {
        process.waitForFinished(1);
    }
}

class InterruptedRun : public ::testing::TestWithParam<int>
{
};

} // namespace

TEST_P(InterruptedRun, LeavesNothingBehind)
{
    // Under nohup, for example, the signal is ignored, also by started programs.
    ASSERT_NE(std::signal(GetParam(), SIG_DFL), SIG_ERR);
    PublisherFolder const folder;
    PutLargeVersions(folder);
    std::vector<std::string> const before = folder.Names();
    QTemporaryDir temporary;
    int interrupted = 0;
    for (int delayMs : {0, 30, 120, 400})
    {
        QProcess process;
        StartAtWork(process, folder, temporary);
        bool const isDone = process.waitForFinished(delayMs); // or it has reached another step by then
        if (isDone || process.state() == QProcess::NotRunning || ::kill(pid_t(process.processId()), GetParam()) != 0)
        {
            break;
        }
        ASSERT_TRUE(process.waitForFinished(PATIENCE_MS));
        if (process.exitStatus() == QProcess::NormalExit)
        {
            break; // it was already finished
        }
        ++interrupted;
        EXPECT_EQ(folder.Names(), before) << delayMs;
        EXPECT_TRUE(QDir(temporary.path()).isEmpty()) << delayMs;
    }
    EXPECT_GE(interrupted, 1);
}

INSTANTIATE_TEST_SUITE_P(By, InterruptedRun, ::testing::Values(SIGINT, SIGTERM, SIGHUP),
                         [](auto const& row) { return "Signal" + std::to_string(row.param); });

TEST(KilledRun, LeavesNothingInTheFolderAndTheNextRunClearsTheTemporaryOne)
{
    PublisherFolder const folder;
    PutLargeVersions(folder);
    std::vector<std::string> const before = folder.Names();
    QTemporaryDir temporary;
    int killed = 0;
    for (int delayMs : {0, 30, 120, 400, 800})
    {
        QProcess process;
        StartAtWork(process, folder, temporary);
        if (process.waitForFinished(delayMs))
        {
            break;
        }
        process.kill();
        ASSERT_TRUE(process.waitForFinished(PATIENCE_MS));
        ++killed;
        EXPECT_EQ(folder.Names(), before) << delayMs;
    }
    EXPECT_GE(killed, 1);
    ToolRun const run = RunAppcastProgram(Arguments(folder), {}, EnvironmentIn(temporary));
    EXPECT_EQ(run.status, 0) << run.err;
    EXPECT_TRUE(QDir(temporary.path()).isEmpty())
        << QDir(temporary.path()).entryList().join(QLatin1Char(' ')).toStdString();
}

TEST(KilledRun, FolderOfARunThatWorksIsLeftToIt)
{
    PublisherFolder const folder;
    PutLargeVersions(folder);
    QTemporaryDir temporary;
    QProcess process;
    process.setProcessEnvironment(EnvironmentIn(temporary));
    process.start(AppcastProgram(), Arguments(folder));
    for (int i = 0; i < 10; ++i)
    {
        PublisherFolder const other;
        other.PutVersion("1.0");
        EXPECT_EQ(RunAppcastProgram(Arguments(other), {}, EnvironmentIn(temporary)).status, 0);
    }
    ASSERT_TRUE(process.waitForFinished(PATIENCE_MS));
    EXPECT_EQ(process.exitCode(), 0) << process.readAllStandardError().toStdString();
    EXPECT_TRUE(QDir(temporary.path()).isEmpty());
}

TEST(TwoRuns, SecondSaysThatItWaitsAndGoesOn)
{
    PublisherFolder const folder;
    folder.PutVersion("1.0");
    Engine::UniqueFd held(::open(folder.Path().c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    ASSERT_EQ(::flock(held.Get(), LOCK_EX), 0);
    QProcess process;
    process.start(AppcastProgram(), Arguments(folder));
    ASSERT_TRUE(process.waitForReadyRead(1) || process.waitForStarted(PATIENCE_MS));
    process.setReadChannel(QProcess::StandardError);
    ASSERT_TRUE(process.waitForReadyRead(PATIENCE_MS));
    EXPECT_TRUE(process.readAllStandardError().contains("another run is using this folder; waiting for it to end"));
    EXPECT_EQ(folder.Names(), std::vector<std::string>{"Test-1.0.zip"});
    {
        Engine::UniqueFd const released = std::move(held);
    }
    ASSERT_TRUE(process.waitForFinished(PATIENCE_MS));
    EXPECT_EQ(process.exitCode(), 0);
    EXPECT_EQ(folder.Items().size(), 1u);
}

} // namespace Pelnar::Testing
