#include "Installer/SwapLock.h"

#include "Engine/core/faults/UpdateFault.h"
#include "Engine/core/helper/FolderSafety.h"
#include "Engine/core/helper/NoteFile.h"
#include "Engine/core/helper/StagingFolder.h"

#include <cerrno>

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

} // namespace

SwapLock::SwapLock(int parentFd, std::string const& targetName, long patienceSeconds)
    : m_parentFd(parentFd), m_name(Engine::LockFileName(targetName))
{
    if (!Engine::IsSafeUpToTheRoot(parentFd))
    {
        throw UpdateRefusal(UpdateFault::FolderUnsafe);
    }
    AlarmScope const alarm(patienceSeconds);
    for (int files = 0; files < MAX_FILES; ++files)
    {
        m_file = OpenLockFile(parentFd, m_name);
        if (!Lock(m_file))
        {
            break;
        }
        if (IsNamed())
        {
            return;
        }
    }
    m_file = UniqueFd();
    throw UpdateRefusal(UpdateFault::LockTimedOut, EWOULDBLOCK);
}

SwapLock::~SwapLock()
{
    if (IsNamed())
    {
        static_cast<void>(::unlinkat(m_parentFd, m_name.c_str(), 0));
    }
}

bool SwapLock::IsNamed() const
{
    return Engine::IsAt(m_file.Get(), m_parentFd, m_name);
}

} // namespace Pelnar::Installer
