// OtherUserTest.cpp: how another user of the machine can interfere with an update: with files in a folder that is or
// was shared, with locks, and with lent files. Both users are real.

#include "tests/installer/OtherUser.h"
#include "Engine/core/helper/NoteFile.h"
#include "Engine/core/helper/SwapJournal.h"
#include "tests/installer/FaultChecks.h"
#include "tests/installer/faults/VictimScene.h"

#include <gtest/gtest.h>

#include <csignal>
#include <filesystem>

#include <fcntl.h>
#include <sched.h>
#include <sys/mount.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

namespace
{

using namespace Pelnar::Engine;
using namespace Pelnar::Testing;

struct TrustRow
{
    char const* name;
    uid_t stagingOwner;
    mode_t stagingMode;
    uid_t noteOwner;
    mode_t noteMode;
    bool isNoteLinked; ///< the note has a hard link elsewhere
    mode_t folderMode;
    bool isBelieved;
};

class Trust : public testing::TestWithParam<TrustRow>
{
};

TEST_P(Trust, IsGivenToWhatNobodyElseCanHaveMade)
{
    REQUIRE_ADMINISTRATOR_FOR_USERS();
    TrustRow const& row = GetParam();
    UpdateScene scene;
    scene.Host().End();
    scene.ReleaseStaging();
    std::string const folder = scene.Place().Path();
    std::filesystem::remove_all(folder);
    ASSERT_EQ(::mkdir(folder.c_str(), 0755), 0);
    UniqueFd const parent(::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    for (ForgedEntry const& entry : MakeBundle("2.0"))
    {
        scene.Place().Put({entry});
    }
    PutEvilStaging(folder + '/' + EvilName());
    PutBytes(folder + '/' + SwapJournalName(APP), JournalOf(EvilName()), row.noteMode);
    GiveTo(VICTIM, folder);
    GiveTo(row.stagingOwner, folder + '/' + EvilName());
    ASSERT_EQ(::chmod((folder + '/' + EvilName()).c_str(), row.stagingMode), 0);
    GiveTo(row.noteOwner, folder + '/' + SwapJournalName(APP));
    if (row.isNoteLinked)
    {
        ASSERT_EQ(::link((folder + '/' + SwapJournalName(APP)).c_str(), (scene.Downloads().Path() + "/n").c_str()), 0);
    }
    ASSERT_EQ(::chmod(folder.c_str(), row.folderMode), 0);
    HelperOutcome const outcome = RunHelper("recover", EncodeUpdateJob(RecoverJob{APP, "2.0"}),
                                            {{HelperDescriptors::PARENT, parent.Get()}}, {WordsAs(VICTIM)});
    auto const* const recovered = outcome.Find<RecoveredReport>();
    EXPECT_EQ(recovered && recovered->action == RecoveryAction::RolledBack, row.isBelieved);
    bool const isShared = row.folderMode != 0755;
    EXPECT_EQ(outcome.Fault(), isShared ? UpdateFault::FolderUnsafe : UpdateFault::None);
    ASSERT_EQ(::chmod(folder.c_str(), 0755), 0);
    EXPECT_EQ(scene.Place().StartBundle().substr(0, 4), row.isBelieved ? "evil" : "2.0|");
}

INSTANTIATE_TEST_SUITE_P(
    Table, Trust,
    testing::Values(TrustRow{"OfThisUserAlone", VICTIM, 0700, VICTIM, 0600, false, 0755, true},
                    TrustRow{"StagingOfAnotherUser", ATTACKER, 0700, VICTIM, 0600, false, 0755, false},
                    TrustRow{"StagingOfAnotherUserForAll", ATTACKER, 0755, VICTIM, 0600, false, 0755, false},
                    TrustRow{"StagingThatOthersEnter", VICTIM, 0755, VICTIM, 0600, false, 0755, false},
                    TrustRow{"StagingThatAGroupWrites", VICTIM, 0770, VICTIM, 0600, false, 0755, false},
                    TrustRow{"StagingThatAllWrite", VICTIM, 0777, VICTIM, 0600, false, 0755, false},
                    TrustRow{"NoteOfAnotherUser", VICTIM, 0700, ATTACKER, 0600, false, 0755, false},
                    TrustRow{"NoteOfTheAdministrator", VICTIM, 0700, 0, 0600, false, 0755, false},
                    TrustRow{"NoteThatOthersRead", VICTIM, 0700, VICTIM, 0644, false, 0755, false},
                    TrustRow{"NoteThatAGroupWrites", VICTIM, 0700, VICTIM, 0660, false, 0755, false},
                    TrustRow{"NoteThatAllWrite", VICTIM, 0700, VICTIM, 0666, false, 0755, false},
                    TrustRow{"NoteWithAnotherName", VICTIM, 0700, VICTIM, 0600, true, 0755, false},
                    TrustRow{"InAStickyFolder", VICTIM, 0700, VICTIM, 0600, false, 01777, false},
                    TrustRow{"InAFolderForAll", VICTIM, 0700, VICTIM, 0600, false, 0777, false},
                    TrustRow{"InAFolderForAGroup", VICTIM, 0700, VICTIM, 0600, false, 0775, false},
                    TrustRow{"InAStickyFolderForAGroup", VICTIM, 0700, VICTIM, 0600, false, 01775, false}),
    [](testing::TestParamInfo<TrustRow> const& info) { return info.param.name; });

/// The other note: it names a version that is not offered again.
TEST(Trust, NoteOfAFailedVersionIsBelievedUnderTheSameRules)
{
    REQUIRE_ADMINISTRATOR_FOR_USERS();
    for (auto const& [owner, mode, isBelieved] :
         {std::tuple{VICTIM, mode_t{0600}, true}, {ATTACKER, mode_t{0600}, false}, {VICTIM, mode_t{0666}, false}})
    {
        VictimScene victim;
        victim.scene.Host().End();
        std::string const note = victim.Path(FailedVersionName(APP));
        PutBytes(note, EncodeFailedVersion({"1.0", "2.0"}), mode);
        GiveTo(owner, note);
        HelperOutcome const outcome = victim.scene.Recover("1.0", victim.asVictim);
        EXPECT_EQ(outcome.exitStatus, 0) << FaultName(outcome.Fault());
        EXPECT_EQ(outcome.Find<FailedVersionReport>() != nullptr, isBelieved) << owner << ' ' << mode;
    }
}

TEST(SharedFolder, IsNotInstalledInto)
{
    REQUIRE_ADMINISTRATOR_FOR_USERS();
    for (mode_t const mode : {01777, 0777, 01775, 0775})
    {
        SCOPED_TRACE(mode);
        VictimScene victim;
        InstallJob const job = victim.Prepare();
        ASSERT_EQ(::chmod(victim.Folder().c_str(), mode), 0);
        HelperOutcome const outcome = victim.scene.Install(job, victim.asVictim);
        EXPECT_EQ(outcome.exitStatus, 1);
        EXPECT_EQ(outcome.Fault(), UpdateFault::FolderUnsafe);
        EXPECT_EQ(victim.scene.Place().StartedVersion(), "1.0");
        // Nothing is lost: the owner corrects the permissions, and the update is installed.
        ASSERT_EQ(::chmod(victim.Folder().c_str(), 0755), 0);
        EXPECT_EQ(victim.scene.Install(job, victim.asVictim).exitStatus, 0);
        EXPECT_EQ(victim.scene.Place().StartedVersion(), "2.0");
    }
}

/// Many systems give each user a group with the same name, and this group all permissions for new folders.
TEST(SharedFolder, OfTheUsersOwnGroupIsNobodyElses)
{
    REQUIRE_ADMINISTRATOR_FOR_USERS();
    for (bool const isAlone : {true, false})
    {
        VictimScene victim;
        InstallJob job = victim.Prepare();
        job.targetPath = victim.Path(APP);
        for (std::string const& folder : {victim.Folder(), victim.Path(APP)})
        {
            ASSERT_EQ(::chmod(folder.c_str(), 0775), 0);
        }
        std::string const lists = victim.scene.Downloads().Path();
        WriteFile(lists + "/passwd", "root:x:0:0::/:/bin/sh\nvictim:x:12345:12345::/:/bin/sh\n");
        WriteFile(lists + "/group", isAlone ? "victim:x:12345:\n" : "victim:x:12345:attacker\n");
        std::string const answer = InChild(
            [&]() -> std::string
            {
                if (::unshare(CLONE_NEWNS) != 0 || ::mount("none", "/", nullptr, MS_REC | MS_PRIVATE, nullptr) != 0 ||
                    ::mount((lists + "/passwd").c_str(), "/etc/passwd", "", MS_BIND, "") != 0 ||
                    ::mount((lists + "/group").c_str(), "/etc/group", "", MS_BIND, "") != 0)
                {
                    return "cannot change the lists";
                }
                HelperOutcome const outcome = victim.scene.Install(job, victim.asVictim);
                return std::string(FaultName(outcome.Fault())) + ' ' + outcome.output.substr(0, 3);
            });
        EXPECT_EQ(answer, isAlone ? "None 2.0" : "FolderUnsafe ");
        EXPECT_EQ(victim.scene.Place().StartedVersion(), isAlone ? "2.0" : "1.0");
    }
}

/// The helper of this user's update was killed before or after the swap.
TEST(SecondUser, WhoStartsTheApplicationChangesNothing)
{
    REQUIRE_ADMINISTRATOR_FOR_USERS();
    for (bool const isSwapped : {false, true})
    {
        SCOPED_TRACE(isSwapped);
        VictimScene victim;
        InstallJob const job = victim.Prepare();
        victim.scene.Host().End();
        HelperStart killed = victim.asVictim;
        bool isDue = false;
        killed.atEveryCall = [&](CallStop const& stop)
        {
            bool const isExchange = stop.call == SYS_renameat2;
            bool const isNow = isSwapped ? isDue : isExchange;
            isDue = isDue || isExchange;
            return isNow ? CallVerdict::KillAll() : CallVerdict::GoOn();
        };
        EXPECT_EQ(victim.scene.Install(job, killed).signal, SIGKILL);
        victim.scene.ReleaseStaging();
        std::vector<std::string> const names = victim.scene.Place().Names();
        std::string const version = isSwapped ? "2.0" : "1.0";
        EXPECT_GT(names.size(), 1u);
        HelperStart second;
        second.before = WordsAs(ATTACKER);
        for (RecoverPurpose const purpose : {RecoverPurpose::Start, RecoverPurpose::Confirmation})
        {
            HelperOutcome const outcome = victim.scene.Recover(RecoverJob{APP, version, purpose}, second);
            EXPECT_EQ(outcome.exitStatus, 1);
            EXPECT_EQ(outcome.Fault(), UpdateFault::FolderUnsafe) << FaultName(outcome.Fault());
            EXPECT_EQ(victim.scene.Place().Names(), names);
            EXPECT_EQ(victim.scene.Place().StartedVersion(), version);
        }
        EXPECT_EQ(victim.scene.Recover(version, victim.asVictim).exitStatus, 0);
        EXPECT_EQ(victim.scene.Place().StartedVersion(), version);
    }
}

/// The previous version is removed completely, because its owner can give themselves the permissions for its folders.
TEST(ClosedFolders, OfThePreviousVersionAreNotLeftBehind)
{
    REQUIRE_ADMINISTRATOR_FOR_USERS();
    for (mode_t const mode : {0555, 0300, 0000})
    {
        SCOPED_TRACE(mode);
        VictimScene victim;
        InstallJob const job = victim.Prepare();
        std::string const closed = victim.Path(APP) + "/closed";
        std::filesystem::create_directories(closed + "/inner");
        WriteFile(closed + "/inner/file", "x");
        GiveTo(VICTIM, closed);
        ASSERT_EQ(::chmod((closed + "/inner").c_str(), mode), 0);
        ASSERT_EQ(::chmod(closed.c_str(), mode), 0);
        HelperOutcome const installed = victim.scene.Install(job, victim.asVictim);
        EXPECT_EQ(installed.exitStatus, 0) << FaultName(installed.Fault());
        victim.scene.ReleaseStaging();
        EXPECT_EQ(victim.scene.Recover("2.0", victim.asVictim).exitStatus, 0);
        EXPECT_EQ(victim.scene.Place().StartedVersion(), "2.0");
        EXPECT_EQ(victim.scene.Place().Names(), std::vector<std::string>{APP});
    }
}

} // namespace
