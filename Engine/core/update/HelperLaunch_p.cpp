#include "Engine/core/update/HelperLaunch_p.h"

#include "Engine/core/SignalBlock.h"
#include "Engine/core/payload/CloseDescriptors.h"
#include "Engine/core/payload/UpdateFault.h"
#include "Engine/core/payload/UpdateJob.h"
#include "Engine/core/update/SealedMemory_p.h"

#include <array>
#include <cerrno>
#include <cstdlib>
#include <string>
#include <vector>

#include <fcntl.h>
#include <signal.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

namespace Pelnar::Engine
{
namespace
{

[[noreturn]] void Fail(UpdateFault fault = UpdateFault::HelperUnusable)
{
    throw UpdateRefusal(fault, errno);
}

UniqueFd SealedJob(std::string const& job)
{
    UniqueFd file = MakeMemoryFile("job", 0);
    AppendToMemory(file, Bytes(reinterpret_cast<std::uint8_t const*>(job.data()), job.size()));
    SealMemory(file);
    if (::lseek(file.Get(), 0, SEEK_SET) != 0)
    {
        Fail();
    }
    return file;
}

/// A copy beyond the numbers that the helper's descriptors get.
UniqueFd CopyHigh(int descriptor)
{
    UniqueFd copy(::fcntl(descriptor, F_DUPFD_CLOEXEC, HelperDescriptors::COUNT));
    if (!copy)
    {
        Fail(UpdateFault::DescriptorUnusable);
    }
    return copy;
}

/// Everything that the child needs, made before there is one: between vfork and exec it may call almost nothing.
struct Launch
{
    int program = -1;
    std::string programPath; ///< the same, for a system that starts nothing by its descriptor
    char const* mode = nullptr;
    std::array<int, HelperDescriptors::COUNT> sources{}; ///< by number; -1: to be closed
};

/// The child's life until it is the helper; an errno when it does not become one. It runs in the parent's memory, with
/// every signal blocked.
int Become(Launch const& launch)
{
    struct sigaction standard
    {
    };
    standard.sa_handler = SIG_DFL;
    for (int signal = 1; signal < NSIG; ++signal)
    {
        ::sigaction(signal, &standard, nullptr); // those that cannot be set need not be
    }
    for (int number = HelperDescriptors::JOB; number < HelperDescriptors::COUNT; ++number)
    {
        int const source = launch.sources[static_cast<std::size_t>(number)];
        if (source < 0)
        {
            ::close(number);
        }
        else if (::dup2(source, number) < 0)
        {
            return errno;
        }
    }
    // Only marked: the program itself is among them.
    CloseOnExecFrom(HelperDescriptors::COUNT);
    sigset_t none;
    ::sigemptyset(&none);
    ::sigprocmask(SIG_SETMASK, &none, nullptr);
    char const* const arguments[] = {HELPER_NAME, launch.mode, nullptr};
    char const* const environment[] = {nullptr};
    ::syscall(SYS_execveat, launch.program, "", arguments, environment, AT_EMPTY_PATH);
    if (errno == ENOSYS || errno == EPERM)
    {
        ::execve(launch.programPath.data(), const_cast<char**>(arguments), const_cast<char**>(environment));
    }
    return errno;
}

/// The child's process number. Deliberate: vfork, since a fork would copy the tables of a host that may be large, and
/// posix_spawn starts no program from a descriptor.
pid_t Fork(Launch const& launch)
{
    SignalBlock const block;
    int volatile error = 0;
    pid_t const child = ::vfork();
    if (child == 0)
    {
        error = Become(launch);
        ::_exit(EXIT_FAILURE);
    }
    if (child < 0)
    {
        throw UpdateRefusal(UpdateFault::HelperUnusable, errno);
    }
    if (error != 0)
    {
        ::waitpid(child, nullptr, 0);
        throw UpdateRefusal(UpdateFault::HelperUnusable, error);
    }
    return child;
}

} // namespace

void ThrowNoProcess(int errorNumber)
{
    bool const isMissing = errorNumber == ENOSYS || errorNumber == EPERM;
    throw UpdateRefusal(isMissing ? UpdateFault::ProcessHandlesUnavailable : UpdateFault::DescriptorUnusable,
                        errorNumber);
}

LaunchedHelper LaunchHelper(SealedProgram& program, char const* mode, std::string const& job,
                            std::map<int, int> const& inherited)
{
    int ends[2];
    if (::pipe2(ends, O_CLOEXEC) != 0)
    {
        Fail();
    }
    LaunchedHelper helper;
    helper.reports = UniqueFd(ends[0]);
    UniqueFd const writer(ends[1]);
    if (::fcntl(helper.reports.Get(), F_SETFL, O_NONBLOCK) != 0) // the writing end is another opening
    {
        Fail();
    }
    std::map<int, int> numbers = inherited;
    UniqueFd const jobFile = SealedJob(job);
    numbers[HelperDescriptors::JOB] = jobFile.Get();
    numbers[HelperDescriptors::REPORT] = writer.Get();

    Launch launch;
    launch.mode = mode;
    launch.sources.fill(-1);
    std::vector<UniqueFd> copies;
    for (auto const& [number, descriptor] : numbers)
    {
        copies.push_back(CopyHigh(descriptor));
        launch.sources[static_cast<std::size_t>(number)] = copies.back().Get();
    }
    UniqueFd const programCopy = CopyHigh(program.Descriptor());
    launch.program = programCopy.Get();
    launch.programPath = "/proc/self/fd/" + std::to_string(launch.program);
    helper.pid = Fork(launch);
    helper.process = UniqueFd(static_cast<int>(::syscall(SYS_pidfd_open, helper.pid, 0)));
    if (!helper.process)
    {
        int const error = errno;
        ::kill(helper.pid, SIGKILL);
        ::waitpid(helper.pid, nullptr, 0);
        ThrowNoProcess(error);
    }
    return helper;
}

} // namespace Pelnar::Engine
