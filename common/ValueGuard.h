// ValueGuard.h: gives a variable another value for the length of a scope.
//
//     bool isBusy = false;
//     Pelnar::Core::ValueGuard<bool> const busy(isBusy, true); // until the end of this scope
//
// Thread: the variable's. Ownership: the guard refers to the variable, which outlives it or is told to be gone.
#pragma once

#include <utility>

namespace Pelnar::Core
{

template <class T>
class ValueGuard
{
public:
    /// Keeps a copy of \a variable's value and assigns \a value to it.
    ValueGuard(T& variable, T value) : m_variable(&variable), m_previous(variable) { *m_variable = std::move(value); }

    /// Assigns the old value back. A failure there ends the program: a half restored value must not be seen.
    ~ValueGuard() noexcept
    {
        if (m_variable)
        {
            *m_variable = std::move(m_previous);
        }
    }

    /// The variable has died within the scope: nothing is assigned back.
    void Forget() { m_variable = nullptr; }

    ValueGuard(ValueGuard const&) = delete;
    ValueGuard& operator=(ValueGuard const&) = delete;

private:
    T* m_variable;
    T m_previous;
};

} // namespace Pelnar::Core
