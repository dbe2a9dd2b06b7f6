// ProcessNamespaceTest.cpp: host and helper in a namespace of processes of their own, as in a container: their numbers
// are small, and the first of them is everybody's parent.

#include "tests/installer/FaultChecks.h"

#include <gtest/gtest.h>

#include <cstring>
#include <functional>

#include <fcntl.h>
#include <sched.h>
#include <sys/mount.h>
#include <sys/wait.h>
#include <unistd.h>

namespace
{

using namespace Pelnar::Engine;
using namespace Pelnar::Testing;

constexpr int EXIT_NOT_PERMITTED = 77;

[[nodiscard]] bool WriteOnce(char const* path, std::string const& text)
{
    UniqueFd const file(::open(path, O_WRONLY | O_CLOEXEC));
    return file && ::write(file.Get(), text.data(), text.size()) == static_cast<ssize_t>(text.size());
}

/// Makes this process, which has one thread, and its children known to themselves as the user that it is.
[[nodiscard]] bool EnterNamespaces()
{
    std::string const user = std::to_string(::geteuid());
    std::string const group = std::to_string(::getegid());
    return ::unshare(CLONE_NEWUSER | CLONE_NEWPID | CLONE_NEWNS) == 0 && WriteOnce("/proc/self/setgroups", "deny") &&
           WriteOnce("/proc/self/uid_map", user + ' ' + user + " 1") &&
           WriteOnce("/proc/self/gid_map", group + ' ' + group + " 1");
}

int WaitFor(pid_t process)
{
    int status = 0;
    EXPECT_EQ(::waitpid(process, &status, 0), process);
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

/// Runs \a test as the first process of a namespace; what it answers is its status.
int RunAsFirstProcess(std::function<int()> const& test)
{
    pid_t const outer = ::fork();
    if (outer != 0)
    {
        return WaitFor(outer);
    }
    if (!EnterNamespaces())
    {
        ::_exit(EXIT_NOT_PERMITTED);
    }
    pid_t const first = ::fork();
    if (first == 0)
    {
        ::_exit(::getpid() == 1 ? test() : EXIT_FAILURE);
    }
    ::_exit(WaitFor(first));
}

int UpdateOnce()
{
    UpdateScene scene;
    ExpectUpdated(scene);
    return testing::Test::HasFailure() ? EXIT_FAILURE : EXIT_SUCCESS;
}

TEST(ProcessNamespace, ChangesNothing)
{
    int const status = RunAsFirstProcess(&UpdateOnce);
    if (status == EXIT_NOT_PERMITTED)
    {
        GTEST_SKIP() << "the kernel permits no namespaces here";
    }
    EXPECT_EQ(status, EXIT_SUCCESS);
}

TEST(ProcessNamespace, WithFilesOfItsOwnProcessesChangesNothing)
{
    int const status = RunAsFirstProcess(
        []
        {
            bool const isMounted = ::mount("proc", "/proc", "proc", MS_NOSUID | MS_NODEV | MS_NOEXEC, nullptr) == 0;
            return isMounted ? UpdateOnce() : EXIT_NOT_PERMITTED;
        });
    if (status == EXIT_NOT_PERMITTED)
    {
        GTEST_SKIP() << "the kernel permits no namespaces here, or no view of their processes";
    }
    EXPECT_EQ(status, EXIT_SUCCESS);
}

} // namespace
