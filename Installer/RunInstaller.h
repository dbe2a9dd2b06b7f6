// RunInstaller.h: runs the installer program of a verified and checked bundle.
#pragma once

#include "Engine/core/helper/UpdateJob.h"

#include <string>

namespace Pelnar::Installer
{

/// Starts the program of the bundle open at \a stagedFd, without a shell and in its own session. Its one argument is
/// the path of the installed bundle, and it gets the job's variables that a program with windows needs. Returns when it
/// has ended with status 0. Throws UpdateRefusal: InstallerNotStarted, InstallerFailed, InstallerTimedOut (the program
/// and its session's process group are killed). REQUIRES: the bundle has just been compared with the verified one.
void RunInstaller(Engine::InstallJob const& job, int stagedFd, std::string const& targetPath);

} // namespace Pelnar::Installer
