// LockTest.cpp: only the kernel knows who holds a lock. A lock ends with its holder's process. Neither an existing file
// nor a process number counts as a lock.

#include "Engine/core/helper/SwapJournal.h"
#include "tests/installer/FaultChecks.h"
#include "tests/installer/GoodStartScene.h"
#include "tests/support/Container.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <filesystem>

#include <fcntl.h>
#include <linux/sched.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

namespace
{

using namespace Pelnar::Engine;
using namespace Pelnar::Testing;

/// Takes and releases the lock of the file; false if another process holds it.
[[nodiscard]] bool CanLock(std::string const& path)
{
    UniqueFd const descriptor(::open(path.c_str(), O_RDONLY | O_CLOEXEC));
    if (!descriptor && errno == ENOENT)
    {
        return true;
    }
    bool const isLocked = descriptor && ::flock(descriptor.Get(), LOCK_EX | LOCK_NB) == 0;
    EXPECT_TRUE(isLocked || errno == EWOULDBLOCK) << std::strerror(errno);
    return isLocked;
}

/// Calls \a act at the first call after a helper has locked the bundle's folder. Its result is the verdict on this
/// call.
HelperStart WhenLocked(std::function<CallVerdict()> const& act)
{
    HelperStart start;
    start.atEveryCall = [act, isAsked = false, isDone = false](CallStop const& stop) mutable
    {
        if (isAsked && !isDone)
        {
            isDone = true;
            return act();
        }
        isAsked = isAsked || stop.call == SYS_flock;
        return CallVerdict::GoOn();
    };
    return start;
}

TEST(Lock, OfAKilledHelperIsFreeAtOnce)
{
    Versions const versions;
    for (bool const isRecovery : {false, true})
    {
        SCOPED_TRACE(isRecovery ? "recovery" : "installation");
        UpdateScene scene;
        InstallJob const job = scene.PrepareForInstall();
        scene.Host().End();
        std::string const file = scene.Place().Path() + '/' + LockFileName(APP);
        bool wasHeld = false;
        HelperStart const killed = WhenLocked(
            [&]
            {
                wasHeld = !CanLock(file);
                return CallVerdict::KillAll();
            });
        EXPECT_EQ((isRecovery ? scene.Recover("1.0", killed) : scene.Install(job, killed)).signal, SIGKILL);
        EXPECT_TRUE(wasHeld);
        EXPECT_TRUE(std::filesystem::exists(file)) << "a killed holder cannot take it away";
        EXPECT_TRUE(CanLock(file));
        EXPECT_FALSE(CanLock(scene.StagingPath())) << "the host's own process still holds it here";
        HelperOutcome const next = scene.Install(job);
        EXPECT_EQ(next.exitStatus, 0) << FaultName(next.Fault());
        EXPECT_EQ(ExpectWhole(scene, versions), "2.0");
        EXPECT_FALSE(std::filesystem::exists(file)) << "the file is removed with the lock";
    }
}

TEST(Lock, SimilarFilesDoNotCount)
{
    Versions const versions;
    UpdateScene scene;
    InstallJob const job = scene.PrepareForInstall();
    scene.Host().End();
    // Possible names of lock files, each with a living process.
    std::string const living = std::to_string(::getpid()) + "\n";
    std::string const name = SwapJournalName(APP);
    std::vector<ForgedEntry> decoys;
    for (std::string const& decoy : {std::string(".lock"), std::string("lock"), std::string(APP) + ".lock",
                                     std::string(APP) + ".pid", name + ".lock", name + ".pid"})
    {
        decoys.push_back({decoy, 'f', living});
    }
    scene.Place().Put(decoys);
    std::vector<std::string> before = scene.Place().Names();
    std::vector<std::string> whenLocked;
    HelperOutcome const outcome = scene.Install(job, WhenLocked(
                                                         [&]
                                                         {
                                                             whenLocked = scene.Place().Names();
                                                             return CallVerdict::GoOn();
                                                         }));
    EXPECT_EQ(outcome.exitStatus, 0) << FaultName(outcome.Fault());
    before.insert(std::upper_bound(before.begin(), before.end(), LockFileName(APP)), LockFileName(APP));
    EXPECT_EQ(whenLocked, before) << "one file, whose lock counts, and nothing else";
    EXPECT_EQ(ExpectWhole(scene, versions), "2.0");
    for (ForgedEntry const& decoy : decoys)
    {
        char bytes[32] = {};
        UniqueFd const file(::open((scene.Place().Path() + '/' + decoy.path).c_str(), O_RDONLY | O_CLOEXEC));
        EXPECT_EQ(::read(file.Get(), bytes, sizeof bytes), static_cast<ssize_t>(living.size()));
        EXPECT_EQ(bytes, living);
    }
}

/// A process with this number, which waits until the other end of \a lifelineFd is closed; -1 if the kernel does not
/// let a process choose, or the number is in use.
pid_t ForkAs(pid_t number, int lifelineFd)
{
    pid_t wanted[] = {number};
    clone_args arguments{};
    arguments.exit_signal = SIGCHLD;
    arguments.set_tid = reinterpret_cast<std::uint64_t>(wanted);
    arguments.set_tid_size = 1;
    auto const process = static_cast<pid_t>(::syscall(SYS_clone3, &arguments, sizeof arguments));
    if (process == 0)
    {
        char byte;
        static_cast<void>(!::read(lifelineFd, &byte, 1));
        ::_exit(0);
    }
    return process;
}

void InstallWhileAnotherHasTheHostsNumber()
{
    Versions const versions;
    UpdateScene scene(MakeArchive(Container::Zip, MakeBundle("2.0")), "/");
    InstallJob job = scene.PrepareForInstall();
    job.waitSeconds = 1;
    pid_t const host = ::fork();
    if (host == 0)
    {
        ::pause();
    }
    UniqueFd const hostProcess(static_cast<int>(::syscall(SYS_pidfd_open, host, 0)));
    ::kill(host, SIGKILL);
    ASSERT_EQ(::waitpid(host, nullptr, 0), host);
    int lifeline[2];
    ASSERT_EQ(::pipe2(lifeline, O_CLOEXEC), 0);
    UniqueFd const reader(lifeline[0]);
    UniqueFd writer(lifeline[1]);
    pid_t const other = ForkAs(host, reader.Get());
    ASSERT_EQ(other, host) << std::strerror(errno);
    HelperOutcome const outcome = RunHelper("install", EncodeUpdateJob(job),
                                            {{HelperDescriptors::PARENT, scene.Place().Descriptor()},
                                             {HelperDescriptors::STAGING, scene.StagingDescriptor()},
                                             {HelperDescriptors::HOST, hostProcess.Get()}});
    EXPECT_EQ(outcome.exitStatus, 0) << FaultName(outcome.Fault());
    EXPECT_EQ(ExpectWhole(scene, versions), "2.0");
    EXPECT_EQ(::kill(other, 0), 0) << "nobody has touched it";
    ::kill(other, SIGKILL);
    EXPECT_EQ(::waitpid(other, nullptr, 0), other);
    scene.Host().End();
    ExpectRecovered(scene, versions);
}

/// In a container whose owner may choose the numbers of processes.
TEST(Lock, ProcessWithTheNumberOfTheHostThatEndedIsNotWaitedFor)
{
    if (!RunInContainer(&InstallWhileAnotherHasTheHostsNumber))
    {
        GTEST_SKIP() << "the kernel lets this user make no container, in which it may choose numbers of processes";
    }
}

/// Objects with the name of the lock's file.
struct SquatterRow
{
    char const* name;
    void (*put)(std::string const& path);
};

class LockSquatter : public testing::TestWithParam<SquatterRow>
{
};

TEST_P(LockSquatter, DelaysNobody)
{
    Versions const versions;
    UpdateScene scene;
    InstallJob const job = scene.PrepareForInstall();
    scene.Host().End();
    std::string const path = scene.Place().Path() + '/' + LockFileName(APP);
    GetParam().put(path);
    // Another process that could open it holds its lock for ever.
    UniqueFd const squatter(::open(path.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC));
    EXPECT_TRUE(!squatter || ::flock(squatter.Get(), LOCK_EX | LOCK_NB) == 0);
    HelperOutcome const outcome = scene.Install(job);
    EXPECT_EQ(outcome.exitStatus, 0) << FaultName(outcome.Fault());
    EXPECT_EQ(ExpectWhole(scene, versions), "2.0");
    EXPECT_FALSE(std::filesystem::exists(std::filesystem::symlink_status(path)));
    scene.ReleaseStaging();
    EXPECT_EQ(scene.Recover("2.0").exitStatus, 0);
    std::vector<std::string> names = scene.Place().Names();
    bool const isAside = names.front().rfind(".pelnar-aside-", 0) == 0;
    EXPECT_EQ(isAside, GetParam().name == std::string("Folder")) << names.front();
    EXPECT_EQ(names.back(), APP);
    EXPECT_EQ(names.size(), isAside ? 2u : 1u);
}

INSTANTIATE_TEST_SUITE_P(Table, LockSquatter,
                         testing::Values(SquatterRow{"FileForAll",
                                                     [](std::string const& path)
                                                     {
                                                         WriteFile(path, "x");
                                                         ::chmod(path.c_str(), 0644);
                                                     }},
                                         SquatterRow{"FileForTheGroup",
                                                     [](std::string const& path)
                                                     {
                                                         WriteFile(path, "x");
                                                         ::chmod(path.c_str(), 0640);
                                                     }},
                                         SquatterRow{"Fifo",
                                                     [](std::string const& path) { ::mkfifo(path.c_str(), 0666); }},
                                         SquatterRow{"Link", [](std::string const& path)
                                                     { static_cast<void>(!::symlink("/dev/null", path.c_str())); }},
                                         SquatterRow{"LinkToNothing", [](std::string const& path)
                                                     { static_cast<void>(!::symlink("/none", path.c_str())); }},
                                         SquatterRow{"Folder",
                                                     [](std::string const& path)
                                                     {
                                                         ::mkdir(path.c_str(), 0777);
                                                         WriteFile(path + "/file", "x");
                                                     }}),
                         [](testing::TestParamInfo<SquatterRow> const& info) { return info.param.name; });

/// No file can be created: the user's quota or the disk is full.
HelperStart WithoutNewFiles(int errorNumber)
{
    HelperStart start;
    start.atEveryCall = [errorNumber](CallStop const& stop)
    {
        bool const isNewFile = stop.call == SYS_openat && (stop.arguments[2] & O_CREAT) != 0;
        return isNewFile ? CallVerdict::Fail(errorNumber) : CallVerdict::GoOn();
    };
    return start;
}

TEST(Lock, UpdateIsConfirmedAndItsFolderRemovedWithoutSpaceForAFile)
{
    for (int const errorNumber : {EDQUOT, ENOSPC})
    {
        SCOPED_TRACE(std::strerror(errorNumber));
        InstalledScene installed;
        HelperOutcome const outcome =
            installed.scene.Recover({APP, "2.0", RecoverPurpose::Confirmation}, WithoutNewFiles(errorNumber));
        EXPECT_EQ(outcome.exitStatus, 0) << FaultName(outcome.Fault());
        EXPECT_EQ(installed.scene.Place().Names(), std::vector<std::string>{APP}) << "this makes space";
    }
}

TEST(Lock, VersionThatDoesNotStartIsRolledBackWithoutSpaceForAFile)
{
    InstalledScene installed;
    for (std::uint64_t start = 0; start < MAX_UNCONFIRMED_STARTS; ++start)
    {
        EXPECT_EQ(installed.Start("2.0"), RecoveryAction::CountedStart);
    }
    HelperOutcome const outcome = installed.scene.Recover("2.0", WithoutNewFiles(EDQUOT));
    EXPECT_EQ(outcome.exitStatus, 0) << FaultName(outcome.Fault());
    EXPECT_EQ(installed.scene.Place().StartedVersion(), "1.0");
}

TEST(Lock, WithoutSpaceForAFileExcludesOthersToo)
{
    InstalledScene installed;
    UniqueFd const holder(
        ::open((installed.scene.Place().Path() + '/' + SwapJournalName(APP)).c_str(), O_RDONLY | O_CLOEXEC));
    ASSERT_EQ(::flock(holder.Get(), LOCK_EX | LOCK_NB), 0);
    for (bool const isFull : {true, false})
    {
        SCOPED_TRACE(isFull ? "full" : "not full");
        HelperStart start = isFull ? WithoutNewFiles(EDQUOT) : HelperStart();
        int locks = 0;
        start.atEveryCall = [&locks, isFull, before = start.atEveryCall](CallStop const& stop)
        {
            locks += stop.call == SYS_flock ? 1 : 0;
            // The helper would wait here for the holder.
            bool const isOfJournal = stop.call == SYS_flock && locks == (isFull ? 1 : 2);
            return isOfJournal ? CallVerdict::Fail(ENOLCK) : before ? before(stop) : CallVerdict::GoOn();
        };
        EXPECT_EQ(installed.scene.Recover("2.0", start).Fault(), UpdateFault::LocksUnavailable);
        EXPECT_FALSE(std::filesystem::exists(installed.scene.Place().Path() + '/' + LockFileName(APP)));
    }
}

/// A second name of the file does not let others open it. It stays the same lock for all who wait.
TEST(Lock, FileWithASecondNameIsTheSameLock)
{
    UpdateScene scene;
    scene.Host().End();
    scene.ReleaseStaging();
    std::string const path = scene.Place().Path() + '/' + LockFileName(APP);
    UniqueFd const holder(::open(path.c_str(), O_RDWR | O_CREAT | O_CLOEXEC, 0600));
    ASSERT_EQ(::flock(holder.Get(), LOCK_EX | LOCK_NB), 0);
    ASSERT_EQ(::link(path.c_str(), (scene.Downloads().Path() + "/second").c_str()), 0);
    int waited = 0;
    HelperStart start;
    start.atEveryCall = [&](CallStop const& stop)
    {
        // The helper would wait here for its turn. It must not get it.
        waited += stop.call == SYS_flock ? 1 : 0;
        return stop.call == SYS_flock ? CallVerdict::Fail(ENOLCK) : CallVerdict::GoOn();
    };
    EXPECT_EQ(scene.Recover("1.0", start).Fault(), UpdateFault::LocksUnavailable);
    EXPECT_EQ(waited, 1);
    struct stat open;
    struct stat named;
    ASSERT_EQ(::fstat(holder.Get(), &open), 0);
    ASSERT_EQ(::stat(path.c_str(), &named), 0);
    EXPECT_EQ(open.st_ino, named.st_ino) << "the file that is held is the one that was asked for";
}

} // namespace
