#include "Foundation/RunningBundle.h"

#include <QByteArray>
#include <QFileInfo>

#include <mach-o/dyld.h>

namespace Pelnar::Foundation
{
namespace
{

QString RunningProgram()
{
    std::uint32_t size = 0;
    (void)_NSGetExecutablePath(nullptr, &size);
    QByteArray path(static_cast<int>(size), '\0');
    return _NSGetExecutablePath(path.data(), &size) == 0 ? QFile::decodeName(path.constData()) : QString();
}

} // namespace

QString InformationFileOfRunningBundle()
{
    // The executable is in Contents/MacOS.
    QString const folder = QFileInfo(RunningProgram()).canonicalPath();
    QFileInfo const file(folder + QStringLiteral("/../Info.plist"));
    return file.isFile() ? file.canonicalFilePath() : QString();
}

} // namespace Pelnar::Foundation
