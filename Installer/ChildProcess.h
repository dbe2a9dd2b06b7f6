// ChildProcess.h: starts a program, and waits for a process's end.
// Ownership: callers own their descriptors; a started process is the caller's child.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include <sys/types.h>

namespace Pelnar::Installer
{

/// The surroundings of a started program.
struct Surroundings
{
    std::vector<std::string> environment; ///< the complete environment
    std::string workingFolder = {};       ///< empty, or if it cannot be entered: the root
    mode_t creationMask = 022;
};

/// Starts a program. The first word is its absolute path; all words are its arguments. It runs in its own session with
/// no signal blocked. Returns -1 and sets \a error to an errno if it does not start. REQUIRES: this thread is the only
/// one of the process, and its working folder is the root.
pid_t StartProgram(std::vector<std::string> words, Surroundings surroundings, int& error);

/// The wait status of this process's child, which ends soon or has ended. If the system gives no answer, it is asked
/// again a limited number of times; empty if the status stays unknown.
std::optional<int> StatusOf(pid_t child);
/// True if the program returned 0.
[[nodiscard]] bool HasSucceeded(std::optional<int> status);

enum class WaitEnd
{
    Ended, ///< the process
    TimedOut,
    Stopped, ///< something can be read from the other descriptor
};

/// Waits until the process behind a pidfd has ended, at most \a seconds; 0 means no limit. Waits no longer once
/// \a stopFd can be read; -1 for none. Throws UpdateRefusal: DescriptorUnusable.
[[nodiscard]] WaitEnd WaitForEnd(int processFd, std::uint64_t seconds, int stopFd = -1);

} // namespace Pelnar::Installer
