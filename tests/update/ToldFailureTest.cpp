// ToldFailureTest.cpp: which start of which copy of an application tells a failure.
#include "tests/update/InstallMemoryFixture.h"

#include <sys/file.h>
#include <sys/stat.h>

namespace Pelnar::Testing
{
namespace
{

TEST_F(InstallMemoryTest, OneOfTwoCopiesThatStartAtOnceTellsAFailure)
{
    Attempt(InstallWish::Person, InstallState::Failed);
    InstallMemory first(m_records, m_downloads, m_bundle, QStringLiteral("1.0"));
    InstallMemory second(m_records, m_downloads, m_bundle, QStringLiteral("1.0"));
    ASSERT_TRUE(first.IsToBeTold() && second.IsToBeTold());
    EXPECT_TRUE(first.ClaimTelling());
    EXPECT_FALSE(second.ClaimTelling());
    EXPECT_TRUE(first.News());
    EXPECT_FALSE(second.News());
    EXPECT_TRUE(second.Failure()) << "it holds the next attempt back in both";
}

TEST_F(InstallMemoryTest, OneOfTwoCopiesThatStartAtOnceTellsARollback)
{
    Attempt(InstallWish::Automatic, InstallState::Installed);
    EXPECT_FALSE(Start("1.0"));
    InstallMemory first(m_records, m_downloads, m_bundle, QStringLiteral("1.0"));
    InstallMemory second(m_records, m_downloads, m_bundle, QStringLiteral("1.0"));
    first.TakeRollback(QStringLiteral("2.0"));
    second.TakeRollback(QStringLiteral("2.0"));
    EXPECT_TRUE(first.News());
    EXPECT_FALSE(second.News());
}

/// A process that hangs while it tells keeps no other from its work.
TEST_F(InstallMemoryTest, FailureWaitsForTheNextStartWhileAnotherCopyTells)
{
    Attempt(InstallWish::Automatic, InstallState::Failed);
    {
        UniqueFd const other = Records();
        ASSERT_EQ(::flock(other.Get(), LOCK_EX), 0);
        EXPECT_TRUE(Start("1.0"));
        EXPECT_FALSE(m_isNews);
    }
    EXPECT_TRUE(Start("1.0"));
    EXPECT_TRUE(m_isNews);
}

/// Another user can hold the lock on a folder that they can read.
TEST_F(InstallMemoryTest, FailureIsToldAtOnceIfOthersCanLockTheFolder)
{
    Attempt(InstallWish::Automatic, InstallState::Failed);
    UniqueFd const other = Records();
    ASSERT_EQ(::fchmod(other.Get(), 0755), 0);
    ASSERT_EQ(::flock(other.Get(), LOCK_EX), 0);
    EXPECT_TRUE(Start("1.0"));
    EXPECT_TRUE(m_isNews);
}

TEST_F(InstallMemoryTest, AttemptHasARecordBeforeItsHelperWritesOne)
{
    InstallAttempt const attempt(m_records, m_bundle);
    InstallJob job;
    job.installedVersion = "1.0";
    job.expectedVersion = "2.0";
    ASSERT_TRUE(attempt.Begin(job, InstallWish::Person));
    EXPECT_FALSE(Start("1.0")) << "this process has not ended";
    auto record = OnDisk();
    ASSERT_TRUE(record);
    EXPECT_EQ(JudgePastInstallation(*record, "1.0", HelperLife::Ended), PastInstallation::Failed);
    EXPECT_EQ(record->bundlePath, PathBytes(m_bundle));
    record->helper = {};
    WriteNote(Records().Get(), Name(), EncodeInstallRecord(*record));
    EXPECT_TRUE(Start("1.0"));
    EXPECT_TRUE(m_isToBeTold);
}

/// As a move to another disk leaves it.
TEST_F(InstallMemoryTest, FailureOfABundleThatIsGoneIsToldOnceByTheNextStartElsewhere)
{
    QString const other = MakeBundleIn(QStringLiteral("other"), "org.pelnar.test");
    for (UpdateFault const fault : {UpdateFault::TargetMissing, UpdateFault::TargetChanged})
    {
        SCOPED_TRACE(FaultName(fault));
        InstallRecord record = Attempt(InstallWish::Person, InstallState::Failed);
        record.fault = fault;
        WriteNote(Records().Get(), Name(), EncodeInstallRecord(record));
        ASSERT_TRUE(QDir(m_bundle).removeRecursively());
        {
            InstallMemory memory(m_records, m_downloads, other, QStringLiteral("1.0"));
            ASSERT_TRUE(memory.Failure());
            EXPECT_EQ(memory.Failure()->fault, fault);
            EXPECT_FALSE(IsHeldBack(*memory.Failure(), After(0)));
            ASSERT_TRUE(memory.IsToBeTold());
            EXPECT_TRUE(memory.ClaimTelling());
        }
        InstallMemory const later(m_records, m_downloads, other, QStringLiteral("1.0"));
        EXPECT_FALSE(later.Failure());
        EXPECT_FALSE(OnDisk());
        EXPECT_TRUE(QDir().mkpath(m_bundle));
    }
}

TEST_F(InstallMemoryTest, FailureOfABundleInWhosePlaceAnotherApplicationIsIsToldElsewhere)
{
    QString const other = MakeBundleIn(QStringLiteral("other"), "org.pelnar.test");
    InstallRecord record = Attempt(InstallWish::Person, InstallState::Failed);
    record.fault = UpdateFault::TargetChanged;
    WriteNote(Records().Get(), Name(), EncodeInstallRecord(record));
    for (char const* const identifier : {"org.pelnar.test", "org.pelnar.foreign"})
    {
        MakeBundleIn(QStringLiteral("."), identifier);
        InstallMemory const memory(m_records, m_downloads, other, QStringLiteral("1.0"));
        EXPECT_EQ(memory.IsToBeTold(), identifier != std::string("org.pelnar.test")) << identifier;
    }
}

TEST_F(InstallMemoryTest, FailureOfABundleThatAnotherVersionHasReplacedIsToldOnce)
{
    InstallRecord record = Attempt(InstallWish::Person, InstallState::Failed);
    record.fault = UpdateFault::TargetChanged;
    WriteNote(Records().Get(), Name(), EncodeInstallRecord(record));
    {
        InstallMemory memory(m_records, m_downloads, m_bundle, QStringLiteral("1.5"));
        ASSERT_TRUE(memory.IsToBeTold());
        EXPECT_TRUE(memory.ClaimTelling());
    }
    EXPECT_FALSE(Start("1.5"));
    EXPECT_FALSE(OnDisk());
}

} // namespace
} // namespace Pelnar::Testing
