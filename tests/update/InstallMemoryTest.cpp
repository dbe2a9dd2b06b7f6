// InstallMemoryTest.cpp: the record of an installation from one start of an application to the next.
#include "tests/support/LogCapture.h"
#include "tests/update/InstallMemoryFixture.h"

#include <cerrno>

#include <unistd.h>

namespace
{

using namespace Pelnar::Engine;
using namespace Pelnar::Testing;

TEST_F(InstallMemoryTest, IsEmptyWithoutARecordOrAFolder)
{
    EXPECT_FALSE(Start("1.0"));
    EXPECT_FALSE(QDir(m_downloads).exists() || QDir(m_records).exists()) << "a start makes nothing";
    InstallMemory const nothing({}, {}, {}, {});
    EXPECT_FALSE(nothing.Failure());
}

TEST_F(InstallMemoryTest, AttemptsOfOneVersionAreCounted)
{
    EXPECT_EQ(Attempt(InstallWish::Automatic, InstallState::Failed).attempts, 1u);
    EXPECT_EQ(Attempt(InstallWish::Automatic, InstallState::Failed).attempts, 2u);
    EXPECT_EQ(Attempt(InstallWish::Person, InstallState::Installing).attempts, 3u);
    InstallAttempt const attempt(m_records, m_bundle);
    InstallJob job;
    job.installedVersion = "1.0";
    job.expectedVersion = "2.1";
    EXPECT_TRUE(attempt.Begin(job, InstallWish::Automatic));
    EXPECT_EQ(job.record->attempts, 1u) << "another version";
}

TEST_F(InstallMemoryTest, AttemptThatIsTakenBackLeavesWhatWasThere)
{
    Attempt(InstallWish::Automatic, InstallState::Failed);
    auto const before = OnDisk();
    InstallAttempt again(m_records, m_bundle);
    Attempt(InstallWish::Person, InstallState::Waiting);
    again.TakeBack();
    ASSERT_TRUE(OnDisk());
    EXPECT_EQ(EncodeInstallRecord(*OnDisk()), EncodeInstallRecord(*before));

    RemoveNote(Records().Get(), Name());
    InstallAttempt first(m_records, m_bundle);
    Attempt(InstallWish::Person, InstallState::Waiting);
    first.TakeBack();
    EXPECT_EQ(Files(), QStringList{QLatin1String(ARCHIVE)});
}

TEST_F(InstallMemoryTest, FailureIsToldOnceToAPersonWhoAsked)
{
    Attempt(InstallWish::Person, InstallState::Failed);
    for (int start = 0; start < 2; ++start) // nobody has heard of it yet
    {
        auto const failure = Start("1.0");
        ASSERT_TRUE(failure);
        EXPECT_EQ(failure->fault, UpdateFault::SwapFailed);
        EXPECT_TRUE(m_isToBeTold);
    }
    {
        InstallMemory memory(m_records, m_downloads, m_bundle, QStringLiteral("1.0"));
        EXPECT_TRUE(memory.ClaimTelling());
        EXPECT_FALSE(memory.IsToBeTold());
    }
    EXPECT_TRUE(Start("1.0")) << "it still holds the next attempt back";
    EXPECT_FALSE(m_isToBeTold);
    EXPECT_TRUE(QFile::exists(m_downloads + QLatin1Char('/') + QLatin1String(ARCHIVE)));
}

/// The log and the application hear of it. No window is shown.
TEST_F(InstallMemoryTest, AutomaticFailureIsNewsOnce)
{
    Attempt(InstallWish::Automatic, InstallState::Failed);
    LogCapture log;
    EXPECT_TRUE(Start("1.0"));
    EXPECT_TRUE(m_isNews);
    EXPECT_FALSE(m_isToBeTold);
    EXPECT_TRUE(Start("1.0")) << "it still holds the next attempt back";
    EXPECT_FALSE(m_isNews);
    EXPECT_EQ(log.Texts(),
              std::vector<std::string>{"The installation of update 2.0 failed: SwapFailed (errno 0), attempt 1"});
}

TEST_F(InstallMemoryTest, HelperThatEndedWithoutAReportHasFailed)
{
    for (InstallState const state : {InstallState::Waiting, InstallState::Installing})
    {
        Attempt(InstallWish::Person, state);
        auto const failure = Start("1.0");
        ASSERT_TRUE(failure);
        EXPECT_EQ(failure->fault, UpdateFault::InstallationInterrupted);
        EXPECT_TRUE(m_isToBeTold);
    }
}

TEST_F(InstallMemoryTest, HelperThatRunsHasNotFailed)
{
    InstallRecord record = Attempt(InstallWish::Person, InstallState::Installing);
    record.helper = MarkOfThisProcess();
    WriteNote(Records().Get(), Name(), EncodeInstallRecord(record));
    EXPECT_FALSE(Start("1.0"));
    ASSERT_TRUE(OnDisk());
    EXPECT_EQ(OnDisk()->state, InstallState::Installing);
}

/// The end of the session leaves no such record: the helper removes it.
TEST_F(InstallMemoryTest, HelperThatDiedWhileItWaitedIsNewsOnceAndWasNoAttempt)
{
    LogCapture log;
    Attempt(InstallWish::Automatic, InstallState::Waiting);
    auto const dropped = Start("1.0");
    ASSERT_TRUE(dropped);
    EXPECT_TRUE(m_isNews);
    EXPECT_FALSE(m_isToBeTold);
    EXPECT_EQ(dropped->fault, UpdateFault::InstallationInterrupted);
    EXPECT_FALSE(IsHeldBack(*dropped, After(0)));
    EXPECT_EQ(Files(), QStringList{QLatin1String(ARCHIVE)}) << "the archive is for the next one";
    EXPECT_FALSE(Start("1.0"));
    EXPECT_FALSE(m_isNews);
    EXPECT_EQ(log.Texts().size(), 1u);

    Attempt(InstallWish::Automatic, InstallState::Failed);
    Attempt(InstallWish::Automatic, InstallState::Waiting);
    auto const failure = Start("1.0");
    ASSERT_TRUE(failure);
    EXPECT_TRUE(m_isNews);
    EXPECT_EQ(failure->attempts, 1u);
    ASSERT_TRUE(OnDisk());
    EXPECT_EQ(OnDisk()->attempts, 1u);
}

TEST_F(InstallMemoryTest, SuccessClearsRecordAndArchive)
{
    struct Row
    {
        InstallState state;
        char const* running;
    };
    for (Row const& row : {Row{InstallState::Installed, "2.0"}, Row{InstallState::Installing, "2.0"},
                           Row{InstallState::Failed, "3.0"}, Row{InstallState::Installed, "1.0"}})
    {
        Attempt(InstallWish::Person, row.state);
        EXPECT_FALSE(Start(row.running));
        EXPECT_EQ(Files(), QStringList()) << row.running;
    }
}

TEST_F(InstallMemoryTest, VersionThatWasInstalledAndNotStartedIsLoggedByItsFirstStart)
{
    InstallRecord record = Attempt(InstallWish::Person, InstallState::Installed);
    record.fault = UpdateFault::RelaunchFailed;
    record.errorNumber = EAGAIN;
    WriteNote(Records().Get(), Name(), EncodeInstallRecord(record));
    LogCapture log;
    EXPECT_FALSE(Start("2.0"));
    EXPECT_EQ(log.Texts(), std::vector<std::string>{
                               "Update 2.0 was installed, but could not be started: RelaunchFailed (errno 11)"});
    EXPECT_EQ(Files(), QStringList());
}

TEST_F(InstallMemoryTest, HelperThatDiedAfterTheSwapIsLoggedByTheFirstStartOfTheNewVersion)
{
    Attempt(InstallWish::Person, InstallState::Installing);
    LogCapture log;
    EXPECT_FALSE(Start("2.0"));
    EXPECT_EQ(log.Texts(),
              std::vector<std::string>{"The helper that installed update 2.0 ended before it reported a result"});
    EXPECT_EQ(Files(), QStringList());
}

TEST_F(InstallMemoryTest, CountOfAttemptsThatIsFullStaysFull)
{
    constexpr std::uint64_t MOST = ~std::uint64_t{0};
    InstallRecord record = Attempt(InstallWish::Automatic, InstallState::Failed);
    record.attempts = MOST;
    WriteNote(Records().Get(), Name(), EncodeInstallRecord(record));
    EXPECT_EQ(Attempt(InstallWish::Automatic, InstallState::Failed).attempts, MOST);
}

TEST_F(InstallMemoryTest, RecordsOfOthersAndNonsenseSayNothing)
{
    Attempt(InstallWish::Person, InstallState::Failed);
    QFile file(m_records + QLatin1Char('/') + QString::fromStdString(Name()));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly | QIODevice::Append));
    file.write("x");
    file.close();
    EXPECT_FALSE(Start("1.0"));
    file.remove();
    ASSERT_EQ(::symlink("/etc/passwd", QFile::encodeName(file.fileName()).constData()), 0);
    EXPECT_FALSE(Start("1.0"));
}

TEST_F(InstallMemoryTest, FailureIsToldToItsOwnCopyAlone)
{
    QString const other = m_folder.filePath(QStringLiteral("Other.app"));
    QDir(m_folder.path()).mkpath(QStringLiteral("Other.app"));
    for (UpdateFault const fault : {UpdateFault::SwapFailed, UpdateFault::TargetMissing, UpdateFault::TargetChanged})
    {
        SCOPED_TRACE(FaultName(fault));
        InstallRecord record = Attempt(InstallWish::Person, InstallState::Failed);
        record.fault = fault;
        WriteNote(Records().Get(), Name(), EncodeInstallRecord(record));
        for (QString const& place : {other, QStringLiteral("/nowhere/App.app"), QString()})
        {
            InstallMemory const memory(m_records, m_downloads, place, QStringLiteral("1.0"));
            EXPECT_FALSE(memory.Failure()) << place.toStdString();
        }
        EXPECT_TRUE(Start("1.0"));
        EXPECT_TRUE(m_isToBeTold);
    }
}

TEST_F(InstallMemoryTest, FailureIsToldThroughALinkToo)
{
    Attempt(InstallWish::Person, InstallState::Failed);
    QString const link = m_folder.filePath(QStringLiteral("Link.app"));
    ASSERT_TRUE(QFile::link(m_bundle, link));
    InstallMemory const memory(m_records, m_downloads, link, QStringLiteral("1.0"));
    EXPECT_TRUE(memory.IsToBeTold());
}

/// The note beside the bundle stays, so every start learns of the rollback.
TEST_F(InstallMemoryTest, RollbackIsNewsOnceAndAgainAfterTheNextInstallation)
{
    LogCapture log;
    auto const isNews = [this](char const* failedVersion)
    {
        InstallMemory memory(m_records, m_downloads, m_bundle, QStringLiteral("1.0"));
        memory.TakeRollback(QString::fromLatin1(failedVersion));
        EXPECT_FALSE(memory.IsToBeTold());
        return memory.News() && memory.News()->fault == UpdateFault::NewVersionFailed;
    };
    EXPECT_TRUE(isNews("2.0"));
    EXPECT_FALSE(isNews("2.0"));
    EXPECT_EQ(log.Texts(),
              std::vector<std::string>{"Update 2.0 was rolled back; only a person's check offers it again"});
    EXPECT_TRUE(isNews("2.1"));
    Attempt(InstallWish::Person, InstallState::Installed);
    EXPECT_FALSE(Start("2.0"));
    EXPECT_TRUE(isNews("2.1"));
}

TEST_F(InstallMemoryTest, TwoNewsAreHeardOneAfterTheOther)
{
    Attempt(InstallWish::Automatic, InstallState::Failed);
    InstallMemory memory(m_records, m_downloads, m_bundle, QStringLiteral("1.0"));
    memory.TakeRollback(QStringLiteral("1.9"));
    for (UpdateFault const fault : {UpdateFault::SwapFailed, UpdateFault::NewVersionFailed})
    {
        ASSERT_TRUE(memory.News());
        EXPECT_EQ(memory.News()->fault, fault);
        memory.SetHeard();
    }
    EXPECT_FALSE(memory.News());
}

TEST_F(InstallMemoryTest, EveryBundleHasARecordOfItsOwn)
{
    EXPECT_NE(InstallRecordName("/a/App.app"), InstallRecordName("/b/App.app"));
    EXPECT_NE(InstallRecordName("/\xfe/App.app"), InstallRecordName("/\xff/App.app"));
}

TEST(InstallBackOff, GrowsWithTheAttemptsAndEndsWithAPersonsWish)
{
    InstallRecord failure;
    failure.secondsSinceEpoch = 1000000;
    failure.attempts = 1;
    EXPECT_TRUE(IsHeldBack(failure, After(0)));
    EXPECT_FALSE(IsHeldBack(failure, After(1)));
    failure.attempts = 2;
    EXPECT_TRUE(IsHeldBack(failure, After(1)));
    EXPECT_FALSE(IsHeldBack(failure, After(2)));
    failure.attempts = MAX_AUTOMATIC_ATTEMPTS;
    EXPECT_TRUE(IsHeldBack(failure, After(100000)));
}

} // namespace
