// UpdateFault.h: every reason for which an update is not prepared or not installed, and the exception that carries one.
// Thread: any; plain values. The names are part of the helper's report format: a name is never given a second meaning.
#pragma once

#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>

namespace Pelnar::Engine
{

enum class UpdateFault
{
    None,

    JobMalformed,
    DescriptorUnusable,
    HelperUnusable, ///< told by the host only: no helper could be started
    ConfinementFailed,

    KeyMissing,
    KeyMalformed,
    SignatureMissing,
    SignatureMalformed,
    SignatureMismatch,
    CryptographyUnavailable,
    ArchiveEmpty,
    ArchiveUnreadable,
    ArchiveLengthDiffers,
    ArchiveInUse,

    ContainerUnknown,
    ContainerDamaged,
    ContainerAmbiguous,
    ContainerEncrypted,
    ContainerMethodUnknown,

    EntryNameInvalid,
    EntryNameTooLong,
    EntryEscapes,
    EntryTooDeep,
    EntryTypeRefused,
    EntryIsHardLink,
    EntryIsSparse,
    EntrySizeUnknown,
    EntryDuplicate,
    EntryNameClash,
    EntryUnderNoFolder,
    LinkTargetInvalid,
    LinkEscapes,
    LinkDangles,
    LinkLoops,
    TooManyEntries,
    TooManyLinks,
    TooManyBytes,

    DeltaBaseDiffers,
    DeltaResultDiffers,

    BundleMissing,
    BundleNotAlone,
    BundleNotAFolder,
    InformationMissing,
    InformationTooLarge,
    InformationMalformed,
    IdentifierDiffers,
    VersionDiffers,
    VersionNotNewer,
    BundleKeyMissing,
    ExecutableMissing,
    ExecutableNotRunnable,
    ExecutableForeign,

    NoSpace,
    NotPermitted,
    DiskError,

    HostStillRunning,
    LockTimedOut,
    TargetMissing,
    TargetChanged,
    StagedTreeChanged,
    OtherFileSystem,
    SwapFailed,
    SyncFailed,

    InstallerNotAllowed,
    InstallerNotStarted,
    InstallerFailed,
    InstallerTimedOut,

    RelaunchPathUnsafe,
    RelaunchFailed,

    LocksUnavailable,       ///< the file system has none, or the system permits none
    PermissionsUnavailable, ///< the file system keeps no modes and owners of its own
    FolderUnsafe,           ///< others may change the folder that holds the bundle
    ProcessHandlesUnavailable,
    SealedMemoryUnavailable,
    PayloadKindDiffers, ///< an installer program under the name of a bundle, or the reverse

    InstallationInterrupted, ///< the installing helper ended without a word
    NewVersionFailed,        ///< it did not start well, and the previous one is back
    RightsNotKept,
    ExecutableNameInvalid, ///< the bundle's information names a program that is no file of its folder
};

/// The fault's stable name: its enumerator's.
std::string_view FaultName(UpdateFault fault);
/// The fault of that name; nothing for any other text.
std::optional<UpdateFault> FaultFromName(std::string_view name);

/// Thrown where an update must stop; caught once, in the helper's main function.
class UpdateRefusal : public std::runtime_error
{
public:
    /// \a entry: the name in the archive that is refused; empty for what is no matter of one entry.
    explicit UpdateRefusal(UpdateFault fault, int errorNumber = 0, std::string entry = {});

    UpdateFault Fault() const { return m_fault; }
    int ErrorNumber() const { return m_errorNumber; } ///< errno of the call that failed; 0 when none did
    std::string const& Entry() const { return m_entry; }

private:
    UpdateFault m_fault;
    int m_errorNumber;
    std::string m_entry;
};

/// Throws the fault that \a errorNumber stands for: NoSpace, NotPermitted, or else \a otherwise.
[[noreturn]] void ThrowErrno(int errorNumber, UpdateFault otherwise = UpdateFault::DiskError);

} // namespace Pelnar::Engine
