// ReplacedFolderTest.cpp: at each call of an installation, the folder of the bundle is moved away and replaced by a
// link. The default run takes a sample of the calls; with PELNAR_EVERY_PLACE=1 in the environment it takes all.

#include "tests/installer/FaultChecks.h"

#include <gtest/gtest.h>

#include <filesystem>

namespace
{

using namespace Pelnar::Engine;
using namespace Pelnar::Testing;

constexpr int SAMPLE_OF = 11;

/// An update whose host has ended, in a folder that others can rename.
class FolderScene
{
public:
    FolderScene()
    {
        m_outside.Put(MakeBundle("1.0"));
        m_job = m_scene.PrepareForInstall();
        m_job.targetPath.clear();
        m_scene.Host().End();
    }

    HelperOutcome Install(CallVisitor const& visitor)
    {
        HelperStart start;
        start.atEveryCall = visitor;
        return m_scene.Install(m_job, start);
    }

    /// From here on the folder has another name, and its old name is a link to another folder.
    void ReplaceFolder()
    {
        std::filesystem::rename(m_scene.Place().Path(), Moved());
        std::filesystem::create_directory_symlink(m_outside.Path(), m_scene.Place().Path());
    }

    std::string const& Path() const { return m_scene.Place().Path(); }
    std::string Moved() const { return m_above.Path() + "/moved"; }
    Workspace const& Outside() const { return m_outside; }

private:
    Workspace m_above;
    Workspace m_outside;
    UpdateScene m_scene{MakeArchive(Container::Zip, MakeBundle("2.0")), m_above.Path()};
    InstallJob m_job;
};

TEST(ReplacedFolder, IsTheOneThatWasOpenedAndNothingGoesThroughTheLink)
{
    Versions const versions;
    int calls = 0;
    {
        FolderScene traced;
        HelperOutcome const outcome = traced.Install(
            [&calls](CallStop const& stop)
            {
                calls = stop.index + 1;
                return CallVerdict::GoOn();
            });
        ASSERT_EQ(outcome.exitStatus, 0) << FaultName(outcome.Fault());
    }
    int replaced = 0;
    for (int place = 0; place < calls; place += IsEveryPlaceWanted() ? 1 : SAMPLE_OF)
    {
        SCOPED_TRACE(place);
        FolderScene folder;
        bool wasReplaced = false;
        HelperOutcome const outcome = folder.Install(
            [&](CallStop const& stop)
            {
                if (stop.index == place)
                {
                    folder.ReplaceFolder();
                    wasReplaced = true;
                }
                return CallVerdict::GoOn();
            });
        replaced += wasReplaced ? 1 : 0;
        EXPECT_EQ(folder.Outside().Names(), std::vector<std::string>{APP});
        EXPECT_EQ(ExpectWhole(folder.Outside(), versions), "1.0");
        ContentHash const tree = TreeOf((wasReplaced ? folder.Moved() : folder.Path()) + '/' + APP);
        EXPECT_EQ(outcome.exitStatus, 0) << FaultName(outcome.Fault());
        EXPECT_TRUE(tree == versions.next);
    }
    EXPECT_GT(replaced, 10);
}

} // namespace
