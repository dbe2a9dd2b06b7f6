// UpdateEnduranceTest.cpp: one process installs a version and takes it back, again and again. The default run makes
// some rounds; with PELNAR_EVERY_PLACE=1 in the environment it makes a hundred.
#include "Engine/core/update/HelperProcess.h"
#include "tests/installer/FaultChecks.h"
#include "tests/support/DialogDriver.h"
#include "tests/support/ProcessFootprint.h"
#include "tests/support/TestApplication.h"

#include <gtest/gtest.h>

#include <fcntl.h>

namespace
{

using namespace Pelnar::Engine;
using namespace Pelnar::Testing;

/// A version that must confirm a good start.
std::vector<ForgedEntry> UncertainBundle()
{
    std::vector<ForgedEntry> bundle = MakeBundle("2.0");
    std::string& information = bundle[3].content;
    information.insert(information.find('{') + 1, "PelnarConfirmsGoodStart = YES;");
    return bundle;
}

class UpdateEndurance : public testing::Test
{
protected:
    UpdateEndurance() { scene.ReleaseStaging(); }

    void InstallAndTakeBack()
    {
        Install();
        EXPECT_EQ(scene.Place().StartedVersion(), "2.0");
        for (RecoveryAction const action :
             {RecoveryAction::CountedStart, RecoveryAction::CountedStart, RecoveryAction::RolledBack})
        {
            EXPECT_EQ(Start("2.0"), action);
        }
        Start("1.0");
        EXPECT_EQ(scene.Place().StartedVersion(), "1.0");
    }

    UpdateScene scene{MakeArchive(Container::Zip, UncertainBundle())};

private:
    void Install()
    {
        StagingFolder const staging = StagingFolder::Create(scene.Place().Descriptor(), APP);
        UniqueFd const archive(::open((scene.Downloads().Path() + "/update").c_str(), O_RDONLY | O_CLOEXEC));
        auto const prepared =
            Run<PreparedReport>(scene.MakePrepareJob(), PrepareDescriptors{staging.Descriptor(), archive.Get()});
        ASSERT_TRUE(prepared);
        InstallJob job = scene.MakeInstallJob(prepared->digest);
        job.stagingName = staging.Name();
        StubHost host;
        host.End();
        ASSERT_TRUE(Run<InstalledReport>(
            job, InstallDescriptors{staging.Descriptor(), scene.Place().Descriptor(), host.ProcessDescriptor()}));
    }

    RecoveryAction Start(std::string const& version)
    {
        auto const recovered =
            Run<RecoveredReport>(RecoverJob{APP, version}, RecoverDescriptors{scene.Place().Descriptor()});
        return recovered ? recovered->action : RecoveryAction::Nothing;
    }

    /// Runs a helper to its end. Returns its report of this kind.
    template <typename Report, typename Job, typename Descriptors>
    std::optional<Report> Run(Job const& job, Descriptors const& own)
    {
        std::optional<Report> found;
        std::optional<HelperEnd> end;
        HelperProcess helper(std::make_shared<SealedProgram>(PELNAR_INSTALLER_PROGRAM));
        helper.Start(
            job, DescriptorMap(job, own),
            [&found](HelperReport const& report)
            {
                if (auto const* const wanted = std::get_if<Report>(&report))
                {
                    found = *wanted;
                }
            },
            [&end](HelperEnd told) { end = told; });
        EXPECT_TRUE(WaitFor([&end] { return end.has_value(); }));
        EXPECT_EQ(end, HelperEnd::Done);
        return found;
    }

    TestApplication<> m_application;
};

TEST_F(UpdateEndurance, HundredVersionsInstalledAndRolledBackLeaveNothingBehind)
{
    for (int round = 0; round < 5; ++round)
    {
        InstallAndTakeBack();
    }
    ContentHash const tree = TreeOf(scene.Place().Path() + '/' + APP);
    std::vector<std::string> const names = scene.Place().Names();
    EXPECT_EQ(names.size(), 2u) << "the bundle, and the note of the version that failed";
    ProcessFootprint const before = MeasureFootprint();
    for (int round = 0; round < (IsEveryPlaceWanted() ? 100 : 5); ++round)
    {
        InstallAndTakeBack();
    }
    ProcessFootprint const after = ExpectNoGrowth(before);
    EXPECT_EQ(scene.Place().Names(), names);
    EXPECT_EQ(scene.Downloads().Names(), std::vector<std::string>{"update"});
    EXPECT_EQ(TreeOf(scene.Place().Path() + '/' + APP), tree);
    RecordProperty("kibibytes_before", static_cast<int>(before.residentKibibytes));
    RecordProperty("kibibytes_after", static_cast<int>(after.residentKibibytes));
}

} // namespace
