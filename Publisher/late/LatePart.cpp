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
                   u"reinstall the package pelnar-appcast and its dependencies (libcurl4, libqt5network5, "
                   u"libarchive13, libmicrohttpd12)"_s});
}

LatePart const& Load()
{
    // Deliberate: a bare name. The loader searches the folders in this program's run path.
    void* const library = ::dlopen(PELNAR_LATE_LIBRARY, RTLD_NOW | RTLD_LOCAL | RTLD_NODELETE);
    auto const* const part = library ? static_cast<LatePart const*>(::dlsym(library, "pelnarAppcastLate")) : nullptr;
    if (!part)
    {
        char const* const reason = ::dlerror();
        RefuseToLoad(QString::fromLocal8Bit(reason ? reason : PELNAR_LATE_LIBRARY));
    }
    if (std::strcmp(part->version, PELNAR_VERSION) != 0)
    {
        RefuseToLoad(u"it has the version "_s + QString::fromLatin1(part->version));
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
