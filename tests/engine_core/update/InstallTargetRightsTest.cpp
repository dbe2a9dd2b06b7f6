// InstallTargetRightsTest.cpp: bundles and folders that belong to other users, or that others may change.

#include "Engine/core/base/PathText.h"
#include "Engine/core/helper/FolderSafety.h"
#include "Engine/core/update/InstallTarget.h"
#include "tests/engine_core/update/InstallTargetScene.h"
#include "tests/installer/InstallerFixture.h"
#include "tests/installer/OtherUser.h"
#include "tests/support/Container.h"

#include <gtest/gtest.h>

#include <fcntl.h>
#include <grp.h>
#include <sched.h>
#include <sys/mount.h>
#include <sys/prctl.h>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>

namespace
{

using namespace Pelnar::Engine;
using namespace Pelnar::Testing;

TEST(InstallTarget, AnotherUsersBundleIsRefused)
{
    REQUIRE_ADMINISTRATOR();
    TargetScene const scene;
    ASSERT_EQ(::chmod(scene.Above().c_str(), 0755), 0);
    {
        AsUser const nobody(NOBODY); // the bundle belongs to the administrator
        scene.ExpectError(ErrorCause::BundleOfAnotherUser);
    }
    GiveTo(SOMEBODY, scene.Parent());
    {
        AsUser const nobody(NOBODY);
        scene.ExpectError(ErrorCause::BundleOfAnotherUser);
    }
    scene.ExpectError(ErrorCause::BundleOfAnotherUser); // the administrator would take it away from its owner
}

TEST(InstallTarget, AnotherUsersFolderInTheBundleIsRefused)
{
    REQUIRE_ADMINISTRATOR();
    TargetScene const scene;
    ASSERT_EQ(::chmod(scene.Above().c_str(), 0755), 0);
    GiveTo(NOBODY, scene.Parent());
    for (uid_t const owner : {uid_t{0}, SOMEBODY})
    {
        GiveTo(owner, scene.Bundle() + "/Resources");
        AsUser const nobody(NOBODY);
        scene.ExpectError(ErrorCause::BundleOfAnotherUser);
    }
    GiveTo(NOBODY, scene.Bundle() + "/Resources");
    GiveTo(SOMEBODY, scene.Bundle() + "/run"); // the owner of the folder can remove this file too
    AsUser const nobody(NOBODY);
    EXPECT_TRUE(scene.Open(scene.Bundle()).has_value());
}

TEST(InstallTarget, FoldersThatMayNotBeChangedAreRefused)
{
    REQUIRE_ADMINISTRATOR();
    TargetScene const scene;
    ASSERT_EQ(::chmod(scene.Above().c_str(), 0755), 0);
    GiveTo(NOBODY, scene.Bundle());
    {
        AsUser const nobody(NOBODY); // the bundle belongs to them, the folder does not
        scene.ExpectError(ErrorCause::BundleNotWritable);
    }
    GiveTo(NOBODY, scene.Parent());
    {
        AsUser const nobody(NOBODY);
        EXPECT_TRUE(scene.Open(scene.Bundle()).has_value());
        ASSERT_EQ(::chmod(scene.Bundle().c_str(), 0555), 0);
        scene.ExpectError(ErrorCause::BundleNotWritable);
        ASSERT_EQ(::chmod(scene.Bundle().c_str(), 0755), 0);
        ASSERT_EQ(::chmod(scene.Parent().c_str(), 0555), 0);
        scene.ExpectError(ErrorCause::BundleNotWritable);
    }
    ASSERT_EQ(::chmod(scene.Above().c_str(), 0700), 0);
    AsUser const nobody(NOBODY);
    scene.ExpectError(ErrorCause::BundleNotWritable); // the bundle is not even visible
}

/// A user namespace in which this user is root and the machine's root is nobody.
std::string InUserNamespace(std::function<std::string()> const& act)
{
    std::string const map = "0 " + std::to_string(::geteuid()) + " 1";
    if (::unshare(CLONE_NEWUSER) != 0)
    {
        return "not permitted";
    }
    // After a change of the user the kernel gives this process's files in /proc to root.
    ::prctl(PR_SET_DUMPABLE, 1, 0, 0, 0);
    UniqueFd const file(::open("/proc/self/uid_map", O_WRONLY | O_CLOEXEC));
    bool const isMapped = ::write(file.Get(), map.data(), map.size()) == static_cast<ssize_t>(map.size());
    return isMapped ? act() : "not permitted";
}

TEST(InstallTarget, UserNamespaceThatHidesTheOwnersOfFoldersIsNamed)
{
    TargetScene const scene;
    auto const open = [&scene]
    {
        auto const opened = scene.Open(scene.Bundle());
        auto const* const error = opened ? nullptr : &opened.error();
        return !error                                          ? std::string("opened")
               : error->cause == ErrorCause::BundleOwnerHidden ? error->sentence.English().toStdString()
                                                               : std::to_string(static_cast<int>(error->cause));
    };
    auto const inNamespace = [&open] { return InUserNamespace(open); };
    std::string answer;
    if (::geteuid() == 0)
    {
        ASSERT_EQ(::chmod(scene.Above().c_str(), 0755), 0);
        GiveTo(VICTIM, scene.Above());
        answer = AsOtherUser(VICTIM, inNamespace);
    }
    else
    {
        answer = InChild(inNamespace);
    }
    if (answer == "not permitted")
    {
        GTEST_SKIP() << "this user may make no user namespace";
    }
    EXPECT_EQ(answer,
              "The application runs in a container that hides the owner of the folder \"/tmp\". Start it outside "
              "the container to update it.");
}

TEST(InstallTarget, FoldersThatOthersMayChangeAreRefused)
{
    TargetScene const scene;
    for (std::string const& path : {scene.Bundle(), scene.Parent(), scene.Above()})
    {
        ASSERT_EQ(::chmod(path.c_str(), 0777), 0);
        scene.ExpectError(ErrorCause::BundleFolderUnsafe);
        ASSERT_EQ(::chmod(path.c_str(), 0755), 0);
    }
    EXPECT_TRUE(scene.Open(scene.Bundle()).has_value());
}

TEST(InstallTarget, FolderThatAllMayWriteToHoldsNoApplicationEvenWhereNamesAreSafe)
{
    TargetScene const scene;
    for (std::string const& path : {scene.Bundle(), scene.Parent()})
    {
        ASSERT_EQ(::chmod(path.c_str(), 01777), 0);
        EngineError const error = scene.ExpectError(ErrorCause::BundleInSharedFolder);
        EXPECT_TRUE(error.sentence.English().contains(QStringLiteral("the folder ") + QString::fromStdString(path)))
            << error.sentence.English().toStdString();
        ASSERT_EQ(::chmod(path.c_str(), 0755), 0);
    }
    ASSERT_EQ(::chmod(scene.Above().c_str(), 01777), 0); // like /tmp: each object belongs to its owner
    EXPECT_TRUE(scene.Open(scene.Bundle()).has_value());
}

struct GroupRow
{
    char const* name;
    char const* users;  ///< lines of the user database
    char const* groups; ///< lines of the group database
    bool isPrivate;
};

class GroupsFolder : public testing::TestWithParam<GroupRow>
{
};

/// The folder belongs to the user "me" and to the group 12345, which may write to it.
TEST_P(GroupsFolder, IsTheUsersOwnOrToldWithTheCommandThatMendsIt)
{
    REQUIRE_ADMINISTRATOR();
    GroupRow const& row = GetParam();
    TargetScene const scene;
    ASSERT_EQ(::chmod(scene.Above().c_str(), 0755), 0);
    GiveTo(SOMEBODY, scene.Parent());
    std::string const lists = scene.Above() + "/none/";
    WriteFile(lists + "passwd", row.users);
    WriteFile(lists + "group", row.groups);
    for (mode_t const mode : {0775, 02775})
    {
        for (std::string const& path : {scene.Bundle(), scene.Parent()})
        {
            ASSERT_EQ(::chmod(path.c_str(), mode), 0);
            ASSERT_EQ(::chmod((scene.Bundle() + "/run").c_str(), 0775), 0);
            std::string const told = AsOtherUser(
                0,
                [&]
                {
                    if (!EnterOwnMounts() || ::mount((lists + "passwd").c_str(), "/etc/passwd", "", MS_BIND, "") != 0 ||
                        ::mount((lists + "group").c_str(), "/etc/group", "", MS_BIND, "") != 0 ||
                        ::seteuid(SOMEBODY) != 0)
                    {
                        return std::string("cannot change the lists");
                    }
                    UniqueFd const program(::open((scene.Bundle() + "/run").c_str(), O_RDONLY | O_CLOEXEC));
                    if (IsSafeByItself(program.Get()) != row.isPrivate)
                    {
                        return std::string("files are judged in another way");
                    }
                    auto const answer = scene.Open(scene.Bundle());
                    auto const* const error = answer ? nullptr : &answer.error();
                    return error ? error->sentence.English().toStdString() : std::string("opened");
                });
            std::string const refusal =
                "The members of the group \"ours\" can change the application's folder. Use the command \"chmod g-w '" +
                path + "'\".";
            EXPECT_EQ(told, row.isPrivate ? "opened" : refusal);
            ASSERT_EQ(::chmod(path.c_str(), 0755), 0);
        }
    }
}

constexpr char ONLY_ME[] = "root:x:0:0::/:/bin/sh\nours:x:12345:12345::/:/bin/sh\n";

INSTANTIATE_TEST_SUITE_P(
    Table, GroupsFolder,
    testing::Values(
        GroupRow{"OfOne", ONLY_ME, "ours:x:12345:\n", true},
        GroupRow{"OfOneWhoIsListed", ONLY_ME, "ours:x:12345:ours\n", true},
        GroupRow{"OfTwo", ONLY_ME, "ours:x:12345:ours,other\n", false},
        GroupRow{"OfAnother", ONLY_ME, "ours:x:12345:other\n", false},
        GroupRow{"ThatAnotherUserHasFirst",
                 "root:x:0:0::/:/bin/sh\nours:x:12345:12345::/:/bin/sh\nb:x:7:12345::/:/bin/sh\n", "ours:x:12345:\n",
                 false},
        GroupRow{"OfAnotherName", "root:x:0:0::/:/bin/sh\nme:x:12345:12345::/:/bin/sh\n", "ours:x:12345:\n", false},
        GroupRow{"NotTheUsersFirst", "root:x:0:0::/:/bin/sh\nours:x:12345:100::/:/bin/sh\n", "ours:x:12345:\n", false},
        GroupRow{"OfAUserWhoIsNotListed", "root:x:0:0::/:/bin/sh\n", "ours:x:12345:\n", false}),
    [](testing::TestParamInfo<GroupRow> const& info) { return info.param.name; });

struct AccessListRow
{
    char const* name;
    std::uint16_t tag; ///< of the one entry beside those of the mode
    std::uint32_t id;  ///< 0 for this user
    std::uint16_t mask;
    std::optional<ErrorCause> cause;
    char const* sentence;
};

class AccessList : public testing::TestWithParam<AccessListRow>
{
};

TEST_P(AccessList, NamesWhoMayWrite)
{
    constexpr std::uint16_t USER = 2;
    AccessListRow const& row = GetParam();
    TargetScene const scene;
    std::uint32_t const id = row.id != 0 ? row.id : ::geteuid();
    auto const entry = [](std::uint16_t tag, std::uint32_t rights) { return tag | rights << 16; };
    // user::rwx, the entry with rwx, group::r-x, the mask, other::r-x. A named group comes after group::.
    std::vector<std::uint32_t> list{2, entry(1, 7), ~0u};
    std::vector<std::uint32_t> const named{entry(row.tag, 7), id};
    std::vector<std::uint32_t> const group{entry(4, 5), ~0u};
    for (auto const* const part : {row.tag == USER ? &named : &group, row.tag == USER ? &group : &named})
    {
        list.insert(list.end(), part->begin(), part->end());
    }
    list.insert(list.end(), {entry(0x10, row.mask), ~0u, entry(0x20, 5), ~0u});
    if (::setxattr(scene.Parent().c_str(), "system.posix_acl_access", list.data(), list.size() * 4, 0) != 0)
    {
        GTEST_SKIP() << "this file system has no access lists";
    }
    auto const opened = scene.Open(scene.Bundle());
    ASSERT_EQ(!opened, row.cause.has_value());
    if (row.cause)
    {
        EXPECT_EQ(opened.error().cause, *row.cause);
        EXPECT_EQ(opened.error().sentence.English().toStdString().rfind(row.sentence, 0), 0u)
            << opened.error().sentence.English().toStdString();
        // The command helps.
        ASSERT_EQ(std::system(("chmod g-w '" + scene.Parent() + "'").c_str()), 0);
        EXPECT_TRUE(scene.Open(scene.Bundle()));
    }
}

INSTANTIATE_TEST_SUITE_P(
    Table, AccessList,
    testing::Values(AccessListRow{"AnotherUser", 2, 54321, 7, ErrorCause::BundleOpenToUser,
                                  "The user \"54321\" can change the application's folder. "},
                    AccessListRow{"AnotherGroup", 8, 54321, 7, ErrorCause::BundleOpenToGroup,
                                  "The members of the group \"54321\" can change the application's folder. "},
                    AccessListRow{"AnotherUserBehindTheMask", 2, 54321, 5, std::nullopt, ""},
                    AccessListRow{"ThisUser", 2, 0, 7, std::nullopt, ""}),
    [](testing::TestParamInfo<AccessListRow> const& info) { return info.param.name; });

} // namespace
