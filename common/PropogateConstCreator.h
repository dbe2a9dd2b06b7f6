// PropogateConstCreator.h: creates the pointer to a private implementation; its constness follows its owner's.
//
//     struct Impl
//     {
//         int pages = 0;
//     };
//     auto impl = Pelnar::details::PropogateConstCreator<std::unique_ptr<Impl>>::Create();
//     impl->pages = 7; // by an owner that is not const
//
// Thread: the owner's. Ownership: that of the wrapped pointer. The spelling of the name is part of the interface.
#pragma once

#include <memory>
#include <utility>

namespace Pelnar::details
{

/// A pointer through which a const owner reaches only a const object.
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

    /// Creates the object with `new` and no arguments. An exception of its constructor propagates.
    static type Create() { return type(std::unique_ptr<T>(new T)); }
};

} // namespace Pelnar::details
