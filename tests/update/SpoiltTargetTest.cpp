// SpoiltTargetTest.cpp: the installed bundle is removed or changed after the update is prepared, before the application
// quits.
#include "Engine/core/faults/EngineError.h"
#include "tests/update/UpdateRunFixture.h"

#include <filesystem>

#include <sys/stat.h>
#include <unistd.h>

namespace
{

using namespace Pelnar::Testing;
using namespace Pelnar::Engine;

struct SpoiltTargetRow
{
    char const* name;
    void (*spoil)(std::filesystem::path const& bundle);
    ErrorCause cause;
    UpdateFault fault;
};

void MakeLink(std::filesystem::path const& path)
{
    std::filesystem::rename(path, path.string() + ".away");
    std::filesystem::create_directory_symlink(path.string() + ".away", path);
}

/// What happens to the installed bundle after the update is prepared.
class SpoiltTarget : public UpdateRunTest, public testing::WithParamInterface<SpoiltTargetRow>
{
protected:
    ~SpoiltTarget() override
    {
        if (std::filesystem::is_symlink(m_place))
        {
            std::filesystem::remove(m_place);
            std::filesystem::rename(m_place.string() + ".away", m_place);
        }
    }

    void Spoil()
    {
        GetParam().spoil(settings.bundle.path.toStdString());
        Since();
    }

    void ExpectRefusal()
    {
        EXPECT_EQ(Since(), (Notes{"helper killed", "attempt taken back", "end"})) << "no relaunch is announced";
        ASSERT_TRUE(end && end->error);
        EXPECT_EQ(end->error->cause, GetParam().cause) << end->error->sentence.English().toStdString();
        EXPECT_EQ(end->error->fault, GetParam().fault);
    }

private:
    std::filesystem::path m_place = folder.path().toStdString();
};

TEST_P(SpoiltTarget, IsToldToThePersonBeforeTheApplicationQuits)
{
    StartInteractive();
    Agree();
    PrepareUpdate();
    windows.Choose(ReadyChoice::InstallAndRelaunch);
    Spoil();
    parts.Report(ProgressReport{HelperPhase::Waiting, 0, 0});
    ExpectRefusal();
    EXPECT_EQ(end->asked, PersonAsked::Yes);
}

TEST_P(SpoiltTarget, IsAnErrorOfAnInstallationOnQuit)
{
    StartSilent();
    PrepareUpdate();
    Spoil();
    parts.Report(ProgressReport{HelperPhase::Waiting, 0, 0});
    ExpectRefusal();
}

INSTANTIATE_TEST_SUITE_P(
    Table, SpoiltTarget,
    testing::Values(SpoiltTargetRow{"Removed", [](std::filesystem::path const& b) { std::filesystem::remove_all(b); },
                                    ErrorCause::Fault, UpdateFault::TargetMissing},
                    SpoiltTargetRow{
                        "Renamed", [](std::filesystem::path const& b) { std::filesystem::rename(b, b.string() + "2"); },
                        ErrorCause::Fault, UpdateFault::TargetMissing},
                    SpoiltTargetRow{"ReplacedByALink", &MakeLink, ErrorCause::Fault, UpdateFault::TargetChanged},
                    SpoiltTargetRow{"ReplacedByAnotherFolder",
                                    [](std::filesystem::path const& b)
                                    {
                                        std::filesystem::rename(b, b.string() + "2");
                                        std::filesystem::create_directory(b);
                                    },
                                    ErrorCause::Fault, UpdateFault::TargetChanged},
                    SpoiltTargetRow{"FolderMovedAndReplacedByALink",
                                    [](std::filesystem::path const& b) { MakeLink(b.parent_path()); },
                                    ErrorCause::Fault, UpdateFault::TargetMissing},
                    SpoiltTargetRow{"OpenToAll", [](std::filesystem::path const& b) { ::chmod(b.c_str(), 0777); },
                                    ErrorCause::BundleFolderUnsafe, UpdateFault::None},
                    SpoiltTargetRow{"FolderOpenToAll",
                                    [](std::filesystem::path const& b) { ::chmod(b.parent_path().c_str(), 0777); },
                                    ErrorCause::BundleFolderUnsafe, UpdateFault::None}),
    [](testing::TestParamInfo<SpoiltTargetRow> const& info) { return info.param.name; });

TEST_F(UpdateRunTest, BundleThatAnotherUserGotMeanwhileIsToldBeforeTheApplicationQuits)
{
    StartInteractive();
    Agree();
    PrepareUpdate();
    windows.Choose(ReadyChoice::InstallAndRelaunch);
    if (::chown(settings.bundle.path.toStdString().c_str(), 65534, 65534) != 0)
    {
        GTEST_SKIP() << "only root can give a folder to another user";
    }
    Since();
    parts.Report(ProgressReport{HelperPhase::Waiting, 0, 0});
    EXPECT_EQ(Since(), (Notes{"helper killed", "attempt taken back", "end"}));
    EXPECT_EQ(end->error->cause, ErrorCause::BundleOfAnotherUser);
}

} // namespace
