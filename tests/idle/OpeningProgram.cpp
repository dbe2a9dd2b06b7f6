// OpeningProgram.cpp: a program that opens its application as a library, for itself alone, and runs it.
// Usage: opening_program LIBRARY [ARGUMENT...]

#include <cstdio>

#include <dlfcn.h>

int main(int argc, char** argv)
{
    void* const library = argc > 1 ? ::dlopen(argv[1], RTLD_NOW | RTLD_LOCAL) : nullptr;
    auto* const run = library ? reinterpret_cast<int (*)(int, char**)>(::dlsym(library, "RunHost")) : nullptr;
    if (!run)
    {
        std::printf("cannot be opened: %s\n", ::dlerror());
        return 1;
    }
    return run(argc - 1, argv + 1);
}
