#include "tests/installer/CallTracer.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cerrno>
#include <climits>
#include <csignal>
#include <filesystem>
#include <fstream>
#include <map>
#include <set>
#include <string>

#include <fcntl.h>
#include <linux/ptrace.h>
#include <sys/syscall.h>
#include <sys/uio.h>
#include <sys/user.h>
#include <sys/wait.h>
#include <unistd.h>

namespace Pelnar::Testing
{
namespace
{

constexpr int SYSCALL_STOP = SIGTRAP | 0x80;
constexpr long OPTIONS = PTRACE_O_TRACESYSGOOD | PTRACE_O_TRACEFORK | PTRACE_O_TRACEVFORK | PTRACE_O_TRACECLONE |
                         PTRACE_O_TRACEEXEC | PTRACE_O_EXITKILL;

long Trace(long request, pid_t process, unsigned long address, unsigned long data)
{
    return ::syscall(SYS_ptrace, request, process, address, data);
}

template <typename Value>
unsigned long AddressOf(Value& value)
{
    return reinterpret_cast<unsigned long>(&value);
}

class Tracer
{
public:
    Tracer(pid_t root, CallVisitor const& visitor, IsFirstCall isFirst)
        : m_root(root), m_visitor(visitor), m_isFirst(isFirst)
    {
    }

    TracedEnd Run()
    {
        EXPECT_EQ(Trace(PTRACE_SEIZE, m_root, 0, OPTIONS), 0) << errno;
        EXPECT_EQ(Trace(PTRACE_INTERRUPT, m_root, 0, 0), 0) << errno;
        m_processes.insert(m_root);
        while (!m_processes.empty())
        {
            int status = 0;
            pid_t const process = ::waitpid(-1, &status, __WALL);
            if (process < 0)
            {
                ADD_FAILURE() << "lost the traced process: " << errno;
                break;
            }
            if (WIFSTOPPED(status))
            {
                m_processes.insert(process);
                OnStop(process, status);
            }
            else
            {
                m_processes.erase(process);
                m_end.waitStatus = process == m_root ? status : m_end.waitStatus;
            }
        }
        KillUnheardOf();
        return m_end;
    }

private:
    /// A process that was just forked is still unknown if its parent has been killed. It would stay stopped for ever.
    static void KillUnheardOf()
    {
        std::string const tracer = "TracerPid:\t" + std::to_string(::gettid()) + '\n';
        for (auto const& entry : std::filesystem::directory_iterator("/proc"))
        {
            std::string const name = entry.path().filename();
            std::ifstream file(entry.path() / "status");
            std::string status;
            std::getline(file, status, '\0'); // the whole file; empty if the process has just ended
            if (name.find_first_not_of("0123456789") == std::string::npos && status.find(tracer) != std::string::npos)
            {
                pid_t const process = std::stoi(name);
                ::kill(process, SIGKILL);
                ::waitpid(process, nullptr, __WALL);
            }
        }
    }

    void OnStop(pid_t process, int status)
    {
        int const signal = WSTOPSIG(status);
        int const event = status >> 16;
        if (event == PTRACE_EVENT_EXEC && (process != m_root || m_isOwnCode))
        {
            m_processes.erase(process); // a program that the helper starts
            Trace(PTRACE_DETACH, process, 0, 0);
            return;
        }
        if (event == PTRACE_EVENT_VFORK)
        {
            unsigned long child = 0;
            Trace(PTRACE_GETEVENTMSG, process, 0, AddressOf(child));
            m_starting.insert(static_cast<pid_t>(child));
        }
        if (signal == SYSCALL_STOP)
        {
            OnCall(process);
        }
        bool const isSignal = event == 0 && signal != SYSCALL_STOP;
        // Fails if the process has just been killed. The next wait reports this.
        Trace(PTRACE_SYSCALL, process, 0, isSignal ? static_cast<unsigned long>(signal) : 0);
    }

    void OnCall(pid_t process)
    {
        ptrace_syscall_info info{};
        if (Trace(PTRACE_GET_SYSCALL_INFO, process, sizeof info, AddressOf(info)) <= 0)
        {
            return;
        }
        if (info.op == PTRACE_SYSCALL_INFO_EXIT)
        {
            Finish(process, info.exit.rval);
            return;
        }
        CallStop stop{static_cast<int>(m_end.answers.size()), static_cast<long>(info.entry.nr), process, {}};
        std::copy(std::begin(info.entry.args), std::end(info.entry.args), stop.arguments.begin());
        m_isOwnCode = m_isOwnCode || m_isFirst(stop);
        if (m_isOwnCode)
        {
            m_index[process] = stop.index;
            m_end.answers.push_back(0);
            CarryOut(stop, m_visitor(stop));
        }
    }

    void CarryOut(CallStop const& stop, CallVerdict const& verdict)
    {
        switch (verdict.kind)
        {
        case CallVerdict::Kind::GoOn:
            return;
        case CallVerdict::Kind::Fail:
            if (stop.call == SYS_brk)
            {
                // This call has no errors. Asked for address 0, it returns the end of the memory and does not move it.
                Count(stop.process,
                      ChangeRegisters(stop.process, [](user_regs_struct& registers) { registers.rdi = 0; }) &&
                          stop.arguments[0] != 0);
                return;
            }
            m_answers[stop.process] = -verdict.number;
            ChangeRegisters(stop.process, [](user_regs_struct& registers) { registers.orig_rax = ~0ull; });
            return;
        case CallVerdict::Kind::Shorten:
            m_shortened.insert(stop.process);
            ChangeRegisters(stop.process, [](user_regs_struct& registers) { registers.rdx = 1; });
            return;
        case CallVerdict::Kind::KillAll:
            Count(stop.process, SignalAll(SIGKILL));
            return;
        case CallVerdict::Kind::SignalAll:
            Count(stop.process, SignalAll(verdict.number));
            return;
        }
    }

    /// Records that the verdict has affected the current call of the process.
    void Count(pid_t process, bool hasChangedSomething)
    {
        if (hasChangedSomething)
        {
            m_end.faulted.insert(m_index.at(process));
        }
    }

    /// True if at least one process got it.
    bool SignalAll(int signal)
    {
        bool isSent = false;
        for (pid_t const process : m_processes)
        {
            if (signal == SIGKILL || m_starting.count(process) == 0)
            {
                isSent = ::kill(process, signal) == 0 || isSent;
            }
        }
        return isSent;
    }

    void Finish(pid_t process, std::int64_t result)
    {
        auto const index = m_index.find(process);
        if (index != m_index.end())
        {
            m_end.answers[static_cast<std::size_t>(index->second)] = result;
        }
        Count(process, m_shortened.erase(process) != 0 && result == 1);
        auto const answer = m_answers.find(process);
        if (answer == m_answers.end())
        {
            return;
        }
        auto const value = static_cast<unsigned long long>(static_cast<long long>(answer->second));
        Count(process, ChangeRegisters(process, [value](user_regs_struct& registers) { registers.rax = value; }));
        m_answers.erase(answer);
    }

    /// False when the process has gone.
    template <typename Change>
    bool ChangeRegisters(pid_t process, Change const& change)
    {
        user_regs_struct registers{};
        if (Trace(PTRACE_GETREGS, process, 0, AddressOf(registers)) != 0)
        {
            return false;
        }
        change(registers);
        return Trace(PTRACE_SETREGS, process, 0, AddressOf(registers)) == 0;
    }

    pid_t m_root;
    CallVisitor const& m_visitor;
    IsFirstCall m_isFirst;
    std::set<pid_t> m_processes;
    std::set<pid_t> m_starting;     // programs that the helper starts, before they are themselves
    std::map<pid_t, int> m_answers; // the faked results of the calls that are being made
    std::set<pid_t> m_shortened;    // the running call of each moves one byte
    std::map<pid_t, int> m_index;   // of the last call
    TracedEnd m_end;
    bool m_isOwnCode = false;
};

} // namespace

std::vector<std::string> StartWhenTraced()
{
    // It must not stop: a shell that ends leaves an orphaned process group, and the kernel ends such a group with
    // SIGHUP if one of its processes is stopped.
    return {"/bin/sh", "-c",
            "tracer=0; while [ \"$tracer\" = 0 ]; do"
            " while read -r key value; do [ \"$key\" != TracerPid: ] || tracer=$value; done </proc/$$/status || exit "
            "126; done;"
            " exec \"$@\"",
            "sh"};
}

bool IsChangeOfFolder(CallStop const& stop)
{
    return stop.call == SYS_chdir;
}

TracedEnd TraceToTheEnd(pid_t process, CallVisitor const& visitor, IsFirstCall isFirst)
{
    return Tracer(process, visitor, isFirst).Run();
}

TracedEnd TraceProgram(std::vector<std::string> words, std::string const& output, CallVisitor const& visitor,
                       IsFirstCall isFirst)
{
    std::vector<std::string> all = StartWhenTraced();
    all.insert(all.end(), words.begin(), words.end());
    std::vector<char*> pointers;
    for (std::string& word : all)
    {
        pointers.push_back(word.data());
    }
    pointers.push_back(nullptr);
    pid_t const process = ::fork();
    if (process == 0)
    {
        int const file = ::open(output.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0600);
        ::dup2(file, STDOUT_FILENO);
        ::dup2(file, STDERR_FILENO);
        ::execv(pointers[0], pointers.data());
        ::_exit(127);
    }
    if (process < 0)
    {
        ADD_FAILURE() << "no process can be made: " << errno;
        return {};
    }
    return TraceToTheEnd(process, visitor, isFirst);
}

bool CanBeShortened(long call, std::int64_t answer)
{
    std::set<long> const partial{SYS_read, SYS_pread64, SYS_write, SYS_pwrite64};
    return partial.count(call) != 0 && answer > 1;
}

std::string CallName(long call)
{
    static std::map<long, char const*> const names{
        {SYS_read, "read"},
        {SYS_write, "write"},
        {SYS_openat, "openat"},
        {SYS_openat2, "openat2"},
        {SYS_close, "close"},
        {SYS_fsync, "fsync"},
        {SYS_syncfs, "syncfs"},
        {SYS_renameat, "renameat"},
        {SYS_renameat2, "renameat2"},
        {SYS_mkdirat, "mkdirat"},
        {SYS_symlinkat, "symlinkat"},
        {SYS_unlinkat, "unlinkat"},
        {SYS_fchmod, "fchmod"},
        {SYS_fchmodat, "fchmodat"},
        {SYS_utimensat, "utimensat"},
        {SYS_flock, "flock"},
        {SYS_mmap, "mmap"},
        {SYS_munmap, "munmap"},
        {SYS_brk, "brk"},
        {SYS_pread64, "pread64"},
        {SYS_pwrite64, "pwrite64"},
        {SYS_fstat, "fstat"},
        {SYS_newfstatat, "fstatat"},
        {SYS_getdents64, "getdents"},
        {SYS_readlinkat, "readlinkat"},
        {SYS_fcntl, "fcntl"},
        {SYS_poll, "poll"},
        {SYS_wait4, "wait4"},
        {SYS_exit_group, "exit"},
        {SYS_clone, "clone"},
        {SYS_lseek, "lseek"},
        {SYS_faccessat, "faccessat"},
        {SYS_setsid, "setsid"},
        {SYS_chdir, "chdir"},
    };
    auto const name = names.find(call);
    return name == names.end() ? "call " + std::to_string(call) : name->second;
}

std::string PathArgument(CallStop const& stop, std::size_t argument)
{
    std::string text(PATH_MAX, '\0');
    iovec local{text.data(), text.size()};
    iovec remote{reinterpret_cast<void*>(stop.arguments.at(argument)), text.size()};
    // Fewer bytes come back if the process's memory ends after the path.
    ssize_t const count = ::process_vm_readv(stop.process, &local, 1, &remote, 1, 0);
    text.resize(count < 0 ? 0 : static_cast<std::size_t>(count));
    return text.substr(0, text.find('\0'));
}

namespace
{

/// The target of a link below the folder of the call's process.
std::string LinkOfProcess(CallStop const& stop, std::string const& name)
{
    std::string const link = "/proc/" + std::to_string(stop.process) + '/' + name;
    std::string path(PATH_MAX, '\0');
    ssize_t const size = ::readlink(link.c_str(), path.data(), path.size());
    path.resize(size < 0 ? 0 : static_cast<std::size_t>(size));
    return path;
}

std::string DescriptorPath(CallStop const& stop, std::size_t argument)
{
    int const number = static_cast<int>(stop.arguments.at(argument));
    return LinkOfProcess(stop, number == AT_FDCWD ? "cwd" : "fd/" + std::to_string(number));
}

/// The argument that has the path of a call; the folder that the path is relative to is in the one before, unless the
/// path is the first. -1 for a call without a path.
int ArgumentOfPath(long call)
{
    static std::map<long, int> const arguments{
        {SYS_open, 0},       {SYS_stat, 0},     {SYS_lstat, 0},     {SYS_access, 0},     {SYS_mkdir, 0},
        {SYS_rmdir, 0},      {SYS_unlink, 0},   {SYS_rename, 0},    {SYS_readlink, 0},   {SYS_chmod, 0},
        {SYS_statfs, 0},     {SYS_openat, 1},   {SYS_openat2, 1},   {SYS_newfstatat, 1}, {SYS_statx, 1},
        {SYS_faccessat, 1},  {SYS_mkdirat, 1},  {SYS_unlinkat, 1},  {SYS_renameat, 1},   {SYS_renameat2, 1},
        {SYS_readlinkat, 1}, {SYS_fchmodat, 1}, {SYS_utimensat, 1}, {SYS_symlinkat, 2},  {SYS_linkat, 3},
    };
    auto const found = arguments.find(call);
    return found == arguments.end() ? -1 : found->second;
}

bool HasDescriptorFirst(long call)
{
    static std::set<long> const calls{
        SYS_read,   SYS_pread64,    SYS_write,           SYS_pwrite64,  SYS_fstat,          SYS_close,  SYS_flock,
        SYS_lseek,  SYS_fcntl,      SYS_ftruncate,       SYS_fsync,     SYS_fdatasync,      SYS_syncfs, SYS_fstatfs,
        SYS_fchmod, SYS_getdents64, SYS_sync_file_range, SYS_fallocate, SYS_copy_file_range};
    return calls.count(call) != 0;
}

} // namespace

std::string DescriptorPath(CallStop const& stop)
{
    return DescriptorPath(stop, 0);
}

std::string FileOf(CallStop const& stop)
{
    int const argument = ArgumentOfPath(stop.call);
    std::string path = argument < 0 ? std::string() : PathArgument(stop, static_cast<std::size_t>(argument));
    if (argument < 0)
    {
        constexpr std::size_t MAPPED = 4;
        path = HasDescriptorFirst(stop.call) ? DescriptorPath(stop, 0)
               : stop.call == SYS_mmap       ? DescriptorPath(stop, MAPPED)
                                             : std::string();
    }
    else if (path.empty() || path[0] != '/')
    {
        std::string const folder =
            argument == 0 ? LinkOfProcess(stop, "cwd") : DescriptorPath(stop, static_cast<std::size_t>(argument - 1));
        path = path.empty() ? folder : folder + '/' + path;
    }
    // Pipes and the like have other names.
    return path.rfind('/', 0) == 0 ? path : std::string();
}

} // namespace Pelnar::Testing
