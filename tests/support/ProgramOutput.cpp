#include "tests/support/ProgramOutput.h"

#include "tests/support/DialogDriver.h"

#include <gtest/gtest.h>

#include <QProcess>

namespace Pelnar::Testing
{

QString OutputOf(QStringList words)
{
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("ASAN_OPTIONS"), QStringLiteral("detect_leaks=0"));
    process.setProcessEnvironment(environment);
    QString const program = words.takeFirst();
    process.start(program, words);
    EXPECT_TRUE(WaitFor([&process] { return process.state() == QProcess::NotRunning; }, 60000));
    return QString::fromUtf8(process.readAllStandardOutput() + process.readAllStandardError());
}

} // namespace Pelnar::Testing
