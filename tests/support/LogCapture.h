// LogCapture.h: collects glog's records while it lives.
// Thread: records of any thread, in the order glog sends them. Ownership: a scope object.
#pragma once

#include <glog/logging.h>

#include <ostream>
#include <string>
#include <vector>

namespace Pelnar::Testing
{

struct LogRecord
{
    google::LogSeverity severity;
    std::string file; ///< the full path as the record carries it
    int line;
    std::string text;
};

bool operator==(LogRecord const& a, LogRecord const& b);
std::ostream& operator<<(std::ostream& out, LogRecord const& record);

/// Verbose records are on (level 30) while a capture with Verbosity::Verbose lives.
class LogCapture : private google::LogSink
{
public:
    enum class Verbosity
    {
        Normal,
        Verbose,
    };

    explicit LogCapture(Verbosity verbosity = Verbosity::Verbose);
    ~LogCapture() override;

    std::vector<LogRecord> const& Records() const { return m_records; }
    /// The texts of all records, in order.
    std::vector<std::string> Texts() const;
    /// The records of \a severity only, in order.
    std::vector<LogRecord> Of(google::LogSeverity severity) const;
    /// True if a record with exactly this severity, file, line and text was written.
    [[nodiscard]] bool Has(LogRecord const& record) const;
    void Clear() { m_records.clear(); }

private:
    void send(google::LogSeverity severity, char const* full_filename, char const* base_filename, int line,
              google::LogMessageTime const& logmsgtime, char const* message, size_t message_len) override;

    int m_previousVerbosity;
    std::vector<LogRecord> m_records;
};

} // namespace Pelnar::Testing
