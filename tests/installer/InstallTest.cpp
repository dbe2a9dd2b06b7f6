#include "Engine/core/archive/TreeManifest.h"
#include "Engine/core/helper/FolderSafety.h"
#include "Engine/core/helper/NoteFile.h"
#include "Engine/core/helper/SwapJournal.h"
#include "Installer/Relaunch.h"
#include "tests/installer/InstallerFixture.h"

#include <gtest/gtest.h>

#include <chrono>
#include <filesystem>
#include <fstream>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

namespace
{

using namespace Pelnar::Engine;
using namespace Pelnar::Testing;

std::vector<std::string> const ONLY_THE_APP{APP};

/// After the next start no file of the update is left.
void ExpectTidyAfterNextStart(UpdateScene& scene)
{
    scene.Host().End();
    scene.ReleaseStaging();
    EXPECT_EQ(scene.Recover(scene.Place().StartedVersion()).exitStatus, 0);
    EXPECT_EQ(scene.Place().Names(), ONLY_THE_APP);
}

TEST(Install, ProgramIsLookedForUnderTheNameThatTheBundleWillHave)
{
    std::string const app = APP;
    UpdateScene scene(MakeZip({{app + "/Resources/Info-gnustep.plist", 'f',
                                "{CFBundleIdentifier = org.pelnar.test; CFBundleVersion = 2.0; SUPublicEDKey = x;}"},
                               {app + "/My App", 'f', "#!/bin/sh\necho 2.0\n", 0755}}));
    InstallJob job = scene.PrepareForInstall(); // for a bundle of the archive's name
    std::filesystem::rename(scene.Place().Path() + '/' + APP, scene.Place().Path() + "/Renamed.app");
    job.targetName = "Renamed.app";
    job.targetPath = scene.Place().Path() + "/Renamed.app";
    scene.Host().End();
    HelperOutcome const outcome = scene.Install(job);
    EXPECT_EQ(outcome.Fault(), UpdateFault::ExecutableMissing);
    EXPECT_EQ(outcome.Find<InstalledReport>(), nullptr);
    EXPECT_EQ(scene.Place().StartedVersion("Renamed.app"), "1.0");
    EXPECT_EQ(outcome.output, "1.0|" + job.targetPath + "/run|0|\n");
}

TEST(Install, NewVersionTakesThePlaceAndStartsOnceTheHostHasEnded)
{
    UpdateScene scene;
    InstallJob job = scene.PrepareForInstall();
    job.environment = {"PELNAR_TEST=from the host"};
    scene.Host().End();
    HelperOutcome const outcome = scene.Install(job);
    EXPECT_EQ(outcome.exitStatus, 0);
    ASSERT_EQ(outcome.reports.size(), 2u);
    EXPECT_NE(outcome.Find<InstalledReport>(), nullptr);
    auto const* relaunched = outcome.Find<RelaunchedReport>();
    ASSERT_NE(relaunched, nullptr);
    EXPECT_EQ(relaunched->bundle, RelaunchedBundle::Target);
    EXPECT_EQ(outcome.output, "2.0|" + scene.Place().Path() + "/" + APP + "/run|0|from the host\n");
    EXPECT_EQ(scene.Place().StartedVersion(), "2.0");
    // The previous version is kept until the new one has reported that it runs.
    EXPECT_EQ(scene.Place().Names().size(), 3u);
    EXPECT_EQ(scene.Place().StartedVersion(scene.StagingName() + "/" + APP), "1.0");
    scene.ReleaseStaging();
    auto const stillOld = scene.Recover("1.0");
    EXPECT_EQ(stillOld.Find<RecoveredReport>()->action, RecoveryAction::KeptPrevious);
    EXPECT_EQ(scene.Place().Names().size(), 3u);
    auto const confirmed = scene.Recover("2.0");
    EXPECT_EQ(confirmed.Find<RecoveredReport>()->action, RecoveryAction::ConfirmedNew);
    EXPECT_EQ(scene.Place().Names(), ONLY_THE_APP);
    EXPECT_EQ(scene.Place().StartedVersion(), "2.0");
    auto const nothing = scene.Recover("2.0");
    EXPECT_EQ(nothing.Find<RecoveredReport>()->action, RecoveryAction::Nothing);
}

TEST(Install, WithoutARelaunchNothingIsStarted)
{
    UpdateScene scene;
    InstallJob job = scene.PrepareForInstall();
    job.targetPath.clear();
    scene.Host().End();
    HelperOutcome const outcome = scene.Install(job);
    EXPECT_EQ(outcome.exitStatus, 0);
    EXPECT_EQ(outcome.output, "");
    EXPECT_EQ(scene.Place().StartedVersion(), "2.0");
    ExpectTidyAfterNextStart(scene);
}

TEST(Install, NothingHappensWhileTheHostLives)
{
    UpdateScene scene;
    InstallJob job = scene.PrepareForInstall();
    job.waitSeconds = 1;
    auto const begin = std::chrono::steady_clock::now();
    HelperOutcome const outcome = scene.Install(job);
    EXPECT_GE(std::chrono::steady_clock::now() - begin, std::chrono::seconds(job.waitSeconds));
    EXPECT_EQ(outcome.exitStatus, 1);
    EXPECT_EQ(outcome.Fault(), UpdateFault::HostStillRunning);
    EXPECT_EQ(outcome.output, "");
    EXPECT_EQ(scene.Place().StartedVersion(), "1.0");
    EXPECT_EQ(scene.Place().StartedVersion(scene.StagingName() + "/" + APP), "2.0");
    scene.Host().End();
    EXPECT_EQ(scene.Install(job).exitStatus, 0); // the prepared version is still good
    EXPECT_EQ(scene.Place().StartedVersion(), "2.0");
}

TEST(Install, WaitingHelperIsOfASessionOfItsOwn)
{
    UpdateScene scene;
    InstallJob job = scene.PrepareForInstall();
    job.waitSeconds = 1;
    int waits = 0;
    HelperStart start;
    start.atEveryCall = [&waits](CallStop const& stop)
    {
        if (stop.call == SYS_poll)
        {
            ++waits;
            EXPECT_EQ(::getsid(stop.process), stop.process);
        }
        return CallVerdict::GoOn();
    };
    EXPECT_EQ(scene.Install(job, start).Fault(), UpdateFault::HostStillRunning);
    EXPECT_GT(waits, 0);
}

TEST(Install, OnlyAProcessCanBeWaitedFor)
{
    UpdateScene scene;
    InstallJob const job = scene.PrepareForInstall();
    UniqueFd const file = WriteFile(scene.Downloads().Path() + "/no-process", "x");
    HelperOutcome const outcome = RunHelper("install", EncodeUpdateJob(job),
                                            {{HelperDescriptors::PARENT, scene.Place().Descriptor()},
                                             {HelperDescriptors::STAGING, scene.StagingDescriptor()},
                                             {HelperDescriptors::HOST, file.Get()}});
    EXPECT_EQ(outcome.Fault(), UpdateFault::DescriptorUnusable);
    EXPECT_EQ(scene.Place().StartedVersion(), "1.0");
}

struct StagedRow
{
    char const* name;
    void (*change)(std::string const& bundle);
};

class ChangedStagedTree : public testing::TestWithParam<StagedRow>
{
};

TEST_P(ChangedStagedTree, IsNotInstalled)
{
    UpdateScene scene;
    InstallJob const job = scene.PrepareForInstall();
    GetParam().change(scene.StagingPath() + '/' + APP);
    scene.Host().End();
    HelperOutcome const outcome = scene.Install(job);
    EXPECT_EQ(outcome.exitStatus, 1);
    EXPECT_EQ(outcome.Fault(), UpdateFault::StagedTreeChanged);
    EXPECT_EQ(outcome.output.substr(0, 3), "1.0"); // the person asked for the application to come back
    EXPECT_EQ(scene.Place().StartedVersion(), "1.0");
    EXPECT_EQ(scene.Place().Names(), ONLY_THE_APP);
}

INSTANTIATE_TEST_SUITE_P(
    Table, ChangedStagedTree,
    testing::Values(StagedRow{"ByteChanged",
                              [](std::string const& b) { std::ofstream(b + "/run", std::ios::app) << "x"; }},
                    StagedRow{"FileAdded", [](std::string const& b) { std::ofstream(b + "/more") << "x"; }},
                    StagedRow{"FileRemoved", [](std::string const& b) { ::unlink((b + "/run").c_str()); }},
                    StagedRow{"FolderAdded", [](std::string const& b) { ::mkdir((b + "/more").c_str(), 0755); }},
                    StagedRow{"ModeChanged", [](std::string const& b) { ::chmod((b + "/run").c_str(), 04755); }},
                    StagedRow{"LinkTurned",
                              [](std::string const& b)
                              {
                                  ::unlink((b + "/Resources/data").c_str());
                                  static_cast<void>(!::symlink("/etc/passwd", (b + "/Resources/data").c_str()));
                              }},
                    StagedRow{"FifoAdded", [](std::string const& b) { ::mkfifo((b + "/more").c_str(), 0644); }},
                    StagedRow{"InformationUnreadable",
                              [](std::string const& b) { std::ofstream(b + "/Resources/Info-gnustep.plist") << "{"; }},
                    StagedRow{"BundleIsALink",
                              [](std::string const& b)
                              {
                                  std::filesystem::rename(b, b + ".away");
                                  static_cast<void>(!::symlink((b + ".away").c_str(), b.c_str()));
                              }},
                    StagedRow{"BundleGone", [](std::string const& b) { std::filesystem::remove_all(b); }}),
    [](testing::TestParamInfo<StagedRow> const& info) { return info.param.name; });

struct TargetRow
{
    char const* name;
    void (*change)(std::string const& target);
    UpdateFault fault;
};

class ChangedTarget : public testing::TestWithParam<TargetRow>
{
};

TEST_P(ChangedTarget, IsLeftAsItIs)
{
    UpdateScene scene;
    InstallJob const job = scene.PrepareForInstall();
    GetParam().change(scene.Place().Path() + '/' + APP);
    std::vector<std::string> before = scene.Place().Names();
    scene.Host().End();
    HelperOutcome const outcome = scene.Install(job);
    EXPECT_EQ(outcome.exitStatus, 1);
    EXPECT_EQ(outcome.Fault(), GetParam().fault);
    EXPECT_EQ(outcome.Find<InstalledReport>(), nullptr);
    before.erase(std::find(before.begin(), before.end(), scene.StagingName()));
    EXPECT_EQ(scene.Place().Names(), before);
}

void WriteInformation(std::string const& target, std::string const& text)
{
    std::ofstream(target + "/Resources/Info-gnustep.plist") << text;
}

INSTANTIATE_TEST_SUITE_P(
    Table, ChangedTarget,
    testing::Values(
        TargetRow{"UpdatedByAnother", [](std::string const& t) { WriteInformation(t, InformationText("2.0")); },
                  UpdateFault::TargetChanged},
        TargetRow{"OtherProduct",
                  [](std::string const& t) { WriteInformation(t, InformationText("1.0", "org.other")); },
                  UpdateFault::TargetChanged},
        TargetRow{"Unreadable", [](std::string const& t) { WriteInformation(t, "{"); },
                  UpdateFault::InformationMalformed},
        TargetRow{"Missing", [](std::string const& t) { std::filesystem::remove_all(t); }, UpdateFault::TargetMissing},
        TargetRow{"IsALink",
                  [](std::string const& t)
                  {
                      std::filesystem::rename(t, t + ".away");
                      static_cast<void>(!::symlink((t + ".away").c_str(), t.c_str()));
                  },
                  UpdateFault::TargetChanged},
        TargetRow{"IsAFile",
                  [](std::string const& t)
                  {
                      std::filesystem::remove_all(t);
                      std::ofstream(t) << "x";
                  },
                  UpdateFault::TargetChanged}),
    [](testing::TestParamInfo<TargetRow> const& info) { return info.param.name; });

TEST(Install, OfTwoPreparedUpdatesOneIsInstalled)
{
    UpdateScene scene;
    InstallJob const first = scene.PrepareForInstall();
    StagingFolder const second = StagingFolder::Create(scene.Place().Descriptor(), APP);
    std::filesystem::copy(scene.StagingPath() + '/' + APP, scene.Place().Path() + '/' + second.Name() + '/' + APP,
                          std::filesystem::copy_options::recursive | std::filesystem::copy_options::copy_symlinks);
    scene.Host().End();
    EXPECT_EQ(scene.Install(first).exitStatus, 0);
    InstallJob job = first;
    job.stagingName = second.Name();
    StubHost host;
    host.End();
    HelperOutcome const outcome = RunHelper("install", EncodeUpdateJob(job),
                                            {{HelperDescriptors::PARENT, scene.Place().Descriptor()},
                                             {HelperDescriptors::STAGING, second.Descriptor()},
                                             {HelperDescriptors::HOST, scene.Host().ProcessDescriptor()}});
    EXPECT_EQ(outcome.Fault(), UpdateFault::TargetChanged);
    EXPECT_EQ(outcome.output.substr(0, 3), "2.0");
    EXPECT_EQ(scene.Place().StartedVersion(), "2.0");
    EXPECT_FALSE(std::filesystem::exists(scene.Place().Path() + '/' + second.Name()));
    ExpectTidyAfterNextStart(scene);
}

TEST(Install, BundleNamesMayHoldAnything)
{
    for (std::string const& name : {std::string("a b'\"\n$HOME;ls.app"), std::string("\xff\xfe.app"),
                                    std::string(251, 'n') + ".app", std::string("-rf.app")})
    {
        UpdateScene scene;
        InstallJob job = scene.PrepareForInstall();
        std::filesystem::rename(scene.Place().Path() + '/' + APP, scene.Place().Path() + '/' + name);
        job.targetName = name;
        job.targetPath = scene.Place().Path() + '/' + name;
        scene.Host().End();
        HelperOutcome const outcome = scene.Install(job);
        EXPECT_EQ(outcome.exitStatus, 0) << FaultName(outcome.Fault());
        EXPECT_EQ(outcome.output.substr(0, 3), "2.0");
        EXPECT_EQ(scene.Place().StartedVersion(name), "2.0");
    }
}

TEST(Recover, StagingFoldersInUseStayAndAbandonedOnesGo)
{
    UpdateScene scene;
    scene.PrepareForInstall();
    std::string const other = scene.Place().Path() + "/.pelnar-0000000000000000-0000000000000000";
    std::filesystem::create_directory(other); // of another application
    EXPECT_EQ(scene.Recover("1.0").Find<RecoveredReport>()->action, RecoveryAction::Nothing);
    EXPECT_TRUE(std::filesystem::exists(scene.StagingPath()));
    scene.Host().End();
    std::string const path = scene.StagingPath();
    scene.ReleaseStaging();
    EXPECT_EQ(scene.Recover("1.0").Find<RecoveredReport>()->action, RecoveryAction::Nothing);
    EXPECT_FALSE(std::filesystem::exists(path));
    EXPECT_TRUE(std::filesystem::exists(other));
    EXPECT_EQ(scene.Place().StartedVersion(), "1.0");
}

TEST(Recover, TidyingFollowsNoLink)
{
    UpdateScene scene;
    scene.Host().End();
    Workspace const outside;
    outside.Put({{"precious", 'f', "x"}});
    ASSERT_EQ(::symlink(outside.Path().c_str(), (scene.StagingPath() + "/link").c_str()), 0);
    std::string const decoy = scene.Place().Path() + '/' + UpdateFilePrefix(APP) + "link";
    ASSERT_EQ(::symlink(outside.Path().c_str(), decoy.c_str()), 0);
    scene.ReleaseStaging();
    EXPECT_EQ(scene.Recover("1.0").exitStatus, 0);
    EXPECT_EQ(outside.Names(), std::vector<std::string>{"precious"});
    EXPECT_TRUE(std::filesystem::is_symlink(decoy)); // not one of our folders
}

TEST(Recover, NonsenseInTheJournalsPlaceHarmsNothing)
{
    UpdateScene scene;
    std::string const journal = scene.Place().Path() + '/' + SwapJournalName(APP);
    std::ofstream(journal) << "nonsense";
    EXPECT_EQ(scene.Recover("1.0").Find<RecoveredReport>()->action, RecoveryAction::Nothing);
    EXPECT_FALSE(std::filesystem::exists(journal));
    Workspace const outside;
    outside.Put({{"precious", 'f', EncodeSwapJournal({"x", "y", "1.0", "2.0"})}});
    ASSERT_EQ(::symlink((outside.Path() + "/precious").c_str(), journal.c_str()), 0);
    EXPECT_EQ(scene.Recover("1.0").Find<RecoveredReport>()->action, RecoveryAction::Nothing);
    EXPECT_EQ(outside.Names(), std::vector<std::string>{"precious"});
    EXPECT_EQ(scene.Place().StartedVersion(), "1.0");
}

TEST(Recover, MissingBundleComesBackFromEitherPlace)
{
    for (std::string const& place : {std::string(PREVIOUS_BUNDLE_NAME), std::string(APP)})
    {
        UpdateScene scene;
        scene.Host().End();
        std::filesystem::rename(scene.Place().Path() + '/' + APP, scene.StagingPath() + '/' + place);
        WriteNote(scene.Place().Descriptor(), SwapJournalName(APP),
                  EncodeSwapJournal({scene.StagingName(), APP, "1.0", "2.0"}));
        scene.ReleaseStaging();
        EXPECT_EQ(scene.Recover("1.0").Find<RecoveredReport>()->action, RecoveryAction::RestoredPrevious);
        EXPECT_EQ(scene.Place().StartedVersion(), "1.0");
        EXPECT_EQ(scene.Place().Names(), ONLY_THE_APP);
    }
}

TEST(Staging, FolderIsFreshPrivateAndHeld)
{
    Workspace const place;
    StagingFolder const first = StagingFolder::Create(place.Descriptor(), APP);
    StagingFolder const second = StagingFolder::Create(place.Descriptor(), APP);
    EXPECT_NE(first.Name(), second.Name());
    EXPECT_EQ(first.Name().compare(0, UpdateFilePrefix(APP).size(), UpdateFilePrefix(APP)), 0);
    EXPECT_NE(UpdateFilePrefix(APP), UpdateFilePrefix("Other.app"));
    EXPECT_NE(SwapJournalName(APP).compare(0, UpdateFilePrefix(APP).size(), UpdateFilePrefix(APP)), 0);
    UniqueFd const again(::openat(place.Descriptor(), first.Name().c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    EXPECT_NE(::flock(again.Get(), LOCK_EX | LOCK_NB), 0);
    struct stat status;
    ASSERT_EQ(::fstat(first.Descriptor(), &status), 0);
    EXPECT_EQ(status.st_mode & 07777u, 0700u);
}

TEST(Staging, PathInTheRootHasOneSlash)
{
    UniqueFd const root(::open("/", O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    EXPECT_EQ(RealPathOf(root.Get(), "My App.app"), "/My App.app");
    UniqueFd const folder(::open("/proc", O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    EXPECT_EQ(RealPathOf(folder.Get(), "My App.app"), "/proc/My App.app");
    EXPECT_EQ(RealPathOf(-1, "My App.app"), "");
}

TEST(Staging, PathIsSafeOnlyIfEveryFolderOfItIs)
{
    Workspace const place;
    place.Put({{"a", 'd', {}, 0755}, {"a/b", 'd', {}, 0755}});
    std::string const a = place.Path() + "/a";
    auto const isSafe = [&a]
    { return IsSafeUpToTheRoot(UniqueFd(::open((a + "/b").c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC)).Get()); };
    EXPECT_TRUE(isSafe());
    ::chmod(a.c_str(), 0777);
    EXPECT_FALSE(isSafe());
    ::chmod(a.c_str(), 01777);
    EXPECT_TRUE(isSafe());
    ::chmod(a.c_str(), 0755);
    for (mode_t const mode : {0757, 01757, 01777})
    {
        ::chmod((a + "/b").c_str(), mode);
        EXPECT_FALSE(isSafe()) << mode;
    }
    ::chmod((a + "/b").c_str(), 0755);
    if (::geteuid() == 0)
    {
        ASSERT_EQ(::chown(a.c_str(), 65534, 65534), 0);
        EXPECT_FALSE(isSafe());
    }
}

} // namespace
