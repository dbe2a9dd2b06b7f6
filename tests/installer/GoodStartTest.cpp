// GoodStartTest.cpp: new versions that must tell that they started well, and what becomes of those that do not.

#include "Engine/core/archive/TreeManifest.h"
#include "Engine/core/helper/NoteFile.h"
#include "Engine/core/helper/SwapJournal.h"
#include "tests/installer/FaultChecks.h"
#include "tests/installer/InstallerFixture.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <future>

#include <fcntl.h>
#include <signal.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

namespace
{

using namespace Pelnar::Engine;
using namespace Pelnar::Testing;

constexpr char STRACE[] = "/usr/bin/strace";

/// A version 2.0 that is to confirm its start; its program is \a script.
std::string ArchiveOf(std::string const& script)
{
    std::vector<ForgedEntry> entries = MakeBundle("2.0");
    entries[1].content = script;
    std::string& information = entries[3].content;
    information.insert(information.find('{') + 1, "PelnarConfirmsGoodStart = YES;");
    return MakeArchive(Container::Zip, entries);
}

std::string const GOOD = "#!/bin/sh\necho \"2.0|$0|$#|$PELNAR_TEST\"\n";

/// The update to 2.0, installed without a relaunch.
class InstalledScene
{
public:
    InstalledScene() : scene(ArchiveOf(GOOD))
    {
        InstallJob job = scene.PrepareForInstall();
        job.targetPath.clear();
        scene.Host().End();
        EXPECT_EQ(scene.Install(job).exitStatus, 0);
        scene.ReleaseStaging();
    }

    RecoveryAction Recover(RecoverJob const& job)
    {
        HelperOutcome const outcome = scene.Recover(job);
        auto const* const failed = outcome.Find<FailedVersionReport>();
        failedVersion = failed ? failed->version : std::string();
        auto const* const recovered = outcome.Find<RecoveredReport>();
        EXPECT_NE(recovered, nullptr) << FaultName(outcome.Fault());
        return recovered ? recovered->action : RecoveryAction::Nothing;
    }
    RecoveryAction Start(std::string const& version) { return Recover({APP, version}); }
    RecoveryAction Confirm(std::string const& version) { return Recover({APP, version, RecoverPurpose::Confirmation}); }

    std::string Version() const { return scene.Place().StartedVersion(); }
    std::vector<std::string> Names() const { return scene.Place().Names(); }

    UpdateScene scene;
    std::string failedVersion; ///< that the last recovery told of
};

std::vector<std::string> const ONLY_THE_APP{APP};

TEST(GoodStart, ThirdStartWithoutAWordBringsThePreviousVersionBack)
{
    InstalledScene installed;
    EXPECT_EQ(installed.Version(), "2.0");
    EXPECT_EQ(installed.Start("2.0"), RecoveryAction::CountedStart);
    EXPECT_EQ(installed.Version(), "2.0");
    EXPECT_EQ(installed.Start("2.0"), RecoveryAction::CountedStart);
    EXPECT_EQ(installed.Version(), "2.0");
    EXPECT_EQ(installed.Start("2.0"), RecoveryAction::RolledBack);
    EXPECT_EQ(installed.Version(), "1.0");
    EXPECT_EQ(installed.failedVersion, "");
    // What was taken back still runs from where it lies, until the previous version starts.
    EXPECT_EQ(installed.scene.Place().Names(installed.Names()[0]), ONLY_THE_APP);

    for (int start = 0; start < 2; ++start)
    {
        EXPECT_EQ(installed.Start("1.0"), RecoveryAction::Nothing);
        EXPECT_EQ(installed.failedVersion, "2.0");
        EXPECT_EQ(installed.Names(), (std::vector<std::string>{FailedVersionName(APP), APP}));
        EXPECT_EQ(installed.Version(), "1.0");
    }
    EXPECT_EQ(installed.Start("3.0"), RecoveryAction::Nothing); // installed in some other way
    EXPECT_EQ(installed.failedVersion, "");
    EXPECT_EQ(installed.Names(), ONLY_THE_APP);
}

TEST(GoodStart, OneWordKeepsTheNewVersion)
{
    for (int starts = 0; starts <= 2; ++starts)
    {
        InstalledScene installed;
        for (int start = 0; start < starts; ++start)
        {
            EXPECT_EQ(installed.Start("2.0"), RecoveryAction::CountedStart);
        }
        EXPECT_EQ(installed.Confirm("1.0"), RecoveryAction::KeptPrevious); // not the word of this one
        EXPECT_EQ(installed.Confirm("2.0"), RecoveryAction::ConfirmedNew);
        EXPECT_EQ(installed.Names(), ONLY_THE_APP);
        EXPECT_EQ(installed.Confirm("2.0"), RecoveryAction::Nothing);
        EXPECT_EQ(installed.Start("2.0"), RecoveryAction::Nothing);
        EXPECT_EQ(installed.Version(), "2.0");
    }
}

TEST(GoodStart, InstancesBesideARunningOneAreNoStartsOfTheirOwn)
{
    InstalledScene installed;
    auto const pid = static_cast<std::uint64_t>(::getpid());
    for (int start = 0; start < 4; ++start)
    {
        RecoverJob const job{APP, "2.0", RecoverPurpose::Start, pid};
        EXPECT_EQ(installed.Recover(job), start == 0 ? RecoveryAction::CountedStart : RecoveryAction::KeptPrevious);
        RecoverJob const other{APP, "2.0", RecoverPurpose::Start, 1};
        EXPECT_EQ(installed.Recover(other), RecoveryAction::KeptPrevious);
    }
    EXPECT_EQ(installed.Version(), "2.0");
    EXPECT_EQ(installed.Recover({APP, "2.0", RecoverPurpose::Confirmation, pid}), RecoveryAction::ConfirmedNew);
}

TEST(GoodStart, ProcessThatHasEndedIsNotTheOneThatHasItsNumberNow)
{
    InstalledScene installed;
    SwapJournal journal{installed.scene.Place().Names()[0], APP, "1.0", "2.0", StartConfirmation::ByHost, 2, {}};
    for (std::string const& name : installed.Names())
    {
        journal.stagingName =
            name.compare(0, UpdateFilePrefix(APP).size(), UpdateFilePrefix(APP)) == 0 ? name : journal.stagingName;
    }
    journal.lastStarted = {static_cast<std::uint64_t>(::getpid()), 1}; // another time of start
    WriteNote(installed.scene.Place().Descriptor(), SwapJournalName(APP), EncodeSwapJournal(journal));
    EXPECT_EQ(installed.Start("2.0"), RecoveryAction::RolledBack);
    EXPECT_EQ(installed.Version(), "1.0");
}

TEST(GoodStart, WithoutAnExchangeThePreviousVersionComesBackByTwoRenames)
{
    InstalledScene installed;
    installed.Start("2.0");
    installed.Start("2.0");
    HelperStart start;
    start.atEveryCall = [](CallStop const& stop)
    { return stop.call == SYS_renameat2 ? CallVerdict::Fail(EINVAL) : CallVerdict::GoOn(); };
    HelperOutcome const outcome = installed.scene.Recover("2.0", start);
    EXPECT_EQ(outcome.traced.faulted.size(), 1u) << "it was exchanged";
    ASSERT_NE(outcome.Find<RecoveredReport>(), nullptr);
    EXPECT_EQ(outcome.Find<RecoveredReport>()->action, RecoveryAction::RolledBack);
    EXPECT_EQ(installed.Version(), "1.0");
}

ContentHash TreeOf(Workspace const& place)
{
    UniqueFd const bundle(::open((place.Path() + '/' + APP).c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    return bundle ? DigestTree(bundle.Get()) : ContentHash{};
}

/// After some starts without a word the previous version stands there, whole, and nothing else but a note.
void ExpectPreviousSettles(UpdateScene& scene)
{
    scene.Host().End();
    scene.ReleaseStaging();
    for (int start = 0; start < 4 && scene.Place().StartedVersion() != "1.0"; ++start)
    {
        std::string const version = scene.Place().StartedVersion();
        scene.Recover(version.empty() ? "1.0" : version); // none: a person calls for what they had before
    }
    EXPECT_EQ(scene.Place().StartedVersion(), "1.0");
    scene.Recover("1.0");
    Workspace const other;
    other.Put(MakeBundle("1.0"));
    EXPECT_EQ(TreeOf(scene.Place()), TreeOf(other));
    std::vector<std::string> names = scene.Place().Names();
    names.erase(std::remove(names.begin(), names.end(), FailedVersionName(APP)), names.end());
    EXPECT_EQ(names, ONLY_THE_APP);
}

/// Every rename and every sync of the taking back that fails, by an exchange and by two renames.
TEST(GoodStart, RollBackThatFailsAnywhereIsFinishedByALaterStart)
{
    for (bool const hasExchange : {true, false})
    {
        for (long const call : {long{SYS_renameat}, long{SYS_fsync}})
        {
            bool wasFailed = true;
            for (int nth = 1; wasFailed && nth <= 20; ++nth)
            {
                SCOPED_TRACE(testing::Message() << hasExchange << ' ' << CallName(call) << ' ' << nth);
                InstalledScene installed;
                installed.Start("2.0");
                installed.Start("2.0");
                int calls = 0;
                HelperStart start;
                start.atEveryCall = [&](CallStop const& stop)
                {
                    bool const isRefused = !hasExchange && stop.call == SYS_renameat2;
                    calls += stop.call == call ? 1 : 0;
                    bool const isFailed = stop.call == call && calls == nth;
                    return isRefused  ? CallVerdict::Fail(EINVAL)
                           : isFailed ? CallVerdict::Fail(EIO)
                                      : CallVerdict::GoOn();
                };
                HelperOutcome const outcome = installed.scene.Recover("2.0", start);
                wasFailed = calls >= nth;
                EXPECT_EQ(outcome.exitStatus, wasFailed ? 1 : 0) << FaultName(outcome.Fault());
                EXPECT_FALSE(installed.Version().empty()) << "a failure leaves a bundle in its place";
                ExpectPreviousSettles(installed.scene);
            }
            EXPECT_FALSE(wasFailed);
        }
    }
}

HelperStart KilledAt(std::string const& call, int nth, std::vector<std::string> const& options)
{
    HelperStart start;
    start.before = {STRACE, "-f", "-qq", "-o", "/dev/null"};
    start.before.insert(start.before.end(), options.begin(), options.end());
    start.before.insert(start.before.end(), {"-e", "inject=" + call + ":signal=KILL:when=" + std::to_string(nth)});
    return start;
}

constexpr int MOST_CALLS = 60;

/// Kills the recovery that takes a version back at each of the calls.
void SweepRollBack(std::vector<std::string> const& calls, std::vector<std::string> const& options)
{
    for (std::string const& call : calls)
    {
        bool wasKilled = true;
        int kills = 0;
        for (int nth = 1; wasKilled && nth <= MOST_CALLS; ++nth)
        {
            SCOPED_TRACE(testing::Message() << call << " number " << nth);
            InstalledScene installed;
            installed.Start("2.0");
            installed.Start("2.0");
            wasKilled = installed.scene.Recover("2.0", KilledAt(call, nth, options)).signal == SIGKILL;
            kills += wasKilled ? 1 : 0;
            EXPECT_TRUE(!options.empty() || !installed.Version().empty()); // with an exchange, at every moment
            ExpectPreviousSettles(installed.scene);
            EXPECT_EQ(installed.Names().size(), 2u); // it knows which version failed
        }
        EXPECT_FALSE(wasKilled) << call;
        EXPECT_GT(kills, 0) << call;
    }
}

TEST(GoodStart, RollBackKilledAnywhereIsFinishedByTheNextStart)
{
    SweepRollBack({"unlinkat", "write", "fsync", "renameat", "renameat2", "flock"}, {});
}

TEST(GoodStart, RollBackWithoutAnExchangeKilledAnywhereIsFinishedByTheNextStart)
{
    // The call that fails cannot be the one that is killed too.
    SweepRollBack({"unlinkat", "fsync", "renameat"}, {"-e", "inject=renameat2:error=EINVAL"});
}

TEST(GoodStart, NextUpdateOfAVersionThatNeverToldIsWordEnough)
{
    InstalledScene installed;
    EXPECT_EQ(installed.Start("2.0"), RecoveryAction::CountedStart);
    UpdateScene& scene = installed.scene;
    StagingFolder const staging = StagingFolder::Create(scene.Place().Descriptor(), APP);
    scene.Place().Put(MakeBundle("3.0"), staging.Name() + '/');
    UniqueFd const staged(::openat(staging.Descriptor(), APP, O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    InstallJob job;
    job.targetName = APP;
    job.stagingName = staging.Name();
    job.stagedName = APP;
    job.digest = DigestTree(staged.Get());
    job.bundleIdentifier = IDENTIFIER;
    job.expectedVersion = "3.0";
    job.installedVersion = "2.0";
    HelperOutcome const outcome = RunHelper("install", EncodeUpdateJob(job),
                                            {{HelperDescriptors::PARENT, scene.Place().Descriptor()},
                                             {HelperDescriptors::STAGING, staging.Descriptor()},
                                             {HelperDescriptors::HOST, scene.Host().ProcessDescriptor()}});
    EXPECT_EQ(outcome.exitStatus, 0) << FaultName(outcome.Fault());
    EXPECT_EQ(installed.Version(), "3.0");
    EXPECT_EQ(installed.Names().size(), 3u); // the app, one journal, one staging folder
}

// From here on: the helper that starts the new version, and stands by it.

struct WatchRow
{
    char const* name;
    char const* script; ///< "$0.count" counts its starts
    char const* output; ///< of all that is started
    bool isRolledBack;
};

class WatchedStart : public testing::TestWithParam<WatchRow>
{
};

TEST_P(WatchedStart, IsRepeatedOnceAndThenTakenBack)
{
    UpdateScene scene(ArchiveOf(GetParam().script));
    InstallJob const job = scene.PrepareForInstall();
    scene.Host().End();
    HelperOutcome const outcome = scene.Install(job);
    std::string output = outcome.output;
    for (std::string const folder = scene.Place().Path() + '/' + APP; output.find(folder) != std::string::npos;)
    {
        output.erase(output.find(folder), folder.size());
    }
    EXPECT_EQ(output, GetParam().output);
    EXPECT_NE(outcome.Find<InstalledReport>(), nullptr);
    auto const* const recovered = outcome.Find<RecoveredReport>();
    EXPECT_EQ(recovered != nullptr, GetParam().isRolledBack);
    EXPECT_EQ(outcome.exitStatus, GetParam().isRolledBack ? 1 : 0);
    scene.ReleaseStaging();
    if (GetParam().isRolledBack)
    {
        EXPECT_EQ(recovered->action, RecoveryAction::RolledBack);
        EXPECT_EQ(scene.Place().StartedVersion(), "1.0");
        HelperOutcome const next = scene.Recover("1.0");
        ASSERT_NE(next.Find<FailedVersionReport>(), nullptr);
        EXPECT_EQ(next.Find<FailedVersionReport>()->version, "2.0");
        EXPECT_EQ(scene.Place().Names(), (std::vector<std::string>{FailedVersionName(APP), APP}));
    }
    else
    {
        EXPECT_EQ(scene.Recover("2.0").Find<RecoveredReport>()->action, RecoveryAction::CountedStart);
    }
}

INSTANTIATE_TEST_SUITE_P(
    Table, WatchedStart,
    testing::Values(WatchRow{"FailsAlways", "#!/bin/sh\necho try\nexit 1\n", "try\ntry\n1.0|/run|0|\n", true},
                    WatchRow{"CrashesAlways", "#!/bin/sh\necho try\nkill -SEGV $$\n", "try\ntry\n1.0|/run|0|\n", true},
                    WatchRow{"NeverStarts", "#!/nonexistent/interpreter\n", "1.0|/run|0|\n", true},
                    WatchRow{"FailsOnce", "#!/bin/sh\necho try\nmkdir \"${0%/*}/seen\" 2>/dev/null && exit 1\nexit 0\n",
                             "try\ntry\n", false},
                    WatchRow{"IsEndedByThePerson", "#!/bin/sh\necho try\n", "try\n", false},
                    WatchRow{"IsEndedWithItsSession", "#!/bin/sh\necho try\nkill -TERM $$\n", "try\n", false}),
    [](testing::TestParamInfo<WatchRow> const& info) { return info.param.name; });

TEST(WatchedStart, OtherVersionsAreStartedOnce)
{
    std::vector<ForgedEntry> entries = MakeBundle("2.0");
    entries[1].content = "#!/bin/sh\necho try\nexit 1\n";
    UpdateScene scene(MakeArchive(Container::Zip, entries));
    InstallJob const job = scene.PrepareForInstall();
    scene.Host().End();
    HelperOutcome const outcome = scene.Install(job);
    EXPECT_EQ(outcome.exitStatus, 0);
    EXPECT_EQ(outcome.output, "try\n");
}

TEST(WatchedStart, AnotherBundleSaysNothingOfTheInstalledOne)
{
    Workspace const other;
    std::vector<ForgedEntry> entries = MakeBundle("7.0", "Other.app");
    entries[1].content = "#!/bin/sh\necho other\nexit 1\n";
    other.Put(entries);
    UpdateScene scene(ArchiveOf(GOOD));
    InstallJob job = scene.PrepareForInstall();
    job.relaunchPath = other.Path() + "/Other.app";
    scene.Host().End();
    HelperOutcome const outcome = scene.Install(job);
    EXPECT_EQ(outcome.exitStatus, 0);
    EXPECT_EQ(outcome.output, "other\n");
    EXPECT_EQ(scene.Place().StartedVersion(), "2.0");
}

/// The helper holds the report, and the output that the new version has let go of: that both end shows its own end.
TEST(WatchedStart, WordLetsTheHelperGoWhileTheNewVersionRuns)
{
    Workspace const fifos;
    std::string const up = fifos.Path() + "/up";
    std::string const door = fifos.Path() + "/door";
    ASSERT_EQ(::mkfifo(up.c_str(), 0600), 0);
    ASSERT_EQ(::mkfifo(door.c_str(), 0600), 0);
    UpdateScene scene(ArchiveOf("#!/bin/sh\nexec > \"$PELNAR_TEST/up\"\necho up\nread -r line < "
                                "\"$PELNAR_TEST/door\"\nexit 1\n"));
    InstallJob job = scene.PrepareForInstall();
    job.environment = {"PELNAR_TEST=" + fifos.Path()};
    scene.Host().End();
    auto const installed = std::async(std::launch::async, [&scene, &job] { return scene.Install(job); });
    std::ifstream upFile(up); // waits for the new version
    std::string word;
    EXPECT_TRUE(std::getline(upFile, word));
    EXPECT_EQ(word, "up");
    HelperOutcome const confirmed = scene.Recover({APP, "2.0", RecoverPurpose::Confirmation, 0});
    EXPECT_EQ(confirmed.Find<RecoveredReport>()->action, RecoveryAction::ConfirmedNew);
    installed.wait();
    std::ofstream(door) << "go\n"; // waits for the new version, which lives
    EXPECT_FALSE(std::getline(upFile, word));
    scene.ReleaseStaging();
    scene.Recover("2.0");
    EXPECT_EQ(scene.Place().Names(), ONLY_THE_APP);
}

/// From the swap on the session may end at every call: the new version is started all the same.
TEST(WatchedStart, SessionThatEndsBehindTheSwapKeepsNoNewVersionFromItsStart)
{
    int const step = IsEveryPlaceWanted() ? 1 : 5;
    int places = 0;
    bool isBehindTheStart = false;
    for (int nth = 0; !isBehindTheStart && nth < 200; nth += step)
    {
        SCOPED_TRACE(nth);
        UpdateScene scene(ArchiveOf(GOOD));
        InstallJob const job = scene.PrepareForInstall();
        scene.Host().End();
        int calls = -1; // since the swap
        bool wasSent = false;
        int index = -1;
        HelperStart start;
        start.atEveryCall = [&](CallStop const& stop)
        {
            bool const isSwap = stop.call == SYS_renameat2;
            calls = calls < 0 && !isSwap ? calls : calls + 1;
            isBehindTheStart = isBehindTheStart || (!wasSent && stop.call == SYS_ppoll);
            bool const isPlace = calls == nth && !isBehindTheStart;
            wasSent = wasSent || isPlace;
            index = isPlace ? stop.index : index;
            return isPlace ? CallVerdict::SignalAll(SIGTERM) : CallVerdict::GoOn();
        };
        HelperOutcome const outcome = scene.Install(job, start);
        EXPECT_EQ(outcome.output.substr(0, 4), "2.0|");
        EXPECT_EQ(scene.Place().StartedVersion(), "2.0");
        EXPECT_TRUE(!wasSent || outcome.traced.faulted.count(index) == 1) << "nobody got the signal";
        places += wasSent ? 1 : 0;
    }
    EXPECT_TRUE(isBehindTheStart);
    EXPECT_GT(places, 10);
}

TEST(WatchedStart, SessionThatEndsLetsTheNewVersionRunWithoutItsWatcher)
{
    Workspace const fifos;
    std::string const up = fifos.Path() + "/up";
    std::string const door = fifos.Path() + "/door";
    ASSERT_EQ(::mkfifo(up.c_str(), 0600), 0);
    ASSERT_EQ(::mkfifo(door.c_str(), 0600), 0);
    UpdateScene scene(ArchiveOf("#!/bin/sh\nexec > \"$PELNAR_TEST/up\"\necho $PPID\nread -r line < "
                                "\"$PELNAR_TEST/door\"\necho still here\nexit 1\n"));
    InstallJob job = scene.PrepareForInstall();
    job.environment = {"PELNAR_TEST=" + fifos.Path()};
    scene.Host().End();
    auto installed = std::async(std::launch::async, [&scene, &job] { return scene.Install(job); });
    std::ifstream upFile(up); // waits for the new version
    std::string line;
    EXPECT_TRUE(std::getline(upFile, line));
    int const watcher = std::stoi(line);
    EXPECT_EQ(::kill(watcher, SIGTERM), 0);
    EXPECT_EQ(installed.get().signal, SIGTERM);
    std::ofstream(door) << "go\n"; // waits for the new version, which lives
    EXPECT_TRUE(std::getline(upFile, line));
    EXPECT_EQ(line, "still here");
    EXPECT_FALSE(std::getline(upFile, line));
    scene.ReleaseStaging();
    EXPECT_EQ(scene.Recover("2.0").Find<RecoveredReport>()->action, RecoveryAction::CountedStart)
        << "the starts that are counted do the rest";
}

TEST(WatchedStart, HelperKilledAnywhereLeavesTheRestToTheStartsThatAreCounted)
{
    for (char const* const call : {"renameat2", "fsync", "flock", "wait4", "inotify_add_watch", "pidfd_open"})
    {
        bool wasKilled = true;
        int kills = 0;
        for (int nth = 1; wasKilled && nth <= MOST_CALLS; ++nth)
        {
            SCOPED_TRACE(testing::Message() << call << " number " << nth);
            UpdateScene scene(ArchiveOf("#!/bin/sh\necho '2.0|'\nexit 1\n"));
            InstallJob const job = scene.PrepareForInstall();
            scene.Host().End();
            HelperOutcome const outcome = scene.Install(job, KilledAt(call, nth, {}));
            wasKilled = outcome.Find<RecoveredReport>() == nullptr ||
                        outcome.Find<RecoveredReport>()->action != RecoveryAction::RolledBack;
            kills += wasKilled ? 1 : 0;
            ExpectPreviousSettles(scene);
        }
        EXPECT_FALSE(wasKilled) << call;
        EXPECT_GT(kills, 0) << call;
    }
}

} // namespace
