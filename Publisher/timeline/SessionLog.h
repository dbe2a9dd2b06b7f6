// SessionLog.h: finds the session's records in a log, by their file and line. Ownership: values; sites have static
// duration.
#pragma once

#include "App/UpdateChecker/SparkleImpl/Choice/LogSites.h"
#include "Publisher/TextLiterals.h"

#include <QString>

#include <iosfwd>
#include <vector>

namespace Pelnar::Publisher
{

struct SessionRecord
{
    int logLine = 0; ///< from 1
    QString time;    ///< as in the log: "06:41:22.123456"
    /// The site in Session::Sites; null if this version has no record with this line number of the session's file.
    Core::LogSite const* site = nullptr;
    int siteLine = 0;
    QString text; ///< without the writing function's signature
};

struct SessionLog
{
    std::vector<SessionRecord> records;
    /// Records whose text does not begin with the signature of their line: another version of the application wrote
    /// them.
    std::vector<SessionRecord> strangers;
};

/// Reads the lines of a log as the application's logging writes them and ignores all others. It stops before
/// the end of \a log at a line of a mebibyte, and after ten million lines: no log has them.
SessionLog ReadSessionLog(std::istream& log);

/// The operation's name in a signature: "Lock", "updater:didFindValidUpdate:".
QString OperationName(Core::LogSite const& site);

} // namespace Pelnar::Publisher
