// SpoiltOutcomeTest.cpp: the installed bundle is removed or changed while the helper waits for the end of the host.
#include "tests/installer/OutcomeScene.h"

#include <filesystem>

#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

namespace
{

using namespace Pelnar::Engine;
using namespace Pelnar::Testing;

struct SpoiltRow
{
    char const* name;
    void (*spoil)(std::string const& bundle);
    UpdateFault fault;
    char const* started; ///< what is started, from the end of its bundle's path; empty: nothing
};

class OutcomeOfASpoiltBundle : public Outcome, public testing::WithParamInterface<SpoiltRow>
{
};

/// The host has announced its end when the bundle is changed.
TEST_P(OutcomeOfASpoiltBundle, IsKeptAndOnlyASafeProgramIsStarted)
{
    InstallJob const job = Job();
    std::string const bundle = scene.Place().Path() + '/' + APP;
    HelperStart start;
    bool isSpoilt = false;
    start.atEveryCall = [this, &bundle, &isSpoilt](CallStop const& stop)
    {
        if (stop.call == SYS_poll && !isSpoilt)
        {
            isSpoilt = true;
            GetParam().spoil(bundle);
            scene.Host().End();
        }
        return CallVerdict::GoOn();
    };
    HelperOutcome const outcome = scene.Install(job, start);
    ASSERT_TRUE(isSpoilt);
    EXPECT_EQ(outcome.exitStatus, 1);
    EXPECT_EQ(outcome.Find<InstalledReport>(), nullptr);
    std::string const started = GetParam().started;
    EXPECT_EQ(outcome.output, started.empty() ? "" : "1.0|" + bundle + started + "/run|0|\n");
    // The record is where the bundle's next start looks for it.
    std::string const moved = bundle + ".away";
    if (std::filesystem::exists(moved))
    {
        EXPECT_FALSE(std::filesystem::exists(RecordPath()));
        std::filesystem::rename(scene.Downloads().Path() + '/' + InstallRecordName(moved), RecordPath());
    }
    auto const record = Record();
    ASSERT_TRUE(record);
    EXPECT_EQ(record->state, InstallState::Failed);
    EXPECT_EQ(record->fault, GetParam().fault);
    EXPECT_EQ(JudgePastInstallation(*record, "1.0", HelperLife::Ended), PastInstallation::Failed);
}

INSTANTIATE_TEST_SUITE_P(
    Table, OutcomeOfASpoiltBundle,
    testing::Values(
        SpoiltRow{"Removed", [](std::string const& b) { std::filesystem::remove_all(b); }, UpdateFault::TargetMissing,
                  ""},
        SpoiltRow{"Renamed", [](std::string const& b) { std::filesystem::rename(b, b + ".away"); },
                  UpdateFault::TargetMissing, ".away"},
        SpoiltRow{"ReplacedByALinkToIt",
                  [](std::string const& b)
                  {
                      std::filesystem::rename(b, b + ".away");
                      std::filesystem::create_directory_symlink(b + ".away", b);
                  },
                  UpdateFault::TargetChanged, ".away"},
        SpoiltRow{"ReplacedByALinkToAnother",
                  [](std::string const& b)
                  {
                      std::filesystem::copy(b, b + ".evil",
                                            std::filesystem::copy_options::recursive |
                                                std::filesystem::copy_options::copy_symlinks);
                      std::filesystem::remove_all(b);
                      std::filesystem::create_directory_symlink(b + ".evil", b);
                  },
                  UpdateFault::TargetChanged, ""},
        SpoiltRow{"RenamedAndOpenToAll",
                  [](std::string const& b)
                  {
                      std::filesystem::rename(b, b + ".away");
                      ::chmod((b + ".away").c_str(), 0777);
                  },
                  UpdateFault::TargetMissing, ""},
        SpoiltRow{"OpenToAll", [](std::string const& b) { ::chmod(b.c_str(), 0777); }, UpdateFault::FolderUnsafe, ""},
        SpoiltRow{"FolderOpenToAll",
                  [](std::string const& b) { ::chmod(std::filesystem::path(b).parent_path().c_str(), 0777); },
                  UpdateFault::FolderUnsafe, ""},
        SpoiltRow{"OfAnotherUser",
                  [](std::string const& b)
                  {
                      bool const isGiven = ::chown(b.c_str(), 65534, 65534) == 0;
                      ::chmod(b.c_str(), isGiven ? 0755 : 0777); // only root can give a folder to another user
                  },
                  UpdateFault::FolderUnsafe, ""}),
    [](testing::TestParamInfo<SpoiltRow> const& info) { return info.param.name; });

/// The update is installed in the folder that was opened, and its program is started there.
TEST(OutcomeOfAMovedFolder, IsTheNewVersionWhichIsStartedThere)
{
    Workspace const above;
    UpdateScene scene(MakeArchive(Container::Zip, MakeBundle("2.0")), above.Path());
    InstallJob job = scene.PrepareForInstall();
    UpdateScene::KeepRecord(job);
    std::string const moved = above.Path() + "/moved";
    HelperStart start;
    start.atEveryCall = [&](CallStop const& stop)
    {
        if (stop.call == SYS_poll && !std::filesystem::exists(moved))
        {
            std::filesystem::rename(scene.Place().Path(), moved);
            scene.Host().End();
        }
        return CallVerdict::GoOn();
    };
    HelperOutcome const outcome = scene.Install(job, start);
    EXPECT_EQ(scene.Downloads().Names(), (std::vector<std::string>{InstallRecordName(moved + '/' + APP), "update"}));
    EXPECT_EQ(outcome.exitStatus, 0);
    EXPECT_EQ(outcome.output, "2.0|" + moved + '/' + APP + "/run|0|\n");
}

} // namespace
