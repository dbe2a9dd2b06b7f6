// ForeignSession.cpp: a library with the session's name from another build. Only its stamp is right.

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
