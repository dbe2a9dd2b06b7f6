// ProgramOutput.h: what a program of the tests prints when it runs, perhaps under a tracer.
// Thread: main, with Qt's event loop, which goes on meanwhile: the test may be the program's server.
#pragma once

#include <QString>
#include <QStringList>

namespace Pelnar::Testing
{

/// Runs \a words, the program first, to its end; its standard output, then its standard error. Leaks are not searched
/// for, which does not work in a process that is traced.
QString OutputOf(QStringList words);

} // namespace Pelnar::Testing
