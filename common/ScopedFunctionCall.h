// ScopedFunctionCall.h: runs one function at the start of a scope and another at every exit from it.
//
//     Pelnar::Core::ScopedFunctionCall const waiting([] { QApplication::setOverrideCursor(Qt::WaitCursor); },
//                                                    [] { QApplication::restoreOverrideCursor(); }, true);
//
// Thread: the scope's. Ownership: the guard owns copies of both functions.
#pragma once

#include <functional>

namespace Pelnar::Core
{

class ScopedFunctionCall
{
public:
    /// Runs \a onEnter immediately, unless it is empty. If \a active is false, neither function is called.
    ScopedFunctionCall(std::function<void()> const& onEnter, std::function<void()> const& onExit, bool active)
        : m_onExit(active ? onExit : std::function<void()>())
    {
        if (active && onEnter)
        {
            onEnter();
        }
    }

    /// Runs the exit function, unless it is empty. It must not throw.
    ~ScopedFunctionCall()
    {
        if (m_onExit)
        {
            m_onExit();
        }
    }

    ScopedFunctionCall(ScopedFunctionCall const&) = delete;
    ScopedFunctionCall& operator=(ScopedFunctionCall const&) = delete;

private:
    std::function<void()> m_onExit;
};

} // namespace Pelnar::Core
