// LogHandler.h: the way from the update checker's log into the host's own.
// The update checker, its session and its engine log by glog. A host with a logger of its own gets every record by one
// call, at the beginning of main():
//
//     Pelnar::SetLogHandler(
//         [](Pelnar::LogRecord const& record)
//         {
//             QByteArray const text(record.text.data(), static_cast<int>(record.text.size()));
//             record.severity == Pelnar::LogSeverity::Info ? qInfo("%s", text.constData())
//                                                          : qWarning("%s", text.constData());
//         });
//
// Thread: SetLogHandler is for any thread. The handler is called on the thread that has written the record, which need
// not be the main one, and by one thread at a time. Ownership: the handler is copied and kept until it is replaced.
#pragma once

#include <chrono>
#include <functional>
#include <string_view>

namespace Pelnar
{

enum class LogSeverity
{
    Info,    ///< progress; verbose records too, which glog's GLOG_v=30 or --v=30 asks for
    Warning, ///< something odd that is tolerated
    Error,   ///< something has failed
    Fatal,   ///< the process ends; the update checker writes none
};

/// One record. The texts are UTF-8 and good for the length of the call.
struct LogRecord
{
    LogSeverity severity;
    std::string_view file; ///< the source file as the record names it, perhaps with a path
    int line;              ///< in that file
    std::chrono::system_clock::time_point time;
    std::string_view text; ///< without a line's end at its end; it may have more than one line
};

using LogHandler = std::function<void(LogRecord const&)>;

/// From now on \a handler gets every record that this process writes by glog, the host's own ones among them; an empty
/// handler ends that. When the call returns, no other thread is in the previous handler any more: a host whose logger
/// ends before the process takes its handler back so.
///
/// A host that uses glog itself calls google::InitGoogleLogging() first; its log then goes where it went before, too.
/// For any other host this call does it, and such a host must not do it later: glog ends a process that does it twice.
/// The records then go to the handler alone, into no file and not to standard error. Without a handler they go to
/// standard error.
///
/// What the handler throws is swallowed. What it logs itself by glog goes where glog's records go and not to the
/// handler. It may replace itself. It must not wait for another thread, which may be waiting to hand over its own
/// record, nor add or remove a sink of glog.
__attribute__((visibility("default"))) void SetLogHandler(LogHandler handler);

} // namespace Pelnar
