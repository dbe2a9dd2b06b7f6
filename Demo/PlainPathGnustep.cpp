// PlainPathGnustep.cpp: lets the program start in every folder. If a process's path is not UTF-8, GNUstep's Foundation
// ends the process before its main function; in a path with a backslash it finds no bundle. Such a program restarts
// itself through another name of its folder, "/proc/self/fd/N", and gives Foundation this name.
// Thread: the main one, before any library is initialized; no Qt, no memory allocation.

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>

#include <climits>
#include <fcntl.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>
#include <unistr.h>

namespace
{

constexpr char PROGRAM[] = "/proc/self/exe";
constexpr char ALIAS_FORMAT[] = "/proc/self/fd/%d/%s";

/// The other name of the running program; empty if it needs none.
char alias[PATH_MAX];
std::size_t folderSize = 0; ///< length of the folder's part of it

bool IsPlain(char const* path)
{
    auto const* const bytes = reinterpret_cast<std::uint8_t const*>(path);
    return u8_check(bytes, std::strlen(path)) == nullptr && !std::strchr(path, '\\');
}

bool IsSameFile(char const* first, char const* second)
{
    struct stat a;
    struct stat b;
    return ::stat(first, &a) == 0 && ::stat(second, &b) == 0 && a.st_dev == b.st_dev && a.st_ino == b.st_ino;
}

/// Uses \a name as the alias if this process was started by it.
bool TakeAlias(char const* name)
{
    int folder = -1;
    char program[PATH_MAX];
    if (std::sscanf(name, "/proc/self/fd/%d/%4000s", &folder, program) != 2 || !IsSameFile(name, PROGRAM))
    {
        return false;
    }
    ::fcntl(folder, F_SETFD, FD_CLOEXEC); // programs started from here do not need it
    std::snprintf(alias, sizeof alias, "%s", name);
    folderSize = static_cast<std::size_t>(std::strrchr(alias, '/') - alias);
    return true;
}

void StartUnderPlainPath(int count, char** arguments, char** environment)
{
    static char path[PATH_MAX];
    long const size = ::syscall(SYS_readlinkat, AT_FDCWD, PROGRAM, path, sizeof path - 1);
    char* const slash = size > 0 ? std::strrchr(path, '/') : nullptr;
    if (count < 1 || !slash || (IsPlain(path) && IsPlain(arguments[0])) || TakeAlias(arguments[0]))
    {
        return;
    }
    *slash = '\0';
    int const folder = ::open(path, O_PATH | O_DIRECTORY);
    static char name[PATH_MAX];
    std::snprintf(name, sizeof name, ALIAS_FORMAT, folder, slash + 1);
    if (folder >= 0 && IsPlain(name))
    {
        arguments[0] = name;
        ::execve(PROGRAM, arguments, environment);
    }
}

__attribute__((section(".preinit_array"), used)) void (*const START)(int, char**, char**) = &StartUnderPlainPath;

} // namespace

// Deliberate: replaces the C library's function, which would show Foundation the program's real path.

extern "C" __attribute__((visibility("default"))) ssize_t readlink(char const* path, char* buffer, std::size_t size)
{
    if (alias[0] == '\0' || std::strcmp(path, PROGRAM) != 0)
    {
        return ::syscall(SYS_readlinkat, AT_FDCWD, path, buffer, size);
    }
    std::size_t const length = std::strlen(alias);
    std::size_t const copied = length < size ? length : size;
    std::memcpy(buffer, alias, copied);
    return static_cast<ssize_t>(copied);
}

extern "C" __attribute__((visibility("default"))) char* realpath(char const* path, char* resolved)
{
    char const* const shown = std::strcmp(path, PROGRAM) == 0 ? alias : path;
    bool const isAlias = alias[0] != '\0' && std::strncmp(shown, alias, folderSize) == 0 &&
                         (shown[folderSize] == '/' || shown[folderSize] == '\0');
    char* const found = isAlias ? ::strdup(shown) : ::canonicalize_file_name(path);
    if (!found || !resolved)
    {
        return found;
    }
    std::snprintf(resolved, PATH_MAX, "%s", found);
    std::free(found);
    return resolved;
}

/// The function that a hardened library calls instead.
extern "C" __attribute__((visibility("default"))) char* __realpath_chk(char const* path, char* resolved, std::size_t)
{
    return realpath(path, resolved);
}
