#include "Installer/RecoverSwap.h"

#include "Engine/core/payload/StagingFolder.h"
#include "Engine/core/payload/SwapJournal.h"
#include "Engine/core/payload/TreeManifest.h"
#include "Installer/SwapBundle.h"

#include <cerrno>
#include <memory>
#include <vector>

#include <dirent.h>
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
using Engine::SwapJournal;
using Engine::TargetState;
using Engine::UniqueFd;

constexpr int FOLDER_FLAGS = O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC;

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

/// Under which name the previous version stands in the staging folder; empty when it does not.
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

/// A staging folder that \a name names and nobody holds: an open descriptor with its lock, else nothing.
UniqueFd OpenAbandoned(int parentFd, std::string const& name)
{
    UniqueFd folder(::openat(parentFd, name.c_str(), FOLDER_FLAGS));
    struct stat status;
    bool const isOurs = folder && ::fstat(folder.Get(), &status) == 0 && status.st_uid == ::geteuid() &&
                        ::flock(folder.Get(), LOCK_EX | LOCK_NB) == 0;
    return isOurs ? std::move(folder) : UniqueFd();
}

void RemoveAbandonedFolders(int parentFd, std::string const& targetName, std::string const& exceptName)
{
    int const copy = ::openat(parentFd, ".", FOLDER_FLAGS);
    std::unique_ptr<DIR, decltype(&::closedir)> const stream(copy < 0 ? nullptr : ::fdopendir(copy), &::closedir);
    if (!stream)
    {
        Engine::ThrowErrno(errno);
    }
    std::string const prefix = Engine::UpdateFilePrefix(targetName);
    std::vector<std::string> names;
    while (dirent const* const entry = ::readdir(stream.get()))
    {
        std::string const name = entry->d_name;
        if (name.compare(0, prefix.size(), prefix) == 0 && name != exceptName)
        {
            names.push_back(name);
        }
    }
    for (std::string const& name : names)
    {
        if (UniqueFd const folder = OpenAbandoned(parentFd, name))
        {
            // What stays behind is tried again at the next start.
            static_cast<void>(Engine::RemoveTree(parentFd, name));
        }
    }
}

RecoveryAction CarryOut(int parentFd, std::string const& targetName, std::string const& runningVersion,
                        SwapJournal const& journal)
{
    UniqueFd const staging(::openat(parentFd, journal.stagingName.c_str(), FOLDER_FLAGS));
    std::string const previousName = FindPrevious(staging, journal);
    RecoveryAction const action = Engine::DecideRecovery(
        {LookAtTarget(parentFd, targetName, journal), !previousName.empty(), runningVersion == journal.toVersion});
    switch (action)
    {
    case RecoveryAction::Nothing:
    case RecoveryAction::KeptPrevious:
        return action;
    case RecoveryAction::RestoredPrevious:
        if (::renameat(staging.Get(), previousName.c_str(), parentFd, targetName.c_str()) != 0 ||
            ::fsync(parentFd) != 0)
        {
            Engine::ThrowErrno(errno, Engine::UpdateFault::SwapFailed);
        }
        break;
    case RecoveryAction::ConfirmedNew:
    case RecoveryAction::DroppedStaged:
        break;
    }
    // The journal goes first: a folder without one is known to be abandoned, and a journal without its folder would
    // have to be told from one whose folder is half gone.
    RemoveSwapJournal(parentFd, targetName);
    return action;
}

} // namespace

RecoveryAction RecoverSwap(int parentFd, std::string const& targetName, std::string const& runningVersion)
{
    RecoveryAction action = RecoveryAction::Nothing;
    std::string keptName;
    if (auto const journal = ReadSwapJournal(parentFd, targetName))
    {
        action = CarryOut(parentFd, targetName, runningVersion, *journal);
        keptName = action == RecoveryAction::KeptPrevious ? journal->stagingName : std::string();
    }
    else if (::faccessat(parentFd, targetName.c_str(), F_OK, AT_SYMLINK_NOFOLLOW) == 0)
    {
        RemoveSwapJournal(parentFd, targetName); // one that cannot be read says nothing of a bundle that is there
    }
    else
    {
        return action; // nothing is thrown away while the bundle is missing
    }
    RemoveAbandonedFolders(parentFd, targetName, keptName);
    return action;
}

} // namespace Pelnar::Installer
