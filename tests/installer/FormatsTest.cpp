#include "tests/installer/InstallerFixture.h"

#include "Engine/core/bundle/PayloadKind.h"
#include "Engine/core/helper/SwapJournal.h"

#include <gtest/gtest.h>

namespace
{

using namespace Pelnar::Engine;
using namespace Pelnar::Testing;
using namespace std::string_literals;

PrepareJob SomePrepareJob()
{
    return {PayloadKind::Delta, 123456789012, "c2ln", {"a2V5", "a2V6"}, "A b.app", "org.x", "2.0", "1.0"};
}

InstallJob SomeInstallJob()
{
    InstallJob job;
    job.targetName = "A \"b\"\n\xff.app";
    job.stagingName = ".pelnar-x";
    job.stagedName = "A.app";
    job.digest.fill(0xab);
    job.bundleIdentifier = "org.x";
    job.expectedVersion = "2.0";
    job.installedVersion = "1.0";
    job.waitSeconds = 300;
    job.targetPath = "/opt/A.app";
    job.relaunchPath = "/opt/B.app";
    job.environment = {"HOME=/root", "EMPTY="};
    job.workingFolder = "/home/a b";
    job.creationMask = 077;
    UpdateScene::KeepRecord(job);
    return job;
}

InstallRecord SomeRecord()
{
    InstallRecord record = *SomeInstallJob().record;
    record.state = InstallState::Failed;
    record.secondsSinceEpoch = 1700000000;
    record.helper = {4711, 815};
    record.fault = UpdateFault::SwapFailed;
    record.errorNumber = 5;
    record.told = FailureTold::Yes;
    record.bundlePath = "/opt/A b.app";
    return record;
}

/// A job has exactly one encoding.
void ExpectRoundTrip(UpdateJob const& job)
{
    std::string const bytes = EncodeUpdateJob(job);
    auto const decoded = DecodeUpdateJob(bytes);
    ASSERT_TRUE(decoded.has_value());
    EXPECT_EQ(decoded->index(), job.index());
    EXPECT_EQ(EncodeUpdateJob(*decoded), bytes);
    for (std::size_t size = 0; size < bytes.size(); ++size)
    {
        EXPECT_FALSE(DecodeUpdateJob(bytes.substr(0, size)).has_value()) << size;
    }
    EXPECT_FALSE(DecodeUpdateJob(bytes + '\0').has_value());
}

TEST(UpdateJob, EachKindComesBackAndNoPieceOfItDoes)
{
    ExpectRoundTrip(SomePrepareJob());
    ExpectRoundTrip(SomeInstallJob());
    ExpectRoundTrip(RecoverJob{"A.app", "1.0"});
    ExpectRoundTrip(RehearseJob{"A.app"});
    ExpectRoundTrip(RecoverJob{"A.app", "1.0", RecoverPurpose::Confirmation, 4711});
    auto const job = std::get<InstallJob>(*DecodeUpdateJob(EncodeUpdateJob(SomeInstallJob())));
    EXPECT_EQ(job.targetName, "A \"b\"\n\xff.app");
    EXPECT_EQ(job.digest, SomeInstallJob().digest);
    EXPECT_EQ(job.waitSeconds, 300u);
    EXPECT_EQ(job.environment, SomeInstallJob().environment);
    EXPECT_EQ(job.workingFolder, "/home/a b");
    EXPECT_EQ(job.creationMask, 077u);
    EXPECT_EQ(job.recordName, RECORD_NAME);
    ASSERT_TRUE(job.record);
    EXPECT_EQ(job.record->attempts, 3u);
}

TEST(InstallRecord, ComesBackAndNoPieceOfItDoes)
{
    std::string const bytes = EncodeInstallRecord(SomeRecord());
    auto const decoded = DecodeInstallRecord(bytes);
    ASSERT_TRUE(decoded);
    EXPECT_EQ(EncodeInstallRecord(*decoded), bytes);
    EXPECT_EQ(decoded->fault, UpdateFault::SwapFailed);
    EXPECT_EQ(decoded->errorNumber, 5);
    EXPECT_EQ(decoded->helper.number, 4711u);
    EXPECT_EQ(decoded->helper.startTime, 815u);
    EXPECT_EQ(decoded->told, FailureTold::Yes);
    EXPECT_EQ(decoded->bundlePath, "/opt/A b.app");
    for (std::size_t size = 0; size < bytes.size(); ++size)
    {
        EXPECT_FALSE(DecodeInstallRecord(bytes.substr(0, size))) << size;
    }
    EXPECT_FALSE(DecodeInstallRecord(bytes + '\0'));
}

TEST(InstallRecord, ThatContradictsItselfIsInvalid)
{
    using Change = void (*)(InstallRecord&);
    for (Change const change :
         std::initializer_list<Change>{
             [](InstallRecord& record) { record.fromVersion = ""; },
             [](InstallRecord& record) { record.toVersion = ""; },
             [](InstallRecord& record) { record.toVersion = record.fromVersion; },
             [](InstallRecord& record) { record.attempts = 0; },
             [](InstallRecord& record) { record.fault = UpdateFault::None; },
             [](InstallRecord& record) { record.state = InstallState::Waiting; },
             [](InstallRecord& record) { record.state = InstallState::Installing; },
             [](InstallRecord& record) { record.state = static_cast<InstallState>(4); },
             [](InstallRecord& record) { record.wish = static_cast<InstallWish>(2); },
             [](InstallRecord& record) { record.told = static_cast<FailureTold>(2); },
             [](InstallRecord& record) { record.errorNumber = -1; },
             [](InstallRecord& record) { record.fromVersion = std::string(INSTALL_RECORD_MAX_BYTES, '1'); },
         })
    {
        InstallRecord record = SomeRecord();
        change(record);
        EXPECT_FALSE(DecodeInstallRecord(EncodeInstallRecord(record)));
    }
}

template <typename Job>
bool IsTaken(Job job, void (*change)(Job&))
{
    change(job);
    return DecodeUpdateJob(EncodeUpdateJob(job)).has_value();
}

TEST(UpdateJob, HoldsAsManyVariablesAsTheKernelGivesAProgram)
{
    InstallJob job = SomeInstallJob();
    job.environment.assign(48, "A=" + std::string(128 * 1024, 'x'));
    auto const decoded = DecodeUpdateJob(EncodeUpdateJob(job));
    ASSERT_TRUE(decoded);
    EXPECT_EQ(std::get<InstallJob>(*decoded).environment, job.environment);
}

TEST(UpdateJob, HostilePrepareJobsAreRefused)
{
    using Change = void (*)(PrepareJob&);
    for (Change const change :
         std::initializer_list<Change>{
             [](PrepareJob& job) { job.bundleName = ""; },
             [](PrepareJob& job) { job.bundleName = ".."; },
             [](PrepareJob& job) { job.bundleName = "a/b"; },
             [](PrepareJob& job) { job.bundleIdentifier = ""; },
             [](PrepareJob& job) { job.expectedVersion = ""; },
             [](PrepareJob& job) { job.installedVersion = ""; },
             [](PrepareJob& job) { job.signature = "a\0b"s; },
             [](PrepareJob& job) {
                 job.publicKeys = {"a", "b", "c"};
             },
             [](PrepareJob& job) { job.kind = static_cast<PayloadKind>(3); },
         })
    {
        EXPECT_FALSE(IsTaken(SomePrepareJob(), change));
    }
    // The decoder accepts a missing key or signature. The verification refuses it with a fault of its own.
    EXPECT_TRUE(IsTaken<PrepareJob>(SomePrepareJob(), [](PrepareJob& job) { job.publicKeys = {}; }));
    EXPECT_TRUE(IsTaken<PrepareJob>(SomePrepareJob(), [](PrepareJob& job) { job.signature.clear(); }));
}

TEST(UpdateJob, HostileInstallJobsAreRefused)
{
    using Change = void (*)(InstallJob&);
    for (Change const change :
         std::initializer_list<Change>{
             [](InstallJob& job) { job.targetName = "a/b"; },
             [](InstallJob& job) { job.targetName = "."; },
             [](InstallJob& job) { job.stagingName = ".."; },
             [](InstallJob& job) { job.stagingName = ""; },
             [](InstallJob& job) { job.stagedName = "/a"; },
             [](InstallJob& job) { job.stagedName = "a\0"s; },
             [](InstallJob& job) { job.targetPath = "A.app"; },
             [](InstallJob& job) { job.relaunchPath = "~/x"; },
             [](InstallJob& job) { job.relaunchPath = "file:///x"; },
             [](InstallJob& job) { job.targetPath = ""; },
             [](InstallJob& job) { job.waitSeconds = 24 * 60 * 60 + 1; },
             [](InstallJob& job) { job.kind = static_cast<PayloadKind>(3); },
             [](InstallJob& job) { job.installerSeconds = 0; },
             [](InstallJob& job) { job.installerSeconds = 24 * 60 * 60 + 1; },
             [](InstallJob& job) { job.environment = {"NOVALUE"}; },
             [](InstallJob& job) { job.environment = {"=x"}; },
             [](InstallJob& job) { job.environment = {"A=b\0c"s}; },
             [](InstallJob& job) { job.workingFolder = "home"; },
             [](InstallJob& job) { job.creationMask = 01000; },
             [](InstallJob& job) { job.recordName = "a/b"; },
             [](InstallJob& job) { job.recordName = ""; },
             [](InstallJob& job) { job.record = std::nullopt; },
             [](InstallJob& job) { job.record->attempts = 0; },
             [](InstallJob& job) { job.environment = {"A=" + std::string(UPDATE_JOB_MAX_BYTES, 'x')}; },
         })
    {
        EXPECT_FALSE(IsTaken(SomeInstallJob(), change));
    }
}

TEST(UpdateJob, ForeignBytesAreRefused)
{
    std::string const right = EncodeUpdateJob(RecoverJob{"A.app", "1.0"});
    for (std::string const& bytes : {""s, "PELNARJ2"s, "PELNARJ1" + right.substr(8), "{\"mode\":\"install\"}"s,
                                     "PELNARJ2"s + std::string(100, '\xff')})
    {
        EXPECT_FALSE(DecodeUpdateJob(bytes).has_value());
    }
    for (std::size_t place = 0; place < right.size(); ++place)
    {
        for (int bit = 0; bit < 8; ++bit)
        {
            std::string changed = right;
            changed[place] = static_cast<char>(changed[place] ^ (1 << bit));
            auto const job = DecodeUpdateJob(changed);
            EXPECT_TRUE(!job || EncodeUpdateJob(*job) == changed) << place;
        }
    }
    for (char const* const name : {"", ".", "..", "a/b"})
    {
        EXPECT_FALSE(DecodeUpdateJob(EncodeUpdateJob(RehearseJob{name})).has_value()) << name;
    }
    EXPECT_FALSE(DecodeUpdateJob(EncodeUpdateJob(RecoverJob{"A/b", "1.0"})).has_value());
    EXPECT_FALSE(DecodeUpdateJob(EncodeUpdateJob(RecoverJob{"A.app", ""})).has_value());
    EXPECT_FALSE(
        DecodeUpdateJob(EncodeUpdateJob(RecoverJob{"A.app", "1.0", static_cast<RecoverPurpose>(2)})).has_value());
}

TEST(HelperReport, LinesAreAsDocumentedAndComeBack)
{
    ContentHash digest{};
    digest.fill(0x1f);
    std::string digestText;
    for (int i = 0; i < 32; ++i)
    {
        digestText += "1f";
    }
    struct Row
    {
        HelperReport report;
        std::string line;
    };
    for (Row const& row : {
             Row{ProgressReport{HelperPhase::Verifying, 0, 10}, "progress verifying 0 10"},
             Row{ProgressReport{HelperPhase::Unpacking, 10, 10}, "progress unpacking 10 10"},
             Row{ProgressReport{HelperPhase::Waiting, 0, 0}, "progress waiting 0 0"},
             Row{ProgressReport{HelperPhase::Installing, 0, UINT64_MAX}, "progress installing 0 18446744073709551615"},
             Row{PreparedReport{digest, "A b"}, "prepared " + digestText + " 412062"},
             Row{InstalledReport{}, "installed"},
             Row{RecoveredReport{RecoveryAction::Nothing}, "recovered nothing"},
             Row{RecoveredReport{RecoveryAction::KeptPrevious}, "recovered kept-previous"},
             Row{RecoveredReport{RecoveryAction::ConfirmedNew}, "recovered confirmed-new"},
             Row{RecoveredReport{RecoveryAction::DroppedStaged}, "recovered dropped-staged"},
             Row{RecoveredReport{RecoveryAction::RestoredPrevious}, "recovered restored-previous"},
             Row{RecoveredReport{RecoveryAction::CountedStart}, "recovered counted-start"},
             Row{RecoveredReport{RecoveryAction::RolledBack}, "recovered rolled-back"},
             Row{FailedVersionReport{"2.0\n"}, "failed-version 322e300a"},
             Row{RelaunchedReport{RelaunchedBundle::Answered}, "relaunched answered"},
             Row{RelaunchedReport{RelaunchedBundle::Target}, "relaunched target"},
             Row{RelaunchedReport{RelaunchedBundle::TargetInstead}, "relaunched target-instead"},
             Row{RehearsedReport{}, "rehearsed"},
             Row{RefusedReport{UpdateFault::NoSpace, 28}, "refused NoSpace 28"},
         })
    {
        EXPECT_EQ(EncodeHelperReport(row.report), row.line + "\n");
        auto const decoded = DecodeHelperReport(row.line);
        ASSERT_TRUE(decoded.has_value()) << row.line;
        EXPECT_EQ(EncodeHelperReport(*decoded), row.line + "\n");
    }
}

TEST(HelperReport, OtherLinesAreNotReports)
{
    std::string const digest(64, 'a');
    for (std::string const& line : {
             ""s,
             " "s,
             "installed "s,
             "installed x"s,
             "Installed"s,
             "progress"s,
             "progress verifying 1"s,
             "progress verifying 2 1"s,
             "progress verifying -1 1"s,
             "progress verifying 01 1"s,
             "progress verifying 1 18446744073709551616"s,
             "progress cooking 1 1"s,
             "progress verifying 1 1 1"s,
             "prepared "s + digest,
             "prepared "s + digest + " ",
             "prepared "s + digest + " 4",
             "prepared " + digest + " 2f",
             "prepared " + digest + " 2e2e",
             "prepared " + digest + " 00",
             "prepared " + digest + " 4A4a",
             "prepared " + digest.substr(2) + " 41",
             "prepared " + digest + " " + std::string(512, '4'),
             "recovered"s,
             "recovered all"s,
             "failed-version"s,
             "failed-version "s,
             "failed-version 00"s,
             "failed-version 2"s,
             "failed-version 31 32"s,
             "failed-version " + std::string(512, '4'),
             "relaunched"s,
             "relaunched it"s,
             "rehearsed "s,
             "rehearsed all"s,
             "refused"s,
             "refused NoSpace"s,
             "refused Nonsense 1"s,
             "refused None 0"s,
             "refused NoSpace -1"s,
             "refused NoSpace x"s,
             "refused NoSpace 1 "s,
             std::string(5000, 'x'),
         })
    {
        EXPECT_FALSE(DecodeHelperReport(line).has_value()) << line;
    }
}

TEST(SwapJournal, ComesBackAndNoPieceOfItDoes)
{
    std::string const bytes = EncodeSwapJournal({".pelnar-x", "A.app", "1.0", "2.0"});
    auto const journal = DecodeSwapJournal(bytes);
    ASSERT_TRUE(journal.has_value());
    EXPECT_EQ(EncodeSwapJournal(*journal), bytes);
    for (std::size_t size = 0; size < bytes.size(); ++size)
    {
        EXPECT_FALSE(DecodeSwapJournal(bytes.substr(0, size)).has_value());
    }
    EXPECT_FALSE(DecodeSwapJournal(bytes + "x").has_value());
    EXPECT_FALSE(DecodeSwapJournal(EncodeSwapJournal({"../x", "A.app", "1.0", "2.0"})).has_value());
    EXPECT_FALSE(DecodeSwapJournal(EncodeSwapJournal({"x", "..", "1.0", "2.0"})).has_value());
    EXPECT_FALSE(DecodeSwapJournal(EncodeSwapJournal({"x", "A.app", "1.0", "1.0"})).has_value());
    EXPECT_FALSE(DecodeSwapJournal(EncodeSwapJournal({"x", "A.app", "", "1.0"})).has_value());
    SwapJournal counting{"x", "A.app", "1.0", "2.0", StartConfirmation::ByHost, 1, {4711, 99}};
    auto const counted = DecodeSwapJournal(EncodeSwapJournal(counting));
    ASSERT_TRUE(counted.has_value());
    EXPECT_EQ(counted->confirmation, StartConfirmation::ByHost);
    EXPECT_EQ(counted->countedStarts, 1u);
    EXPECT_EQ(counted->lastStarted.number, 4711u);
    EXPECT_EQ(counted->lastStarted.startTime, 99u);
    counting.confirmation = static_cast<StartConfirmation>(2);
    EXPECT_FALSE(DecodeSwapJournal(EncodeSwapJournal(counting)).has_value());
}

TEST(FailedVersion, ComesBackAndNoPieceOfItDoes)
{
    std::string const bytes = EncodeFailedVersion({"1.0", "2.0"});
    auto const failed = DecodeFailedVersion(bytes);
    ASSERT_TRUE(failed.has_value());
    EXPECT_EQ(failed->fromVersion, "1.0");
    EXPECT_EQ(failed->toVersion, "2.0");
    for (std::size_t size = 0; size < bytes.size(); ++size)
    {
        EXPECT_FALSE(DecodeFailedVersion(bytes.substr(0, size)).has_value());
    }
    EXPECT_FALSE(DecodeFailedVersion(bytes + "x").has_value());
    EXPECT_FALSE(DecodeFailedVersion(EncodeFailedVersion({"", "2.0"})).has_value());
    EXPECT_FALSE(DecodeFailedVersion(EncodeSwapJournal({"x", "A.app", "1.0", "2.0"})).has_value());
}

TEST(SwapJournal, EverySightHasItsAction)
{
    struct Row
    {
        TargetState target;
        bool isPreviousAtHand;
        bool hasNewStarted;
        RecoveryAction action;
    };
    for (Row const& row : {
             Row{TargetState::Missing, false, false, RecoveryAction::DroppedStaged},
             Row{TargetState::Missing, false, true, RecoveryAction::DroppedStaged},
             Row{TargetState::Missing, true, false, RecoveryAction::RestoredPrevious},
             Row{TargetState::Missing, true, true, RecoveryAction::RestoredPrevious},
             Row{TargetState::Unreadable, false, false, RecoveryAction::KeptPrevious},
             Row{TargetState::Unreadable, false, true, RecoveryAction::KeptPrevious},
             Row{TargetState::Unreadable, true, false, RecoveryAction::KeptPrevious},
             Row{TargetState::Unreadable, true, true, RecoveryAction::KeptPrevious},
             Row{TargetState::Previous, false, false, RecoveryAction::DroppedStaged},
             Row{TargetState::Previous, false, true, RecoveryAction::DroppedStaged},
             Row{TargetState::Previous, true, false, RecoveryAction::DroppedStaged},
             Row{TargetState::Previous, true, true, RecoveryAction::DroppedStaged},
             Row{TargetState::New, false, false, RecoveryAction::KeptPrevious},
             Row{TargetState::New, false, true, RecoveryAction::ConfirmedNew},
             Row{TargetState::New, true, false, RecoveryAction::KeptPrevious},
             Row{TargetState::New, true, true, RecoveryAction::ConfirmedNew},
             Row{TargetState::Foreign, false, false, RecoveryAction::DroppedStaged},
             Row{TargetState::Foreign, false, true, RecoveryAction::DroppedStaged},
             Row{TargetState::Foreign, true, false, RecoveryAction::DroppedStaged},
             Row{TargetState::Foreign, true, true, RecoveryAction::DroppedStaged},
         })
    {
        EXPECT_EQ(DecideRecovery({row.target, row.isPreviousAtHand, row.hasNewStarted}), row.action)
            << static_cast<int>(row.target) << row.isPreviousAtHand << row.hasNewStarted;
    }
}

TEST(SwapJournal, StartsThatTheHostConfirmsAreCountedThenTakenBack)
{
    struct Row
    {
        bool isPreviousAtHand;
        bool hasNewStarted;
        bool awaitsHost;
        std::uint64_t countedStarts;
        RecoveryAction action;
    };
    for (Row const& row : {
             Row{true, true, true, 0, RecoveryAction::CountedStart},
             Row{true, true, true, 1, RecoveryAction::CountedStart},
             Row{true, true, true, 2, RecoveryAction::RolledBack}, Row{true, true, true, 3, RecoveryAction::RolledBack},
             Row{true, true, false, 2, RecoveryAction::ConfirmedNew},
             Row{true, true, false, 0, RecoveryAction::ConfirmedNew},
             Row{true, false, true, 2, RecoveryAction::KeptPrevious}, // the new version has not started
             Row{false, true, true, 1, RecoveryAction::CountedStart},
             Row{false, true, true, 2, RecoveryAction::ConfirmedNew}, // there is no previous version
         })
    {
        EXPECT_EQ(DecideRecovery(
                      {TargetState::New, row.isPreviousAtHand, row.hasNewStarted, row.awaitsHost, row.countedStarts}),
                  row.action)
            << row.isPreviousAtHand << row.hasNewStarted << row.awaitsHost << row.countedStarts;
        // The count of another version does not matter.
        EXPECT_EQ(DecideRecovery({TargetState::Previous, row.isPreviousAtHand, row.hasNewStarted, row.awaitsHost,
                                  row.countedStarts}),
                  RecoveryAction::DroppedStaged);
    }
}

} // namespace
