// InstallTargetScene.h: an installed bundle, with other users, disks and mounts.
#pragma once

#include "Engine/core/base/PathText.h"
#include "Engine/core/helper/FolderSafety.h"
#include "Engine/core/update/InstallTarget.h"
#include "tests/installer/InstallerFixture.h"
#include "tests/installer/OtherUser.h"
#include "tests/support/Container.h"

#include <gtest/gtest.h>

#include <grp.h>
#include <sched.h>
#include <sys/mount.h>
#include <sys/syscall.h>
#include <sys/xattr.h>
#include <unistd.h>

namespace Pelnar::Testing
{

constexpr uid_t NOBODY = 65534;
constexpr uid_t SOMEBODY = 12345;

/// An installed bundle. The scene uses no packages of this machine.
class TargetScene
{
public:
    explicit TargetScene(std::string const& parent = "/tmp") : m_place(parent)
    {
        m_place.Put({{"place/", 'd', {}, 0755}, {"none/", 'd', {}, 0755}});
        m_place.Put(MakeBundle("1.0"), "place/");
        m_sources.dpkgInfoFolder = QString::fromStdString(m_place.Path() + "/none");
        m_sources.flatpakInfoFile = QString::fromStdString(m_place.Path() + "/none/file");
    }

    std::string Parent() const { return m_place.Path() + "/place"; }
    std::string Bundle() const { return Parent() + '/' + APP; }
    std::string const& Above() const { return m_place.Path(); }

    Engine::OpenedTarget Open(std::string const& path, quint64 neededBytes = 1) const
    {
        return OpenInstallTarget(Engine::PathText(path), neededBytes, m_sources);
    }

    /// Fails unless opening gives this cause. Returns the error.
    Engine::EngineError ExpectError(Engine::ErrorCause cause, std::string const& path = {},
                                    quint64 neededBytes = 1) const
    {
        auto const answer = Open(path.empty() ? Bundle() : path, neededBytes);
        auto const* const error = answer ? nullptr : &answer.error();
        EXPECT_NE(error, nullptr);
        Engine::EngineError const told = error ? *error : Engine::EngineError{};
        EXPECT_EQ(static_cast<int>(told.cause), static_cast<int>(cause)) << told.sentence.English().toStdString();
        EXPECT_EQ(told.code, cause == Engine::ErrorCause::NoRoomForUpdate ? Engine::ErrorCode::TemporaryFolder
                                                                          : Engine::ErrorCode::NotWritable);
        EXPECT_FALSE(told.sentence.English().contains(QLatin1Char('%'))) << told.sentence.English().toStdString();
        EXPECT_EQ(CauseWithoutPrograms(path, neededBytes), std::to_string(static_cast<int>(cause)));
        return told;
    }

    Engine::PackageSources& Sources() { return m_sources; }

private:
    /// The cause, found in a process that would die if it started a program. So no one is asked for more permissions.
    std::string CauseWithoutPrograms(std::string const& path, quint64 neededBytes) const
    {
        return InChild(
            [&]
            {
                KillAtCall(SYS_execve);
                KillAtCall(SYS_execveat);
                auto const answer = Open(path.empty() ? Bundle() : path, neededBytes);
                auto const* const error = answer ? nullptr : &answer.error();
                return error ? std::to_string(static_cast<int>(error->cause)) : std::string("opened");
            });
    }

    Workspace m_place;
    Engine::PackageSources m_sources;
};

/// Another effective user, without groups, while it lives. REQUIRES: the administrator.
class AsUser
{
public:
    explicit AsUser(uid_t user)
    {
        EXPECT_EQ(::setgroups(0, nullptr), 0);
        EXPECT_EQ(::setegid(user), 0);
        EXPECT_EQ(::seteuid(user), 0);
    }
    ~AsUser()
    {
        EXPECT_EQ(::seteuid(0), 0);
        EXPECT_EQ(::setegid(0), 0);
    }
};

/// Mounts of this process only. REQUIRES: the administrator.
[[nodiscard]] inline bool EnterOwnMounts()
{
    return ::unshare(CLONE_NEWNS) == 0 && ::mount("none", "/", nullptr, MS_REC | MS_PRIVATE, nullptr) == 0;
}

class Mount
{
public:
    Mount(char const* type, std::string const& source, std::string path, unsigned long flags, char const* options = "")
        : m_path(std::move(path))
    {
        EXPECT_EQ(::mount(source.c_str(), m_path.c_str(), type, flags, options), 0) << m_path;
    }
    ~Mount() { ::umount2(m_path.c_str(), MNT_DETACH); }
    Mount(Mount const&) = delete;
    Mount& operator=(Mount const&) = delete;

private:
    std::string m_path;
};

#define REQUIRE_ADMINISTRATOR()                                                                                        \
    if (::geteuid() != 0)                                                                                              \
    GTEST_SKIP() << "only root can give files away"
#define IN_CONTAINER(piece)                                                                                            \
    if (!RunInContainer(piece))                                                                                        \
    GTEST_SKIP() << "the kernel lets this user make no container, in which it may mount"

} // namespace Pelnar::Testing
