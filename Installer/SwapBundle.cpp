#include "Installer/SwapBundle.h"

#include "Engine/core/payload/StagingFolder.h"
#include "Installer/BundleInformation.h"

#include <cerrno>

#include <fcntl.h>
#include <linux/fs.h>
#include <signal.h>
#include <stdio.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <sys/time.h>
#include <unistd.h>

namespace Pelnar::Installer
{
namespace
{

using Engine::UniqueFd;
using Engine::UpdateFault;
using Engine::UpdateRefusal;

constexpr int FOLDER_FLAGS = O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC;
constexpr long LOCK_SECONDS = 60;
constexpr long LOCK_REPEAT_SECONDS = 1; // for a signal that comes before the call it is to interrupt
constexpr std::size_t JOURNAL_MAX_BYTES = 64 * 1024;
constexpr mode_t JOURNAL_MODE = 0600;

void OnAlarm(int) {}

/// Interrupts a waiting system call once its time is over.
class AlarmScope
{
public:
    explicit AlarmScope(long seconds)
    {
        struct sigaction action
        {
        };
        action.sa_handler = &OnAlarm; // without SA_RESTART: the call ends with EINTR
        ::sigaction(SIGALRM, &action, &m_previous);
        itimerval const timer{{LOCK_REPEAT_SECONDS, 0}, {seconds, 0}};
        ::setitimer(ITIMER_REAL, &timer, nullptr);
    }
    ~AlarmScope()
    {
        itimerval const off{};
        ::setitimer(ITIMER_REAL, &off, nullptr);
        ::sigaction(SIGALRM, &m_previous, nullptr);
    }
    AlarmScope(AlarmScope const&) = delete;
    AlarmScope& operator=(AlarmScope const&) = delete;

private:
    struct sigaction m_previous;
};

bool Rename(int fromFd, std::string const& from, int toFd, std::string const& to)
{
    return ::renameat(fromFd, from.c_str(), toFd, to.c_str()) == 0;
}

bool Exchange(int firstFd, std::string const& first, int secondFd, std::string const& second)
{
    return ::syscall(SYS_renameat2, firstFd, first.c_str(), secondFd, second.c_str(), RENAME_EXCHANGE) == 0;
}

/// True for the errors by which a kernel or a file system says that it does not know the flag.
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

void SyncOrThrow(int descriptor)
{
    if (::fsync(descriptor) != 0)
    {
        Engine::ThrowErrno(errno, UpdateFault::SyncFailed);
    }
}

} // namespace

SwapLock::SwapLock(int parentFd)
    // An opening of its own: an inherited one would share the lock with whoever inherited it too.
    : m_folder(::openat(parentFd, ".", FOLDER_FLAGS))
{
    if (!m_folder)
    {
        Engine::ThrowErrno(errno);
    }
    AlarmScope const alarm(LOCK_SECONDS);
    if (::flock(m_folder.Get(), LOCK_EX) != 0)
    {
        throw UpdateRefusal(UpdateFault::LockTimedOut, errno);
    }
}

std::optional<std::string> VersionOf(int folderFd, std::string const& name)
{
    UniqueFd const bundle(::openat(folderFd, name.c_str(), FOLDER_FLAGS));
    if (!bundle)
    {
        return std::nullopt;
    }
    try
    {
        std::string version = ReadBundleInformation(bundle.Get(), name).version;
        return version.empty() ? std::nullopt : std::optional(std::move(version));
    }
    catch (UpdateRefusal const&)
    {
        return std::nullopt;
    }
}

std::optional<Engine::SwapJournal> ReadSwapJournal(int parentFd, std::string const& targetName)
{
    UniqueFd const file(::openat(parentFd, Engine::SwapJournalName(targetName).c_str(),
                                 O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC));
    struct stat status;
    if (!file || ::fstat(file.Get(), &status) != 0 || !S_ISREG(status.st_mode) || status.st_uid != ::geteuid())
    {
        return std::nullopt;
    }
    std::string bytes(JOURNAL_MAX_BYTES, '\0');
    ssize_t const count = Engine::ReadUpTo(file.Get(), 0, bytes.data(), bytes.size());
    if (count < 0)
    {
        Engine::ThrowErrno(errno); // no answer is not the answer that there is no journal
    }
    return Engine::DecodeSwapJournal(std::string_view(bytes).substr(0, static_cast<std::size_t>(count)));
}

void WriteSwapJournal(int parentFd, std::string const& targetName, Engine::SwapJournal const& journal)
{
    std::string const name = Engine::SwapJournalName(targetName);
    std::string const newName = name + ".new";
    std::string const bytes = Engine::EncodeSwapJournal(journal);
    static_cast<void>(::unlinkat(parentFd, newName.c_str(), 0));
    UniqueFd const file(
        ::openat(parentFd, newName.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, JOURNAL_MODE));
    if (!file ||
        !Engine::WriteAll(file.Get(), Engine::Bytes(reinterpret_cast<std::uint8_t const*>(bytes.data()), bytes.size())))
    {
        Engine::ThrowErrno(errno);
    }
    SyncOrThrow(file.Get());
    if (!Rename(parentFd, newName, parentFd, name))
    {
        Engine::ThrowErrno(errno);
    }
    SyncOrThrow(parentFd);
}

void RemoveSwapJournal(int parentFd, std::string const& targetName)
{
    std::string const name = Engine::SwapJournalName(targetName);
    for (std::string const& gone : {name, name + ".new"})
    {
        if (::unlinkat(parentFd, gone.c_str(), 0) != 0 && errno != ENOENT)
        {
            Engine::ThrowErrno(errno);
        }
    }
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
    // The kernel may have lost either half of the swap: undo it in memory, where all is still known.
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

} // namespace Pelnar::Installer
