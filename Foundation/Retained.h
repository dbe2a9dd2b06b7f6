// Retained.h: owns a reference to a Foundation object and releases it at every exit from a scope.
// Thread: the object's. Objective-C++ only. Pools are the language's @autoreleasepool. A raised exception is itself in
// the pool; @autoreleasepool then leaves the objects to the enclosing pool, while a scope object would free the
// exception during its propagation.
#pragma once

#if !defined(__OBJC__)
#error "Retained.h is for Objective-C++ sources."
#endif

#include "Foundation/ManualReferences.h"

#import <Foundation/Foundation.h>

#include <utility>

namespace Pelnar::Foundation
{

/// Holds one reference to an object, or nil.
template <class T>
class Retained
{
public:
    Retained() = default;
    /// Takes over a reference that the caller owns (from alloc, copy or retain).
    static Retained Adopt(T* object)
    {
        Retained result;
        result.m_object = object;
        return result;
    }
    /// Takes a new reference.
    static Retained Share(T* object) { return Adopt([object retain]); }

    Retained(Retained const& other)
        : m_object([other.m_object retain])
    {
    }
    Retained(Retained&& other) noexcept
        : m_object(std::exchange(other.m_object, nil))
    {
    }
    Retained& operator=(Retained other) noexcept
    {
        std::swap(m_object, other.m_object);
        return *this;
    }
    ~Retained() { [m_object release]; }

    T* Get() const { return m_object; }
    /// The object for a caller that does not own it: valid until the current pool is drained.
    T* Autorelease() const { return [[m_object retain] autorelease]; }
    explicit operator bool() const { return m_object != nil; }
    void Reset() { *this = Retained(); }

private:
    T* m_object = nil;
};

} // namespace Pelnar::Foundation
