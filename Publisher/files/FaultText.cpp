#include "Publisher/files/FaultText.h"

#include "Publisher/Console.h"

#include <algorithm>
#include <cstring>
#include <iterator>

namespace Pelnar::Publisher
{
namespace
{

using Engine::DeltaError;
using Engine::UpdateFault;

struct Words
{
    char const* what;
    char const* mend;
};

constexpr char PACK_AGAIN[] = "pack it again with zip or tar";
constexpr char PLAIN_ENTRIES[] = "leave it out: a bundle holds files, folders, and links within itself";
constexpr char NAME_ENTRIES[] = "give every entry a plain name of its own below the bundle's folder";
constexpr char ONE_BUNDLE[] = "pack one folder \"Name.app\" and nothing beside it";
constexpr char SMALLER[] = "pack less; clients refuse it so that no archive fills their disks";

/// Faults of an archive or of its signature; nothing for those that only an installation meets.
Words WordsFor(UpdateFault fault)
{
    switch (fault)
    {
    case UpdateFault::KeyMissing:
        return {"no public key is given", "print it with \"keys show\""};
    case UpdateFault::KeyMalformed:
        return {"the public key is none", "it is 32 bytes in base64: print it with \"keys show\""};
    case UpdateFault::SignatureMissing:
        return {"no signature is given", "make one with \"sign\""};
    case UpdateFault::SignatureMalformed:
        return {"the signature is none", "it is 64 bytes in base64: make one with \"sign\""};
    case UpdateFault::SignatureMismatch:
        return {"the signature is not of this file and this key",
                "sign the file as it is now, or give the key that signed it"};
    case UpdateFault::CryptographyUnavailable:
        return {"the cryptography library does not start", ""};
    case UpdateFault::ArchiveEmpty:
        return {"the file is empty", PACK_AGAIN};
    case UpdateFault::ArchiveUnreadable:
        return {"the file cannot be read to its end", "check the disk, and that nobody changes the file meanwhile"};
    case UpdateFault::ContainerUnknown:
        return {"is neither a zip nor a tar under gzip, bzip2, xz or zstd", PACK_AGAIN};
    case UpdateFault::ContainerDamaged:
        return {"is damaged or ends early", PACK_AGAIN};
    case UpdateFault::ContainerAmbiguous:
        return {"is a zip that two programs could read in two ways", PACK_AGAIN};
    case UpdateFault::ContainerEncrypted:
        return {"is encrypted", "pack it without a password: clients have none"};
    case UpdateFault::ContainerMethodUnknown:
        return {"is a zip with a compression that clients do not read", "pack it with deflate"};
    case UpdateFault::EntryNameInvalid:
        return {"an entry has a name that clients refuse", NAME_ENTRIES};
    case UpdateFault::EntryNameTooLong:
        return {"an entry has a name that is too long", NAME_ENTRIES};
    case UpdateFault::EntryEscapes:
        return {"an entry lies outside the folder that it is unpacked to", NAME_ENTRIES};
    case UpdateFault::EntryTooDeep:
        return {"an entry lies too many folders deep", NAME_ENTRIES};
    case UpdateFault::EntryDuplicate:
        return {"an entry stands twice", NAME_ENTRIES};
    case UpdateFault::EntryNameClash:
        return {"two entries differ only in case or in how their letters are encoded", NAME_ENTRIES};
    case UpdateFault::EntryUnderNoFolder:
        return {"an entry lies below something that is no folder", NAME_ENTRIES};
    case UpdateFault::EntryTypeRefused:
        return {"an entry is a device, a FIFO or the like", PLAIN_ENTRIES};
    case UpdateFault::EntryIsHardLink:
        return {"an entry is a hard link", "pack with \"tar --hard-dereference\""};
    case UpdateFault::EntryIsSparse:
        return {"an entry is a sparse file", "pack without \"--sparse\""};
    case UpdateFault::EntrySizeUnknown:
        return {"an entry does not tell its size", PACK_AGAIN};
    case UpdateFault::LinkTargetInvalid:
    case UpdateFault::LinkEscapes:
        return {"a link leads out of the bundle", PLAIN_ENTRIES};
    case UpdateFault::LinkDangles:
        return {"a link leads nowhere", PLAIN_ENTRIES};
    case UpdateFault::LinkLoops:
        return {"links lead in a circle", PLAIN_ENTRIES};
    case UpdateFault::TooManyEntries:
        return {"has too many entries", SMALLER};
    case UpdateFault::TooManyLinks:
        return {"has too many links", SMALLER};
    case UpdateFault::TooManyBytes:
        return {"unpacks to more bytes than clients accept", SMALLER};
    case UpdateFault::BundleMissing:
    case UpdateFault::BundleNotAlone:
    case UpdateFault::BundleNotAFolder:
        return {"does not hold one bundle alone", ONE_BUNDLE};
    case UpdateFault::InformationMissing:
        return {"the bundle has no information file",
                "it is Resources/Info-gnustep.plist or Contents/Info.plist in the bundle's folder"};
    case UpdateFault::InformationTooLarge:
        return {"the bundle's information file is too large", "keep it below 1 MiB"};
    case UpdateFault::InformationMalformed:
        return {"the bundle's information file is no property list in text form",
                "write it as XML or in the old style of braces (plutil -convert xml1)"};
    case UpdateFault::ExecutableNameInvalid:
        return {"the bundle's information file names a program that does not lie directly in the bundle's folder",
                "write the name of a file in Name.app, without \"/\", as NSExecutable, and put the program there"};
    case UpdateFault::IdentifierDiffers:
        return {"the bundle is of another product than the installed one", "give it the product's CFBundleIdentifier"};
    case UpdateFault::VersionDiffers:
        return {"the bundle is of another version than the feed says",
                "make CFBundleVersion and sparkle:version the same text"};
    case UpdateFault::VersionNotNewer:
        return {"the bundle is not newer than the installed one", "give it a greater CFBundleVersion"};
    case UpdateFault::BundleKeyMissing:
        return {"the bundle has no SUPublicEDKey and could never be updated again",
                "add the entry that \"keys show\" prints to its information file"};
    case UpdateFault::ExecutableMissing:
        return {"the bundle has no program", "put the program there, or name it in NSExecutable"};
    case UpdateFault::ExecutableNotRunnable:
        return {"the bundle's program may not be executed", "chmod 755 the program, and pack it with its rights"};
    case UpdateFault::ExecutableForeign:
        return {"the bundle's program is not for the machine that the release is for",
                "build it for that machine, or name the right one with --machine"};
    case UpdateFault::PayloadKindDiffers:
        return {"the bundle is of another kind than the feed says", "check PelnarPayloadKind in its information file"};
    case UpdateFault::InstallerNotAllowed:
        return {"installed versions do not run installer programs",
                "publish a bundle, or first a version with PelnarAllowsInstallerPrograms = YES"};
    case UpdateFault::NoSpace:
        return {"there is no space left to unpack it", "name a folder with more space in TMPDIR"};
    case UpdateFault::NotPermitted:
    case UpdateFault::DiskError:
        return {"cannot be unpacked", "check the folder for temporary files (TMPDIR)"};

    case UpdateFault::None:
    case UpdateFault::JobMalformed:
    case UpdateFault::DescriptorUnusable:
    case UpdateFault::HelperUnusable:
    case UpdateFault::ConfinementFailed:
    case UpdateFault::ArchiveLengthDiffers:
    case UpdateFault::ArchiveInUse:
    case UpdateFault::DeltaBaseDiffers:
    case UpdateFault::DeltaResultDiffers:
    case UpdateFault::HostStillRunning:
    case UpdateFault::LockTimedOut:
    case UpdateFault::TargetMissing:
    case UpdateFault::TargetChanged:
    case UpdateFault::StagedTreeChanged:
    case UpdateFault::OtherFileSystem:
    case UpdateFault::SwapFailed:
    case UpdateFault::SyncFailed:
    case UpdateFault::InstallerNotStarted:
    case UpdateFault::InstallerFailed:
    case UpdateFault::InstallerTimedOut:
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
        break;
    }
    return {nullptr, ""};
}

Words WordsFor(DeltaError error)
{
    switch (error)
    {
    case DeltaError::None:
    case DeltaError::TreeRefused: // the rule that is broken says more
        break;
    case DeltaError::NotADelta:
        return {"is no delta of this format", "make one with \"delta create\""};
    case DeltaError::Damaged:
        return {"is a damaged delta", "make it again with \"delta create\""};
    case DeltaError::OverLimits:
        return {"the delta asks for more than clients allow", "publish the full archive only"};
    case DeltaError::BaseDiffers:
        return {"the old version is not the one that the delta starts from", "give the bundle that it was made from"};
    case DeltaError::ResultDiffers:
        return {"the delta does not make what it promises", "make it again with \"delta create\""};
    case DeltaError::CannotRead:
        return {"cannot be read", "check the files of both versions: plain files, folders and links only"};
    case DeltaError::CannotWrite:
        return {"cannot be written", "check the folder and the space on the disk"};
    }
    return {"", ""};
}

Problem ProblemWith(Words const& words, int errorNumber, QString const& name)
{
    QString what = QString::fromUtf8(words.what);
    if (errorNumber != 0)
    {
        what += QStringLiteral(": ") + QString::fromLocal8Bit(std::strerror(errorNumber));
    }
    return {name, 0, 0, what, QString::fromUtf8(words.mend)};
}

} // namespace

Problem ProblemOf(UpdateFault fault, int errorNumber, QString const& name)
{
    Words const words = WordsFor(fault);
    std::string const faultName(Engine::FaultName(fault));
    return ProblemWith(words.what ? words : Words{faultName.c_str(), ""}, errorNumber, name);
}

Problem ProblemOf(Engine::UpdateRefusal const& refusal, QString const& name)
{
    Problem problem = ProblemOf(refusal.Fault(), refusal.ErrorNumber(), name);
    if (!refusal.Entry().empty())
    {
        problem.what += QStringLiteral(": \"%1\"").arg(Printable(QString::fromStdString(refusal.Entry())));
    }
    return problem;
}

RefusalCause CauseOf(UpdateFault fault)
{
    constexpr UpdateFault OF_THIS_COMPUTER[] = {UpdateFault::NoSpace, UpdateFault::NotPermitted, UpdateFault::DiskError,
                                                UpdateFault::ArchiveUnreadable, UpdateFault::CryptographyUnavailable};
    bool const isHere =
        std::find(std::begin(OF_THIS_COMPUTER), std::end(OF_THIS_COMPUTER), fault) != std::end(OF_THIS_COMPUTER);
    return isHere ? RefusalCause::Input : RefusalCause::Content;
}

Problem ProblemOf(Engine::DeltaOutcome const& outcome, QString const& name)
{
    QString const file =
        outcome.path.empty() ? name : name + QLatin1Char('/') + Printable(QString::fromStdString(outcome.path));
    return outcome.error == DeltaError::TreeRefused ? ProblemOf(outcome.fault, outcome.systemError, file)
                                                    : ProblemWith(WordsFor(outcome.error), outcome.systemError, file);
}

} // namespace Pelnar::Publisher
