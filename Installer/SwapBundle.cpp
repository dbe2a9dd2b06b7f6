#include "Installer/SwapBundle.h"

#include "Engine/core/bundle/CheckBundle.h"
#include "Engine/core/helper/NoteFile.h"
#include "Engine/core/helper/StagingFolder.h"

#include <cerrno>

#include <fcntl.h>
#include <linux/fs.h>
#include <stdio.h>
#include <sys/syscall.h>
#include <unistd.h>

namespace Pelnar::Installer
{
namespace
{

using Engine::UniqueFd;
using Engine::UpdateFault;
using Engine::UpdateRefusal;

bool Rename(int fromFd, std::string const& from, int toFd, std::string const& to)
{
    return ::renameat(fromFd, from.c_str(), toFd, to.c_str()) == 0;
}

bool Exchange(int firstFd, std::string const& first, int secondFd, std::string const& second)
{
    return ::syscall(SYS_renameat2, firstFd, first.c_str(), secondFd, second.c_str(), RENAME_EXCHANGE) == 0;
}

/// True for the errors with which a kernel or a file system rejects an unknown flag.
bool IsUnsupported(int errorNumber)
{
    return errorNumber == EINVAL || errorNumber == ENOSYS || errorNumber == EOPNOTSUPP;
}

[[noreturn]] void ThrowSwapErrno(int errorNumber)
{
    if (errorNumber == EXDEV)
    {
        throw UpdateRefusal(UpdateFault::OtherFileSystem, errorNumber);
    }
    Engine::ThrowErrno(errorNumber, UpdateFault::SwapFailed);
}

/// Two renames for file systems without exchange. Between them the target is missing: the journal says what to do.
void MoveInTurn(int parentFd, std::string const& targetName, int stagingFd, std::string const& stagedName)
{
    if (!Rename(parentFd, targetName, stagingFd, Engine::PREVIOUS_BUNDLE_NAME))
    {
        ThrowSwapErrno(errno);
    }
    if (!Rename(stagingFd, stagedName, parentFd, targetName))
    {
        int const errorNumber = errno;
        static_cast<void>(Rename(stagingFd, Engine::PREVIOUS_BUNDLE_NAME, parentFd, targetName));
        ThrowSwapErrno(errorNumber);
    }
}

} // namespace

std::optional<std::string> VersionOf(int folderFd, std::string const& name)
{
    UniqueFd const bundle = Engine::OpenFolder(folderFd, name);
    if (!bundle)
    {
        return std::nullopt;
    }
    try
    {
        std::string version = Engine::ReadBundleInformation(bundle.Get(), name).version;
        return version.empty() ? std::nullopt : std::optional(std::move(version));
    }
    catch (UpdateRefusal const&)
    {
        return std::nullopt;
    }
}

std::optional<Engine::SwapJournal> ReadSwapJournal(int parentFd, std::string const& targetName)
{
    return Engine::DecodeSwapJournal(Engine::ReadNote(parentFd, Engine::SwapJournalName(targetName)));
}

void WriteSwapJournal(int parentFd, std::string const& targetName, Engine::SwapJournal const& journal)
{
    Engine::WriteNote(parentFd, Engine::SwapJournalName(targetName), Engine::EncodeSwapJournal(journal));
}

void SwapBundle(int parentFd, std::string const& targetName, int stagingFd, Engine::SwapJournal const& journal)
{
    bool const isExchanged = Exchange(stagingFd, journal.stagedName, parentFd, targetName);
    if (!isExchanged)
    {
        if (!IsUnsupported(errno))
        {
            ThrowSwapErrno(errno);
        }
        MoveInTurn(parentFd, targetName, stagingFd, journal.stagedName);
    }
    if (::fsync(stagingFd) == 0 && ::fsync(parentFd) == 0)
    {
        return;
    }
    // The kernel may have lost either half of the swap: undo it in memory, where both are still known.
    int const errorNumber = errno;
    if (isExchanged)
    {
        static_cast<void>(Exchange(stagingFd, journal.stagedName, parentFd, targetName));
    }
    else if (Rename(parentFd, targetName, stagingFd, journal.stagedName))
    {
        static_cast<void>(Rename(stagingFd, Engine::PREVIOUS_BUNDLE_NAME, parentFd, targetName));
    }
    Engine::ThrowErrno(errorNumber, UpdateFault::SyncFailed);
}

void SwapBack(int parentFd, std::string const& targetName, int stagingFd, std::string const& previousName,
              Engine::SwapJournal const& journal)
{
    if (!Exchange(stagingFd, previousName, parentFd, targetName))
    {
        if (!IsUnsupported(errno))
        {
            ThrowSwapErrno(errno);
        }
        // The two names of the staging folder: one is taken, the other is free.
        std::string const failedName =
            previousName == journal.stagedName ? Engine::PREVIOUS_BUNDLE_NAME : journal.stagedName;
        if (!Rename(parentFd, targetName, stagingFd, failedName))
        {
            ThrowSwapErrno(errno);
        }
        if (!Rename(stagingFd, previousName, parentFd, targetName))
        {
            int const errorNumber = errno;
            static_cast<void>(Rename(stagingFd, failedName, parentFd, targetName));
            ThrowSwapErrno(errorNumber);
        }
    }
    if (::fsync(stagingFd) != 0 || ::fsync(parentFd) != 0)
    {
        Engine::ThrowErrno(errno, UpdateFault::SyncFailed);
    }
}

} // namespace Pelnar::Installer
