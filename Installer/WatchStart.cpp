#include "Installer/WatchStart.h"

#include "Engine/core/base/Descriptor.h"
#include "Engine/core/helper/StagingFolder.h"
#include "Engine/core/helper/SwapJournal.h"
#include "Installer/RecoverSwap.h"
#include "Installer/Relaunch.h"
#include "Installer/SwapBundle.h"
#include "Installer/SwapLock.h"

#include <cerrno>
#include <optional>

#include <poll.h>
#include <signal.h>
#include <sys/inotify.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

namespace Pelnar::Installer
{
namespace
{

using Engine::InstallJob;
using Engine::RelaunchedBundle;
using Engine::UniqueFd;
using Engine::UpdateFault;
using Engine::UpdateRefusal;

enum class StartEnd
{
    Settled, ///< confirmed, ended by a person, or handled by another process
    Failed,
};

/// A person's or the session's way to end a program.
bool IsEndedOnPurpose(int status)
{
    if (WIFEXITED(status))
    {
        return WEXITSTATUS(status) == 0;
    }
    int const signal = WTERMSIG(status);
    return signal == SIGTERM || signal == SIGINT || signal == SIGHUP || signal == SIGQUIT;
}

/// Becomes readable when a file is removed from the folder; -1 if the system has no more watches.
UniqueFd WatchFolder(int folderFd)
{
    UniqueFd watch(::inotify_init1(IN_CLOEXEC | IN_NONBLOCK));
    std::string const path = Engine::DescriptorPath(folderFd);
    if (watch && ::inotify_add_watch(watch.Get(), path.c_str(), IN_DELETE | IN_MOVED_FROM | IN_ONLYDIR) < 0)
    {
        return {};
    }
    return watch;
}

void Drain(UniqueFd const& watch)
{
    alignas(inotify_event) char events[4096];
    while (::read(watch.Get(), events, sizeof events) > 0)
    {
    }
}

/// Waits for the end of the process while the journal exists.
StartEnd WaitForStart(InstallJob const& job, int parentFd, pid_t process)
{
    UniqueFd const watch = WatchFolder(parentFd);
    UniqueFd const ended(static_cast<int>(::syscall(SYS_pidfd_open, process, 0)));
    if (!ended)
    {
        return StartEnd::Settled; // the counted starts decide
    }
    // Only while it waits may the session end this process: the counted starts decide then.
    sigset_t none;
    ::sigemptyset(&none);
    // Checked after the watch exists: the removal of the journal from now on is noticed.
    while (AwaitsConfirmation(job, parentFd))
    {
        pollfd waiting[] = {{ended.Get(), POLLIN, 0}, {watch.Get(), POLLIN, 0}};
        if (::ppoll(waiting, 2, nullptr, &none) < 0)
        {
            if (errno != EINTR)
            {
                return StartEnd::Settled;
            }
            continue;
        }
        Drain(watch);
        if ((waiting[0].revents & POLLIN) != 0)
        {
            std::optional<int> const status = StatusOf(process);
            SwapLock const lock(parentFd, job.targetName); // waits for a confirmation in progress
            bool const isSettled = !status || IsEndedOnPurpose(*status) || !AwaitsConfirmation(job, parentFd);
            return isSettled ? StartEnd::Settled : StartEnd::Failed;
        }
    }
    return StartEnd::Settled;
}

StartEnd StartOnce(InstallJob const& job, Arguments const& arguments, int parentFd, ReportChannel const& report)
{
    StartResult const result = StartAgain(job, arguments, {InstalledPath(job, parentFd)}, report);
    auto const* const started = std::get_if<StartedBundle>(&result);
    if (!started)
    {
        return StartEnd::Failed;
    }
    // A relaunch of another bundle says nothing about the installed one.
    bool const isTarget = started->path == Engine::RealPathOf(parentFd, job.targetName);
    return isTarget ? WaitForStart(job, parentFd, started->process) : StartEnd::Settled;
}

} // namespace

std::string InstalledPath(InstallJob const& job, int parentFd)
{
    std::string const path = Engine::RealPathOf(parentFd, job.targetName);
    return path.empty() ? job.targetPath : path;
}

StartResult StartAgain(InstallJob const& job, Arguments const& arguments, std::vector<std::string> const& places,
                       ReportChannel const& report)
{
    struct Choice
    {
        std::string const& path;
        RelaunchedBundle name;
    };
    bool const isAnswered = !job.relaunchPath.empty();
    std::vector<Choice> choices;
    if (isAnswered)
    {
        choices.push_back({job.relaunchPath, RelaunchedBundle::Answered});
    }
    for (std::string const& place : places)
    {
        choices.push_back({place, isAnswered ? RelaunchedBundle::TargetInstead : RelaunchedBundle::Target});
    }
    UpdateRefusal last(UpdateFault::RelaunchFailed);
    for (Choice const& choice : choices)
    {
        try
        {
            RelaunchTarget const target = FindRelaunchTarget(choice.path);
            pid_t const process = Relaunch(target, arguments,
                                           {job.environment, job.workingFolder, static_cast<mode_t>(job.creationMask)});
            report.Send(Engine::RelaunchedReport{choice.name});
            return StartedBundle{process, target.bundlePath};
        }
        catch (UpdateRefusal const& refusal)
        {
            report.Send(Engine::RefusedReport{refusal.Fault(), refusal.ErrorNumber()});
            last = refusal;
        }
    }
    return last;
}

bool AwaitsConfirmation(InstallJob const& job, int parentFd)
{
    try
    {
        auto const journal = ReadSwapJournal(parentFd, job.targetName);
        return journal && journal->stagingName == job.stagingName &&
               journal->confirmation == Engine::StartConfirmation::ByHost;
    }
    catch (UpdateRefusal const&)
    {
        return false; // the next start decides about an unreadable journal
    }
}

bool StartAndWatch(InstallJob const& job, Arguments const& arguments, int parentFd, ReportChannel const& report,
                   OutcomeNote& note)
{
    for (std::uint64_t failures = 0; failures < Engine::MAX_UNCONFIRMED_STARTS; ++failures)
    {
        if (StartOnce(job, arguments, parentFd, report) == StartEnd::Settled)
        {
            return true;
        }
    }
    Engine::RecoveryAction action = Engine::RecoveryAction::Nothing;
    {
        SwapLock const lock(parentFd, job.targetName);
        action = AwaitsConfirmation(job, parentFd) ? RollBackSwap(parentFd, job.targetName) : action;
    }
    report.Send(Engine::RecoveredReport{action});
    if (action != Engine::RecoveryAction::RolledBack)
    {
        return true; // another process has handled it
    }
    note.Fail(Engine::UpdateFault::NewVersionFailed, 0);
    static_cast<void>(StartAgain(job, {}, {InstalledPath(job, parentFd)}, report));
    return false;
}

} // namespace Pelnar::Installer
