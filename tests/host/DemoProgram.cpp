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
    result.errors = process.readAllStandardError().toStdString();
    for (QByteArray const& line : process.readAllStandardOutput().split('\n'))
    {
        if (!line.isEmpty())
        {
            result.lines.push_back(line.toStdString());
        }
    }
    if (hasEnded && process.exitStatus() == QProcess::NormalExit)
    {
        result.status = process.exitCode();
    }
    EXPECT_NE(result.status, -1) << result.errors;
    return result;
}

} // namespace Pelnar::Testing
