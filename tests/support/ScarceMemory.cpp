#include "tests/support/ScarceMemory.h"

#include <atomic>
#include <cstdlib>
#include <limits>
#include <new>

#include <sys/syscall.h>
#include <unistd.h>

namespace
{

using Pelnar::Testing::ScarceIn;

constexpr long NEVER = std::numeric_limits<long>::max();

std::atomic<bool> isScarce{false};
std::atomic<ScarceIn> scarceIn{ScarceIn::EveryThread};
std::atomic<long> requests{0};
std::atomic<long> firstRefused{NEVER};
std::atomic<long> firstGrantedAgain{NEVER};

bool IsRefused()
{
    if (!isScarce || (scarceIn == ScarceIn::OtherThreads && ::syscall(SYS_gettid) == ::getpid()))
    {
        return false;
    }
    long const request = requests++;
    return request >= firstRefused && request < firstGrantedAgain;
}

} // namespace

void* operator new(std::size_t size)
{
    void* const memory = IsRefused() ? nullptr : std::malloc(size);
    if (!memory)
    {
        throw std::bad_alloc();
    }
    return memory;
}

void operator delete(void* memory) noexcept
{
    std::free(memory);
}

void operator delete(void* memory, std::size_t) noexcept
{
    std::free(memory);
}

namespace Pelnar::Testing
{

ScarceMemory::ScarceMemory(ScarceIn where, long granted, long refused)
{
    scarceIn = where;
    requests = 0;
    firstRefused = granted;
    firstGrantedAgain = granted + refused;
    isScarce = true;
}

ScarceMemory::~ScarceMemory()
{
    isScarce = false;
}

bool ScarceMemory::HasRefused() const
{
    return requests > firstRefused;
}

} // namespace Pelnar::Testing
