// DemoProgram.h: runs one of the demo programs to its end.
#pragma once

#include <QString>
#include <QStringList>

#include <string>
#include <vector>

namespace Pelnar::Testing
{

struct ProgramResult
{
    int status = -1;                ///< -1 if the program did not start, crashed or did not end
    std::vector<std::string> lines; ///< of standard output, empty ones left out
    std::string errors;
};

/// Runs the program \a path without choosing a display.
ProgramResult RunProgram(QString const& path, QStringList const& arguments);

} // namespace Pelnar::Testing
