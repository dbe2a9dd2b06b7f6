// ProgramOutput.h: the output of a program that a test runs, possibly under a tracer.
// Thread: main. Qt's event loop runs meanwhile, so the test may be the program's server.
#pragma once

#include <QString>
#include <QStringList>

namespace Pelnar::Testing
{

/// Runs \a words, the program first, to its end. Returns its standard output, then its standard error. The search for
/// leaks is off, because it does not work in a traced process.
QString OutputOf(QStringList words);

} // namespace Pelnar::Testing
