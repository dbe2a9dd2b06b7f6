// CheckFailureLog.h: finds out from the log that a check could not be completed.
// Thread: records may come from any thread; read the result on the main thread once the check is over. Ownership: a
// scope object; it listens while it lives.
//
// To its host a failed check looks like one that finds nothing. The log distinguishes the two: a record is identified
// by its file and line, which do not change.
#pragma once

#include <glog/logging.h>

#include <mutex>
#include <string>

namespace Pelnar::Demo
{

class CheckFailureLog : private google::LogSink
{
public:
    CheckFailureLog();
    ~CheckFailureLog() override;
    CheckFailureLog(CheckFailureLog const&) = delete;
    CheckFailureLog& operator=(CheckFailureLog const&) = delete;

    /// Ignores later records: the search is over, and the rest belongs to the update dialog.
    void StopListening();

    /// The text of the first failure's record, without the writing function's name; empty if nothing failed.
    std::string FirstFailure() const;

private:
    void send(google::LogSeverity severity, char const* fullFilename, char const* baseFilename, int line,
              google::LogMessageTime const& time, char const* message, std::size_t messageLength) override;

    mutable std::mutex m_mutex;
    bool m_isListening = true;
    std::string m_firstFailure;
};

} // namespace Pelnar::Demo
