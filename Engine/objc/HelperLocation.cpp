#include "Engine/objc/HelperLocation_p.h"

#include "Engine/core/base/PathText.h"

#include <QDir>

#include <climits>
#include <cstdlib>
#include <string>

#include <dlfcn.h>

namespace Pelnar::Engine
{

QString HelperProgram()
{
    Dl_info library{};
    if (::dladdr(reinterpret_cast<void const*>(&HelperProgram), &library) == 0 || !library.dli_fname)
    {
        return {};
    }
    char file[PATH_MAX];
    if (!::realpath(library.dli_fname, file))
    {
        return {};
    }
    std::string path = file;
    path.erase(path.rfind('/'));
    return QDir::cleanPath(PathText(path) + QLatin1Char('/') + QStringLiteral(PELNAR_HELPER_FROM_LIBRARY));
}

} // namespace Pelnar::Engine
