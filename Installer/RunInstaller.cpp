#include "Installer/RunInstaller.h"

#include "Engine/core/base/Descriptor.h"
#include "Engine/core/bundle/CheckBundle.h"
#include "Engine/core/faults/UpdateFault.h"
#include "Engine/core/helper/StagingFolder.h"
#include "Installer/ChildProcess.h"

#include <algorithm>
#include <cerrno>
#include <iterator>
#include <optional>
#include <string_view>

#include <signal.h>
#include <sys/syscall.h>
#include <unistd.h>

namespace Pelnar::Installer
{
namespace
{

using Engine::UniqueFd;
using Engine::UpdateFault;
using Engine::UpdateRefusal;

constexpr char SEARCH_PATH[] = "PATH=/usr/sbin:/usr/bin:/sbin:/bin";

/// Variables about the person and the screen. None of them affects the program's loader or libraries.
constexpr std::string_view VARIABLES[] = {"HOME",
                                          "USER",
                                          "LOGNAME",
                                          "LANG",
                                          "LANGUAGE",
                                          "TZ",
                                          "DISPLAY",
                                          "WAYLAND_DISPLAY",
                                          "XAUTHORITY",
                                          "XDG_RUNTIME_DIR",
                                          "XDG_SESSION_TYPE",
                                          "XDG_CURRENT_DESKTOP",
                                          "DBUS_SESSION_BUS_ADDRESS"};
constexpr std::string_view LOCALE_PREFIX = "LC_";

std::vector<std::string> EnvironmentOf(std::vector<std::string> const& variables)
{
    std::vector<std::string> environment{SEARCH_PATH};
    for (std::string const& variable : variables)
    {
        std::string_view const name = std::string_view(variable).substr(0, variable.find('='));
        if (name.substr(0, LOCALE_PREFIX.size()) == LOCALE_PREFIX ||
            std::find(std::begin(VARIABLES), std::end(VARIABLES), name) != std::end(VARIABLES))
        {
            environment.push_back(variable);
        }
    }
    return environment;
}

} // namespace

void RunInstaller(Engine::InstallJob const& job, int stagedFd, std::string const& targetPath)
{
    std::string const folder = Engine::RealPathOf(stagedFd);
    if (folder.empty() || targetPath.empty())
    {
        throw UpdateRefusal(UpdateFault::InstallerNotStarted, ENAMETOOLONG);
    }
    std::string const executable = Engine::ReadBundleInformation(stagedFd, job.stagedName).executable;
    int error = 0;
    pid_t const process =
        StartProgram({folder + '/' + executable, targetPath}, {EnvironmentOf(job.environment)}, error);
    if (process < 0)
    {
        throw UpdateRefusal(UpdateFault::InstallerNotStarted, error);
    }
    UniqueFd const ended(static_cast<int>(::syscall(SYS_pidfd_open, process, 0)));
    bool const isInTime = ended && WaitForEnd(ended.Get(), job.installerSeconds) == WaitEnd::Ended;
    if (!isInTime)
    {
        ::kill(-process, SIGKILL); // the process group of the session's first process has the same number
    }
    std::optional<int> const status = StatusOf(process);
    if (!isInTime)
    {
        throw UpdateRefusal(UpdateFault::InstallerTimedOut);
    }
    if (!HasSucceeded(status))
    {
        throw UpdateRefusal(UpdateFault::InstallerFailed);
    }
}

} // namespace Pelnar::Installer
