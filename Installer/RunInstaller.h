// RunInstaller.h: runs the program of a verified and checked bundle that installs a new version by itself.
// Thread: the process' only one. Ownership: descriptors stay the caller's.
#pragma once

#include "Engine/core/payload/UpdateJob.h"

#include <string>

namespace Pelnar::Installer
{

/// Starts the program of the bundle open at \a stagedFd, without a shell, in a session of its own, with the path of the
/// installed bundle as its one argument and those of the job's variables that a program with windows needs. Answers
/// when it has ended with the status 0. Throws UpdateRefusal: InstallerNotStarted, InstallerFailed, InstallerTimedOut
/// (then it is ended, with all that it left in its session's group). REQUIRES: the bundle has just been compared with
/// what was verified.
void RunInstaller(Engine::InstallJob const& job, int stagedFd, std::string const& targetPath);

} // namespace Pelnar::Installer
