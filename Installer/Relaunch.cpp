#include "Installer/Relaunch.h"

#include "Engine/core/payload/StagingFolder.h"
#include "Engine/core/payload/UpdateFault.h"
#include "Installer/BundleInformation.h"

#include <cerrno>
#include <climits>

#include <fcntl.h>
#include <signal.h>
#include <spawn.h>
#include <sys/stat.h>
#include <unistd.h>

namespace Pelnar::Installer
{
namespace
{

using Engine::UniqueFd;
using Engine::UpdateFault;
using Engine::UpdateRefusal;

bool HasOnlyPlainComponents(std::string const& path)
{
    for (std::size_t begin = 1; begin < path.size();)
    {
        std::size_t const end = std::min(path.find('/', begin), path.size());
        std::string const part = path.substr(begin, end - begin);
        if (part.empty() || part == "." || part == "..")
        {
            return false;
        }
        begin = end + 1;
    }
    return path.size() > 1 && path.front() == '/' && path.size() < PATH_MAX;
}

/// Where the open folder stands, without any link in the path.
std::string RealPath(UniqueFd const& folder)
{
    std::string path(PATH_MAX, '\0');
    ssize_t const size =
        ::readlink(("/proc/self/fd/" + std::to_string(folder.Get())).c_str(), path.data(), path.size());
    if (size <= 0 || path.front() != '/' || static_cast<std::size_t>(size) == path.size())
    {
        throw UpdateRefusal(UpdateFault::RelaunchPathUnsafe, size < 0 ? errno : 0);
    }
    path.resize(static_cast<std::size_t>(size));
    return path;
}

bool IsProgramSafe(UniqueFd const& bundle, std::string const& executable)
{
    struct stat status;
    return ::fstatat(bundle.Get(), executable.c_str(), &status, AT_SYMLINK_NOFOLLOW) == 0 &&
           (status.st_uid == 0 || status.st_uid == ::geteuid()) && (status.st_mode & (S_IWGRP | S_IWOTH)) == 0;
}

} // namespace

RelaunchTarget FindRelaunchTarget(std::string const& bundlePath)
{
    if (!HasOnlyPlainComponents(bundlePath))
    {
        throw UpdateRefusal(UpdateFault::RelaunchPathUnsafe);
    }
    UniqueFd const bundle(::open(bundlePath.c_str(), O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC));
    if (!bundle || !Engine::IsSafeUpToTheRoot(bundle.Get()))
    {
        throw UpdateRefusal(UpdateFault::RelaunchPathUnsafe, bundle ? 0 : errno);
    }
    std::string const realPath = RealPath(bundle);
    try
    {
        std::string const name = realPath.substr(realPath.rfind('/') + 1);
        std::string const executable = ReadBundleInformation(bundle.Get(), name).executable;
        CheckExecutable(bundle.Get(), executable);
        if (IsProgramSafe(bundle, executable))
        {
            return {realPath + '/' + executable};
        }
    }
    catch (UpdateRefusal const&)
    {
        // Not a bundle, or none that runs here.
    }
    throw UpdateRefusal(UpdateFault::RelaunchPathUnsafe);
}

void Relaunch(RelaunchTarget const& target, std::vector<std::string> const& environment)
{
    std::string path = target.executablePath;
    char* arguments[] = {path.data(), nullptr};
    std::vector<std::string> copies = environment;
    std::vector<char*> variables;
    for (std::string& variable : copies)
    {
        variables.push_back(variable.data());
    }
    variables.push_back(nullptr);

    sigset_t none;
    sigset_t all;
    ::sigemptyset(&none);
    ::sigfillset(&all);
    posix_spawnattr_t attributes;
    ::posix_spawnattr_init(&attributes);
    ::posix_spawnattr_setflags(&attributes, POSIX_SPAWN_SETSID | POSIX_SPAWN_SETSIGMASK | POSIX_SPAWN_SETSIGDEF);
    ::posix_spawnattr_setsigmask(&attributes, &none);
    ::posix_spawnattr_setsigdefault(&attributes, &all);
    pid_t process = 0;
    int const error = ::posix_spawn(&process, path.c_str(), nullptr, &attributes, arguments, variables.data());
    ::posix_spawnattr_destroy(&attributes);
    if (error != 0)
    {
        throw UpdateRefusal(UpdateFault::RelaunchFailed, error);
    }
}

} // namespace Pelnar::Installer
