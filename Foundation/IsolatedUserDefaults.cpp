#include "Foundation/IsolatedUserDefaults.h"

#include <QByteArray>
#include <QFile>

namespace Pelnar::Foundation
{

IsolatedUserDefaults::IsolatedUserDefaults()
{
    // Foundation keeps user defaults in the home folder of the password database, whatever HOME says; only this
    // variable moves them, and it must be set before Foundation is first used.
    QByteArray const folder = QFile::encodeName(m_folder.path());
    QFile config(m_folder.filePath(QStringLiteral("GNUstep.conf")));
    if (!config.open(QIODevice::WriteOnly) || config.write("GNUSTEP_USER_DEFAULTS_DIR=" + folder + "/Defaults\n") < 0)
    {
        qFatal("cannot write %s", qPrintable(config.fileName()));
    }
    config.close();
    qputenv("GNUSTEP_CONFIG_FILE", QFile::encodeName(config.fileName()));
}

} // namespace Pelnar::Foundation
