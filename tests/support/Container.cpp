#include "tests/support/Container.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <iostream>
#include <string>

#include <fcntl.h>
#include <sched.h>
#include <sys/mount.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

namespace Pelnar::Testing
{
namespace
{

constexpr int KINDS = CLONE_NEWPID | CLONE_NEWNS;
constexpr int EXIT_NOT_PERMITTED = 77;
constexpr int EXIT_UNUSABLE = 78; // not because of a missing permission

[[nodiscard]] bool WriteOnce(char const* path, std::string const& text)
{
    int const file = ::open(path, O_WRONLY | O_CLOEXEC);
    bool const isWritten = file >= 0 && ::write(file, text.data(), text.size()) == static_cast<ssize_t>(text.size());
    return file >= 0 && ::close(file) == 0 && isWritten;
}

[[nodiscard]] bool EnterNamespaces()
{
    if (::geteuid() == 0 && ::unshare(KINDS) == 0)
    {
        return true;
    }
    std::string const user = std::to_string(::geteuid());
    std::string const group = std::to_string(::getegid());
    return ::unshare(KINDS | CLONE_NEWUSER) == 0 && WriteOnce("/proc/self/setgroups", "deny") &&
           WriteOnce("/proc/self/uid_map", user + ' ' + user + " 1") &&
           WriteOnce("/proc/self/gid_map", group + ' ' + group + " 1");
}

/// Puts each object of the machine's root folder into the new root folder at \a root.
[[nodiscard]] bool MountTheMachine(std::string const& root)
{
    for (auto const& entry : std::filesystem::directory_iterator("/"))
    {
        std::string const path = root + entry.path().string();
        if (entry.is_symlink())
        {
            std::filesystem::copy_symlink(entry.path(), path);
        }
        else if (entry.is_directory() &&
                 (::mkdir(path.c_str(), 0755) != 0 ||
                  ::mount(entry.path().c_str(), path.c_str(), nullptr, MS_BIND | MS_REC, nullptr) != 0))
        {
            return false;
        }
    }
    // The new root folder is in the folder for temporary files. It must not contain itself.
    return ::umount2((root + root).c_str(), MNT_DETACH) == 0;
}

[[nodiscard]] bool EnterOwnRoot()
{
    std::string root = "/tmp/pelnar-root-XXXXXX";
    if (::mount("none", "/", nullptr, MS_REC | MS_PRIVATE, nullptr) != 0 || !::mkdtemp(root.data()))
    {
        return false;
    }
    std::string const before = root + "/before";
    bool const isEntered = ::mount("none", root.c_str(), "tmpfs", 0, "mode=0755") == 0 && MountTheMachine(root) &&
                           ::mkdir(before.c_str(), 0755) == 0 &&
                           ::syscall(SYS_pivot_root, root.c_str(), before.c_str()) == 0 && ::chdir("/") == 0;
    // The machine's own root folder is no longer needed, nor is the mount point of the new one.
    return ::rmdir((isEntered ? "/before" + root : root).c_str()) == 0 && isEntered &&
           ::umount2("/before", MNT_DETACH) == 0 && ::rmdir("/before") == 0;
}

int WaitFor(pid_t process)
{
    int status = 0;
    EXPECT_EQ(::waitpid(process, &status, 0), process);
    return WIFEXITED(status) ? WEXITSTATUS(status) : EXIT_UNUSABLE;
}

[[noreturn]] void RunFirstProcess(std::function<void()> const& piece)
{
    piece();
    std::cout.flush();
    ::_exit(testing::Test::HasFailure() ? EXIT_FAILURE : EXIT_SUCCESS);
}

} // namespace

bool RunInContainer(std::function<void()> const& piece)
{
    std::cout.flush();
    pid_t const outer = ::fork();
    if (outer == 0)
    {
        if (!EnterNamespaces())
        {
            ::_exit(EXIT_NOT_PERMITTED);
        }
        if (!EnterOwnRoot())
        {
            std::cerr << "no container can be made: " << std::strerror(errno) << '\n';
            ::_exit(EXIT_UNUSABLE);
        }
        pid_t const first = ::fork(); // a process namespace begins with the next child
        if (first == 0)
        {
            RunFirstProcess(piece);
        }
        ::_exit(WaitFor(first));
    }
    int const status = WaitFor(outer);
    EXPECT_TRUE(status == EXIT_SUCCESS || status == EXIT_NOT_PERMITTED) << "see the failures in the container above";
    return status != EXIT_NOT_PERMITTED;
}

} // namespace Pelnar::Testing
