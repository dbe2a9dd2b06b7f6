// OtherUserTest.cpp: what another user of the machine can do to an update: put names into a folder that is shared, or
// was, hold locks, and lend files. Both users are real ones.

#include "tests/installer/OtherUser.h"
#include "Engine/core/helper/NoteFile.h"
#include "Engine/core/helper/SwapJournal.h"
#include "tests/installer/FaultChecks.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <filesystem>

#include <fcntl.h>
#include <sched.h>
#include <signal.h>
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

constexpr std::chrono::seconds LONGEST_WAIT{25}; ///< of a helper that is held up by nobody, on a busy machine

/// The victim's application, and an update of it that is ready; both helpers run as the victim.
class VictimScene
{
public:
    explicit VictimScene(std::string const& newVersionsScript = {}) : scene(ArchiveOf(newVersionsScript))
    {
        EXPECT_EQ(::chmod(scene.Downloads().Path().c_str(), 0755), 0);
        asVictim.before = WordsAs(VICTIM);
        GiveTo(VICTIM, scene.Downloads().Path());
        GiveTo(VICTIM, scene.Place().Path());
        EXPECT_EQ(::chmod(scene.Place().Path().c_str(), 0755), 0);
    }

    InstallJob Prepare()
    {
        HelperOutcome const outcome = scene.Prepare(scene.MakePrepareJob(), asVictim);
        auto const* const prepared = outcome.Find<PreparedReport>();
        EXPECT_NE(prepared, nullptr) << FaultName(outcome.Fault());
        scene.Host().End();
        return scene.MakeInstallJob(prepared ? prepared->digest : ContentHash{});
    }

    std::string Folder() const { return scene.Place().Path(); }
    std::string Path(std::string const& name) const { return Folder() + '/' + name; }

    UpdateScene scene;
    HelperStart asVictim;

private:
    static std::string ArchiveOf(std::string const& script)
    {
        std::vector<ForgedEntry> entries = MakeBundle("2.0");
        if (!script.empty())
        {
            entries[1].content = script;
            entries[3].content.insert(entries[3].content.find('{') + 1, "PelnarConfirmsGoodStart = YES;");
        }
        return MakeArchive(Container::Zip, entries);
    }
};

void PutBytes(std::string const& path, std::string const& bytes, mode_t mode)
{
    WriteFile(path, bytes);
    ASSERT_EQ(::chmod(path.c_str(), mode), 0);
}

/// What the attacker would have run as the victim: a bundle that calls itself the previous version.
void PutEvilStaging(std::string const& path)
{
    ASSERT_EQ(::mkdir(path.c_str(), 0755), 0);
    std::filesystem::create_directories(path + '/' + APP + "/Resources");
    WriteFile(path + '/' + APP + "/Resources/Info-gnustep.plist", InformationText("1.0"));
    WriteFile(path + '/' + APP + "/run", "#!/bin/sh\necho evil\n");
    ASSERT_EQ(::chmod((path + '/' + APP + "/run").c_str(), 0755), 0);
}

constexpr char EVIL_STAGING[] = "0123456789abcdef";

std::string EvilName()
{
    return UpdateFilePrefix(APP) + EVIL_STAGING;
}

/// A journal that asks for the bundle's exchange with the previous version in the folder.
std::string JournalOf(std::string const& stagingName)
{
    return EncodeSwapJournal({stagingName, APP, "1.0", "2.0", StartConfirmation::ByHost, MAX_UNCONFIRMED_STARTS, {}});
}

struct TrustRow
{
    char const* name;
    uid_t stagingOwner;
    mode_t stagingMode;
    uid_t noteOwner;
    mode_t noteMode;
    bool isNoteLinked; ///< the note has another name elsewhere
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

/// The other note: it names a version that is never offered again.
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
        // Nothing is lost: the owner sets it right, and the update goes in.
        ASSERT_EQ(::chmod(victim.Folder().c_str(), 0755), 0);
        EXPECT_EQ(victim.scene.Install(job, victim.asVictim).exitStatus, 0);
        EXPECT_EQ(victim.scene.Place().StartedVersion(), "2.0");
    }
}

/// Many systems give each user a group of the same name, and new folders to it with all rights.
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

/// The previous version goes whole, as its owner may give themselves the rights to its folders.
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

/// Locks everything below the folder that the attacker may open, until the other end of the pipe closes; how much that
/// was.
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

TEST(ForeignLocks, HoldNobodyUp)
{
    REQUIRE_ADMINISTRATOR_FOR_USERS();
    VictimScene victim;
    InstallJob const job = victim.Prepare();
    // As a killed helper leaves it: there is something to hold.
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

/// The attacker put a name there while the folder was shared; the owner has closed it since.
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

/// Another user foresees every name that the helper is about to make, while it may still write to the folder. Wherever
/// that is, the folder is not used: none of it is the other user's to give.
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
    // Nor is any of them tidied away, or believed, later.
    scene.ReleaseStaging();
    EXPECT_EQ(scene.Recover("1.0").exitStatus, 0);
    EXPECT_EQ(scene.Place().Names().size(), taken.size() + 1);
    EXPECT_EQ(scene.Place().StartedVersion(), "1.0");
}

} // namespace
