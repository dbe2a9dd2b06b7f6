#include "Engine/core/update/HelperLaunch_p.h"

#include "Engine/core/base/CloseDescriptors.h"
#include "Engine/core/base/SignalBlock.h"
#include "Engine/core/faults/UpdateFault.h"
#include "Engine/core/helper/UpdateJob.h"
#include "Engine/core/update/SealedMemory_p.h"

#include <array>
#include <cerrno>
#include <cstddef>
#include <cstdlib>
#include <string>
#include <vector>

#include <fcntl.h>
#include <sched.h>
#include <signal.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

namespace Pelnar::Engine
{
namespace
{

/// More than the few calls between clone and exec need.
constexpr std::size_t STACK_BYTES = std::size_t{256} << 10;

[[noreturn]] void Fail(UpdateFault fault = UpdateFault::HelperUnusable)
{
    throw UpdateRefusal(FaultUnlessLimit(errno, fault), errno);
}

UniqueFd SealedJob(std::string const& job)
{
    UniqueFd file = MakeMemoryFile("job", 0);
    AppendToMemory(file, View(job));
    SealMemory(file);
    if (::lseek(file.Get(), 0, SEEK_SET) != 0)
    {
        Fail();
    }
    return file;
}

/// A copy with a number above those of the helper's descriptors.
UniqueFd CopyHigh(int descriptor)
{
    UniqueFd copy(::fcntl(descriptor, F_DUPFD_CLOEXEC, HelperDescriptors::COUNT));
    if (!copy)
    {
        Fail(UpdateFault::DescriptorUnusable);
    }
    return copy;
}

/// Everything that the child needs, prepared before the child exists: between vfork and exec almost no call is allowed.
struct Launch
{
    int program = -1;
    std::string programPath; ///< the same, for a system that cannot start a program from its descriptor
    char const* mode = nullptr;
    std::array<int, HelperDescriptors::COUNT> sources{}; ///< by number; -1: to be closed
    int error = 0;                                       ///< an errno if the child does not become the helper
};

/// Runs in the child until it becomes the helper; returns an errno if it does not. It runs in the parent's memory, with
/// every signal blocked.
int Become(Launch const& launch)
{
    struct sigaction standard
    {
    };
    standard.sa_handler = SIG_DFL;
    for (int signal = 1; signal < NSIG; ++signal)
    {
        ::sigaction(signal, &standard, nullptr); // signals that cannot be set need no change
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
    // Only marked for closing: the program itself is among them.
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

int RunChild(void* launch)
{
    auto& child = *static_cast<Launch*>(launch);
    child.error = Become(child);
    ::_exit(EXIT_FAILURE);
}

/// Creates the child and a pidfd of it. Deliberate: the child runs in this process's memory until it becomes the
/// helper. A fork would copy the page tables of a possibly large host, and posix_spawn cannot start a program from a
/// descriptor. The pidfd is created with the child: a host may reap every child immediately, and then the number may
/// belong to another process.
void Fork(Launch& launch, LaunchedHelper& helper)
{
    SignalBlock const block;
    std::vector<std::max_align_t> stack(STACK_BYTES / sizeof(std::max_align_t));
    int process = -1;
    helper.pid = ::clone(&RunChild, stack.data() + stack.size(), CLONE_VM | CLONE_VFORK | CLONE_PIDFD | SIGCHLD,
                         &launch, &process);
    if (helper.pid < 0)
    {
        Fail();
    }
    helper.process = UniqueFd(process);
    if (launch.error != 0)
    {
        static_cast<void>(Reap(helper.process));
        errno = launch.error;
        Fail();
    }
}

} // namespace

void KillHelper(UniqueFd const& process)
{
    ::syscall(SYS_pidfd_send_signal, process.Get(), SIGKILL, nullptr, 0);
}

std::optional<int> Reap(UniqueFd const& process)
{
    siginfo_t status{};
    int answer = -1;
    do
    {
        answer = ::waitid(static_cast<idtype_t>(P_PIDFD), static_cast<id_t>(process.Get()), &status, WEXITED);
    } while (answer != 0 && errno == EINTR);
    if (answer != 0)
    {
        return std::nullopt;
    }
    return status.si_code == CLD_EXITED ? status.si_status : -status.si_status;
}

void ThrowNoProcess(int errorNumber)
{
    bool const isMissing = errorNumber == ENOSYS || errorNumber == EPERM;
    throw UpdateRefusal(isMissing ? UpdateFault::ProcessHandlesUnavailable
                                  : FaultUnlessLimit(errorNumber, UpdateFault::DescriptorUnusable),
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
    if (::fcntl(helper.reports.Get(), F_SETFL, O_NONBLOCK) != 0) // the writing end is a separate open file
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
    launch.programPath = DescriptorPath(launch.program);
    Fork(launch, helper);
    return helper;
}

} // namespace Pelnar::Engine
