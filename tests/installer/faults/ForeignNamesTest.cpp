// ForeignNamesTest.cpp: locks and files of another user that hinder an update.

#include "Engine/core/helper/NoteFile.h"
#include "Engine/core/helper/SwapJournal.h"
#include "tests/installer/FaultChecks.h"
#include "tests/installer/OtherUser.h"
#include "tests/installer/faults/VictimScene.h"

#include <gtest/gtest.h>

#include <chrono>
#include <filesystem>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/mount.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

namespace
{

using namespace Pelnar::Engine;
using namespace Pelnar::Testing;

/// Locks every file below the folder that the attacker can open, until the other end of the pipe closes. Returns their
/// number.
class LockHolder
{
public:
    explicit LockHolder(std::string const& folder)
    {
        int start[2];
        int end[2];
        EXPECT_EQ(::pipe2(start, O_CLOEXEC), 0);
        EXPECT_EQ(::pipe2(end, O_CLOEXEC), 0);
        m_child = ::fork();
        if (m_child == 0)
        {
            ::close(end[1]);
            Hold(folder, start[1], end[0]);
        }
        UniqueFd const ready(start[0]);
        ::close(start[1]);
        ::close(end[0]);
        m_end = UniqueFd(end[1]);
        EXPECT_EQ(::read(ready.Get(), &held, sizeof held), static_cast<ssize_t>(sizeof held));
    }
    ~LockHolder()
    {
        m_end = UniqueFd();
        ::waitpid(m_child, nullptr, 0);
    }
    LockHolder(LockHolder const&) = delete;
    LockHolder& operator=(LockHolder const&) = delete;

    int held = 0;

private:
    [[noreturn]] static void Hold(std::string const& folder, int ready, int end)
    {
        constexpr int MANY = 1024;
        for (int descriptor = 3; descriptor < MANY; ++descriptor)
        {
            if (descriptor != ready && descriptor != end)
            {
                ::close(descriptor); // the victim's, with their locks
            }
        }
        int count = 0;
        if (::setresgid(ATTACKER, ATTACKER, ATTACKER) == 0 && ::setresuid(ATTACKER, ATTACKER, ATTACKER) == 0)
        {
            std::vector<std::string> paths{folder};
            std::error_code ignored;
            auto const skip = std::filesystem::directory_options::skip_permission_denied;
            for (auto const& entry : std::filesystem::recursive_directory_iterator(folder, skip, ignored))
            {
                paths.push_back(entry.path().string());
            }
            for (std::string const& path : paths)
            {
                int const descriptor = ::open(path.c_str(), O_RDONLY | O_NONBLOCK);
                count += descriptor >= 0 && ::flock(descriptor, LOCK_EX | LOCK_NB) == 0 ? 1 : 0;
            }
        }
        static_cast<void>(!::write(ready, &count, sizeof count));
        char byte;
        static_cast<void>(!::read(end, &byte, 1));
        ::_exit(0);
    }

    pid_t m_child = -1;
    UniqueFd m_end;
};

TEST(ForeignLocks, DelayNobody)
{
    REQUIRE_ADMINISTRATOR_FOR_USERS();
    VictimScene victim;
    InstallJob const job = victim.Prepare();
    // The files of a killed helper, so that there is something to lock.
    PutBytes(victim.Path(LockFileName(APP)), {}, 0600);
    GiveTo(VICTIM, victim.Path(LockFileName(APP)));
    LockHolder const holder(victim.Folder());
    EXPECT_GE(holder.held, 4) << "the folder, the bundle, and what is in it";
    auto const begin = std::chrono::steady_clock::now();
    HelperOutcome const installed = victim.scene.Install(job, victim.asVictim);
    EXPECT_EQ(installed.exitStatus, 0) << FaultName(installed.Fault());
    victim.scene.ReleaseStaging();
    EXPECT_EQ(victim.scene.Recover("2.0", victim.asVictim).exitStatus, 0);
    EXPECT_LT(std::chrono::steady_clock::now() - begin, LONGEST_WAIT);
    EXPECT_EQ(victim.scene.Place().StartedVersion(), "2.0");
    EXPECT_EQ(victim.scene.Place().Names(), std::vector<std::string>{APP});
}

struct SquatRow
{
    char const* name;
    std::string (*file)(std::string_view target);
    char const* ending;
    bool isFolder;
};

class ForeignNames : public testing::TestWithParam<SquatRow>
{
};

/// The attacker created the name while the folder was shared. The owner has closed the folder since.
TEST_P(ForeignNames, BlockNoUpdate)
{
    REQUIRE_ADMINISTRATOR_FOR_USERS();
    VictimScene victim;
    InstallJob const job = victim.Prepare();
    std::string const path = victim.Path(GetParam().file(APP) + GetParam().ending);
    ASSERT_EQ(::chmod(victim.Folder().c_str(), 01777), 0);
    std::string const answer = AsOtherUser(ATTACKER,
                                           [&path]
                                           {
                                               if (!GetParam().isFolder)
                                               {
                                                   WriteFile(path, JournalOf(EvilName()));
                                                   return std::string("done");
                                               }
                                               ::mkdir(path.c_str(), 0755);
                                               WriteFile(path + "/file", "x");
                                               return std::string("done");
                                           });
    ASSERT_EQ(answer, "done");
    ASSERT_EQ(::chmod(victim.Folder().c_str(), 0755), 0);
    EXPECT_EQ(victim.scene.Recover("1.0", victim.asVictim).exitStatus, 0);
    HelperOutcome const installed = victim.scene.Install(job, victim.asVictim);
    EXPECT_EQ(installed.exitStatus, 0) << FaultName(installed.Fault());
    victim.scene.ReleaseStaging();
    EXPECT_EQ(victim.scene.Recover("2.0", victim.asVictim).exitStatus, 0);
    EXPECT_EQ(victim.scene.Place().StartedVersion(), "2.0");
    std::vector<std::string> const names = victim.scene.Place().Names();
    EXPECT_EQ(names.back(), APP);
    EXPECT_EQ(names.size(), GetParam().isFolder ? 2u : 1u);
    EXPECT_EQ(names.front().rfind(".pelnar-aside-", 0) == 0, GetParam().isFolder) << names.front();
}

INSTANTIATE_TEST_SUITE_P(Table, ForeignNames,
                         testing::Values(SquatRow{"Journal", &SwapJournalName, "", false},
                                         SquatRow{"NewJournal", &SwapJournalName, ".new", false},
                                         SquatRow{"Note", &FailedVersionName, "", false},
                                         SquatRow{"NewNote", &FailedVersionName, ".new", false},
                                         SquatRow{"Lock", &LockFileName, "", false},
                                         SquatRow{"JournalFolder", &SwapJournalName, "", true},
                                         SquatRow{"NewJournalFolder", &SwapJournalName, ".new", true},
                                         SquatRow{"NoteFolder", &FailedVersionName, "", true},
                                         SquatRow{"LockFolder", &LockFileName, "", true}),
                         [](testing::TestParamInfo<SquatRow> const& info) { return info.param.name; });

/// Another user guesses every name that the helper is about to create, while they can still write to the folder. The
/// folder is then not used, because the other user owns these files.
TEST(StagingNames, TakenByAnotherUserBeforehandAreLeftAlone)
{
    REQUIRE_ADMINISTRATOR_FOR_USERS();
    UpdateScene scene;
    scene.Host().End();
    std::vector<std::string> taken;
    HelperStart start;
    start.atEveryCall = [&](CallStop const& stop)
    {
        std::string const name = stop.call == SYS_mkdirat ? PathArgument(stop, 1) : std::string();
        if (name.rfind(UpdateFilePrefix(APP), 0) == 0 && taken.size() < 3)
        {
            taken.push_back(name);
            std::string const path = scene.Place().Path() + '/' + name;
            PutEvilStaging(path);
            GiveTo(ATTACKER, path);
            EXPECT_EQ(::chmod(path.c_str(), 0777), 0);
        }
        return CallVerdict::GoOn();
    };
    UniqueFd const host(static_cast<int>(::syscall(SYS_pidfd_open, ::getpid(), 0)));
    HelperOutcome const outcome = RunHelper("rehearse", EncodeUpdateJob(RehearseJob{APP}),
                                            {{HelperDescriptors::PARENT, scene.Place().Descriptor()},
                                             {HelperDescriptors::STAGING, scene.StagingDescriptor()},
                                             {HelperDescriptors::HOST, host.Get()}},
                                            start);
    EXPECT_EQ(outcome.exitStatus, 0) << FaultName(outcome.Fault());
    ASSERT_EQ(taken.size(), 3u);
    for (std::string const& name : taken)
    {
        EXPECT_EQ(scene.Place().Names(name), std::vector<std::string>{APP}) << "nothing was put there or taken";
        EXPECT_TRUE(std::filesystem::exists(scene.Place().Path() + '/' + name + '/' + APP + "/run"));
    }
    // They are also not removed or trusted later.
    scene.ReleaseStaging();
    EXPECT_EQ(scene.Recover("1.0").exitStatus, 0);
    EXPECT_EQ(scene.Place().Names().size(), taken.size() + 1);
    EXPECT_EQ(scene.Place().StartedVersion(), "1.0");
}

} // namespace
