#include "tests/host/DemoProgram.h"

#include <gtest/gtest.h>

#include <QProcess>

namespace Pelnar::Testing
{
namespace
{

constexpr int PATIENCE_MS = 60000;

} // namespace

ProgramResult RunProgram(QString const& path, QStringList const& arguments)
{
    QProcess process;
    process.start(path, arguments);
    bool const hasEnded = process.waitForFinished(PATIENCE_MS);
    ProgramResult result;
    result.errors = QString::fromUtf8(process.readAllStandardError());
    result.lines = QString::fromUtf8(process.readAllStandardOutput()).split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    if (hasEnded && process.exitStatus() == QProcess::NormalExit)
    {
        result.status = process.exitCode();
    }
    EXPECT_NE(result.status, -1) << qPrintable(result.errors);
    return result;
}

} // namespace Pelnar::Testing
