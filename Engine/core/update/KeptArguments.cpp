#include "Engine/core/update/KeptArguments.h"

#include "Engine/core/faults/UpdateFault.h"
#include "Engine/core/helper/RelaunchArguments.h"
#include "Engine/core/update/SealedMemory_p.h"

#include <glog/logging.h>

#include <cerrno>
#include <cstring>

#include <fcntl.h>
#include <unistd.h>

namespace Pelnar::Engine
{

KeptArguments& KeptArguments::OfProcess()
{
    static KeptArguments& arguments = *new KeptArguments; // a host may call at any later time
    return arguments;
}

bool KeptArguments::Keep(std::vector<std::string> const& arguments)
{
    if (char const* const fault = FaultOfRelaunchArguments(arguments))
    {
        LOG(ERROR) << "The arguments for the next start are refused, because " << fault;
        return false;
    }
    m_arguments = arguments;
    bool const isWritten = !m_file || Write();
    LOG_IF(ERROR, !isWritten) << "The arguments for the next start cannot be passed on: " << std::strerror(errno);
    return isWritten;
}

void KeptArguments::Forget()
{
    m_arguments.clear();
    // No helper waits any more: the next one gets its own file.
    m_file = UniqueFd();
}

UniqueFd KeptArguments::Share()
{
    if (!m_file)
    {
        UniqueFd file = MakeMemoryFile("arguments", 0);
        std::swap(m_file, file);
        if (!Write())
        {
            int const errorNumber = errno;
            m_file = UniqueFd();
            throw UpdateRefusal(FaultUnlessLimit(errorNumber, UpdateFault::HelperUnusable), errorNumber);
        }
    }
    UniqueFd copy(::fcntl(m_file.Get(), F_DUPFD_CLOEXEC, 0));
    if (!copy)
    {
        throw UpdateRefusal(FaultUnlessLimit(errno, UpdateFault::DescriptorUnusable), errno);
    }
    return copy;
}

bool KeptArguments::Write() const
{
    std::string const bytes = EncodeRelaunchArguments(m_arguments);
    std::size_t const begin = RELAUNCH_ARGUMENTS_MAGIC.size();
    // The first bytes are written last: a process killed in between leaves an incomplete file, which counts as empty.
    return ::ftruncate(m_file.Get(), 0) == 0 && WriteAllAt(m_file.Get(), begin, View(bytes).substr(begin)) &&
           WriteAllAt(m_file.Get(), 0, View(RELAUNCH_ARGUMENTS_MAGIC));
}

} // namespace Pelnar::Engine
