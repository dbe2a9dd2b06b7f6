#include "Installer/Relaunch.h"

#include "Engine/core/base/TreeAccess.h"
#include "Engine/core/bundle/CheckBundle.h"
#include "Engine/core/faults/UpdateFault.h"
#include "Engine/core/helper/FolderSafety.h"
#include "Engine/core/helper/StagingFolder.h"

#include <cerrno>
#include <climits>

#include <fcntl.h>

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

bool IsProgramSafe(UniqueFd const& bundle, std::string const& executable)
{
    UniqueFd const program = Engine::TreeAccess(bundle.Get()).OpenFile(executable);
    return program && Engine::IsSafeByItself(program.Get());
}

} // namespace

RelaunchTarget FindRelaunchTarget(std::string const& bundlePath)
{
    if (!HasOnlyPlainComponents(bundlePath))
    {
        throw UpdateRefusal(UpdateFault::RelaunchPathUnsafe);
    }
    UniqueFd const bundle = Engine::OpenFolder(AT_FDCWD, bundlePath);
    if (!bundle || !Engine::IsSafeUpToTheRoot(bundle.Get()))
    {
        throw UpdateRefusal(UpdateFault::RelaunchPathUnsafe, bundle ? 0 : errno);
    }
    std::string const realPath = Engine::RealPathOf(bundle.Get());
    if (realPath.empty())
    {
        throw UpdateRefusal(UpdateFault::RelaunchPathUnsafe);
    }
    try
    {
        std::string const name = realPath.substr(realPath.rfind('/') + 1);
        std::string const executable = Engine::ReadBundleInformation(bundle.Get(), name).executable;
        Engine::CheckExecutable(bundle.Get(), executable);
        if (IsProgramSafe(bundle, executable))
        {
            return {realPath, realPath + '/' + executable};
        }
    }
    catch (UpdateRefusal const&)
    {
        // It is not a bundle, or not for this machine.
    }
    throw UpdateRefusal(UpdateFault::RelaunchPathUnsafe);
}

pid_t Relaunch(RelaunchTarget const& target, std::vector<std::string> const& arguments,
               Surroundings const& surroundings)
{
    int error = 0;
    std::vector<std::string> words{target.executablePath};
    words.insert(words.end(), arguments.begin(), arguments.end());
    pid_t process = StartProgram(words, surroundings, error);
    if (process < 0 && error == E2BIG)
    {
        process = StartProgram({target.executablePath}, surroundings, error);
    }
    if (process < 0)
    {
        throw UpdateRefusal(UpdateFault::RelaunchFailed, error);
    }
    return process;
}

} // namespace Pelnar::Installer
