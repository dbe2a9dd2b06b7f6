// HelperLaunch_p.h: starts the helper's process from bytes that nobody can change any more. The process gets only what
// is listed here from the host.
// Ownership: the objects own the descriptors; the caller waits for the child process.
#pragma once

#include "Engine/core/base/Descriptor.h"
#include "Engine/core/update/SealedProgram.h"

#include <map>
#include <optional>
#include <string>

#include <sys/types.h>

namespace Pelnar::Engine
{

/// The most that the report's pipe can hold.
constexpr std::size_t HELPER_PIPE_BYTES = std::size_t{64} << 10;

/// Throws the error for a failed pidfd_open.
[[noreturn]] void ThrowNoProcess(int errorNumber);

struct LaunchedHelper
{
    pid_t pid = -1;
    UniqueFd process; ///< a pidfd
    UniqueFd reports; ///< the reading end of the report, which does not block
};

/// Starts the program with \a mode as its one argument, no environment, no signal blocked or handled, and these
/// descriptors: the standard streams, the job, the report, and \a inherited by their numbers. Throws UpdateRefusal.
LaunchedHelper LaunchHelper(SealedProgram& program, char const* mode, std::string const& job,
                            std::map<int, int> const& inherited);

void KillHelper(UniqueFd const& process);

/// Waits for the end of a child. Returns its exit status, or a negated signal number. Empty if it is unknown: a host
/// that reaps every child, or ignores the ends of children, has removed the status.
std::optional<int> Reap(UniqueFd const& process);

} // namespace Pelnar::Engine
