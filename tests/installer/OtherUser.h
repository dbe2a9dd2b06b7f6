// OtherUser.h: pieces of a test that run as another user of this machine, or under a filter of system calls, each in
// a process of its own. Thread: one.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include <sys/types.h>

namespace Pelnar::Testing
{

/// Two users who have nothing to do with each other, nor with this machine.
constexpr uid_t VICTIM = 12345;
constexpr uid_t ATTACKER = 23456;

/// What \a act answers in a process of its own; "killed by signal N" when it does not come back, and by SIGALRM after
/// \a seconds.
std::string InChild(std::function<std::string()> const& act, unsigned seconds = 60);
/// The same as \a user, without any group but the one of the same number. REQUIRES: the administrator.
std::string AsOtherUser(uid_t user, std::function<std::string()> const& act, unsigned seconds = 60);
/// The words that run a program as \a user.
std::vector<std::string> WordsAs(uid_t user);

/// Gives what stands there to \a user, folders with all that is in them.
void GiveTo(uid_t user, std::string const& path);

/// From here on the system call of this process, and of all that it starts, fails. For processes that end soon.
void FailCall(long call, int errorNumber);

/// The same, but who makes the call is killed by SIGSYS.
void KillAtCall(long call);

} // namespace Pelnar::Testing

#define REQUIRE_ADMINISTRATOR_FOR_USERS()                                                                              \
    if (::geteuid() != 0)                                                                                              \
    GTEST_SKIP() << "only root can be two other users"
