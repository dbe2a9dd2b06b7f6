#include "Engine/objc/HelperLocation_p.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

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
    QString const path = QFileInfo(QFile::decodeName(library.dli_fname)).canonicalPath();
    return path.isEmpty() ? QString()
                          : QDir::cleanPath(path + QLatin1Char('/') + QStringLiteral(PELNAR_HELPER_FROM_LIBRARY));
}

} // namespace Pelnar::Engine
