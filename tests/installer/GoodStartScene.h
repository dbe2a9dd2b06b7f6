// GoodStartScene.h: an installed update whose new version must confirm a good start.
#pragma once

#include "Engine/core/archive/TreeManifest.h"
#include "Engine/core/helper/NoteFile.h"
#include "Engine/core/helper/SwapJournal.h"
#include "tests/installer/FaultChecks.h"
#include "tests/installer/InstallerFixture.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

namespace Pelnar::Testing
{

constexpr char STRACE[] = "/usr/bin/strace";

/// A version 2.0 that must confirm a good start. Its program is \a script.
inline std::string ArchiveOf(std::string const& script)
{
    std::vector<ForgedEntry> entries = MakeBundle("2.0");
    entries[1].content = script;
    std::string& information = entries[3].content;
    information.insert(information.find('{') + 1, "PelnarConfirmsGoodStart = YES;");
    return MakeArchive(Container::Zip, entries);
}

inline std::string const GOOD = "#!/bin/sh\necho \"2.0|$0|$#|$PELNAR_TEST\"\n";

/// The update to 2.0, installed without a relaunch.
class InstalledScene
{
public:
    InstalledScene() : scene(ArchiveOf(GOOD))
    {
        Engine::InstallJob job = scene.PrepareForInstall();
        job.targetPath.clear();
        scene.Host().End();
        EXPECT_EQ(scene.Install(job).exitStatus, 0);
        scene.ReleaseStaging();
    }

    Engine::RecoveryAction Recover(Engine::RecoverJob const& job)
    {
        HelperOutcome const outcome = scene.Recover(job);
        auto const* const failed = outcome.Find<Engine::FailedVersionReport>();
        failedVersion = failed ? failed->version : std::string();
        auto const* const recovered = outcome.Find<Engine::RecoveredReport>();
        EXPECT_NE(recovered, nullptr) << FaultName(outcome.Fault());
        return recovered ? recovered->action : Engine::RecoveryAction::Nothing;
    }
    Engine::RecoveryAction Start(std::string const& version) { return Recover({APP, version}); }
    Engine::RecoveryAction Confirm(std::string const& version)
    {
        return Recover({APP, version, Engine::RecoverPurpose::Confirmation});
    }

    std::string Version() const { return scene.Place().StartedVersion(); }
    std::vector<std::string> Names() const { return scene.Place().Names(); }

    UpdateScene scene;
    std::string failedVersion; ///< reported by the last recovery
};

inline std::vector<std::string> const ONLY_THE_APP{APP};

/// After some starts without a confirmation, the previous version is installed again, whole, with one note next to it.
inline void ExpectPreviousSettles(UpdateScene& scene)
{
    scene.Host().End();
    scene.ReleaseStaging();
    for (int start = 0; start < 4 && scene.Place().StartedVersion() != "1.0"; ++start)
    {
        std::string const version = scene.Place().StartedVersion();
        scene.Recover(version.empty() ? "1.0" : version); // none: a person asks for the previous version
    }
    EXPECT_EQ(scene.Place().StartedVersion(), "1.0");
    scene.Recover("1.0");
    Workspace const other;
    other.Put(MakeBundle("1.0"));
    EXPECT_EQ(TreeOf(scene.Place().Path() + '/' + APP), TreeOf(other.Path() + '/' + APP));
    std::vector<std::string> names = scene.Place().Names();
    names.erase(std::remove(names.begin(), names.end(), Engine::FailedVersionName(APP)), names.end());
    EXPECT_EQ(names, ONLY_THE_APP);
}

inline HelperStart KilledAt(std::string const& call, int nth, std::vector<std::string> const& options)
{
    HelperStart start;
    start.before = {STRACE, "-f", "-qq", "-o", "/dev/null"};
    start.before.insert(start.before.end(), options.begin(), options.end());
    start.before.insert(start.before.end(), {"-e", "inject=" + call + ":signal=KILL:when=" + std::to_string(nth)});
    return start;
}

constexpr int MOST_CALLS = 60;

} // namespace Pelnar::Testing
