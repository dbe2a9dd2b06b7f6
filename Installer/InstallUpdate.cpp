#include "Installer/InstallUpdate.h"

#include "Engine/core/payload/RelaunchArguments.h"
#include "Engine/core/payload/StagingFolder.h"
#include "Engine/core/payload/TreeManifest.h"
#include "Engine/core/unpack/CheckBundle.h"
#include "Installer/BundleRights.h"
#include "Installer/ChildProcess.h"
#include "Installer/OutcomeNote.h"
#include "Installer/RecoverSwap.h"
#include "Installer/RunInstaller.h"
#include "Installer/SwapBundle.h"
#include "Installer/SwapLock.h"
#include "Installer/WatchStart.h"

#include <cerrno>
#include <exception>
#include <optional>

#include <fcntl.h>
#include <poll.h>
#include <signal.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

namespace Pelnar::Installer
{
namespace
{

using Engine::HelperPhase;
using Engine::InstallJob;
using Engine::PayloadKind;
using Engine::UniqueFd;
using Engine::UpdateFault;
using Engine::UpdateRefusal;

constexpr int FOLDER_FLAGS = O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC;
constexpr int EXIT_REFUSED = 1;
constexpr int MAX_REFUSALS = 20;
constexpr int REFUSAL_PAUSE_MS = 100;
constexpr mode_t PACKED_BITS = 0777;

/// A signal must not end the process while it waits for nothing any more.
void BlockSignals()
{
    sigset_t signals;
    ::sigemptyset(&signals);
    for (int const signal : {SIGTERM, SIGHUP, SIGINT, SIGQUIT})
    {
        ::sigaddset(&signals, signal);
    }
    ::sigprocmask(SIG_BLOCK, &signals, nullptr);
}

void WaitForHost(int hostFd, std::uint64_t waitSeconds)
{
    // Any other file would look like a host that has ended.
    bool const isProcess = ::syscall(SYS_pidfd_send_signal, hostFd, 0, nullptr, 0) == 0 || errno == ESRCH;
    if (!isProcess)
    {
        throw UpdateRefusal(UpdateFault::DescriptorUnusable, errno);
    }
    if (!WaitForEnd(hostFd, waitSeconds))
    {
        throw UpdateRefusal(UpdateFault::HostStillRunning);
    }
}

bool IsSameFolder(int folderFd, int parentFd, std::string const& name)
{
    struct stat open;
    struct stat named;
    return ::fstat(folderFd, &open) == 0 && ::fstatat(parentFd, name.c_str(), &named, AT_SYMLINK_NOFOLLOW) == 0 &&
           open.st_dev == named.st_dev && open.st_ino == named.st_ino;
}

/// The installed bundle must still be the one that the update was prepared for, and let an installer program run.
UniqueFd CheckTarget(InstallJob const& job, InstallDescriptors const& descriptors)
{
    UniqueFd target(::openat(descriptors.parent, job.targetName.c_str(), FOLDER_FLAGS));
    if (!target)
    {
        throw UpdateRefusal(errno == ENOENT ? UpdateFault::TargetMissing : UpdateFault::TargetChanged, errno);
    }
    Engine::BundleInformation const information = Engine::ReadBundleInformation(target.Get(), job.targetName);
    if (information.identifier != job.bundleIdentifier || information.version != job.installedVersion)
    {
        throw UpdateRefusal(UpdateFault::TargetChanged);
    }
    if (job.kind == PayloadKind::Installer && !information.allowsInstallerPrograms)
    {
        throw UpdateRefusal(UpdateFault::InstallerNotAllowed);
    }
    return target;
}

/// The staged bundle. Whether it is still the one that was prepared, CheckStaged() tells.
UniqueFd OpenStaged(InstallJob const& job, InstallDescriptors const& descriptors)
{
    UniqueFd staged(::openat(descriptors.staging, job.stagedName.c_str(), FOLDER_FLAGS));
    if (!staged)
    {
        throw UpdateRefusal(UpdateFault::StagedTreeChanged, errno);
    }
    return staged;
}

void CheckStaged(InstallJob const& job, InstallDescriptors const& descriptors, int stagedFd, mode_t bitsWithin)
{
    bool const isInPlace = Engine::IsPrivateFolder(descriptors.staging) &&
                           IsSameFolder(stagedFd, descriptors.staging, job.stagedName) &&
                           IsSameFolder(descriptors.staging, descriptors.parent, job.stagingName);
    if (!isInPlace || Engine::DigestTree(stagedFd, bitsWithin) != job.digest)
    {
        throw UpdateRefusal(UpdateFault::StagedTreeChanged);
    }
    Engine::CheckNewBundle(stagedFd, job.kind == PayloadKind::Installer ? job.stagedName : job.targetName,
                           {job.kind, job.bundleIdentifier, job.expectedVersion, job.installedVersion});
}

Engine::StartConfirmation ConfirmationOf(InstallJob const& job, int stagedFd)
{
    try
    {
        return Engine::ReadBundleInformation(stagedFd, job.stagedName).confirmsGoodStart
                   ? Engine::StartConfirmation::ByHost
                   : Engine::StartConfirmation::ByStarting;
    }
    catch (UpdateRefusal const& refusal) // it could be read when it was prepared
    {
        throw UpdateRefusal(UpdateFault::StagedTreeChanged, refusal.ErrorNumber());
    }
}

/// Everything between the host's end and the relaunch.
void InstallLocked(InstallJob const& job, InstallDescriptors const& descriptors, ReportChannel& report)
{
    SwapLock const lock(descriptors.parent, job.targetName);
    // The version that asked for this has run: what an earlier update kept for it is not needed any more.
    static_cast<void>(
        RecoverSwap(descriptors.parent, {job.targetName, job.installedVersion, Engine::RecoverPurpose::Confirmation}));
    UniqueFd const target = CheckTarget(job, descriptors);
    UniqueFd const staged = OpenStaged(job, descriptors);
    if (job.kind == PayloadKind::Installer)
    {
        CheckStaged(job, descriptors, staged.Get(), PACKED_BITS);
        report.SendProgress(HelperPhase::Installing, 0, 0);
        RunInstaller(job, staged.Get(), Engine::RealPathOf(descriptors.parent, job.targetName));
        report.Send(Engine::InstalledReport{});
        // What stays behind is removed at the next start.
        static_cast<void>(Engine::RemoveTree(descriptors.parent, job.stagingName));
        return;
    }
    BundleRights const rights = RightsOf(target.Get());
    if (GiveRights(staged.Get(), rights) && !Engine::SyncTree(staged.Get()))
    {
        Engine::ThrowErrno(errno, UpdateFault::SyncFailed);
    }
    Engine::SwapJournal journal{job.stagingName, job.stagedName, job.installedVersion, job.expectedVersion};
    journal.confirmation = ConfirmationOf(job, staged.Get());
    WriteSwapJournal(descriptors.parent, job.targetName, journal);
    report.SendProgress(HelperPhase::Installing, 0, 0);
    // Behind the journal, whose syncs take their time: as little as possible lies between the check and the swap. A
    // refusal here finds the previous version in its place, which is what the journal says to keep.
    CheckStaged(job, descriptors, staged.Get(), BitsWithin(rights));
    SwapBundle(descriptors.parent, job.targetName, descriptors.staging, journal);
    report.Send(Engine::InstalledReport{});
}

/// Why nothing was installed.
struct Failure
{
    UpdateFault fault = UpdateFault::InstallationInterrupted;
    int errorNumber = 0;
};

/// Runs \a work; what it throws.
template <typename Work>
std::optional<Failure> FailureOf(Work const& work, ReportChannel const& report)
{
    Failure failure;
    try
    {
        work();
        return std::nullopt;
    }
    catch (UpdateRefusal const& refusal)
    {
        failure = {refusal.Fault(), refusal.ErrorNumber()};
    }
    catch (std::exception const&) // memory ran out
    {
        failure = {UpdateFault::DiskError, ENOMEM};
    }
    report.Send(Engine::RefusedReport{failure.fault, failure.errorNumber});
    return failure;
}

/// The child's whole life; its exit status.
int RunInstallation(InstallJob const& job, InstallDescriptors const& descriptors, ReportChannel& report, int failureFd)
{
    auto const failure = FailureOf([&] { InstallLocked(job, descriptors, report); }, report);
    if (!failure)
    {
        return 0;
    }
    // The pipe has room for it, and the parent reads it when this process has ended.
    static_cast<void>(!::write(failureFd, &*failure, sizeof *failure));
    return EXIT_REFUSED;
}

/// True when the child ended well. A system that refuses to tell is asked again some times; after that the swap lock,
/// which the child holds at work, keeps this process from what it does.
bool WaitForChild(pid_t child)
{
    int status = 0;
    for (int refusals = 0; ::waitpid(child, &status, 0) < 0;)
    {
        if (errno == EINTR)
        {
            continue;
        }
        if (errno == ECHILD || ++refusals > MAX_REFUSALS)
        {
            return false;
        }
        ::poll(nullptr, 0, REFUSAL_PAUSE_MS);
    }
    return WIFEXITED(status) && WEXITSTATUS(status) == 0;
}

/// Has a child install the update. Nothing when it is installed.
std::optional<Failure> InstallInChild(InstallJob const& job, InstallDescriptors const& descriptors,
                                      ReportChannel& report)
{
    int ends[2];
    if (::pipe2(ends, O_CLOEXEC | O_NONBLOCK) != 0)
    {
        Failure const failure{UpdateFault::SwapFailed, errno};
        report.Send(Engine::RefusedReport{failure.fault, failure.errorNumber});
        return failure;
    }
    UniqueFd const reader(ends[0]);
    UniqueFd const writer(ends[1]);
    pid_t const child = ::fork();
    if (child == 0)
    {
        ::_exit(RunInstallation(job, descriptors, report, writer.Get()));
    }
    if (child < 0)
    {
        Failure const failure{UpdateFault::SwapFailed, errno};
        report.Send(Engine::RefusedReport{failure.fault, failure.errorNumber});
        return failure;
    }
    if (WaitForChild(child))
    {
        return std::nullopt;
    }
    Failure failure;
    bool const isTold = ::read(reader.Get(), &failure, sizeof failure) == sizeof failure;
    return isTold ? failure : Failure();
}

/// After a failure: the target is made whole, and what was prepared is removed unless the target came from it.
void TidyUp(InstallJob const& job, InstallDescriptors const& descriptors, ReportChannel& report)
{
    try
    {
        SwapLock const lock(descriptors.parent, job.targetName);
        Engine::RecoveryAction const action = RecoverSwap(descriptors.parent, {job.targetName, {}}).action;
        if (action != Engine::RecoveryAction::Nothing)
        {
            report.Send(Engine::RecoveredReport{action});
        }
        // A journal that still stands keeps one folder: this update's, or that of one that came first.
        auto const journal = ReadSwapJournal(descriptors.parent, job.targetName);
        bool const isKept = journal && journal->stagingName == job.stagingName;
        if (!isKept && IsSameFolder(descriptors.staging, descriptors.parent, job.stagingName))
        {
            static_cast<void>(Engine::RemoveTree(descriptors.parent, job.stagingName));
        }
    }
    catch (UpdateRefusal const& refusal)
    {
        report.Send(Engine::RefusedReport{refusal.Fault(), refusal.ErrorNumber()});
    }
}

} // namespace

bool InstallUpdate(InstallJob const& job, InstallDescriptors const& descriptors, ReportChannel& report)
{
    OutcomeNote note(job, descriptors.records);
    note.Begin();
    report.SendProgress(HelperPhase::Waiting, 0, 0);
    try
    {
        WaitForHost(descriptors.host, job.waitSeconds);
    }
    catch (UpdateRefusal const& refusal)
    {
        note.Fail(refusal.Fault(), refusal.ErrorNumber()); // a host that ends just now does not hear of it
        throw;
    }
    BlockSignals();
    note.EnterInstallation();
    auto const failure = InstallInChild(job, descriptors, report);
    if (failure)
    {
        note.Fail(failure->fault, failure->errorNumber);
        // Who did not get the lock has touched nothing, and would wait for it once more.
        if (failure->fault != UpdateFault::LockTimedOut)
        {
            TidyUp(job, descriptors, report);
        }
    }
    else
    {
        note.Succeed();
    }
    if (job.targetPath.empty())
    {
        return !failure;
    }
    Arguments const arguments = Engine::ReadRelaunchArguments(descriptors.arguments);
    if (!failure && AwaitsConfirmation(job, descriptors.parent))
    {
        ::close(descriptors.staging); // its lock would keep the folder when nobody needs it any more
        return StartAndWatch(job, arguments, descriptors.parent, report, note);
    }
    // They were meant for the new version.
    StartResult const started = StartAgain(job, failure ? Arguments() : arguments, report);
    auto const* const refusal = std::get_if<UpdateRefusal>(&started);
    if (refusal && !failure)
    {
        note.FailStart(refusal->Fault(), refusal->ErrorNumber());
    }
    return !refusal && !failure;
}

} // namespace Pelnar::Installer
