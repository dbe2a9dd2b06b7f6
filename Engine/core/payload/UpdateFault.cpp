#include "Engine/core/payload/UpdateFault.h"

#include <cerrno>
#include <string>
#include <utility>

namespace Pelnar::Engine
{
namespace
{

constexpr UpdateFault LAST_FAULT = UpdateFault::ExecutableNameInvalid;

std::string Describe(UpdateFault fault, int errorNumber)
{
    std::string text(FaultName(fault));
    if (errorNumber != 0)
    {
        text += " (errno " + std::to_string(errorNumber) + ")";
    }
    return text;
}

} // namespace

std::string_view FaultName(UpdateFault fault)
{
    switch (fault)
    {
    case UpdateFault::None:
        return "None";
    case UpdateFault::JobMalformed:
        return "JobMalformed";
    case UpdateFault::DescriptorUnusable:
        return "DescriptorUnusable";
    case UpdateFault::HelperUnusable:
        return "HelperUnusable";
    case UpdateFault::ConfinementFailed:
        return "ConfinementFailed";
    case UpdateFault::KeyMissing:
        return "KeyMissing";
    case UpdateFault::KeyMalformed:
        return "KeyMalformed";
    case UpdateFault::SignatureMissing:
        return "SignatureMissing";
    case UpdateFault::SignatureMalformed:
        return "SignatureMalformed";
    case UpdateFault::SignatureMismatch:
        return "SignatureMismatch";
    case UpdateFault::CryptographyUnavailable:
        return "CryptographyUnavailable";
    case UpdateFault::ArchiveEmpty:
        return "ArchiveEmpty";
    case UpdateFault::ArchiveUnreadable:
        return "ArchiveUnreadable";
    case UpdateFault::ArchiveLengthDiffers:
        return "ArchiveLengthDiffers";
    case UpdateFault::ArchiveInUse:
        return "ArchiveInUse";
    case UpdateFault::ContainerUnknown:
        return "ContainerUnknown";
    case UpdateFault::ContainerDamaged:
        return "ContainerDamaged";
    case UpdateFault::ContainerAmbiguous:
        return "ContainerAmbiguous";
    case UpdateFault::ContainerEncrypted:
        return "ContainerEncrypted";
    case UpdateFault::ContainerMethodUnknown:
        return "ContainerMethodUnknown";
    case UpdateFault::EntryNameInvalid:
        return "EntryNameInvalid";
    case UpdateFault::EntryNameTooLong:
        return "EntryNameTooLong";
    case UpdateFault::EntryEscapes:
        return "EntryEscapes";
    case UpdateFault::EntryTooDeep:
        return "EntryTooDeep";
    case UpdateFault::EntryTypeRefused:
        return "EntryTypeRefused";
    case UpdateFault::EntryIsHardLink:
        return "EntryIsHardLink";
    case UpdateFault::EntryIsSparse:
        return "EntryIsSparse";
    case UpdateFault::EntrySizeUnknown:
        return "EntrySizeUnknown";
    case UpdateFault::EntryDuplicate:
        return "EntryDuplicate";
    case UpdateFault::EntryNameClash:
        return "EntryNameClash";
    case UpdateFault::EntryUnderNoFolder:
        return "EntryUnderNoFolder";
    case UpdateFault::LinkTargetInvalid:
        return "LinkTargetInvalid";
    case UpdateFault::LinkEscapes:
        return "LinkEscapes";
    case UpdateFault::LinkDangles:
        return "LinkDangles";
    case UpdateFault::LinkLoops:
        return "LinkLoops";
    case UpdateFault::TooManyEntries:
        return "TooManyEntries";
    case UpdateFault::TooManyLinks:
        return "TooManyLinks";
    case UpdateFault::TooManyBytes:
        return "TooManyBytes";
    case UpdateFault::DeltaBaseDiffers:
        return "DeltaBaseDiffers";
    case UpdateFault::DeltaResultDiffers:
        return "DeltaResultDiffers";
    case UpdateFault::BundleMissing:
        return "BundleMissing";
    case UpdateFault::BundleNotAlone:
        return "BundleNotAlone";
    case UpdateFault::BundleNotAFolder:
        return "BundleNotAFolder";
    case UpdateFault::InformationMissing:
        return "InformationMissing";
    case UpdateFault::InformationTooLarge:
        return "InformationTooLarge";
    case UpdateFault::InformationMalformed:
        return "InformationMalformed";
    case UpdateFault::IdentifierDiffers:
        return "IdentifierDiffers";
    case UpdateFault::VersionDiffers:
        return "VersionDiffers";
    case UpdateFault::VersionNotNewer:
        return "VersionNotNewer";
    case UpdateFault::BundleKeyMissing:
        return "BundleKeyMissing";
    case UpdateFault::ExecutableMissing:
        return "ExecutableMissing";
    case UpdateFault::ExecutableNotRunnable:
        return "ExecutableNotRunnable";
    case UpdateFault::ExecutableForeign:
        return "ExecutableForeign";
    case UpdateFault::NoSpace:
        return "NoSpace";
    case UpdateFault::NotPermitted:
        return "NotPermitted";
    case UpdateFault::DiskError:
        return "DiskError";
    case UpdateFault::HostStillRunning:
        return "HostStillRunning";
    case UpdateFault::LockTimedOut:
        return "LockTimedOut";
    case UpdateFault::TargetMissing:
        return "TargetMissing";
    case UpdateFault::TargetChanged:
        return "TargetChanged";
    case UpdateFault::StagedTreeChanged:
        return "StagedTreeChanged";
    case UpdateFault::OtherFileSystem:
        return "OtherFileSystem";
    case UpdateFault::SwapFailed:
        return "SwapFailed";
    case UpdateFault::SyncFailed:
        return "SyncFailed";
    case UpdateFault::InstallerNotAllowed:
        return "InstallerNotAllowed";
    case UpdateFault::InstallerNotStarted:
        return "InstallerNotStarted";
    case UpdateFault::InstallerFailed:
        return "InstallerFailed";
    case UpdateFault::InstallerTimedOut:
        return "InstallerTimedOut";
    case UpdateFault::RelaunchPathUnsafe:
        return "RelaunchPathUnsafe";
    case UpdateFault::RelaunchFailed:
        return "RelaunchFailed";
    case UpdateFault::LocksUnavailable:
        return "LocksUnavailable";
    case UpdateFault::PermissionsUnavailable:
        return "PermissionsUnavailable";
    case UpdateFault::FolderUnsafe:
        return "FolderUnsafe";
    case UpdateFault::ProcessHandlesUnavailable:
        return "ProcessHandlesUnavailable";
    case UpdateFault::SealedMemoryUnavailable:
        return "SealedMemoryUnavailable";
    case UpdateFault::PayloadKindDiffers:
        return "PayloadKindDiffers";
    case UpdateFault::InstallationInterrupted:
        return "InstallationInterrupted";
    case UpdateFault::NewVersionFailed:
        return "NewVersionFailed";
    case UpdateFault::RightsNotKept:
        return "RightsNotKept";
    case UpdateFault::ExecutableNameInvalid:
        return "ExecutableNameInvalid";
    }
    return "Unknown fault";
}

std::optional<UpdateFault> FaultFromName(std::string_view name)
{
    for (int value = 0; value <= static_cast<int>(LAST_FAULT); ++value)
    {
        auto const fault = static_cast<UpdateFault>(value);
        if (FaultName(fault) == name)
        {
            return fault;
        }
    }
    return std::nullopt;
}

UpdateRefusal::UpdateRefusal(UpdateFault fault, int errorNumber, std::string entry)
    : std::runtime_error(Describe(fault, errorNumber))
    , m_fault(fault)
    , m_errorNumber(errorNumber)
    , m_entry(std::move(entry))
{
}

void ThrowErrno(int errorNumber, UpdateFault otherwise)
{
    switch (errorNumber)
    {
    case ENOSPC:
    case EDQUOT:
        throw UpdateRefusal(UpdateFault::NoSpace, errorNumber);
    case EACCES:
    case EPERM:
    case EROFS:
        throw UpdateRefusal(UpdateFault::NotPermitted, errorNumber);
    }
    throw UpdateRefusal(otherwise, errorNumber);
}

} // namespace Pelnar::Engine
