// NotNull.h: a pointer, plain or shared, that is never null.
//
//     Pelnar::SharedNotNullPtr<QObject> const object(std::make_shared<QObject>()); // throws for null
//     object->setObjectName(QStringLiteral("document"));
//
// Thread and ownership are those of the wrapped pointer. A move copies the pointer, so that the source is never null
// either.
#pragma once

#include <memory>
#include <stdexcept>
#include <type_traits>
#include <utility>

namespace Pelnar
{

/// A pointer of type T that is checked once, when it is created.
template <class T>
class NotNull
{
public:
    using element_type = typename std::pointer_traits<T>::element_type;

    /// Throws std::logic_error with the text "NotNull can not initialized by null" if \a pointer is null.
    template <class U, class = std::enable_if_t<std::is_convertible_v<U, T>>>
    NotNull(U pointer) : m_pointer(std::move(pointer))
    {
        if (!m_pointer)
        {
            throw std::logic_error("NotNull can not initialized by null");
        }
    }

    template <class U, class = std::enable_if_t<std::is_convertible_v<U, T>>>
    NotNull(NotNull<U> const& other) : m_pointer(other.Get())
    {
    }

    NotNull(NotNull const&) = default;
    NotNull& operator=(NotNull const&) = default;

    /// The wrapped pointer, never null.
    T const& Get() const { return m_pointer; }
    operator T const&() const { return m_pointer; }
    element_type& operator*() const { return *m_pointer; }
    element_type* operator->() const { return std::addressof(*m_pointer); }

private:
    T m_pointer;
};

/// A shared pointer that is never null.
template <class T>
using SharedNotNullPtr = NotNull<std::shared_ptr<T>>;

} // namespace Pelnar
