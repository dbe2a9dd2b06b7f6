#include <Pelnar/LogHandler.h>

#include "common/LogReadiness.h"

#include <glog/logging.h>

#include <algorithm>
#include <iterator>
#include <memory>
#include <mutex>
#include <string>
#include <thread>
#include <utility>
#include <vector>

namespace Pelnar
{
namespace
{

/// True while this thread is in the handler: the handler does not get its own records.
thread_local bool isInHandler = false;

LogSeverity ToSeverity(google::LogSeverity severity)
{
    switch (severity)
    {
    case google::GLOG_INFO:
        return LogSeverity::Info;
    case google::GLOG_WARNING:
        return LogSeverity::Warning;
    case google::GLOG_ERROR:
        return LogSeverity::Error;
    }
    return LogSeverity::Fatal;
}

struct StoredRecord
{
    std::thread::id writer;
    LogSeverity severity;
    std::string file;
    int line;
    std::chrono::system_clock::time_point time;
    std::string text;
};

/// glog's only sink in the process. send(), which runs under glog's locks, stores records. WaitTillSent() delivers
/// them; there the handler itself may log.
class LogRelay final : private google::LogSink
{
public:
    LogRelay() { google::AddLogSink(this); }

    void Replace(LogHandler handler)
    {
        auto next = handler ? std::make_shared<LogHandler const>(std::move(handler)) : nullptr;
        std::lock_guard const lock(m_calls); // waits for the call of another thread
        TakeGlog(next != nullptr);
        std::lock_guard const change(m_records);
        m_handler.swap(next);
    }

private:
    /// Initializes glog and sends its records only to the handler or only to standard error, unless the host has done
    /// so.
    void TakeGlog(bool hasHandler)
    {
        if (Core::ReadyLog() == Core::GlogOwner::UpdateChecker)
        {
            FLAGS_stderrthreshold = hasHandler ? google::GLOG_FATAL : google::GLOG_INFO;
        }
    }

    void send(google::LogSeverity severity, char const* full_filename, char const*, int line,
              google::LogMessageTime const& logmsgtime, char const* message, std::size_t message_len) override
    {
        if (isInHandler)
        {
            return;
        }
        std::lock_guard const lock(m_records);
        if (m_handler)
        {
            auto const time = std::chrono::system_clock::from_time_t(logmsgtime.timestamp()) +
                              std::chrono::microseconds(logmsgtime.usec());
            m_waiting.push_back({std::this_thread::get_id(), ToSeverity(severity), full_filename, line, time,
                                 std::string(message, message_len)});
        }
    }

    void WaitTillSent() override
    {
        if (isInHandler)
        {
            return;
        }
        for (StoredRecord const& record : TakeOwn())
        {
            std::lock_guard const lock(m_calls);
            isInHandler = true;
            Call(record);
            isInHandler = false;
        }
    }

    std::vector<StoredRecord> TakeOwn()
    {
        std::lock_guard const lock(m_records);
        auto const own = std::stable_partition(m_waiting.begin(), m_waiting.end(),
                                               [](StoredRecord const& record)
                                               { return record.writer != std::this_thread::get_id(); });
        std::vector<StoredRecord> records(std::make_move_iterator(own), std::make_move_iterator(m_waiting.end()));
        m_waiting.erase(own, m_waiting.end());
        return records;
    }

    void Call(StoredRecord const& record)
    {
        // Held during the call: the handler may replace itself.
        std::shared_ptr<LogHandler const> const handler = Handler();
        if (!handler)
        {
            return;
        }
        try
        {
            (*handler)({record.severity, record.file, record.line, record.time, record.text});
        }
        catch (...)
        {
            // Deliberate: the caller that logs must not get the exception, and may be a destructor.
        }
    }

    std::shared_ptr<LogHandler const> Handler()
    {
        std::lock_guard const lock(m_records);
        return m_handler;
    }

    std::recursive_mutex m_calls; ///< held while the handler runs or is replaced
    std::mutex m_records;         ///< guards the members below
    std::shared_ptr<LogHandler const> m_handler;
    std::vector<StoredRecord> m_waiting;
};

} // namespace

void SetLogHandler(LogHandler handler)
{
    static LogRelay& relay = *new LogRelay; // a process may log until its end
    relay.Replace(std::move(handler));
}

} // namespace Pelnar
