// ChildProcess.h: starting a program, and waiting for a process' end.
// Thread: any. Ownership: descriptors stay the caller's; a started process is the caller's child.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include <sys/types.h>

namespace Pelnar::Installer
{

/// What a started program finds.
struct Surroundings
{
    std::vector<std::string> environment; ///< exactly this
    std::string workingFolder = {};       ///< empty, or not to be entered: the root
    mode_t creationMask = 022;
};

/// Starts the program that the first word names by its absolute path, with the words as its arguments, in a session of
/// its own, with no signal blocked. -1, with \a error an errno, when it does not start. REQUIRES: the process' only
/// thread, which stands in the root.
pid_t StartProgram(std::vector<std::string> words, Surroundings surroundings, int& error);

/// Waits until the process behind a pidfd has ended, at most \a seconds, 0: as long as it takes. False when it has not.
/// Throws UpdateRefusal: DescriptorUnusable.
[[nodiscard]] bool WaitForEnd(int processFd, std::uint64_t seconds);

} // namespace Pelnar::Installer
