#include "Installer/SessionSignals.h"

#include <poll.h>
#include <signal.h>
#include <sys/signalfd.h>
#include <unistd.h>

namespace Pelnar::Installer
{
namespace
{

sigset_t Signals()
{
    sigset_t signals;
    ::sigemptyset(&signals);
    for (int const signal : {SIGTERM, SIGHUP, SIGINT, SIGQUIT})
    {
        ::sigaddset(&signals, signal);
    }
    return signals;
}

} // namespace

SessionSignals::SessionSignals()
{
    sigset_t const signals = Signals();
    Block();
    m_arrived = Engine::UniqueFd(::signalfd(-1, &signals, SFD_CLOEXEC | SFD_NONBLOCK));
    if (!m_arrived)
    {
        ::sigprocmask(SIG_UNBLOCK, &signals, nullptr);
    }
}

bool SessionSignals::HasArrived() const
{
    pollfd arrived{m_arrived.Get(), POLLIN, 0};
    return ::poll(&arrived, 1, 0) > 0 && (arrived.revents & POLLIN) != 0;
}

void SessionSignals::End() const
{
    // The signal waits until it is no longer blocked.
    sigset_t const signals = Signals();
    ::sigprocmask(SIG_UNBLOCK, &signals, nullptr);
}

void SessionSignals::Block() const
{
    sigset_t const signals = Signals();
    ::sigprocmask(SIG_BLOCK, &signals, nullptr);
}

} // namespace Pelnar::Installer
