#include "Installer/PrepareUpdate.h"

#include "Engine/core/archive/UnpackArchive.h"
#include "Engine/core/base/TreeAccess.h"
#include "Engine/core/base/TreeWalk.h"
#include "Engine/core/bundle/CheckBundle.h"
#include "Engine/core/bundle/TrustedKeys.h"
#include "Engine/core/delta/DeltaApplier.h"
#include "Engine/core/helper/StagingFolder.h"
#include "Installer/Confinement.h"
#include "Installer/SteadyArchive.h"

#include <cerrno>
#include <optional>
#include <utility>

namespace Pelnar::Installer
{
namespace
{

using Engine::HelperPhase;
using Engine::PayloadKind;
using Engine::UpdateFault;
using Engine::UpdateRefusal;

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

Engine::UnpackedBundle ApplyDeltaArchive(Engine::PrepareJob const& job, Engine::PrepareDescriptors const& descriptors,
                                         int archiveFd, Engine::DeltaProgress const& progress)
{
    if (!Engine::TreeAccess(descriptors.staging).MakeFolder(job.bundleName))
    {
        Engine::ThrowErrno(errno);
    }
    Engine::UniqueFd const bundle = Engine::OpenFolderOrThrow(descriptors.staging, job.bundleName);
    Engine::ContentHash digest{};
    Engine::DeltaOutcome const outcome =
        Engine::ApplyDelta(archiveFd, descriptors.target, bundle.Get(), Engine::DeltaLimits(), progress, digest);
    if (!outcome.HasSucceeded())
    {
        if (outcome.error == Engine::DeltaError::CannotWrite)
        {
            Engine::ThrowErrno(outcome.systemError);
        }
        throw UpdateRefusal(FaultOf(outcome), outcome.systemError);
    }
    return {job.bundleName, digest};
}

/// Verifies the archive open at \a archiveFd and unpacks it. REQUIRES: no process changes it meanwhile.
Engine::UnpackedBundle UnpackVerified(Engine::PrepareJob const& job, Engine::PrepareDescriptors const& descriptors,
                                      int archiveFd, ReportChannel& report)
{
    report.SendProgress(HelperPhase::Verifying, 0, job.archiveBytes);
    UpdateFault const verdict = Engine::VerifyFileSignature(archiveFd, job.signature, job.publicKeys);
    if (verdict != UpdateFault::None)
    {
        throw UpdateRefusal(verdict);
    }
    report.SendProgress(HelperPhase::Verifying, job.archiveBytes, job.archiveBytes);

    auto const progress = [&report](std::uint64_t done, std::uint64_t total)
    { report.SendProgress(HelperPhase::Unpacking, done, total); };
    return job.kind == PayloadKind::Delta ? ApplyDeltaArchive(job, descriptors, archiveFd, progress)
                                          : Engine::UnpackArchive(archiveFd, descriptors.staging, progress);
}

} // namespace

void PrepareUpdate(Engine::PrepareJob const& job, Engine::PrepareDescriptors const& descriptors, ReportChannel& report)
{
    if (job.kind == PayloadKind::Installer &&
        !Engine::ReadBundleInformation(descriptors.target, job.bundleName).allowsInstallerPrograms)
    {
        throw UpdateRefusal(UpdateFault::InstallerNotAllowed);
    }
    // Before the confinement, which would prevent an unnamed copy.
    std::optional<SteadyArchive> archive(std::in_place, descriptors.archive, job.archiveBytes, descriptors.staging);
    bool const isDelta = job.kind == PayloadKind::Delta;
    ConfineTo(descriptors.staging, isDelta ? std::vector<int>{descriptors.target} : std::vector<int>());
    Engine::UnpackedBundle const bundle = UnpackVerified(job, descriptors, archive->Descriptor(), report);
    archive.reset(); // changes to it no longer matter
    // An installer program is started from where it was unpacked, a bundle from the installed bundle's place.
    std::string const& name = job.kind == PayloadKind::Installer ? bundle.name : job.bundleName;
    Engine::CheckNewBundle(Engine::OpenFolderOrThrow(descriptors.staging, bundle.name).Get(), name,
                           {job.kind, job.bundleIdentifier, job.expectedVersion, job.installedVersion});
    if (!Engine::SyncTree(descriptors.staging))
    {
        Engine::ThrowErrno(errno, UpdateFault::SyncFailed);
    }
    report.Send(Engine::PreparedReport{bundle.digest, bundle.name});
}

} // namespace Pelnar::Installer
