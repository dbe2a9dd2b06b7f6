// Relaunch.h: starts a bundle's program after an update.
// Thread: any. Ownership: values only; the started process is the caller's child, whether it waits for it or not.
#pragma once

#include "Installer/ChildProcess.h"

#include <string>
#include <vector>

#include <sys/types.h>

namespace Pelnar::Installer
{

/// A program to start and its bundle: real paths, which no link can turn elsewhere any more.
struct RelaunchTarget
{
    std::string bundlePath;
    std::string executablePath;
};

/// The program of the bundle at \a bundlePath. Throws UpdateRefusal: RelaunchPathUnsafe unless it is an absolute path
/// without ".." to a real folder which only the administrator and this user can change, up to the root, and which is a
/// bundle whose program this machine can run.
RelaunchTarget FindRelaunchTarget(std::string const& bundlePath);

/// Starts the program with its path and \a arguments, its own session and no signal blocked; without the arguments
/// where the system starts nothing with so many beside its environment. Answers its number. Throws UpdateRefusal:
/// RelaunchFailed.
pid_t Relaunch(RelaunchTarget const& target, std::vector<std::string> const& arguments,
               Surroundings const& surroundings);

} // namespace Pelnar::Installer
