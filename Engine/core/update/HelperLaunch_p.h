// HelperLaunch_p.h: how the helper's process comes to be: from bytes that nobody can change any more, with nothing of
// the host's but what it is given.
// Thread: any. Ownership: descriptors belong to the objects; the process is the caller's child to wait for.
#pragma once

#include "Engine/core/delta/TreeAccess.h"

#include <map>
#include <string>

#include <sys/types.h>

namespace Pelnar::Engine
{

/// What the report's pipe holds at most.
constexpr std::size_t HELPER_PIPE_BYTES = std::size_t{64} << 10;

/// A copy of a program in memory, sealed against every change.
class SealedProgram
{
public:
    /// Copies the file at the absolute \a path. Throws UpdateRefusal: HelperUnusable when it is no regular file, when
    /// anybody but the administrator and this user could change it, or when it did change while it was copied.
    explicit SealedProgram(std::string const& path);

    int Descriptor() const { return m_file.Get(); }

private:
    UniqueFd m_file;
};

struct LaunchedHelper
{
    pid_t pid = -1;
    UniqueFd process; ///< a pidfd
    UniqueFd reports; ///< the reading end of the report, which does not block
};

/// Starts the program with \a mode as its one argument, no environment, no signal blocked or handled, and these
/// descriptors: the standard streams, the job, the report and \a inherited by their numbers. Throws UpdateRefusal.
LaunchedHelper LaunchHelper(SealedProgram const& program, char const* mode, std::string const& job,
                            std::map<int, int> const& inherited);

} // namespace Pelnar::Engine
