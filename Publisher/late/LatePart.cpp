#include "Publisher/late/LatePart.h"

#include "Publisher/Refusal.h"

#include <cstring>

#include <dlfcn.h>

namespace Pelnar::Publisher
{
namespace
{

[[noreturn]] void RefuseToLoad(QString const& reason)
{
    throw Refusal({u"a part of this program cannot be loaded: "_s + reason,
                   u"install the package pelnar-appcast again, and what it depends on (libcurl4, "
                   "libqt5network5, libarchive13)"_s});
}

LatePart const& Load()
{
    // Deliberate: a bare name, which the loader looks for where this program says that its libraries are.
    void* const library = ::dlopen(PELNAR_LATE_LIBRARY, RTLD_NOW | RTLD_LOCAL | RTLD_NODELETE);
    auto const* const part = library ? static_cast<LatePart const*>(::dlsym(library, "pelnarAppcastLate")) : nullptr;
    if (!part)
    {
        char const* const reason = ::dlerror();
        RefuseToLoad(QString::fromLocal8Bit(reason ? reason : PELNAR_LATE_LIBRARY));
    }
    if (std::strcmp(part->version, PELNAR_VERSION) != 0)
    {
        RefuseToLoad(u"it is of version "_s + QString::fromLatin1(part->version));
    }
    return *part;
}

} // namespace

LatePart const& LoadLatePart()
{
    static LatePart const& part = Load();
    return part;
}

} // namespace Pelnar::Publisher
