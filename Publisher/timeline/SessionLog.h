// SessionLog.h: the session's records out of a log: each known by its file and line.
// Ownership: values; sites are of static duration.
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
    QString time;    ///< as the log gives it: "06:41:22.123456"
    /// Of Session::Sites; null for a line number of the session's file that this version does not know.
    Core::LogSite const* site = nullptr;
    int siteLine = 0;
    QString text; ///< without the writing function's signature
};

struct SessionLog
{
    std::vector<SessionRecord> records;
    /// Records whose text does not begin with the signature of their line: the application is another version's.
    std::vector<SessionRecord> strangers;
};

/// Reads the lines of a log as the application's logging writes them; all other lines are passed over. It stops before
/// the end of \a log at a line of a mebibyte, and after ten million lines: no log has them.
SessionLog ReadSessionLog(std::istream& log);

/// The part of a signature that names the operation: "Lock", "updater:didFindValidUpdate:".
QString OperationName(Core::LogSite const& site);

} // namespace Pelnar::Publisher
