// SignalBlock.h: blocks every signal in the calling thread. A thread or a process that is started meanwhile begins with
// all of them blocked, so none of the host's handlers can run in it.
// Thread: the one whose signals it blocks. Ownership: a scope object; it restores the previous mask.
#pragma once

#include <csignal>

namespace Pelnar::Engine
{

class SignalBlock
{
public:
    SignalBlock()
    {
        sigset_t all;
        ::sigfillset(&all);
        ::pthread_sigmask(SIG_SETMASK, &all, &m_before);
    }
    ~SignalBlock() { ::pthread_sigmask(SIG_SETMASK, &m_before, nullptr); }
    SignalBlock(SignalBlock const&) = delete;
    SignalBlock& operator=(SignalBlock const&) = delete;

private:
    sigset_t m_before{};
};

} // namespace Pelnar::Engine
