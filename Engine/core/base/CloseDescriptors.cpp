#include "Engine/core/base/CloseDescriptors.h"

#include <cstdint>

#include <fcntl.h>
#include <linux/close_range.h>
#include <sys/syscall.h>
#include <unistd.h>

namespace Pelnar::Engine
{
namespace
{

/// The kernel's format. <dirent.h> has no type for the direct call, and its streams allocate memory.
struct Entry
{
    std::uint64_t number;
    std::int64_t offset;
    std::uint16_t size;
    std::uint8_t type;
    char name[];
};

/// The number with that name; -1 if it is not a number.
int NumberOf(char const* name)
{
    int number = 0;
    for (; *name >= '0' && *name <= '9'; ++name)
    {
        number = number * 10 + (*name - '0');
    }
    return *name == '\0' ? number : -1;
}

/// Calls \a act with every open descriptor from \a first on.
template <typename Act>
void ForEachFrom(int first, Act const& act)
{
    int const folder = ::open("/proc/self/fd", O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    alignas(Entry) char buffer[4096];
    long size = 0;
    while (folder >= 0 && (size = ::syscall(SYS_getdents64, folder, buffer, sizeof buffer)) > 0)
    {
        for (long place = 0; place < size;)
        {
            auto const* const entry = reinterpret_cast<Entry const*>(buffer + place);
            int const descriptor = NumberOf(entry->name);
            if (descriptor >= first && descriptor != folder)
            {
                act(descriptor);
            }
            place += entry->size;
        }
    }
    ::close(folder);
}

} // namespace

void CloseOnExecFrom(int first)
{
    if (::syscall(SYS_close_range, first, ~0u, CLOSE_RANGE_CLOEXEC) != 0)
    {
        ForEachFrom(first, [](int descriptor) { ::fcntl(descriptor, F_SETFD, FD_CLOEXEC); });
    }
}

void CloseFrom(int first)
{
    if (::syscall(SYS_close_range, first, ~0u, 0) != 0)
    {
        ForEachFrom(first, [](int descriptor) { ::close(descriptor); });
    }
}

} // namespace Pelnar::Engine
