// TreeAccessTest.cpp: no path leads out of the tree, and a link leads nowhere.

#include "Engine/core/base/TreeAccess.h"
#include "tests/installer/InstallerFixture.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <filesystem>

namespace
{

using namespace Pelnar::Engine;
using namespace Pelnar::Testing;

/// A tree, and a decoy next to it.
class TreeAccessTest : public testing::Test
{
protected:
    TreeAccessTest()
    {
        m_place.Put({{"tree", 'd', {}, 0755},
                     {"tree/folder", 'd', {}, 0755},
                     {"tree/folder/file", 'f', "inside"},
                     {"decoy", 'd', {}, 0755},
                     {"decoy/file", 'f', "outside"}});
        std::filesystem::create_symlink("folder", TreePath("inner"));
        std::filesystem::create_symlink("../decoy", TreePath("outer"));
        std::filesystem::create_symlink("file", TreePath("folder/link"));
        m_tree = OpenFolder(m_place.Descriptor(), "tree");
    }
    ~TreeAccessTest() override { EXPECT_EQ(m_place.Names("decoy"), std::vector<std::string>{"file"}); }

    std::string TreePath(std::string const& below) const { return m_place.Path() + "/tree/" + below; }

    Workspace m_place;
    UniqueFd m_tree;
};

struct OddPath
{
    char const* path;
    int error;
};

TEST_F(TreeAccessTest, PathsThatAreNotOfAFileInTheTreeOpenAndMakeNothing)
{
    std::vector<std::string> const before = m_place.Names("tree/folder");
    for (OddPath const& odd :
         {OddPath{"", EXDEV}, OddPath{".", EXDEV}, OddPath{"..", EXDEV}, OddPath{"../decoy/file", EXDEV},
          OddPath{"folder/", EXDEV}, OddPath{"folder/..", EXDEV}, OddPath{"folder/.", EXDEV},
          OddPath{"folder/../../decoy/file", EXDEV}, OddPath{"/etc/passwd", EXDEV}, OddPath{"inner/file", ELOOP},
          OddPath{"outer/file", ELOOP}, OddPath{"folder/file/x", ENOTDIR}, OddPath{"missing/file", ENOENT}})
    {
        SCOPED_TRACE(odd.path);
        TreeAccess tree(m_tree.Get());
        struct stat status;
        EXPECT_FALSE(tree.OpenFile(odd.path));
        EXPECT_EQ(errno, odd.error);
        EXPECT_FALSE(tree.FindStatus(odd.path, status));
        EXPECT_EQ(errno, odd.error);
        EXPECT_FALSE(tree.MakeFile(odd.path, false));
        EXPECT_EQ(errno, odd.error);
        EXPECT_FALSE(tree.MakeFolder(odd.path));
        EXPECT_EQ(errno, odd.error);
        EXPECT_FALSE(tree.MakeLink(odd.path, "file"));
        EXPECT_EQ(errno, odd.error);
    }
    EXPECT_EQ(m_place.Names("tree/folder"), before);
}

TEST_F(TreeAccessTest, LinkIsNotOpenedAndHasItsOwnStatus)
{
    TreeAccess tree(m_tree.Get());
    EXPECT_FALSE(tree.OpenFile("folder/link"));
    EXPECT_EQ(errno, ELOOP);
    struct stat status;
    ASSERT_TRUE(tree.FindStatus("folder/link", status));
    EXPECT_TRUE(S_ISLNK(status.st_mode));
    EXPECT_FALSE(tree.MakeFile("folder/link", false));
    EXPECT_EQ(errno, EEXIST);
}

/// The folder of the last path stays open.
TEST_F(TreeAccessTest, FolderThatALinkReplacesBetweenTwoFilesIsNotLeft)
{
    TreeAccess tree(m_tree.Get());
    ASSERT_TRUE(tree.MakeFile("folder/one", false));
    std::filesystem::rename(TreePath("folder"), TreePath("moved"));
    std::filesystem::create_symlink("../decoy", TreePath("folder"));
    EXPECT_TRUE(tree.MakeFile("folder/two", false));
    EXPECT_TRUE(std::filesystem::exists(TreePath("moved/two")));
    EXPECT_TRUE(tree.MakeFolder("other"));
    EXPECT_FALSE(tree.MakeFile("folder/three", false)) << "it is opened again, and is a link now";
    EXPECT_EQ(errno, ELOOP);
}

} // namespace
