// HostileLibrary.cpp: a library for LD_PRELOAD in which every function that an update needs fails.

#include <cerrno>
#include <cstddef>
#include <cstdlib>

#include <sys/types.h>

#define HOSTILE extern "C" __attribute__((visibility("default")))

namespace
{

int Refuse()
{
    errno = EPERM;
    return -1;
}

} // namespace

HOSTILE int fsync(int)
{
    return Refuse();
}

HOSTILE int syncfs(int)
{
    return Refuse();
}

HOSTILE int renameat(int, char const*, int, char const*)
{
    return Refuse();
}

HOSTILE int fstat(int, void*)
{
    return Refuse();
}

HOSTILE int chdir(char const*)
{
    std::abort();
}

HOSTILE ssize_t write(int, void const*, std::size_t)
{
    return Refuse();
}
