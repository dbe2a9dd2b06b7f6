#include "tests/support/LogCapture.h"

#include <algorithm>
#include <iterator>
#include <mutex>

namespace Pelnar::Testing
{
namespace
{

/// Threads write records while a test waits for one. All captures share one: few of them live at a time.
std::mutex& Mutex()
{
    static std::mutex mutex;
    return mutex;
}

} // namespace

bool operator==(LogRecord const& a, LogRecord const& b)
{
    return a.severity == b.severity && a.file == b.file && a.line == b.line && a.text == b.text;
}

std::ostream& operator<<(std::ostream& out, LogRecord const& record)
{
    return out << google::GetLogSeverityName(record.severity) << ' ' << record.file << ':' << record.line << "] "
               << record.text;
}

LogCapture::LogCapture(Verbosity verbosity) : m_previousVerbosity(FLAGS_v)
{
    FLAGS_v = verbosity == Verbosity::Verbose ? 30 : 0;
    google::AddLogSink(this);
}

LogCapture::~LogCapture()
{
    google::RemoveLogSink(this);
    FLAGS_v = m_previousVerbosity;
}

std::vector<std::string> LogCapture::Texts() const
{
    std::lock_guard const lock(Mutex());
    std::vector<std::string> texts;
    for (LogRecord const& record : m_records)
    {
        texts.push_back(record.text);
    }
    return texts;
}

std::vector<LogRecord> LogCapture::Of(google::LogSeverity severity) const
{
    std::lock_guard const lock(Mutex());
    std::vector<LogRecord> records;
    std::copy_if(m_records.begin(), m_records.end(), std::back_inserter(records),
                 [severity](LogRecord const& record) { return record.severity == severity; });
    return records;
}

bool LogCapture::Has(LogRecord const& record) const
{
    std::lock_guard const lock(Mutex());
    return std::find(m_records.begin(), m_records.end(), record) != m_records.end();
}

void LogCapture::send(google::LogSeverity severity, char const* full_filename, char const*, int line,
                      google::LogMessageTime const&, char const* message, size_t message_len)
{
    std::lock_guard const lock(Mutex());
    m_records.push_back({severity, full_filename, line, std::string(message, message_len)});
}

} // namespace Pelnar::Testing
