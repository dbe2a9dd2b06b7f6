#include "tests/installer/OtherUser.h"

#include "Engine/core/base/Descriptor.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <filesystem>

#include <fcntl.h>
#include <grp.h>
#include <linux/audit.h>
#include <linux/filter.h>
#include <linux/seccomp.h>
#include <sys/prctl.h>
#include <sys/uio.h>
#include <sys/wait.h>
#include <unistd.h>

namespace Pelnar::Testing
{

std::string InChild(std::function<std::string()> const& act, unsigned seconds)
{
    int ends[2];
    EXPECT_EQ(::pipe2(ends, O_CLOEXEC), 0);
    Engine::UniqueFd const reader(ends[0]);
    Engine::UniqueFd writer(ends[1]);
    pid_t const child = ::fork();
    if (child == 0)
    {
        ::alarm(seconds);
        std::string const answer = act();
        iovec const text{const_cast<char*>(answer.data()), answer.size()};
        // Not a call that a filter is likely to refuse.
        ::_exit(::writev(writer.Get(), &text, 1) == static_cast<ssize_t>(answer.size()) ? 0 : 1);
    }
    writer = Engine::UniqueFd();
    std::string answer;
    char buffer[4096];
    for (ssize_t count = 0; (count = ::read(reader.Get(), buffer, sizeof buffer)) > 0;)
    {
        answer.append(buffer, static_cast<std::size_t>(count));
    }
    int status = 0;
    EXPECT_EQ(::waitpid(child, &status, 0), child);
    return WIFSIGNALED(status) ? "killed by signal " + std::to_string(WTERMSIG(status)) : answer;
}

std::string AsOtherUser(uid_t user, std::function<std::string()> const& act, unsigned seconds)
{
    return InChild(
        [&]
        {
            bool const isOther = ::setgroups(0, nullptr) == 0 && ::setresgid(user, user, user) == 0 &&
                                 ::setresuid(user, user, user) == 0;
            return isOther ? act() : std::string("cannot become another user");
        },
        seconds);
}

std::vector<std::string> WordsAs(uid_t user)
{
    std::string const number = std::to_string(user);
    return {"/usr/bin/setpriv", "--reuid=" + number, "--regid=" + number, "--clear-groups"};
}

void GiveTo(uid_t user, std::string const& path)
{
    ASSERT_EQ(::lchown(path.c_str(), user, user), 0) << path;
    if (std::filesystem::is_directory(std::filesystem::symlink_status(path)))
    {
        for (auto const& entry : std::filesystem::directory_iterator(path))
        {
            GiveTo(user, entry.path().string());
        }
    }
}

namespace
{

void Filter(long call, unsigned answer)
{
    sock_filter rules[] = {
        BPF_STMT(BPF_LD | BPF_W | BPF_ABS, offsetof(seccomp_data, nr)),
        BPF_JUMP(BPF_JMP | BPF_JEQ | BPF_K, static_cast<unsigned>(call), 0, 1),
        BPF_STMT(BPF_RET | BPF_K, answer),
        BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_ALLOW),
    };
    sock_fprog const program{std::size(rules), rules};
    EXPECT_EQ(::prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0), 0);
    EXPECT_EQ(::prctl(PR_SET_SECCOMP, SECCOMP_MODE_FILTER, &program), 0);
}

} // namespace

void FailCall(long call, int errorNumber)
{
    Filter(call, SECCOMP_RET_ERRNO | (static_cast<unsigned>(errorNumber) & SECCOMP_RET_DATA));
}

void KillAtCall(long call)
{
    Filter(call, SECCOMP_RET_KILL_PROCESS);
}

} // namespace Pelnar::Testing
