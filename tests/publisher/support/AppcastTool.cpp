#include "tests/publisher/support/AppcastTool.h"

#include "Publisher/Verb.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>

#include <sstream>

namespace Pelnar::Testing
{
namespace
{

constexpr int PATIENCE_MS = 60000;

} // namespace

QJsonObject ToolRun::Json() const
{
    QJsonParseError error;
    QJsonObject const object = QJsonDocument::fromJson(QByteArray::fromStdString(out), &error).object();
    EXPECT_EQ(error.error, QJsonParseError::NoError) << out;
    return object;
}

ToolRun RunTool(QStringList const& arguments, QByteArray const& standardInput)
{
    std::istringstream in(standardInput.toStdString());
    std::ostringstream out;
    std::ostringstream err;
    Publisher::Console console{in, {out}, {err}};
    std::vector<std::string> texts;
    for (QString const& argument : arguments)
    {
        texts.push_back(argument.toStdString());
    }
    int const status = int(Publisher::RunProgram(texts, console));
    return {status, out.str(), err.str()};
}

ToolRun RunAppcastProgram(QStringList const& arguments, QByteArray const& standardInput,
                          QProcessEnvironment const& environment)
{
    QProcess process;
    process.setProcessEnvironment(environment);
    process.start(AppcastProgram(), arguments);
    process.write(standardInput);
    process.closeWriteChannel();
    QDeadlineTimer const patience(PATIENCE_MS);
    while (process.state() != QProcess::NotRunning && !patience.hasExpired())
    {
        process.waitForFinished(10);
        QCoreApplication::processEvents(); // the program may ask a server of the test's
    }
    bool const hasEnded = process.state() == QProcess::NotRunning;
    ToolRun result;
    result.out = process.readAllStandardOutput().toStdString();
    result.err = process.readAllStandardError().toStdString();
    if (hasEnded && process.exitStatus() == QProcess::NormalExit)
    {
        result.status = process.exitCode();
    }
    EXPECT_NE(result.status, -1) << result.err;
    return result;
}

QString AppcastProgram()
{
    return QStringLiteral(PELNAR_APPCAST_PROGRAM);
}

} // namespace Pelnar::Testing
