// ValueGuard.h: gives a variable another value for the length of a scope.
// Thread: the variable's. Ownership: the guard holds a reference; the variable must outlive it.
#pragma once

#include <utility>

namespace Pelnar::Core
{

template <class T>
class ValueGuard
{
public:
    /// Keeps a copy of \a variable's value and assigns \a value to it.
    ValueGuard(T& variable, T value)
        : m_variable(variable)
        , m_previous(variable)
    {
        m_variable = std::move(value);
    }

    /// Assigns the old value back. A failure there ends the program: a half restored value must not be seen.
    ~ValueGuard() noexcept { m_variable = std::move(m_previous); }

    ValueGuard(ValueGuard const&) = delete;
    ValueGuard& operator=(ValueGuard const&) = delete;

private:
    T& m_variable;
    T m_previous;
};

} // namespace Pelnar::Core
