// LogHandler.h: passes the update checker's log to the host's own logger. The update checker, its session and its
// engine log by glog. A host with its own logger gets every record after one call at the start of main():
//
//     Pelnar::SetLogHandler(
//         [](Pelnar::LogRecord const& record)
//         {
//             QByteArray const text(record.text.data(), static_cast<int>(record.text.size()));
//             record.severity == Pelnar::LogSeverity::Info ? qInfo("%s", text.constData())
//                                                          : qWarning("%s", text.constData());
//         });
//
// Thread: SetLogHandler may be called from any thread. The handler runs on the thread that writes the record, which is
// not always the main thread, and on one thread at a time. Ownership: the handler is copied and kept until it is
// replaced.
#pragma once

#include <chrono>
#include <functional>
#include <string_view>

namespace Pelnar
{

enum class LogSeverity
{
    Info,    ///< progress; also verbose records, which glog's GLOG_v=30 or --v=30 enables
    Warning, ///< something unexpected that is tolerated
    Error,   ///< a failure
    Fatal,   ///< the process ends; the update checker writes no such record
};

/// One record. The texts are UTF-8 and valid during the call.
struct LogRecord
{
    LogSeverity severity;
    std::string_view file; ///< the source file as named in the record, possibly with a path
    int line;              ///< the line in that file
    std::chrono::system_clock::time_point time;
    std::string_view text; ///< one or more lines, without a line end at the end
};

using LogHandler = std::function<void(LogRecord const&)>;

/// Sends every record that this process writes by glog to \a handler, including the host's own records. An empty
/// handler ends this. When the call returns, no other thread is still in the previous handler. So a host whose logger
/// ends before the process can remove its handler safely.
///
/// A host that uses glog itself calls google::InitGoogleLogging() before its first call of the update checker. Its log
/// then also goes where it went before. For any other host this call or the first check initializes glog, and such a
/// host must not initialize glog later: glog ends a process that does this twice. The records then go only to the
/// handler, not to a file and not to standard error. Without a handler they go to standard error.
///
/// Exceptions of the handler are swallowed. Records that the handler itself writes by glog go to glog's destinations
/// and not to the handler. The handler may replace itself. It must not wait for another thread, which may be waiting to
/// deliver its own record. It must not add or remove a sink of glog.
__attribute__((visibility("default"))) void SetLogHandler(LogHandler handler);

} // namespace Pelnar
