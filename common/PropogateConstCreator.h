// PropogateConstCreator.h: makes the pointer of a private implementation whose constness follows its owner's.
//
//     struct Impl
//     {
//         int pages = 0;
//     };
//     auto impl = Pelnar::details::PropogateConstCreator<std::unique_ptr<Impl>>::Create();
//     impl->pages = 7; // by an owner that is not const
//
// Thread: the owner's. Ownership: as the pointer that is wrapped. The spelling of the name is the interface's.
#pragma once

#include <memory>
#include <utility>

namespace Pelnar::details
{

/// A pointer through which a const owner reaches a const object only.
template <class Pointer>
class PropogateConst
{
public:
    using element_type = typename Pointer::element_type;

    explicit PropogateConst(Pointer pointer) : m_pointer(std::move(pointer)) {}

    element_type* operator->() { return m_pointer.get(); }
    element_type const* operator->() const { return m_pointer.get(); }
    element_type& operator*() { return *m_pointer; }
    element_type const& operator*() const { return *m_pointer; }
    element_type* get() { return m_pointer.get(); }
    element_type const* get() const { return m_pointer.get(); }

private:
    Pointer m_pointer;
};

template <class Pointer>
struct PropogateConstCreator;

template <class T>
struct PropogateConstCreator<std::unique_ptr<T>>
{
    using type = PropogateConst<std::unique_ptr<T>>;

    /// Makes the object with `new` and no arguments; what its constructor throws leaves here.
    static type Create() { return type(std::unique_ptr<T>(new T)); }
};

} // namespace Pelnar::details
