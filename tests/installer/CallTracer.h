// CallTracer.h: runs a process and its forks one system call at a time. A test decides about each call.
// Thread: the one that starts the process; it is the tracer. Linux on x86-64.
#pragma once

#include <array>
#include <cstdint>
#include <functional>
#include <set>
#include <string>
#include <vector>

#include <sys/types.h>

namespace Pelnar::Testing
{

/// A system call before it is made. The process is stopped until the answer.
struct CallStop
{
    int index; ///< among the calls of all processes of the helper; its own first call has number 0
    long call; ///< the kernel's number
    pid_t process;
    std::array<std::uint64_t, 6> arguments;
};

/// The fate of a call.
struct CallVerdict
{
    enum class Kind
    {
        GoOn,
        Fail,      ///< it is not made, and returns an error
        Shorten,   ///< it is made with one byte for its third argument
        KillAll,   ///< it is not made: all processes are killed at this moment
        SignalAll, ///< every process gets a signal, except a program that is being started; then the call is made
    };

    Kind kind = Kind::GoOn;
    int number = 0; ///< errno, or the signal

    static CallVerdict GoOn() { return {}; }
    static CallVerdict Fail(int errorNumber) { return {Kind::Fail, errorNumber}; }
    /// It is not made, and returns as if it had succeeded.
    static CallVerdict Pretend() { return Fail(0); }
    static CallVerdict Shorten() { return {Kind::Shorten, 0}; }
    static CallVerdict KillAll() { return {Kind::KillAll, 0}; }
    static CallVerdict SignalAll(int signal) { return {Kind::SignalAll, signal}; }
};

using CallVisitor = std::function<CallVerdict(CallStop const&)>;

/// The words that start a program as soon as TraceToTheEnd() traces them.
std::vector<std::string> StartWhenTraced();
/// How a traced process ended.
struct TracedEnd
{
    int waitStatus = 0;
    std::set<int> faulted{};             ///< indexes of the calls that the verdict has affected
    std::vector<std::int64_t> answers{}; ///< of the calls, by their index; 0 for one that did not return
};

/// True for the call that a program's main function begins with. Calls of its loader come before.
using IsFirstCall = bool (*)(CallStop const&);
/// Helpers and probes begin so.
bool IsChangeOfFolder(CallStop const& stop);

/// Traces \a process, which began with the words of StartWhenTraced(), to its end. Programs that it starts by execve
/// are not traced. Calls before \a isFirst are not reported.
TracedEnd TraceToTheEnd(pid_t process, CallVisitor const& visitor, IsFirstCall isFirst = &IsChangeOfFolder);
/// Starts \a words with their standard output and error in the file \a output, and traces them to their end.
TracedEnd TraceProgram(std::vector<std::string> words, std::string const& output, CallVisitor const& visitor,
                       IsFirstCall isFirst = &IsChangeOfFolder);

/// True for a call that moves more than one byte: Shorten() would have an effect.
bool CanBeShortened(long call, std::int64_t answer);
/// The call's name, for the calls that the helper makes.
std::string CallName(long call);
/// The path in the \a argument-th argument of a call, as the process wrote it.
std::string PathArgument(CallStop const& stop, std::size_t argument);
/// The file behind the descriptor in the call's first argument.
std::string DescriptorPath(CallStop const& stop);
/// The path of the file that the call is about: the first that it names, or that behind its descriptor. Empty for a
/// call about something else.
std::string FileOf(CallStop const& stop);

} // namespace Pelnar::Testing
