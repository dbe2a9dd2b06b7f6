// VictimScene.h: the application of one user, and another user's files next to it.
#pragma once

#include "Engine/core/helper/NoteFile.h"
#include "Engine/core/helper/SwapJournal.h"
#include "tests/installer/FaultChecks.h"
#include "tests/installer/OtherUser.h"

#include <gtest/gtest.h>

#include <chrono>
#include <filesystem>

#include <sys/mount.h>
#include <sys/stat.h>

namespace Pelnar::Testing
{

constexpr std::chrono::seconds LONGEST_WAIT{25}; ///< for a helper that nobody delays, on a busy machine

/// The victim's application and a prepared update; both helpers run as the victim.
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

    Engine::InstallJob Prepare()
    {
        HelperOutcome const outcome = scene.Prepare(scene.MakePrepareJob(), asVictim);
        auto const* const prepared = outcome.Find<Engine::PreparedReport>();
        EXPECT_NE(prepared, nullptr) << FaultName(outcome.Fault());
        scene.Host().End();
        return scene.MakeInstallJob(prepared ? prepared->digest : Engine::ContentHash{});
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

inline void PutBytes(std::string const& path, std::string const& bytes, mode_t mode)
{
    WriteFile(path, bytes);
    ASSERT_EQ(::chmod(path.c_str(), mode), 0);
}

/// The bundle that the attacker wants the victim to run. It claims to be the previous version.
inline void PutEvilStaging(std::string const& path)
{
    ASSERT_EQ(::mkdir(path.c_str(), 0755), 0);
    std::filesystem::create_directories(path + '/' + APP + "/Resources");
    WriteFile(path + '/' + APP + "/Resources/Info-gnustep.plist", InformationText("1.0"));
    WriteFile(path + '/' + APP + "/run", "#!/bin/sh\necho evil\n");
    ASSERT_EQ(::chmod((path + '/' + APP + "/run").c_str(), 0755), 0);
}

constexpr char EVIL_STAGING[] = "0123456789abcdef";

inline std::string EvilName()
{
    return Engine::UpdateFilePrefix(APP) + EVIL_STAGING;
}

/// A journal that requests the exchange of the bundle with the previous version in the folder.
inline std::string JournalOf(std::string const& stagingName)
{
    return Engine::EncodeSwapJournal(
        {stagingName, APP, "1.0", "2.0", Engine::StartConfirmation::ByHost, Engine::MAX_UNCONFIRMED_STARTS, {}});
}

} // namespace Pelnar::Testing
