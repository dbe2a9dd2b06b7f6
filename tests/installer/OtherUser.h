// OtherUser.h: runs parts of a test as another user of this machine, or with a filter of system calls, each in a
// separate process. Thread: one.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include <sys/types.h>

namespace Pelnar::Testing
{

/// Two users without any relation to each other or to this machine.
constexpr uid_t VICTIM = 12345;
constexpr uid_t ATTACKER = 23456;

/// The result of \a act in a separate process; "killed by signal N" if it does not return, with SIGALRM after \a
/// seconds.
std::string InChild(std::function<std::string()> const& act, unsigned seconds = 60);
/// The same as \a user, with only the group of the same number. REQUIRES: the administrator.
std::string AsOtherUser(uid_t user, std::function<std::string()> const& act, unsigned seconds = 60);
/// The words that run a program as \a user.
std::vector<std::string> WordsAs(uid_t user);

/// Gives the object at the path to \a user; folders with their content.
void GiveTo(uid_t user, std::string const& path);

/// From now on the system call fails in this process and in all programs that it starts. For processes that end soon.
void FailCall(long call, int errorNumber);

/// The same, but the caller is killed by SIGSYS.
void KillAtCall(long call);

} // namespace Pelnar::Testing

#define REQUIRE_ADMINISTRATOR_FOR_USERS()                                                                              \
    if (::geteuid() != 0)                                                                                              \
    GTEST_SKIP() << "only root can be two other users"
