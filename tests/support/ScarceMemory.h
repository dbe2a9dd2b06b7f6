// ScarceMemory.h: lets the requests of C++ for memory fail in a test program that links ScarceMemory.cpp.
// Thread: the main one makes it.
#pragma once

namespace Pelnar::Testing
{

enum class ScarceIn
{
    EveryThread,
    OtherThreads, ///< all but the main thread
};

/// While it lives, the first \a granted requests succeed, the following \a refused ones throw std::bad_alloc, and later
/// ones succeed again. One may live at a time.
class ScarceMemory
{
public:
    ScarceMemory(ScarceIn where, long granted, long refused);
    ~ScarceMemory();
    ScarceMemory(ScarceMemory const&) = delete;
    ScarceMemory& operator=(ScarceMemory const&) = delete;

    /// True if a request was refused.
    [[nodiscard]] bool HasRefused() const;
};

} // namespace Pelnar::Testing
