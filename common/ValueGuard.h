// ValueGuard.h: gives a variable another value until the end of a scope.
//
//     bool isBusy = false;
//     Pelnar::Core::ValueGuard<bool> const busy(isBusy, true); // until the end of this scope
//
// Thread: the variable's. Ownership: the guard refers to the variable. The variable must outlive the guard, or Forget()
// must be called.
#pragma once

#include <utility>

namespace Pelnar::Core
{

/// Restores a variable's value at the end of a scope.
template <class T>
class ValueGuard
{
public:
    /// Keeps a copy of \a variable's value and assigns \a value to the variable.
    ValueGuard(T& variable, T value) : m_variable(&variable), m_previous(variable) { *m_variable = std::move(value); }

    /// Restores the old value. A failure here ends the program, so that no code sees a half restored value.
    ~ValueGuard() noexcept
    {
        if (m_variable)
        {
            *m_variable = std::move(m_previous);
        }
    }

    /// The variable has been destroyed inside the scope: nothing is restored.
    void Forget() { m_variable = nullptr; }

    ValueGuard(ValueGuard const&) = delete;
    ValueGuard& operator=(ValueGuard const&) = delete;

private:
    T* m_variable;
    T m_previous;
};

} // namespace Pelnar::Core
