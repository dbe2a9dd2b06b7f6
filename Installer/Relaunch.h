// Relaunch.h: starts a bundle's program after an update.
// Ownership: the started process is the caller's child.
#pragma once

#include "Installer/ChildProcess.h"

#include <string>
#include <vector>

#include <sys/types.h>

namespace Pelnar::Installer
{

/// A program to start and its bundle, as real paths without links.
struct RelaunchTarget
{
    std::string bundlePath;
    std::string executablePath;
};

/// The program of the bundle at \a bundlePath. Throws UpdateRefusal: RelaunchPathUnsafe unless it is an absolute path
/// without ".." to a real folder, only the administrator and this user can change it up to the root, and it is a bundle
/// whose program this machine can run.
RelaunchTarget FindRelaunchTarget(std::string const& bundlePath);

/// Starts the program with its path and \a arguments, in its own session and with no signal blocked. If the system
/// cannot start a program with so many arguments together with its environment, it starts without them. Returns the
/// process's number. Throws UpdateRefusal: RelaunchFailed.
pid_t Relaunch(RelaunchTarget const& target, std::vector<std::string> const& arguments,
               Surroundings const& surroundings);

} // namespace Pelnar::Installer
