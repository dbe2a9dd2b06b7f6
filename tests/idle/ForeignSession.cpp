// ForeignSession.cpp: a library of the session's name, of a build that has nothing in common with ours but the stamp.

#include <cstdlib>

namespace
{

void MustNotBeCalled()
{
    std::abort();
}

struct Export
{
    char const* stamp = "0.9-another-build";
    void (*functions[8])() = {&MustNotBeCalled, &MustNotBeCalled, &MustNotBeCalled, &MustNotBeCalled,
                              &MustNotBeCalled, &MustNotBeCalled, &MustNotBeCalled, &MustNotBeCalled};
};

} // namespace

extern "C" __attribute__((visibility("default"))) Export const pelnarUpdateSession;
Export const pelnarUpdateSession;
