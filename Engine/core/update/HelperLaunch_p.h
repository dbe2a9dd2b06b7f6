// HelperLaunch_p.h: how the helper's process comes to be: from bytes that nobody can change any more, with nothing of
// the host's but what it is given.
// Thread: any. Ownership: descriptors belong to the objects; the process is the caller's child to wait for.
#pragma once

#include "Engine/core/delta/TreeAccess.h"
#include "Engine/core/update/SealedProgram.h"

#include <map>
#include <optional>
#include <string>

#include <sys/types.h>

namespace Pelnar::Engine
{

/// What the report's pipe holds at most.
constexpr std::size_t HELPER_PIPE_BYTES = std::size_t{64} << 10;

/// Throws what a failed pidfd_open means.
[[noreturn]] void ThrowNoProcess(int errorNumber);

struct LaunchedHelper
{
    pid_t pid = -1;
    UniqueFd process; ///< a pidfd
    UniqueFd reports; ///< the reading end of the report, which does not block
};

/// Starts the program with \a mode as its one argument, no environment, no signal blocked or handled, and these
/// descriptors: the standard streams, the job, the report and \a inherited by their numbers. Throws UpdateRefusal.
LaunchedHelper LaunchHelper(SealedProgram& program, char const* mode, std::string const& job,
                            std::map<int, int> const& inherited);

/// Waits for the end of a child. Its exit status, or a signal's number below zero; nothing when that is not known: a
/// host that reaps every child, or ignores the ends of children, has taken the answer away.
std::optional<int> Reap(UniqueFd const& process);

} // namespace Pelnar::Engine
