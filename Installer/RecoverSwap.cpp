#include "Installer/RecoverSwap.h"

#include "Engine/core/base/TreeWalk.h"
#include "Engine/core/helper/NoteFile.h"
#include "Engine/core/helper/StagingFolder.h"
#include "Engine/core/helper/SwapJournal.h"
#include "Installer/SwapBundle.h"

#include <cerrno>

#include <fcntl.h>
#include <stdio.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace Pelnar::Installer
{
namespace
{

using Engine::RecoveryAction;
using Engine::StartConfirmation;
using Engine::SwapJournal;
using Engine::TargetState;
using Engine::UniqueFd;

bool HasName(int folderFd, std::string const& name)
{
    struct stat status;
    return ::fstatat(folderFd, name.c_str(), &status, AT_SYMLINK_NOFOLLOW) == 0;
}

TargetState LookAtTarget(int parentFd, std::string const& targetName, SwapJournal const& journal)
{
    struct stat status;
    if (::fstatat(parentFd, targetName.c_str(), &status, AT_SYMLINK_NOFOLLOW) != 0)
    {
        return errno == ENOENT ? TargetState::Missing : TargetState::Unreadable;
    }
    auto const version = VersionOf(parentFd, targetName);
    if (!version)
    {
        return TargetState::Unreadable;
    }
    return *version == journal.toVersion     ? TargetState::New
           : *version == journal.fromVersion ? TargetState::Previous
                                             : TargetState::Foreign;
}

/// The name of the previous version in the staging folder; empty if it is not there.
std::string FindPrevious(UniqueFd const& staging, SwapJournal const& journal)
{
    for (std::string const& name : {std::string(Engine::PREVIOUS_BUNDLE_NAME), journal.stagedName})
    {
        if (staging && VersionOf(staging.Get(), name) == journal.fromVersion)
        {
            return name;
        }
    }
    return {};
}

/// The folder that the journal names, if it belongs to this bundle and no other user can have created or can enter it.
UniqueFd OpenStaging(int parentFd, std::string const& targetName, std::string const& name)
{
    std::string const prefix = Engine::UpdateFilePrefix(targetName);
    UniqueFd folder = name.compare(0, prefix.size(), prefix) == 0 ? Engine::OpenFolder(parentFd, name) : UniqueFd();
    return folder && Engine::IsPrivateFolder(folder.Get()) ? std::move(folder) : UniqueFd();
}

/// A staging folder named \a name without a lock: returns an open descriptor with its lock, otherwise an empty one.
UniqueFd OpenAbandoned(int parentFd, std::string const& name)
{
    UniqueFd folder = Engine::OpenFolder(parentFd, name);
    struct stat status;
    bool const isOurs = folder && ::fstat(folder.Get(), &status) == 0 && status.st_uid == ::geteuid() &&
                        ::flock(folder.Get(), LOCK_EX | LOCK_NB) == 0;
    return isOurs ? std::move(folder) : UniqueFd();
}

void RemoveAbandonedFolders(int parentFd, std::string const& targetName, std::string const& exceptName)
{
    auto const names = Engine::ListFolder(parentFd);
    if (!names)
    {
        Engine::ThrowErrno(errno);
    }
    std::string const prefix = Engine::UpdateFilePrefix(targetName);
    for (std::string const& name : *names)
    {
        bool const mayBeRemoved = name.compare(0, prefix.size(), prefix) == 0 && name != exceptName;
        if (UniqueFd const folder = mayBeRemoved ? OpenAbandoned(parentFd, name) : UniqueFd())
        {
            // The next start tries to remove what is left.
            static_cast<void>(Engine::RemoveTree(parentFd, name));
        }
    }
}

void CountStart(int parentFd, Engine::RecoverJob const& job, SwapJournal journal)
{
    ++journal.countedStarts;
    journal.lastStarted = {job.hostProcess, job.hostProcess == 0 ? 0 : Engine::StartTimeOf(job.hostProcess)};
    WriteSwapJournal(parentFd, job.targetName, journal);
}

void RollBack(int parentFd, std::string const& targetName, UniqueFd const& staging, std::string const& previousName,
              SwapJournal const& journal)
{
    // The note first: a failed version must not be installed repeatedly by processes that do not know of the failure.
    // If the disk has no space for the note, another installation would not have space either.
    try
    {
        Engine::WriteNote(parentFd, Engine::FailedVersionName(targetName),
                          Engine::EncodeFailedVersion({journal.fromVersion, journal.toVersion}));
    }
    catch (Engine::UpdateRefusal const& refusal)
    {
        if (refusal.Fault() != Engine::UpdateFault::NoSpace)
        {
            throw;
        }
    }
    SwapBack(parentFd, targetName, staging.Get(), previousName, journal);
}

RecoveryAction CarryOut(int parentFd, Engine::RecoverJob const& job, SwapJournal const& journal)
{
    UniqueFd const staging = OpenStaging(parentFd, job.targetName, journal.stagingName);
    std::string const previousName = FindPrevious(staging, journal);
    TargetState const target = LookAtTarget(parentFd, job.targetName, journal);
    if (target == TargetState::Missing && !staging && HasName(parentFd, journal.stagingName))
    {
        throw Engine::UpdateRefusal(
            Engine::UpdateFault::StagedTreeChanged); // it may contain the only remaining version
    }
    bool const awaitsHost =
        journal.confirmation == StartConfirmation::ByHost && job.purpose != Engine::RecoverPurpose::Confirmation;
    RecoveryAction const decided = Engine::DecideRecovery(
        {target, !previousName.empty(), job.runningVersion == journal.toVersion, awaitsHost, journal.countedStarts});
    bool const isOneMoreStart = decided == RecoveryAction::CountedStart || decided == RecoveryAction::RolledBack;
    // While the process of the last counted start runs, the request comes from this process, or from another instance
    // that runs in parallel.
    RecoveryAction const action =
        isOneMoreStart && Engine::IsRunning(journal.lastStarted) ? RecoveryAction::KeptPrevious : decided;
    switch (action)
    {
    case RecoveryAction::Nothing:
    case RecoveryAction::KeptPrevious:
        return action;
    case RecoveryAction::CountedStart:
        CountStart(parentFd, job, journal);
        return action;
    case RecoveryAction::RestoredPrevious:
        if (::renameat(staging.Get(), previousName.c_str(), parentFd, job.targetName.c_str()) != 0 ||
            ::fsync(parentFd) != 0)
        {
            Engine::ThrowErrno(errno, Engine::UpdateFault::SwapFailed);
        }
        break;
    case RecoveryAction::RolledBack:
        RollBack(parentFd, job.targetName, staging, previousName, journal);
        break;
    case RecoveryAction::ConfirmedNew:
    case RecoveryAction::DroppedStaged:
        break;
    }
    // The journal is removed first. A folder without a journal is known to be abandoned. A journal without its folder
    // would look like a journal with a half removed folder.
    Engine::RemoveNote(parentFd, Engine::SwapJournalName(job.targetName));
    return action;
}

/// The folder must stay: its content is needed or is running.
bool IsStagingKept(RecoveryAction action)
{
    return action == RecoveryAction::KeptPrevious || action == RecoveryAction::CountedStart ||
           action == RecoveryAction::RolledBack;
}

/// The version that was rolled back to the running one. The note is removed once any other version runs, or if it is
/// invalid.
std::string FailedVersionFor(int parentFd, Engine::RecoverJob const& job)
{
    std::string const name = Engine::FailedVersionName(job.targetName);
    if (job.runningVersion.empty())
    {
        return {};
    }
    auto const failed = Engine::DecodeFailedVersion(Engine::ReadNote(parentFd, name));
    if (failed && failed->fromVersion == job.runningVersion)
    {
        return failed->toVersion;
    }
    Engine::RemoveNote(parentFd, name);
    return {};
}

} // namespace

Recovery RecoverSwap(int parentFd, Engine::RecoverJob const& job)
{
    Recovery recovery;
    recovery.failedVersion = FailedVersionFor(parentFd, job);
    std::string keptName;
    if (auto const journal = ReadSwapJournal(parentFd, job.targetName))
    {
        recovery.action = CarryOut(parentFd, job, *journal);
        keptName = IsStagingKept(recovery.action) ? journal->stagingName : std::string();
    }
    else if (HasName(parentFd, job.targetName))
    {
        // An unreadable journal says nothing about an existing bundle.
        Engine::RemoveNote(parentFd, Engine::SwapJournalName(job.targetName));
    }
    else
    {
        return recovery; // nothing is deleted while the bundle is missing
    }
    RemoveAbandonedFolders(parentFd, job.targetName, keptName);
    return recovery;
}

RecoveryAction RollBackSwap(int parentFd, std::string const& targetName)
{
    auto journal = ReadSwapJournal(parentFd, targetName);
    if (!journal)
    {
        return RecoveryAction::Nothing;
    }
    journal->countedStarts = Engine::MAX_UNCONFIRMED_STARTS;
    return CarryOut(parentFd, {targetName, journal->toVersion}, *journal);
}

} // namespace Pelnar::Installer
