// CheckFailureLog.h: learns from the log that a check could not be completed.
// Thread: records may come from any thread; read it on the main thread once the check is over. Ownership: a scope
// object; it listens while it lives.
//
// To its host every failed check is one that found nothing. The log tells the two apart: a record is known by its file
// and line, which do not change.
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

    /// Takes no notice of later records: the search is over, what follows is the update dialog's business.
    void StopListening();

    /// What the first failure's record says, without the writing function's name; empty when nothing failed.
    std::string FirstFailure() const;

private:
    void send(google::LogSeverity severity, char const* fullFilename, char const* baseFilename, int line,
              google::LogMessageTime const& time, char const* message, std::size_t messageLength) override;

    mutable std::mutex m_mutex;
    bool m_isListening = true;
    std::string m_firstFailure;
};

} // namespace Pelnar::Demo
