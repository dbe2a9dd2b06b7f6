// FailingAllocator.cpp: a library for the loader's --preload that refuses memory as the test says, in a file that the
// program inherits.

#include "tests/installer/faults/FailingAllocator.h"

#include <atomic>
#include <cerrno>
#include <cstddef>

#include <sys/mman.h>

#define EXPORTED extern "C" __attribute__((visibility("default")))

extern "C" void* __libc_malloc(std::size_t);
extern "C" void* __libc_calloc(std::size_t, std::size_t);
extern "C" void* __libc_realloc(void*, std::size_t);
extern "C" void* __libc_memalign(std::size_t, std::size_t);

namespace
{

using Pelnar::Testing::AllocationPlan;

AllocationPlan* g_plan = nullptr;

/// Counts one more allocation of all processes that share the plan. Returns true if it must fail.
bool IsRefused()
{
    if (!g_plan)
    {
        return false;
    }
    std::uint64_t const number = ++g_plan->asked;
    bool const isRefused = number >= g_plan->firstRefused &&
                           (g_plan->mode == AllocationPlan::Mode::AllFrom || number == g_plan->firstRefused);
    if (isRefused)
    {
        ++g_plan->refused;
        errno = ENOMEM;
    }
    return isRefused;
}

/// Before the program's main function, which closes unknown descriptors.
__attribute__((constructor)) void TakePlan()
{
    void* const memory = ::mmap(nullptr, sizeof(AllocationPlan), PROT_READ | PROT_WRITE, MAP_SHARED,
                                Pelnar::Testing::ALLOCATION_PLAN_DESCRIPTOR, 0);
    g_plan = memory == MAP_FAILED ? nullptr : static_cast<AllocationPlan*>(memory);
}

} // namespace

EXPORTED void* malloc(std::size_t size)
{
    return IsRefused() ? nullptr : __libc_malloc(size);
}

EXPORTED void* calloc(std::size_t count, std::size_t size)
{
    return IsRefused() ? nullptr : __libc_calloc(count, size);
}

EXPORTED void* realloc(void* block, std::size_t size)
{
    return IsRefused() ? nullptr : __libc_realloc(block, size);
}

EXPORTED void* memalign(std::size_t alignment, std::size_t size)
{
    return IsRefused() ? nullptr : __libc_memalign(alignment, size);
}

EXPORTED void* aligned_alloc(std::size_t alignment, std::size_t size)
{
    return IsRefused() ? nullptr : __libc_memalign(alignment, size);
}

EXPORTED int posix_memalign(void** block, std::size_t alignment, std::size_t size)
{
    void* const memory = IsRefused() ? nullptr : __libc_memalign(alignment, size);
    if (!memory)
    {
        return ENOMEM;
    }
    *block = memory;
    return 0;
}
