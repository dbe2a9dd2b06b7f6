// SignalBlock.h: keeps every signal from the calling thread for a while: what it starts meanwhile, a thread or a
// process, begins with none of the host's handlers able to run in it. Thread: the one whose signals are meant.
// Ownership: a scope's object, which puts back what was blocked before.
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
