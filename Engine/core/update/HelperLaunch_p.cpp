#include "Engine/core/update/HelperLaunch_p.h"

#include "Engine/core/delta/ContentHasher.h"
#include "Engine/core/payload/UpdateFault.h"
#include "Engine/core/payload/UpdateJob.h"

#include <array>
#include <cerrno>
#include <cstdlib>
#include <vector>

#include <fcntl.h>
#include <linux/close_range.h>
#include <signal.h>
#include <sys/mman.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

namespace Pelnar::Engine
{
namespace
{

constexpr std::size_t COPY_BYTES = 64 * 1024;
constexpr unsigned EXECUTABLE_MEMORY = 0x10; // MFD_EXEC, which the oldest supported headers do not name
constexpr int SEALS = F_SEAL_SEAL | F_SEAL_SHRINK | F_SEAL_GROW | F_SEAL_WRITE;
constexpr char PROGRAM_NAME[] = "pelnar-update-installer";

[[noreturn]] void Fail(UpdateFault fault = UpdateFault::HelperUnusable)
{
    throw UpdateRefusal(fault, errno);
}

UniqueFd MemoryFile(char const* name, unsigned flags)
{
    UniqueFd file(::memfd_create(name, MFD_CLOEXEC | MFD_ALLOW_SEALING | flags));
    if (!file && errno == EINVAL)
    {
        file = UniqueFd(::memfd_create(name, MFD_CLOEXEC | MFD_ALLOW_SEALING)); // a kernel before the flag
    }
    if (!file)
    {
        Fail();
    }
    return file;
}

/// Calls \a sink with the file's bytes from its beginning, in order.
template <typename Sink>
void ReadWhole(int fd, Sink const& sink)
{
    std::vector<std::uint8_t> buffer(COPY_BYTES);
    for (off_t place = 0;;)
    {
        ssize_t const count = ::pread(fd, buffer.data(), buffer.size(), place);
        if (count == 0)
        {
            return;
        }
        if (count > 0)
        {
            sink(Bytes(buffer.data(), static_cast<std::size_t>(count)));
            place += count;
        }
        else if (errno != EINTR)
        {
            Fail();
        }
    }
}

ContentHash HashOfFile(int fd)
{
    ContentHasher hasher;
    ReadWhole(fd, [&hasher](Bytes bytes) { hasher.Add(bytes); });
    return hasher.Finish();
}

void Write(UniqueFd const& file, Bytes bytes)
{
    if (!WriteAll(file.Get(), bytes))
    {
        Fail();
    }
}

void Seal(UniqueFd const& file)
{
    if (::fcntl(file.Get(), F_ADD_SEALS, SEALS) != 0)
    {
        Fail();
    }
}

UniqueFd SealedJob(std::string const& job)
{
    UniqueFd file = MemoryFile("job", 0);
    Write(file, Bytes(reinterpret_cast<std::uint8_t const*>(job.data()), job.size()));
    Seal(file);
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
    ::syscall(SYS_close_range, HelperDescriptors::COUNT, ~0u, CLOSE_RANGE_CLOEXEC);
    sigset_t none;
    ::sigemptyset(&none);
    ::sigprocmask(SIG_SETMASK, &none, nullptr);
    char const* const arguments[] = {PROGRAM_NAME, launch.mode, nullptr};
    char const* const environment[] = {nullptr};
    ::syscall(SYS_execveat, launch.program, "", arguments, environment, AT_EMPTY_PATH);
    return errno;
}

/// The child's process number. Deliberate: vfork, since a fork would copy the tables of a host that may be large, and
/// posix_spawn starts no program from a descriptor.
pid_t Fork(Launch const& launch)
{
    sigset_t all;
    sigset_t before;
    ::sigfillset(&all);
    ::pthread_sigmask(SIG_SETMASK, &all, &before);
    int volatile error = 0;
    pid_t const child = ::vfork();
    if (child == 0)
    {
        error = Become(launch);
        ::_exit(EXIT_FAILURE);
    }
    int const forkError = errno;
    ::pthread_sigmask(SIG_SETMASK, &before, nullptr);
    if (child < 0)
    {
        throw UpdateRefusal(UpdateFault::HelperUnusable, forkError);
    }
    if (error != 0)
    {
        ::waitpid(child, nullptr, 0);
        throw UpdateRefusal(UpdateFault::HelperUnusable, error);
    }
    return child;
}

} // namespace

SealedProgram::SealedProgram(std::string const& path)
{
    UniqueFd const source(::open(path.c_str(), O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC));
    struct stat status;
    if (!source || ::fstat(source.Get(), &status) != 0)
    {
        Fail();
    }
    bool const isOwnerTrusted = status.st_uid == 0 || status.st_uid == ::geteuid();
    if (!S_ISREG(status.st_mode) || !isOwnerTrusted || (status.st_mode & (S_IWGRP | S_IWOTH)) != 0)
    {
        throw UpdateRefusal(UpdateFault::HelperUnusable);
    }
    m_file = MemoryFile(PROGRAM_NAME, EXECUTABLE_MEMORY);
    ReadWhole(source.Get(), [this](Bytes bytes) { Write(m_file, bytes); });
    Seal(m_file);
    // A file that somebody writes while it is read can give a copy that was never in it.
    if (HashOfFile(m_file.Get()) != HashOfFile(source.Get()))
    {
        throw UpdateRefusal(UpdateFault::HelperUnusable);
    }
}

LaunchedHelper LaunchHelper(SealedProgram const& program, char const* mode, std::string const& job,
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
    helper.pid = Fork(launch);
    helper.process = UniqueFd(static_cast<int>(::syscall(SYS_pidfd_open, helper.pid, 0)));
    if (!helper.process)
    {
        int const error = errno;
        ::kill(helper.pid, SIGKILL);
        ::waitpid(helper.pid, nullptr, 0);
        throw UpdateRefusal(UpdateFault::HelperUnusable, error);
    }
    return helper;
}

} // namespace Pelnar::Engine
