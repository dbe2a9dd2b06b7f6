// WatchStart.h: starts the bundle after an update, and watches a new version that must confirm a good start.
#pragma once

#include "Engine/core/faults/UpdateFault.h"
#include "Engine/core/helper/UpdateJob.h"
#include "Installer/OutcomeNote.h"
#include "Installer/ReportChannel.h"

#include <string>
#include <variant>
#include <vector>

#include <sys/types.h>

namespace Pelnar::Installer
{

using Arguments = std::vector<std::string>;

struct StartedBundle
{
    pid_t process;
    std::string path; ///< the bundle's real path
};

using StartResult = std::variant<StartedBundle, Engine::UpdateRefusal>;

/// The installed bundle's path in the folder \a parentFd, which may have been moved.
std::string InstalledPath(Engine::InstallJob const& job, int parentFd);

/// Starts the answered path if possible, otherwise the first possible one of \a places, where the installed bundle may
/// be, with \a arguments, and reports it. The result says why none started.
StartResult StartAgain(Engine::InstallJob const& job, Arguments const& arguments,
                       std::vector<std::string> const& places, ReportChannel const& report);

/// True if the update of \a job is installed and the host must confirm its start, as far as this can be read.
[[nodiscard]] bool AwaitsConfirmation(Engine::InstallJob const& job, int parentFd);

/// Starts the new version with \a arguments. Returns true once its start is confirmed, or a person has ended it. If it
/// fails (it does not start, or ends by itself with a status other than 0), it is started once more. If that fails too,
/// the previous version is restored and started without the arguments, \a note records this, and the result is false.
/// REQUIRES: AwaitsConfirmation.
[[nodiscard]] bool StartAndWatch(Engine::InstallJob const& job, Arguments const& arguments, int parentFd,
                                 ReportChannel const& report, OutcomeNote& note);

} // namespace Pelnar::Installer
