#include "Foundation/RunningBundle.h"

#include <QFileInfo>

namespace Pelnar::Foundation
{

QString InformationFileOfRunningBundle()
{
    QString const folder = QFileInfo(QStringLiteral("/proc/self/exe")).canonicalPath();
    QFileInfo const file(folder + QStringLiteral("/Resources/Info-gnustep.plist"));
    return file.isFile() ? file.filePath() : QString();
}

} // namespace Pelnar::Foundation
