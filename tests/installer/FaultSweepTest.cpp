// FaultSweepTest.cpp: kills and failing system calls at every place of the helper's life. The default run takes every
// seventh place; with PELNAR_EVERY_PLACE=1 in the environment it takes them all.

#include "Engine/core/helper/NoteFile.h"
#include "Engine/core/helper/SwapJournal.h"
#include "tests/installer/FaultChecks.h"
#include "tests/support/Sanitizers.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <map>
#include <sstream>
#include <utility>

namespace
{

using namespace Pelnar::Engine;
using namespace Pelnar::Testing;

constexpr char STRACE[] = "/usr/bin/strace";
constexpr int DEFAULT_STRIDE = 7;
std::vector<std::string> const NO_EXCHANGE{"-e", "inject=renameat2:error=EINVAL"};

/// A place in the helper's life: the nth call of one name in any of its processes.
struct Place
{
    std::string call;
    int nth;
};

std::ostream& operator<<(std::ostream& out, Place const& place)
{
    return out << place.call << " number " << place.nth;
}

/// A helper under strace, which writes down what it sees and which faults it has made.
class Traced
{
public:
    explicit Traced(std::vector<std::string> const& options = {})
    {
        m_start.before = {STRACE, "-f", "-qq", "-o", Trace()};
        m_start.before.insert(m_start.before.end(), options.begin(), options.end());
    }

    HelperStart const& Start() const { return m_start; }
    std::string Trace() const { return m_folder.Path() + "/trace"; }
    int Kills() const { return LinesWith("+++ killed by SIGKILL +++"); }
    int Errors() const { return LinesWith("(INJECTED)"); }

    /// How often the process that made a call most often made it, by the call's name.
    std::map<std::string, int> CallsOfOneProcess() const
    {
        std::map<std::pair<std::string, std::string>, int> counts;
        std::map<std::string, int> most;
        std::ifstream lines(Trace());
        for (std::string line; std::getline(lines, line);)
        {
            std::istringstream words(line);
            std::string process;
            std::string call;
            words >> process >> call;
            std::size_t const end = call.find('(');
            if (end != std::string::npos && call[0] >= 'a' && call[0] <= 'z')
            {
                std::string const name = call.substr(0, end);
                most[name] = std::max(most[name], ++counts[{name, process}]);
            }
        }
        most.erase("execve"); // the tracer's own: nothing of the helper has run yet
        return most;
    }

private:
    int LinesWith(std::string const& mark) const
    {
        int count = 0;
        std::ifstream lines(Trace());
        for (std::string line; std::getline(lines, line);)
        {
            count += line.find(mark) != std::string::npos ? 1 : 0;
        }
        return count;
    }

    Workspace m_folder;
    HelperStart m_start;
};

std::vector<std::string> Join(std::vector<std::string> options, std::string const& injection)
{
    options.push_back("-e");
    options.push_back("inject=" + injection);
    return options;
}

std::vector<std::string> KillAt(Place const& place, std::vector<std::string> const& options = {})
{
    return Join(options, place.call + ":signal=KILL:when=" + std::to_string(place.nth));
}

/// Every place that a run under \a run passes, read from a trace of it; all of them or every seventh.
template <typename Run>
std::vector<Place> PlacesOf(std::vector<std::string> const& options, Run const& run)
{
    Traced const traced(options);
    run(traced.Start());
    std::vector<Place> places;
    int index = 0;
    for (auto const& [call, most] : traced.CallsOfOneProcess())
    {
        for (int nth = 1; nth <= most; ++nth)
        {
            if (IsEveryPlaceWanted() || index++ % DEFAULT_STRIDE == 0)
            {
                places.push_back({call, nth});
            }
        }
    }
    EXPECT_FALSE(places.empty());
    testing::Test::RecordProperty("places", static_cast<int>(places.size()));
    return places;
}

/// Makes \a attempt with a fresh tracer until a process was killed at \a place. A run may make fewer reads than the one
/// that was traced: a sanitizer's runtime reads what the kernel says of its memory, in as many pieces as it comes.
template <typename Attempt>
void UntilKilled(Place const& place, std::vector<std::string> const& options, Attempt const& attempt)
{
    constexpr int ATTEMPTS = 5;
    SCOPED_TRACE(testing::Message() << place);
    bool wasReached = false;
    for (int i = 0; i < ATTEMPTS; ++i)
    {
        Traced const killed(KillAt(place, options));
        attempt(killed);
        if (killed.Kills() > 0)
        {
            return;
        }
        wasReached = wasReached || killed.CallsOfOneProcess()[place.call] >= place.nth;
    }
    EXPECT_TRUE(IS_SANITIZED && place.call == "read" && !wasReached) << "no process was killed";
}

TEST(Faults, PreparationKilledAnywhereHarmsNothing)
{
    Versions const versions;
    UpdateScene traced;
    std::vector<Place> const places =
        PlacesOf({}, [&](HelperStart const& start) { traced.Prepare(traced.MakePrepareJob(), start); });
    for (Place const& place : places)
    {
        UntilKilled(place, {},
                    [&](Traced const& killed)
                    {
                        UpdateScene scene;
                        HelperOutcome const outcome = scene.Prepare(scene.MakePrepareJob(), killed.Start());
                        EXPECT_EQ(outcome.signal, killed.Kills() > 0 ? SIGKILL : 0);
                        EXPECT_EQ(ExpectWhole(scene, versions), "1.0");
                        ExpectRecovered(scene, versions);
                    });
    }
}

void SweepInstallation(std::vector<std::string> const& options)
{
    Versions const versions;
    UpdateScene traced;
    InstallJob tracedJob = traced.PrepareForInstall();
    UpdateScene::KeepRecord(tracedJob);
    traced.Host().End();
    std::vector<Place> const places =
        PlacesOf(options, [&](HelperStart const& start) { EXPECT_EQ(traced.Install(tracedJob, start).exitStatus, 0); });
    for (Place const& place : places)
    {
        if (!options.empty() && place.call == "renameat2")
        {
            continue; // the call that fails cannot be the one that is killed too
        }
        UntilKilled(place, options,
                    [&](Traced const& killed)
                    {
                        UpdateScene scene;
                        InstallJob job = scene.PrepareForInstall();
                        UpdateScene::KeepRecord(job);
                        scene.Host().End();
                        scene.Install(job, killed.Start());
                        if (options.empty())
                        {
                            ExpectWhole(scene, versions); // with an exchange, even before any recovery
                        }
                        ExpectRecovered(scene, versions);
                    });
    }
}

TEST(Faults, InstallationKilledAnywhereLeavesOneOfTheVersions)
{
    SweepInstallation({});
}

TEST(Faults, InstallationWithoutExchangeKilledAnywhereLeavesOneOfTheVersions)
{
    SweepInstallation(NO_EXCHANGE);
}

/// What a helper leaves of which both processes are killed at once, made by hand: a killed child alone is healed by its
/// parent.
void LeaveJournal(UpdateScene const& scene)
{
    WriteNote(scene.Place().Descriptor(), SwapJournalName(APP),
              EncodeSwapJournal({scene.StagingName(), APP, "1.0", "2.0"}));
}

void StopBeforeTheExchange(UpdateScene& scene)
{
    scene.PrepareForInstall();
    LeaveJournal(scene);
}

void StopAfterTheExchange(UpdateScene& scene)
{
    InstallJob job = scene.PrepareForInstall();
    job.targetPath.clear();
    scene.Host().End();
    EXPECT_EQ(scene.Install(job).exitStatus, 0);
}

void StopBetweenTwoRenames(UpdateScene& scene)
{
    scene.PrepareForInstall();
    LeaveJournal(scene);
    std::filesystem::rename(scene.Place().Path() + '/' + APP, scene.StagingPath() + '/' + PREVIOUS_BUNDLE_NAME);
}

/// The recovery that the \a running version asks for ends with the \a left one, wherever it was killed before.
void SweepRecovery(void (*interruptInstallation)(UpdateScene&), std::string const& running, std::string const& left)
{
    Versions const versions;
    auto const interrupt = [&](UpdateScene& scene)
    {
        interruptInstallation(scene);
        scene.Host().End();
        scene.ReleaseStaging();
    };
    UpdateScene traced;
    interrupt(traced);
    std::vector<Place> const places =
        PlacesOf({}, [&](HelperStart const& start) { EXPECT_EQ(traced.Recover(running, start).exitStatus, 0); });
    EXPECT_EQ(traced.Place().Names(), std::vector<std::string>{APP});
    for (Place const& place : places)
    {
        UntilKilled(place, {},
                    [&](Traced const& killed)
                    {
                        UpdateScene scene;
                        interrupt(scene);
                        EXPECT_EQ(scene.Recover(running, killed.Start()).signal, killed.Kills() > 0 ? SIGKILL : 0);
                        ExpectRecovered(scene, versions);
                        EXPECT_EQ(ExpectWhole(scene, versions), left);
                    });
    }
}

TEST(Faults, RecoveryFromBeforeTheExchangeKilledAnywhereConverges)
{
    SweepRecovery(&StopBeforeTheExchange, "1.0", "1.0");
}

TEST(Faults, RecoveryFromAfterTheExchangeKilledAnywhereConverges)
{
    SweepRecovery(&StopAfterTheExchange, "2.0", "2.0");
}

TEST(Faults, RecoveryFromBetweenTwoRenamesKilledAnywhereConverges)
{
    SweepRecovery(&StopBetweenTwoRenames, "1.0", "1.0");
}

struct FailingCall
{
    char const* call;
    char const* error;
    int most; ///< as many of them as are tried
};

TEST(Faults, FailingCallsOfThePreparationAreRefusedCleanly)
{
    Versions const versions;
    struct Row
    {
        FailingCall failing;
        UpdateFault fault;
    };
    for (Row const& row :
         {Row{{"write", "ENOSPC", 9}, UpdateFault::NoSpace}, Row{{"write", "EIO", 9}, UpdateFault::DiskError},
          Row{{"write", "EDQUOT", 9}, UpdateFault::NoSpace}, Row{{"openat2", "ENOSPC", 5}, UpdateFault::NoSpace},
          Row{{"openat2", "EMFILE", 5}, UpdateFault::DiskError}, Row{{"mkdirat", "ENOSPC", 2}, UpdateFault::NoSpace},
          Row{{"symlinkat", "EIO", 1}, UpdateFault::DiskError}, Row{{"utimensat", "EIO", 2}, UpdateFault::DiskError},
          Row{{"syncfs", "EIO", 1}, UpdateFault::SyncFailed}, Row{{"syncfs", "ENOSPC", 1}, UpdateFault::NoSpace},
          Row{{"landlock_restrict_self", "E2BIG", 1}, UpdateFault::ConfinementFailed}})
    {
        int refused = 0;
        for (int nth = 1; nth <= row.failing.most; ++nth)
        {
            SCOPED_TRACE(testing::Message() << row.failing.call << " " << row.failing.error << " " << nth);
            UpdateScene scene;
            Traced const failing(Join({}, std::string(row.failing.call) + ":error=" + row.failing.error +
                                              ":when=" + std::to_string(nth)));
            HelperOutcome const outcome = scene.Prepare(scene.MakePrepareJob(), failing.Start());
            if (failing.Errors() == 0)
            {
                EXPECT_EQ(outcome.exitStatus, 0) << "it makes fewer such calls";
                break;
            }
            // Some writes are reports, whose loss is the reader's.
            EXPECT_TRUE(outcome.Fault() == row.fault || outcome.exitStatus == 0) << FaultName(outcome.Fault());
            refused += outcome.Fault() == row.fault ? 1 : 0;
            ExpectRecovered(scene, versions);
        }
        EXPECT_GT(refused, 0) << row.failing.call;
    }
}

TEST(Faults, FailingCallsOfTheInstallationLeaveThePreviousVersion)
{
    Versions const versions;
    struct Row
    {
        std::string injection;
        UpdateFault fault;
    };
    for (Row const& row : {
             Row{"renameat2:error=EXDEV", UpdateFault::OtherFileSystem},
             Row{"renameat2:error=EACCES", UpdateFault::NotPermitted},
             Row{"renameat2:error=EIO", UpdateFault::SwapFailed},
             Row{"fsync:error=EIO:when=1", UpdateFault::SyncFailed}, // the journal
             Row{"fsync:error=EIO:when=2", UpdateFault::SyncFailed}, // its folder
             Row{"fsync:error=EIO:when=3", UpdateFault::SyncFailed}, // the staging folder, after the exchange
             Row{"fsync:error=EIO:when=4", UpdateFault::SyncFailed}, // the bundle's folder, after the exchange
             Row{"fsync:error=ENOSPC:when=1", UpdateFault::NoSpace},
             Row{"flock:error=ENOLCK:when=1", UpdateFault::LocksUnavailable},
             Row{"flock:error=EOPNOTSUPP:when=1", UpdateFault::LocksUnavailable},
             Row{"flock:error=ENOSYS:when=1", UpdateFault::LocksUnavailable},
         })
    {
        SCOPED_TRACE(row.injection);
        UpdateScene scene;
        InstallJob const job = scene.PrepareForInstall();
        scene.Host().End();
        Traced const failing(Join({}, row.injection));
        HelperOutcome const outcome = scene.Install(job, failing.Start());
        EXPECT_GT(failing.Errors(), 0);
        EXPECT_EQ(outcome.exitStatus, 1);
        EXPECT_EQ(outcome.Fault(), row.fault);
        EXPECT_EQ(outcome.Find<InstalledReport>(), nullptr);
        EXPECT_EQ(outcome.output.substr(0, 3), "1.0");
        EXPECT_EQ(ExpectWhole(scene, versions), "1.0");
        ExpectRecovered(scene, versions);
    }
}

TEST(Faults, FileSystemsWithoutExchangeGetTwoRenames)
{
    Versions const versions;
    for (char const* const error : {"EINVAL", "ENOSYS", "EOPNOTSUPP"})
    {
        UpdateScene scene;
        InstallJob const job = scene.PrepareForInstall();
        scene.Host().End();
        Traced const failing({"-e", std::string("inject=renameat2:error=") + error});
        HelperOutcome const outcome = scene.Install(job, failing.Start());
        EXPECT_GT(failing.Errors(), 0);
        EXPECT_EQ(outcome.exitStatus, 0);
        EXPECT_EQ(outcome.output.substr(0, 3), "2.0");
        EXPECT_EQ(ExpectWhole(scene, versions), "2.0");
        EXPECT_EQ(scene.Place().StartedVersion(scene.StagingName() + "/previous"), "1.0");
        ExpectRecovered(scene, versions);
    }
}

TEST(Faults, FailingRenamesAreUndone)
{
    Versions const versions;
    // Of the plain renames the first is the journal's, the next two are the swap's.
    for (int nth = 1; nth <= 3; ++nth)
    {
        SCOPED_TRACE(nth);
        UpdateScene scene;
        InstallJob const job = scene.PrepareForInstall();
        scene.Host().End();
        Traced const failing(Join(NO_EXCHANGE, "renameat:error=EIO:when=" + std::to_string(nth)));
        HelperOutcome const outcome = scene.Install(job, failing.Start());
        EXPECT_GT(failing.Errors(), nth > 1 ? 1 : 0) << "the exchange comes after the journal";
        EXPECT_EQ(outcome.exitStatus, 1);
        EXPECT_EQ(outcome.output.substr(0, 3), "1.0");
        EXPECT_EQ(ExpectWhole(scene, versions), "1.0");
        ExpectRecovered(scene, versions);
    }
}

TEST(Faults, ParentThatCannotAskAfterItsChildWaitsOn)
{
    Versions const versions;
    UpdateScene scene;
    InstallJob const job = scene.PrepareForInstall();
    scene.Host().End();
    Traced const failing(Join({}, "wait4:error=EIO:when=1"));
    HelperOutcome const outcome = scene.Install(job, failing.Start());
    EXPECT_GT(failing.Errors(), 0);
    EXPECT_EQ(outcome.exitStatus, 0);
    EXPECT_EQ(outcome.output.substr(0, 3), "2.0");
    EXPECT_EQ(ExpectWhole(scene, versions), "2.0");
    ExpectRecovered(scene, versions);
}

TEST(Faults, ParentThatCanNeverAskAfterItsChildEndsAndLeavesOneOfTheVersions)
{
    Versions const versions;
    UpdateScene scene;
    InstallJob const job = scene.PrepareForInstall();
    scene.Host().End();
    Traced const trace(Join({}, "wait4:error=EIO"));
    HelperStart start = trace.Start();
    start.before.insert(start.before.begin(), {"/usr/bin/timeout", "-s", "KILL", "60"});
    HelperOutcome const outcome = scene.Install(job, start);
    EXPECT_EQ(outcome.signal, 0) << "it asked for ever";
    EXPECT_GT(trace.Errors(), 1);
    ExpectWhole(scene, versions);
    ExpectRecovered(scene, versions);
}

TEST(Faults, ChildKilledBetweenTheRenamesIsHealedByItsParentAtOnce)
{
    Versions const versions;
    UpdateScene scene;
    InstallJob const job = scene.PrepareForInstall();
    scene.Host().End();
    Traced const killed(KillAt({"renameat", 3}, NO_EXCHANGE));
    HelperOutcome const outcome = scene.Install(job, killed.Start());
    EXPECT_EQ(killed.Kills(), 1);
    EXPECT_EQ(outcome.exitStatus, 1);
    auto const* recovered = outcome.Find<RecoveredReport>();
    ASSERT_NE(recovered, nullptr);
    EXPECT_EQ(recovered->action, RecoveryAction::RestoredPrevious);
    EXPECT_EQ(outcome.output.substr(0, 3), "1.0");
    EXPECT_EQ(ExpectWhole(scene, versions), "1.0");
    EXPECT_EQ(scene.Place().Names(), std::vector<std::string>{APP});
}

} // namespace
