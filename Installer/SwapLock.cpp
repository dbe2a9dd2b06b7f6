#include "Installer/SwapLock.h"

#include "Engine/core/faults/UpdateFault.h"
#include "Engine/core/helper/FolderSafety.h"
#include "Engine/core/helper/NoteFile.h"
#include "Engine/core/helper/StagingFolder.h"

#include <cerrno>
#include <optional>
#include <utility>

#include <fcntl.h>
#include <signal.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <sys/time.h>

#include <unistd.h>

namespace Pelnar::Installer
{
namespace
{

using Engine::UniqueFd;
using Engine::UpdateFault;
using Engine::UpdateRefusal;

constexpr long ALARM_REPEAT_SECONDS = 1; // for a signal that arrives before the call that it must interrupt
constexpr mode_t LOCK_MODE = 0600;
/// Each holder removes its file, so that waiting processes open another one; there are fewer holders than this.
constexpr int MAX_FILES = 1000;
/// A foreign object in the file's place is removed, but only this often.
constexpr int MAX_FOREIGN_FILES = 3;

sig_atomic_t volatile isTimeOver = 0;

void OnAlarm(int)
{
    isTimeOver = 1;
}

/// Interrupts a blocking system call after a time limit.
class AlarmScope
{
public:
    explicit AlarmScope(long seconds)
    {
        isTimeOver = 0;
        struct sigaction action
        {
        };
        action.sa_handler = &OnAlarm; // without SA_RESTART: the call ends with EINTR
        ::sigaction(SIGALRM, &action, &m_previous);
        itimerval const timer{{ALARM_REPEAT_SECONDS, 0}, {seconds, 0}};
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

/// The lock file, which only this user may open; it is created if it is missing. Its number of names does not
/// matter: no other user can open it under any name.
UniqueFd OpenLockFile(int parentFd, std::string const& name)
{
    for (int attempt = 0; attempt < MAX_FOREIGN_FILES; ++attempt)
    {
        // For writing too: some network file systems cannot lock a file that is opened read-only.
        UniqueFd file(
            ::openat(parentFd, name.c_str(), O_RDWR | O_CREAT | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC, LOCK_MODE));
        if (file && Engine::IsPrivateFile(file.Get()))
        {
            return file;
        }
        // A link, a folder, a socket, another user's file.
        bool const isForeign = file || errno == ELOOP || errno == EISDIR || errno == ENXIO || errno == EACCES;
        if (!isForeign)
        {
            Engine::ThrowErrno(errno);
        }
        Engine::FreeName(parentFd, name);
    }
    throw UpdateRefusal(UpdateFault::PermissionsUnavailable);
}

/// The journal, which each of its writers replaces; no file if it is missing.
UniqueFd OpenJournal(int parentFd, std::string const& name)
{
    UniqueFd file(::openat(parentFd, name.c_str(), O_RDWR | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC));
    return file && Engine::IsPrivateFile(file.Get()) ? std::move(file) : UniqueFd();
}

/// False if the time limit came first.
[[nodiscard]] bool Lock(UniqueFd const& file)
{
    while (isTimeOver == 0)
    {
        if (::flock(file.Get(), LOCK_EX) == 0)
        {
            return true;
        }
        if (errno != EINTR)
        {
            throw UpdateRefusal(UpdateFault::LocksUnavailable, errno);
        }
    }
    return false;
}

/// The locked file \a name. \a open opens it again until others find the same file. No file if it is missing.
template <typename Open>
UniqueFd LockNamed(int parentFd, std::string const& name, Open const& open)
{
    for (int files = 0; files < MAX_FILES; ++files)
    {
        UniqueFd file = open(parentFd, name);
        if (!file)
        {
            return file;
        }
        if (!Lock(file))
        {
            break;
        }
        if (Engine::IsAt(file.Get(), parentFd, name))
        {
            return file;
        }
    }
    throw UpdateRefusal(UpdateFault::LockTimedOut, EWOULDBLOCK);
}

} // namespace

SwapLock::SwapLock(std::string name, int parentFd) : m_parentFd(parentFd), m_name(std::move(name)) {}

SwapLock::SwapLock(int parentFd, std::string const& targetName, long patienceSeconds)
    : SwapLock(Engine::LockFileName(targetName), parentFd) // so an exception below removes the file
{
    if (!Engine::IsSafeUpToTheRoot(parentFd))
    {
        throw UpdateRefusal(UpdateFault::FolderUnsafe);
    }
    AlarmScope const alarm(patienceSeconds);
    std::optional<UpdateRefusal> withoutSpace;
    try
    {
        m_file = LockNamed(parentFd, m_name, &OpenLockFile);
    }
    catch (UpdateRefusal const& refusal)
    {
        if (refusal.Fault() != UpdateFault::NoSpace)
        {
            throw;
        }
        withoutSpace = refusal;
    }
    m_journal = LockNamed(parentFd, Engine::SwapJournalName(targetName), &OpenJournal);
    if (withoutSpace && !m_journal)
    {
        throw UpdateRefusal(*withoutSpace);
    }
}

SwapLock::~SwapLock()
{
    if (m_file && Engine::IsAt(m_file.Get(), m_parentFd, m_name))
    {
        static_cast<void>(::unlinkat(m_parentFd, m_name.c_str(), 0));
    }
}

} // namespace Pelnar::Installer
