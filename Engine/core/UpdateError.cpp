#include "Engine/core/UpdateError.h"

namespace Pelnar::Engine
{
namespace
{

struct FaultDescription
{
    ErrorCode code;
    char const* sentence;
};

// One line for each fault; what the line says is all that a person learns, so it says what to do.
FaultDescription DescriptionOf(UpdateFault fault)
{
    switch (fault)
    {
    case UpdateFault::None:
        return {ErrorCode::Installation,
                QT_TRANSLATE_NOOP("PelnarEngine_Errors", "The update could not be installed: try again later.")};
    case UpdateFault::JobMalformed:
        return {
            ErrorCode::Installation,
            QT_TRANSLATE_NOOP("PelnarEngine_Errors",
                              "The program that installs updates did not understand what it was asked for: install the "
                              "application again.")};
    case UpdateFault::DescriptorUnusable:
        return {ErrorCode::Installation,
                QT_TRANSLATE_NOOP(
                    "PelnarEngine_Errors",
                    "The program that installs updates could not use the files that it was given: try again.")};
    case UpdateFault::HelperUnusable:
        return {
            ErrorCode::Installation,
            QT_TRANSLATE_NOOP(
                "PelnarEngine_Errors",
                "The program that installs updates is missing or could be changed by others: install the application "
                "again.")};
    case UpdateFault::ConfinementFailed:
        return {ErrorCode::Unarchiving,
                QT_TRANSLATE_NOOP(
                    "PelnarEngine_Errors",
                    "The update could not be unpacked in a confined process, as it must be: tell the publisher which "
                    "system this is.")};
    case UpdateFault::KeyMissing:
        return {ErrorCode::Signature,
                QT_TRANSLATE_NOOP(
                    "PelnarEngine_Errors",
                    "This application has no public key under SUPublicEDKey, so that no update can be proved genuine: "
                    "install it again from its publisher.")};
    case UpdateFault::KeyMalformed:
        return {
            ErrorCode::Signature,
            QT_TRANSLATE_NOOP(
                "PelnarEngine_Errors",
                "The public key of this application under SUPublicEDKey is damaged, so that no update can be proved "
                "genuine: install it again from its publisher.")};
    case UpdateFault::SignatureMissing:
        return {
            ErrorCode::Signature,
            QT_TRANSLATE_NOOP("PelnarEngine_Errors", "The update is not signed, and is refused: tell the publisher.")};
    case UpdateFault::SignatureMalformed:
        return {ErrorCode::Signature,
                QT_TRANSLATE_NOOP(
                    "PelnarEngine_Errors",
                    "The signature of the update is not a signature, and the update is refused: tell the publisher.")};
    case UpdateFault::SignatureMismatch:
        return {ErrorCode::Signature,
                QT_TRANSLATE_NOOP(
                    "PelnarEngine_Errors",
                    "The update was not signed by this application's publisher, or was damaged on its way, and is "
                    "refused: try another network, and tell the publisher if it stays so.")};
    case UpdateFault::CryptographyUnavailable:
        return {
            ErrorCode::Signature,
            QT_TRANSLATE_NOOP("PelnarEngine_Errors",
                              "Signatures cannot be verified on this computer: install its libsodium library again.")};
    case UpdateFault::ArchiveEmpty:
        return {ErrorCode::Unarchiving,
                QT_TRANSLATE_NOOP("PelnarEngine_Errors",
                                  "The downloaded update is empty: try again, and tell the publisher if it stays so.")};
    case UpdateFault::ArchiveUnreadable:
        return {ErrorCode::Unarchiving,
                QT_TRANSLATE_NOOP("PelnarEngine_Errors",
                                  "The downloaded update cannot be read from the disk: check the disk and try again.")};
    case UpdateFault::ArchiveLengthDiffers:
        return {ErrorCode::Signature,
                QT_TRANSLATE_NOOP(
                    "PelnarEngine_Errors",
                    "The downloaded update is longer or shorter than the feed says: try again, and tell the publisher "
                    "if it stays so.")};
    case UpdateFault::ArchiveInUse:
        return {
            ErrorCode::Unarchiving,
            QT_TRANSLATE_NOOP(
                "PelnarEngine_Errors",
                "Another program changed the downloaded update while it was being verified: close it and try again.")};
    case UpdateFault::ContainerUnknown:
        return {ErrorCode::Unarchiving,
                QT_TRANSLATE_NOOP("PelnarEngine_Errors",
                                  "The update is packed in a way that is not known: tell the publisher.")};
    case UpdateFault::ContainerDamaged:
        return {ErrorCode::Unarchiving,
                QT_TRANSLATE_NOOP("PelnarEngine_Errors", "The archive of the update is damaged: tell the publisher.")};
    case UpdateFault::ContainerAmbiguous:
        return {ErrorCode::Unarchiving,
                QT_TRANSLATE_NOOP(
                    "PelnarEngine_Errors",
                    "The archive of the update can be read in more than one way, and is refused: tell the publisher.")};
    case UpdateFault::ContainerEncrypted:
        return {ErrorCode::Unarchiving,
                QT_TRANSLATE_NOOP("PelnarEngine_Errors",
                                  "The archive of the update is encrypted, and is refused: tell the publisher.")};
    case UpdateFault::ContainerMethodUnknown:
        return {ErrorCode::Unarchiving,
                QT_TRANSLATE_NOOP(
                    "PelnarEngine_Errors",
                    "The archive of the update is compressed in a way that is not known: tell the publisher.")};
    case UpdateFault::EntryNameInvalid:
        return {ErrorCode::Unarchiving,
                QT_TRANSLATE_NOOP("PelnarEngine_Errors",
                                  "The update has a file with a name that is not allowed: tell the publisher.")};
    case UpdateFault::EntryNameTooLong:
        return {ErrorCode::Unarchiving,
                QT_TRANSLATE_NOOP("PelnarEngine_Errors",
                                  "The update has a file with a name that is too long: tell the publisher.")};
    case UpdateFault::EntryEscapes:
        return {ErrorCode::Unarchiving,
                QT_TRANSLATE_NOOP(
                    "PelnarEngine_Errors",
                    "The update has a file that would land outside of the application, and is refused: tell the "
                    "publisher.")};
    case UpdateFault::EntryTooDeep:
        return {
            ErrorCode::Unarchiving,
            QT_TRANSLATE_NOOP("PelnarEngine_Errors", "The folders of the update are too deep: tell the publisher.")};
    case UpdateFault::EntryTypeRefused:
        return {ErrorCode::Unarchiving,
                QT_TRANSLATE_NOOP(
                    "PelnarEngine_Errors",
                    "The update has something that is neither file nor folder nor link, and is refused: tell the "
                    "publisher.")};
    case UpdateFault::EntryIsHardLink:
        return {ErrorCode::Unarchiving,
                QT_TRANSLATE_NOOP("PelnarEngine_Errors",
                                  "The update has a hard link, and is refused: tell the publisher.")};
    case UpdateFault::EntryIsSparse:
        return {ErrorCode::Unarchiving,
                QT_TRANSLATE_NOOP("PelnarEngine_Errors",
                                  "The update has a file with holes, and is refused: tell the publisher.")};
    case UpdateFault::EntrySizeUnknown:
        return {ErrorCode::Unarchiving,
                QT_TRANSLATE_NOOP("PelnarEngine_Errors",
                                  "The update has a file without a size, and is refused: tell the publisher.")};
    case UpdateFault::EntryDuplicate:
        return {ErrorCode::Unarchiving,
                QT_TRANSLATE_NOOP("PelnarEngine_Errors",
                                  "The update has the same file twice, and is refused: tell the publisher.")};
    case UpdateFault::EntryNameClash:
        return {ErrorCode::Unarchiving,
                QT_TRANSLATE_NOOP(
                    "PelnarEngine_Errors",
                    "The update has files whose names differ in case or accents only, and is refused: tell the "
                    "publisher.")};
    case UpdateFault::EntryUnderNoFolder:
        return {ErrorCode::Unarchiving,
                QT_TRANSLATE_NOOP(
                    "PelnarEngine_Errors",
                    "The update has a file below something that is no folder, and is refused: tell the publisher.")};
    case UpdateFault::LinkTargetInvalid:
        return {ErrorCode::Unarchiving,
                QT_TRANSLATE_NOOP("PelnarEngine_Errors",
                                  "The update has a link to a name that is not allowed: tell the publisher.")};
    case UpdateFault::LinkEscapes:
        return {
            ErrorCode::Unarchiving,
            QT_TRANSLATE_NOOP(
                "PelnarEngine_Errors",
                "The update has a link that leads outside of the application, and is refused: tell the publisher.")};
    case UpdateFault::LinkDangles:
        return {
            ErrorCode::Unarchiving,
            QT_TRANSLATE_NOOP("PelnarEngine_Errors", "The update has a link that leads nowhere: tell the publisher.")};
    case UpdateFault::LinkLoops:
        return {ErrorCode::Unarchiving,
                QT_TRANSLATE_NOOP("PelnarEngine_Errors",
                                  "The update has a link that leads back to itself: tell the publisher.")};
    case UpdateFault::TooManyEntries:
        return {ErrorCode::Unarchiving,
                QT_TRANSLATE_NOOP("PelnarEngine_Errors", "The update has too many files: tell the publisher.")};
    case UpdateFault::TooManyLinks:
        return {ErrorCode::Unarchiving,
                QT_TRANSLATE_NOOP("PelnarEngine_Errors", "The update has too many links: tell the publisher.")};
    case UpdateFault::TooManyBytes:
        return {ErrorCode::Unarchiving,
                QT_TRANSLATE_NOOP("PelnarEngine_Errors",
                                  "The update is too large once it is unpacked: tell the publisher.")};
    case UpdateFault::DeltaBaseDiffers:
        return {ErrorCode::Validation,
                QT_TRANSLATE_NOOP(
                    "PelnarEngine_Errors",
                    "The installed application was changed, so that the small update does not fit it: install the "
                    "application again.")};
    case UpdateFault::DeltaResultDiffers:
        return {ErrorCode::Validation,
                QT_TRANSLATE_NOOP(
                    "PelnarEngine_Errors",
                    "What the small update made of the application is not what it should be: tell the publisher.")};
    case UpdateFault::BundleMissing:
        return {ErrorCode::Validation,
                QT_TRANSLATE_NOOP("PelnarEngine_Errors", "The update holds no application: tell the publisher.")};
    case UpdateFault::BundleNotAlone:
        return {ErrorCode::Validation,
                QT_TRANSLATE_NOOP("PelnarEngine_Errors",
                                  "The update holds more than one application: tell the publisher.")};
    case UpdateFault::BundleNotAFolder:
        return {ErrorCode::Validation,
                QT_TRANSLATE_NOOP("PelnarEngine_Errors",
                                  "The application in the update is not a folder: tell the publisher.")};
    case UpdateFault::InformationMissing:
        return {ErrorCode::Validation,
                QT_TRANSLATE_NOOP("PelnarEngine_Errors",
                                  "The application in the update does not describe itself: tell the publisher.")};
    case UpdateFault::InformationTooLarge:
        return {
            ErrorCode::Validation,
            QT_TRANSLATE_NOOP("PelnarEngine_Errors",
                              "The description of the application in the update is too large: tell the publisher.")};
    case UpdateFault::InformationMalformed:
        return {
            ErrorCode::Validation,
            QT_TRANSLATE_NOOP("PelnarEngine_Errors",
                              "The description of the application in the update cannot be read: tell the publisher.")};
    case UpdateFault::ExecutableNameInvalid:
        return {ErrorCode::Validation,
                QT_TRANSLATE_NOOP("PelnarEngine_Errors",
                                  "The update names a program outside of its folder: tell the publisher.")};
    case UpdateFault::IdentifierDiffers:
        return {ErrorCode::Validation,
                QT_TRANSLATE_NOOP("PelnarEngine_Errors",
                                  "The update is of another application, and is refused: tell the publisher.")};
    case UpdateFault::VersionDiffers:
        return {ErrorCode::Validation,
                QT_TRANSLATE_NOOP(
                    "PelnarEngine_Errors",
                    "The update is of another version than the feed says, and is refused: tell the publisher.")};
    case UpdateFault::VersionNotNewer:
        return {ErrorCode::Downgrade,
                QT_TRANSLATE_NOOP(
                    "PelnarEngine_Errors",
                    "The update is not newer than the installed application, and is refused: tell the publisher.")};
    case UpdateFault::BundleKeyMissing:
        return {
            ErrorCode::Validation,
            QT_TRANSLATE_NOOP(
                "PelnarEngine_Errors",
                "The application in the update has no public key, so that it could never be updated again: tell the "
                "publisher.")};
    case UpdateFault::PayloadKindDiffers:
        return {ErrorCode::Validation,
                QT_TRANSLATE_NOOP("PelnarEngine_Errors",
                                  "The contents of the update do not match its file name: tell the publisher.")};
    case UpdateFault::ExecutableMissing:
        return {ErrorCode::Validation,
                QT_TRANSLATE_NOOP("PelnarEngine_Errors",
                                  "The application in the update has no program to start: tell the publisher.")};
    case UpdateFault::ExecutableNotRunnable:
        return {ErrorCode::Validation,
                QT_TRANSLATE_NOOP("PelnarEngine_Errors",
                                  "The program in the update may not be started: tell the publisher.")};
    case UpdateFault::ExecutableForeign:
        return {
            ErrorCode::Validation,
            QT_TRANSLATE_NOOP("PelnarEngine_Errors",
                              "The program in the update is made for another kind of computer: tell the publisher.")};
    case UpdateFault::InstallerNotAllowed:
        return {ErrorCode::Installation,
                QT_TRANSLATE_NOOP(
                    "PelnarEngine_Errors",
                    "The update is a program of its own, which this application does not allow: tell the publisher.")};
    case UpdateFault::InstallerNotStarted:
        return {
            ErrorCode::Installation,
            QT_TRANSLATE_NOOP(
                "PelnarEngine_Errors",
                "The program that comes with the update did not start: try again, and tell the publisher if it stays "
                "so.")};
    case UpdateFault::InstallerFailed:
        return {
            ErrorCode::Installation,
            QT_TRANSLATE_NOOP(
                "PelnarEngine_Errors",
                "The program that comes with the update did not install it: try again, and tell the publisher if it "
                "stays so.")};
    case UpdateFault::InstallerTimedOut:
        return {ErrorCode::Installation,
                QT_TRANSLATE_NOOP("PelnarEngine_Errors",
                                  "The program that comes with the update took too long and was ended: try again.")};
    case UpdateFault::NoSpace:
        return {ErrorCode::FileCopy,
                QT_TRANSLATE_NOOP("PelnarEngine_Errors",
                                  "There is not enough room on the disk for the update: free some and try again.")};
    case UpdateFault::NotPermitted:
        return {ErrorCode::NotWritable,
                QT_TRANSLATE_NOOP("PelnarEngine_Errors", "The folder that holds the application may not be changed by "
                                                         "this user: ask the person who installed it.")};
    case UpdateFault::DiskError:
        return {ErrorCode::FileCopy,
                QT_TRANSLATE_NOOP("PelnarEngine_Errors", "The disk reported an error: check it and try again.")};
    case UpdateFault::HostStillRunning:
        return {ErrorCode::Relaunch,
                QT_TRANSLATE_NOOP(
                    "PelnarEngine_Errors",
                    "The application did not close, so that the update was not installed: save your work, check for "
                    "updates again and let it close.")};
    case UpdateFault::LockTimedOut:
        return {ErrorCode::Installation,
                QT_TRANSLATE_NOOP("PelnarEngine_Errors",
                                  "Another update of this application is being installed: wait for its end.")};
    case UpdateFault::TargetMissing:
        return {ErrorCode::Installation,
                QT_TRANSLATE_NOOP(
                    "PelnarEngine_Errors",
                    "The installed application is not where it was when the update began: start it from its place and "
                    "try again.")};
    case UpdateFault::TargetChanged:
        return {ErrorCode::Installation,
                QT_TRANSLATE_NOOP(
                    "PelnarEngine_Errors",
                    "The installed application was changed while the update was being prepared: start it again and try "
                    "again.")};
    case UpdateFault::StagedTreeChanged:
        return {ErrorCode::Validation,
                QT_TRANSLATE_NOOP(
                    "PelnarEngine_Errors",
                    "The prepared update was changed before it could be installed, and was dropped: try again.")};
    case UpdateFault::OtherFileSystem:
        return {ErrorCode::Installation,
                QT_TRANSLATE_NOOP(
                    "PelnarEngine_Errors",
                    "The prepared update and the application are on different disks: try again, and install the "
                    "application again if it stays so.")};
    case UpdateFault::SwapFailed:
        return {ErrorCode::Installation,
                QT_TRANSLATE_NOOP(
                    "PelnarEngine_Errors",
                    "The new version could not be put in the place of the old one, which is as it was: try again.")};
    case UpdateFault::SyncFailed:
        return {ErrorCode::FileCopy,
                QT_TRANSLATE_NOOP("PelnarEngine_Errors",
                                  "The disk did not confirm that it holds the update: check it and try again.")};
    case UpdateFault::RelaunchPathUnsafe:
        return {ErrorCode::Relaunch,
                QT_TRANSLATE_NOOP(
                    "PelnarEngine_Errors",
                    "The application that should be started after the update may not be started: start it by hand.")};
    case UpdateFault::RelaunchFailed:
        return {ErrorCode::Relaunch,
                QT_TRANSLATE_NOOP("PelnarEngine_Errors", "The updated application did not start: start it by hand.")};
    case UpdateFault::LocksUnavailable:
        return {ErrorCode::Installation,
                QT_TRANSLATE_NOOP(
                    "PelnarEngine_Errors",
                    "Files cannot be locked where the application is installed: move it to a folder on a local disk.")};
    case UpdateFault::PermissionsUnavailable:
        return {ErrorCode::Installation,
                QT_TRANSLATE_NOOP(
                    "PelnarEngine_Errors",
                    "The disk that holds the application does not keep file permissions: move the application to "
                    "another disk.")};
    case UpdateFault::FolderUnsafe:
        return {ErrorCode::NotWritable,
                QT_TRANSLATE_NOOP(
                    "PelnarEngine_Errors",
                    "Other users may change the folder that holds the application: move the application to a folder of "
                    "your own.")};
    case UpdateFault::ProcessHandlesUnavailable:
        return {ErrorCode::Installation,
                QT_TRANSLATE_NOOP(
                    "PelnarEngine_Errors",
                    "This system does not provide pidfd_open, which updates need: install a newer kernel, or allow the "
                    "call in the container or sandbox.")};
    case UpdateFault::SealedMemoryUnavailable:
        return {ErrorCode::Installation,
                QT_TRANSLATE_NOOP(
                    "PelnarEngine_Errors",
                    "This system does not provide memfd_create, which updates need: install a newer kernel, or allow "
                    "the call in the container or sandbox.")};
    case UpdateFault::InstallationInterrupted:
        return {ErrorCode::Installation,
                QT_TRANSLATE_NOOP("PelnarEngine_Errors",
                                  "The installation of the update was interrupted: check for updates again.")};
    case UpdateFault::NewVersionFailed:
        return {ErrorCode::Installation,
                QT_TRANSLATE_NOOP("PelnarEngine_Errors",
                                  "The new version did not start, and the previous one is back: tell the publisher.")};
    case UpdateFault::RightsNotKept:
        return {ErrorCode::NotWritable,
                QT_TRANSLATE_NOOP("PelnarEngine_Errors",
                                  "The update cannot keep who may open the application, and was not installed: ask the "
                                  "person who installed the application to update it.")};
    }
    return {
        ErrorCode::Installation,
        QT_TRANSLATE_NOOP("PelnarEngine_Errors", "The update failed for a reason that is not known: try again later.")};
}

} // namespace

EngineError MakeFaultError(UpdateFault fault, int errorNumber)
{
    FaultDescription const description = DescriptionOf(fault);
    EngineError error;
    error.code = description.code;
    error.cause = ErrorCause::Fault;
    error.fault = fault;
    error.sentence = Sentence(description.sentence);
    std::string_view const name = FaultName(fault);
    error.detail = QString::fromLatin1(name.data(), static_cast<int>(name.size()));
    if (errorNumber != 0)
    {
        error.detail += QStringLiteral(" (errno %1)").arg(errorNumber);
    }
    return error;
}

bool IsArchiveToBlame(UpdateFault fault)
{
    switch (fault)
    {
    case UpdateFault::SignatureMissing:
    case UpdateFault::SignatureMalformed:
    case UpdateFault::SignatureMismatch:
    case UpdateFault::ArchiveEmpty:
    case UpdateFault::ArchiveLengthDiffers:
    case UpdateFault::ArchiveInUse:
    case UpdateFault::ContainerUnknown:
    case UpdateFault::ContainerDamaged:
    case UpdateFault::ContainerAmbiguous:
    case UpdateFault::ContainerEncrypted:
    case UpdateFault::ContainerMethodUnknown:
    case UpdateFault::EntryNameInvalid:
    case UpdateFault::EntryNameTooLong:
    case UpdateFault::EntryEscapes:
    case UpdateFault::EntryTooDeep:
    case UpdateFault::EntryTypeRefused:
    case UpdateFault::EntryIsHardLink:
    case UpdateFault::EntryIsSparse:
    case UpdateFault::EntrySizeUnknown:
    case UpdateFault::EntryDuplicate:
    case UpdateFault::EntryNameClash:
    case UpdateFault::EntryUnderNoFolder:
    case UpdateFault::LinkTargetInvalid:
    case UpdateFault::LinkEscapes:
    case UpdateFault::LinkDangles:
    case UpdateFault::LinkLoops:
    case UpdateFault::TooManyEntries:
    case UpdateFault::TooManyLinks:
    case UpdateFault::TooManyBytes:
    case UpdateFault::DeltaResultDiffers:
    case UpdateFault::BundleMissing:
    case UpdateFault::BundleNotAlone:
    case UpdateFault::BundleNotAFolder:
    case UpdateFault::InformationMissing:
    case UpdateFault::InformationTooLarge:
    case UpdateFault::InformationMalformed:
    case UpdateFault::ExecutableNameInvalid:
    case UpdateFault::IdentifierDiffers:
    case UpdateFault::VersionDiffers:
    case UpdateFault::VersionNotNewer:
    case UpdateFault::BundleKeyMissing:
    case UpdateFault::ExecutableMissing:
    case UpdateFault::ExecutableNotRunnable:
    case UpdateFault::ExecutableForeign:
    case UpdateFault::PayloadKindDiffers:
        return true;
    case UpdateFault::None:
    case UpdateFault::JobMalformed:
    case UpdateFault::DescriptorUnusable:
    case UpdateFault::HelperUnusable:
    case UpdateFault::ConfinementFailed:
    case UpdateFault::KeyMissing:
    case UpdateFault::KeyMalformed:
    case UpdateFault::CryptographyUnavailable:
    case UpdateFault::ArchiveUnreadable:
    case UpdateFault::DeltaBaseDiffers:
    case UpdateFault::InstallerNotAllowed:
    case UpdateFault::InstallerNotStarted:
    case UpdateFault::InstallerFailed:
    case UpdateFault::InstallerTimedOut:
    case UpdateFault::NoSpace:
    case UpdateFault::NotPermitted:
    case UpdateFault::DiskError:
    case UpdateFault::HostStillRunning:
    case UpdateFault::LockTimedOut:
    case UpdateFault::TargetMissing:
    case UpdateFault::TargetChanged:
    case UpdateFault::StagedTreeChanged:
    case UpdateFault::OtherFileSystem:
    case UpdateFault::SwapFailed:
    case UpdateFault::SyncFailed:
    case UpdateFault::RelaunchPathUnsafe:
    case UpdateFault::RelaunchFailed:
    case UpdateFault::LocksUnavailable:
    case UpdateFault::PermissionsUnavailable:
    case UpdateFault::FolderUnsafe:
    case UpdateFault::ProcessHandlesUnavailable:
    case UpdateFault::SealedMemoryUnavailable:
    case UpdateFault::InstallationInterrupted:
    case UpdateFault::NewVersionFailed:
    case UpdateFault::RightsNotKept:
        return false;
    }
    return false;
}

} // namespace Pelnar::Engine
