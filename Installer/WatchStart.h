// WatchStart.h: starting what an update leaves, and standing by a new version that has yet to tell that it started
// well. Thread: the process' only one. Ownership: descriptors stay the caller's.
#pragma once

#include "Engine/core/payload/UpdateFault.h"
#include "Engine/core/payload/UpdateJob.h"
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
    std::string path; ///< the bundle's real one
};

using StartResult = std::variant<StartedBundle, Engine::UpdateRefusal>;

/// Starts the answered path if that can be done, else the installed bundle, with \a arguments, and reports it; why not
/// when neither starts.
StartResult StartAgain(Engine::InstallJob const& job, Arguments const& arguments, ReportChannel const& report);

/// True when the update of \a job is installed and its start is the host's to confirm, as far as can be told.
[[nodiscard]] bool AwaitsConfirmation(Engine::InstallJob const& job, int parentFd);

/// Starts the new version with \a arguments and answers once its start is confirmed, or a person has ended it. When it
/// fails (it does not start, or ends by itself with another status than 0) it is started once more; when that fails
/// too, the previous version is put back and started without them, and \a note says so. False when it was. REQUIRES:
/// AwaitsConfirmation.
[[nodiscard]] bool StartAndWatch(Engine::InstallJob const& job, Arguments const& arguments, int parentFd,
                                 ReportChannel const& report, OutcomeNote& note);

} // namespace Pelnar::Installer
