#include "Installer/InstallUpdate.h"

#include "Engine/core/archive/TreeManifest.h"
#include "Engine/core/base/TreeWalk.h"
#include "Engine/core/bundle/CheckBundle.h"
#include "Engine/core/helper/FolderSafety.h"
#include "Engine/core/helper/RelaunchArguments.h"
#include "Engine/core/helper/StagingFolder.h"
#include "Installer/BundleRights.h"
#include "Installer/ChildProcess.h"
#include "Installer/OutcomeNote.h"
#include "Installer/RecoverSwap.h"
#include "Installer/RunInstaller.h"
#include "Installer/SessionSignals.h"
#include "Installer/SwapBundle.h"
#include "Installer/SwapLock.h"
#include "Installer/WatchStart.h"

#include <cerrno>
#include <exception>
#include <optional>
#include <type_traits>

#include <fcntl.h>
#include <sys/syscall.h>
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

constexpr int EXIT_REFUSED = 1;
constexpr mode_t PACKED_BITS = 0777;

/// Waits for the host's end. The end of the session drops the installation, and this process.
void WaitForHost(int hostFd, std::uint64_t waitSeconds, SessionSignals const& signals, OutcomeNote& note)
{
    // Any other file would look like a host that has ended.
    bool const isProcess = ::syscall(SYS_pidfd_send_signal, hostFd, 0, nullptr, 0) == 0 || errno == ESRCH;
    if (!isProcess)
    {
        throw UpdateRefusal(UpdateFault::DescriptorUnusable, errno);
    }
    WaitEnd const end = WaitForEnd(hostFd, waitSeconds, signals.Descriptor());
    if (end == WaitEnd::Stopped || signals.HasArrived())
    {
        note.Drop();
        signals.End();
    }
    if (end != WaitEnd::Ended)
    {
        throw UpdateRefusal(UpdateFault::HostStillRunning);
    }
}

/// Checks that the installed bundle is still the one that the update was prepared for, and that it allows an installer
/// program.
UniqueFd CheckTarget(InstallJob const& job, Engine::InstallDescriptors const& descriptors)
{
    UniqueFd target = Engine::OpenFolder(descriptors.parent, job.targetName);
    if (!target)
    {
        throw UpdateRefusal(errno == ENOENT ? UpdateFault::TargetMissing : UpdateFault::TargetChanged, errno);
    }
    // The new version would get the same rights.
    if (!Engine::IsSafeByItself(target.Get()))
    {
        throw UpdateRefusal(UpdateFault::FolderUnsafe);
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

/// The staged bundle. CheckStaged() checks that it is still the prepared one.
UniqueFd OpenStaged(InstallJob const& job, Engine::InstallDescriptors const& descriptors)
{
    UniqueFd staged = Engine::OpenFolder(descriptors.staging, job.stagedName);
    if (!staged)
    {
        throw UpdateRefusal(UpdateFault::StagedTreeChanged, errno);
    }
    return staged;
}

void CheckStaged(InstallJob const& job, Engine::InstallDescriptors const& descriptors, int stagedFd, mode_t bitsWithin)
{
    bool const isInPlace = Engine::IsPrivateFolder(descriptors.staging) &&
                           Engine::IsAt(stagedFd, descriptors.staging, job.stagedName) &&
                           Engine::IsAt(descriptors.staging, descriptors.parent, job.stagingName);
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
    catch (UpdateRefusal const& refusal) // it was readable when it was prepared
    {
        throw UpdateRefusal(UpdateFault::StagedTreeChanged, refusal.ErrorNumber());
    }
}

/// Everything between the host's end and the relaunch.
void InstallLocked(InstallJob const& job, Engine::InstallDescriptors const& descriptors, ReportChannel& report)
{
    SwapLock const lock(descriptors.parent, job.targetName);
    // The version that requested this has run, so the version kept by an earlier update is no longer needed.
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
        // The next start removes what is left.
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
    // After the journal, whose syncs take time: as little as possible is between the check and the swap. A refusal here
    // leaves the previous version in place, and the journal says to keep it.
    CheckStaged(job, descriptors, staged.Get(), BitsWithin(rights));
    SwapBundle(descriptors.parent, job.targetName, descriptors.staging, journal);
    report.Send(Engine::InstalledReport{});
}

/// Why nothing was installed, as it is reported. The child writes it to its parent as it is in memory.
using Failure = Engine::RefusedReport;
static_assert(std::is_trivially_copyable_v<Failure>);

Failure Reported(Failure const& failure, ReportChannel const& report)
{
    report.Send(failure);
    return failure;
}

std::optional<Failure> FailureOf(InstallJob const& job, Engine::InstallDescriptors const& descriptors,
                                 ReportChannel& report)
{
    try
    {
        InstallLocked(job, descriptors, report);
        return std::nullopt;
    }
    catch (UpdateRefusal const& refusal)
    {
        return Reported({refusal.Fault(), refusal.ErrorNumber()}, report);
    }
    catch (std::exception const&) // out of memory
    {
        return Reported({UpdateFault::SystemLimitReached, ENOMEM}, report);
    }
}

/// The whole work of the child; returns its exit status.
int RunInstallation(InstallJob const& job, Engine::InstallDescriptors const& descriptors, ReportChannel& report,
                    int failureFd)
{
    auto const failure = FailureOf(job, descriptors, report);
    if (!failure)
    {
        return 0;
    }
    // The pipe has space for it, and the parent reads it after this process has ended.
    static_cast<void>(!::write(failureFd, &*failure, sizeof *failure));
    return EXIT_REFUSED;
}

/// Lets a child install the update. Empty if it is installed.
std::optional<Failure> InstallInChild(InstallJob const& job, Engine::InstallDescriptors const& descriptors,
                                      ReportChannel& report)
{
    int ends[2];
    if (::pipe2(ends, O_CLOEXEC | O_NONBLOCK) != 0)
    {
        return Reported({UpdateFault::SwapFailed, errno}, report);
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
        return Reported({UpdateFault::SwapFailed, errno}, report);
    }
    // If the status stays unknown, the swap lock, which the child holds while it works, keeps the two apart.
    if (HasSucceeded(StatusOf(child)))
    {
        return std::nullopt;
    }
    Failure failure{};
    bool const isTold = ::read(reader.Get(), &failure, sizeof failure) == sizeof failure;
    return isTold ? failure : Failure{UpdateFault::InstallationInterrupted, 0};
}

/// After a failure: repairs the target, and removes the prepared files unless the target came from them.
void TidyUp(InstallJob const& job, Engine::InstallDescriptors const& descriptors, ReportChannel& report)
{
    try
    {
        SwapLock const lock(descriptors.parent, job.targetName);
        Engine::RecoveryAction const action = RecoverSwap(descriptors.parent, {job.targetName, {}}).action;
        if (action != Engine::RecoveryAction::Nothing)
        {
            report.Send(Engine::RecoveredReport{action});
        }
        // An existing journal protects one folder: this update's, or an earlier one's.
        auto const journal = ReadSwapJournal(descriptors.parent, job.targetName);
        bool const isKept = journal && journal->stagingName == job.stagingName;
        if (!isKept && Engine::IsAt(descriptors.staging, descriptors.parent, job.stagingName))
        {
            static_cast<void>(Engine::RemoveTree(descriptors.parent, job.stagingName));
        }
    }
    catch (UpdateRefusal const& refusal)
    {
        report.Send(Engine::RefusedReport{refusal.Fault(), refusal.ErrorNumber()});
    }
}

/// Where \a bundleFd, the bundle that the host ran from, is now; empty if it was removed or replaced.
std::string PlaceOf(InstallJob const& job, int bundleFd)
{
    std::string const place = Engine::RealPathOf(bundleFd);
    // Another update may have replaced it: staging folders are removed.
    bool const isReplaced = place.find('/' + Engine::UpdateFilePrefix(job.targetName)) != std::string::npos;
    return !isReplaced && Engine::IsAt(bundleFd, AT_FDCWD, place) ? place : std::string();
}

/// Where the installed version may be started after a failure: in its place, otherwise where the bundle is now.
std::vector<std::string> PlacesAfterFailure(InstallJob const& job, int parentFd, int bundleFd)
{
    std::vector<std::string> places{InstalledPath(job, parentFd)};
    std::string const moved = PlaceOf(job, bundleFd);
    if (!moved.empty() && moved != places.front())
    {
        places.push_back(moved);
    }
    return places;
}

} // namespace

bool InstallUpdate(InstallJob const& job, Engine::InstallDescriptors const& descriptors, ReportChannel& report)
{
    // While the host still runs. Without the descriptor, a bundle that is moved is not found again.
    UniqueFd const bundle(
        ::openat(descriptors.parent, job.targetName.c_str(), O_PATH | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC));
    std::string const place = PlaceOf(job, bundle.Get());
    OutcomeNote note(job, descriptors.records);
    SessionSignals const signals;
    note.Begin();
    report.SendProgress(HelperPhase::Waiting, 0, 0);
    try
    {
        WaitForHost(descriptors.host, job.waitSeconds, signals, note);
    }
    catch (UpdateRefusal const& refusal)
    {
        note.Fail(refusal.Fault(), refusal.ErrorNumber()); // a host that ends at this moment gets no report
        throw;
    }
    signals.Block();
    note.EnterInstallation();
    auto const failure = InstallInChild(job, descriptors, report);
    std::string const placeNow =
        failure ? PlaceOf(job, bundle.Get()) : Engine::RealPathOf(descriptors.parent, job.targetName);
    if (placeNow != place && !place.empty() && !placeNow.empty())
    {
        note.Follow(placeNow);
    }
    if (failure)
    {
        note.Fail(failure->fault, failure->errorNumber);
        // Without the lock nothing was changed, and cleaning up would wait for it again.
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
        ::close(descriptors.staging); // its lock would protect the folder when it is no longer needed
        return StartAndWatch(job, arguments, descriptors.parent, report, note);
    }
    // The arguments are for the new version.
    StartResult const started =
        failure ? StartAgain(job, {}, PlacesAfterFailure(job, descriptors.parent, bundle.Get()), report)
                : StartAgain(job, arguments, {InstalledPath(job, descriptors.parent)}, report);
    auto const* const refusal = std::get_if<UpdateRefusal>(&started);
    if (refusal && !failure)
    {
        note.FailStart(refusal->Fault(), refusal->ErrorNumber());
    }
    return !refusal && !failure;
}

} // namespace Pelnar::Installer
