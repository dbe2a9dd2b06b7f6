#include "Installer/PrepareUpdate.h"

#include "Engine/core/delta/DeltaApplier.h"
#include "Engine/core/delta/TreeAccess.h"
#include "Engine/core/payload/Ed25519Signature.h"
#include "Engine/core/payload/TreeManifest.h"
#include "Engine/core/unpack/UnpackArchive.h"
#include "Installer/BundleInformation.h"
#include "Installer/Confinement.h"

#include <cerrno>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace Pelnar::Installer
{
namespace
{

using Engine::HelperPhase;
using Engine::PayloadKind;
using Engine::UpdateFault;
using Engine::UpdateRefusal;

struct stat StatusOf(int archiveFd)
{
    struct stat status;
    if (::fstat(archiveFd, &status) != 0 || !S_ISREG(status.st_mode))
    {
        throw UpdateRefusal(UpdateFault::ArchiveUnreadable, errno);
    }
    return status;
}

/// Asks the kernel to end this process when somebody opens the archive to change it; refuses when somebody has. Where
/// there are no leases (some network file systems, somebody else's file) the times compared at the end must do.
class Lease
{
public:
    explicit Lease(int archiveFd) : m_archiveFd(archiveFd)
    {
        if (::fcntl(archiveFd, F_SETLEASE, F_RDLCK) != 0 && errno == EAGAIN)
        {
            throw UpdateRefusal(UpdateFault::ArchiveInUse, errno);
        }
    }
    // It would outlive the process, for the host has the same opening of the file, and hold up whoever writes next.
    ~Lease() { ::fcntl(m_archiveFd, F_SETLEASE, F_UNLCK); }
    Lease(Lease const&) = delete;
    Lease& operator=(Lease const&) = delete;

private:
    int m_archiveFd;
};

bool IsSameFile(struct stat const& a, struct stat const& b)
{
    return a.st_size == b.st_size && a.st_mtim.tv_sec == b.st_mtim.tv_sec && a.st_mtim.tv_nsec == b.st_mtim.tv_nsec &&
           a.st_ctim.tv_sec == b.st_ctim.tv_sec && a.st_ctim.tv_nsec == b.st_ctim.tv_nsec;
}

UpdateFault FaultOf(Engine::DeltaOutcome const& outcome)
{
    switch (outcome.error)
    {
    case Engine::DeltaError::None:
        return UpdateFault::None;
    case Engine::DeltaError::NotADelta:
        return UpdateFault::ContainerUnknown;
    case Engine::DeltaError::Damaged:
        return UpdateFault::ContainerDamaged;
    case Engine::DeltaError::OverLimits:
        return UpdateFault::TooManyBytes;
    case Engine::DeltaError::TreeRefused:
        return outcome.fault;
    case Engine::DeltaError::BaseDiffers:
        return UpdateFault::DeltaBaseDiffers;
    case Engine::DeltaError::ResultDiffers:
        return UpdateFault::DeltaResultDiffers;
    case Engine::DeltaError::CannotRead:
        return UpdateFault::ArchiveUnreadable;
    case Engine::DeltaError::CannotWrite:
        return UpdateFault::DiskError;
    }
    return UpdateFault::ContainerDamaged;
}

Engine::UniqueFd OpenBundle(int stagingFd, std::string const& name)
{
    Engine::UniqueFd bundle(::openat(stagingFd, name.c_str(), O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC));
    if (!bundle)
    {
        Engine::ThrowErrno(errno);
    }
    return bundle;
}

Engine::UnpackedBundle ApplyDeltaArchive(Engine::PrepareJob const& job, PrepareDescriptors const& descriptors,
                                         Engine::DeltaProgress const& progress)
{
    if (!Engine::TreeAccess(descriptors.staging).MakeFolder(job.bundleName))
    {
        Engine::ThrowErrno(errno);
    }
    Engine::UniqueFd const bundle = OpenBundle(descriptors.staging, job.bundleName);
    Engine::DeltaOutcome const outcome =
        Engine::ApplyDelta(descriptors.archive, descriptors.target, bundle.Get(), Engine::DeltaLimits(), progress);
    if (!outcome.HasSucceeded())
    {
        if (outcome.error == Engine::DeltaError::CannotWrite)
        {
            Engine::ThrowErrno(outcome.systemError);
        }
        throw UpdateRefusal(FaultOf(outcome), outcome.systemError);
    }
    return {job.bundleName, Engine::DigestTree(bundle.Get())};
}

/// Verifies the archive and unpacks it. The archive is what \a before says, from the first byte that is read of it to
/// the last; what becomes of it afterwards does not matter any more.
Engine::UnpackedBundle UnpackVerified(Engine::PrepareJob const& job, PrepareDescriptors const& descriptors,
                                      struct stat const& before, ReportChannel& report)
{
    Lease const lease(descriptors.archive);
    report.SendProgress(HelperPhase::Verifying, 0, job.archiveBytes);
    UpdateFault const verdict = Engine::VerifyFileSignature(descriptors.archive, job.signature, job.publicKeys);
    if (verdict != UpdateFault::None)
    {
        throw UpdateRefusal(verdict);
    }
    report.SendProgress(HelperPhase::Verifying, job.archiveBytes, job.archiveBytes);

    auto const progress = [&report](std::uint64_t done, std::uint64_t total)
    { report.SendProgress(HelperPhase::Unpacking, done, total); };
    Engine::UnpackedBundle bundle = job.kind == PayloadKind::Delta
                                        ? ApplyDeltaArchive(job, descriptors, progress)
                                        : Engine::UnpackArchive(descriptors.archive, descriptors.staging, progress);
    if (!IsSameFile(before, StatusOf(descriptors.archive)))
    {
        throw UpdateRefusal(UpdateFault::ArchiveInUse);
    }
    return bundle;
}

/// Once for all files: half the time of a call for each. A failure is final, for the kernel forgets what it could not
/// write.
void SyncStaged(int stagingFd)
{
    if (::syncfs(stagingFd) == 0)
    {
        return;
    }
    bool const isMissing = errno == ENOSYS || errno == EPERM;
    if (!isMissing || !Engine::SyncTree(stagingFd))
    {
        Engine::ThrowErrno(errno, UpdateFault::SyncFailed);
    }
}

} // namespace

void PrepareUpdate(Engine::PrepareJob const& job, PrepareDescriptors const& descriptors, ReportChannel& report)
{
    if (job.kind == PayloadKind::Installer &&
        !ReadBundleInformation(descriptors.target, job.bundleName).allowsInstallerPrograms)
    {
        throw UpdateRefusal(UpdateFault::InstallerNotAllowed);
    }
    struct stat const before = StatusOf(descriptors.archive);
    if (static_cast<std::uint64_t>(before.st_size) != job.archiveBytes)
    {
        throw UpdateRefusal(UpdateFault::ArchiveLengthDiffers);
    }
    bool const isDelta = job.kind == PayloadKind::Delta;
    ConfineTo(descriptors.staging, isDelta ? std::vector<int>{descriptors.target} : std::vector<int>());
    Engine::UnpackedBundle const bundle = UnpackVerified(job, descriptors, before, report);
    // An installer program is started from where it was unpacked, a bundle from the installed one's place.
    std::string const& name = job.kind == PayloadKind::Installer ? bundle.name : job.bundleName;
    CheckNewBundle(OpenBundle(descriptors.staging, bundle.name).Get(), name,
                   {job.kind, job.bundleIdentifier, job.expectedVersion, job.installedVersion});
    SyncStaged(descriptors.staging);
    report.Send(Engine::PreparedReport{bundle.digest, bundle.name});
}

} // namespace Pelnar::Installer
