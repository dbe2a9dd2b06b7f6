#include "tests/support/JapaneseLocale.h"

#include <QProcess>
#include <QTemporaryDir>

namespace Pelnar::Testing
{
namespace
{

constexpr int PATIENCE_MS = 60000;

bool MakeLocale(QString const& path)
{
    QProcess process;
    process.start(QStringLiteral("localedef"), {QStringLiteral("-i"), QStringLiteral("ja_JP"), QStringLiteral("-f"),
                                                QStringLiteral("EUC-JP"), path});
    return process.waitForFinished(PATIENCE_MS) && process.exitStatus() == QProcess::NormalExit &&
           process.exitCode() == 0;
}

} // namespace

std::vector<std::string> JapaneseVariables()
{
    static QTemporaryDir const folder;
    static bool const isMade = MakeLocale(folder.filePath(QStringLiteral("ja_JP.eucJP")));
    return isMade ? std::vector<std::string>{"LOCPATH=" + folder.path().toStdString(), "LC_ALL=ja_JP.eucJP"}
                  : std::vector<std::string>();
}

} // namespace Pelnar::Testing
