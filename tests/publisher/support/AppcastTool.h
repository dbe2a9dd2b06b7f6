// AppcastTool.h: one run of the publisher's tool, inside the test or as the installed program.
// Thread: the test's main thread.
#pragma once

#include <QByteArray>
#include <QProcessEnvironment>
#include <QString>
#include <QStringList>

#include <string>

class QJsonObject;

namespace Pelnar::Testing
{

struct ToolRun
{
    int status = -1; ///< -1 if the program did not start, crashed or did not end
    std::string out;
    std::string err;

    /// Its standard output as JSON text. The test fails if it is not JSON.
    QJsonObject Json() const;
};

/// Runs a verb in this process, without colour. REQUIRES: a QCoreApplication, for feeds that are not standard input.
ToolRun RunTool(QStringList const& arguments, QByteArray const& standardInput = {});

/// Runs the built program.
ToolRun RunAppcastProgram(QStringList const& arguments, QByteArray const& standardInput = {},
                          QProcessEnvironment const& environment = QProcessEnvironment::systemEnvironment());

/// The built program's path.
QString AppcastProgram();

} // namespace Pelnar::Testing
