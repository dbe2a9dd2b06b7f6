// WatchedStartTest.cpp: the helper watches the first start of a new version, and repeats or undoes it.

#include "Engine/core/archive/TreeManifest.h"
#include "Engine/core/helper/NoteFile.h"
#include "Engine/core/helper/SwapJournal.h"
#include "tests/installer/FaultChecks.h"
#include "tests/installer/GoodStartScene.h"
#include "tests/installer/InstallerFixture.h"

#include <gtest/gtest.h>

#include <fstream>
#include <future>

#include <signal.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

namespace
{

using namespace Pelnar::Engine;
using namespace Pelnar::Testing;

// From here on: the helper that starts the new version and watches it.

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

TEST_P(WatchedStart, IsRepeatedOnceAndThenRolledBack)
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

/// The helper holds the report open, and the output, which the new version has closed. When both are closed, the helper
/// has ended.
TEST(WatchedStart, ConfirmationEndsTheHelperWhileTheNewVersionRuns)
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

/// From the swap on, the session may end at any call. The new version is started nevertheless.
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
