#include "Demo/CheckFailureLog.h"

#include <algorithm>
#include <iterator>
#include <string_view>

namespace Pelnar::Demo
{
namespace
{

constexpr std::string_view SESSION_FILE = "App/UpdateChecker/SparkleImpl/SparkleManager";

/// The errors after which "no update" means "unknown". Not included: two items of the same rank, and an item that is
/// not newer.
constexpr int FAILURE_LINES[] = {
    475, // no context
    484, // no callback to report to
    493, // invalid local version
    502, // invalid remote version
    520, // no version operators
    570, // the session is held by another check
    614, // the check could not be started
    761, // the found item's version could not be read
    837, // the check was aborted
};

/// Records of the session begin with the writing function's signature: "… f()", "… f() const" or "-[… s:]".
std::string_view WithoutSignature(std::string_view message)
{
    std::size_t end = std::string_view::npos;
    for (std::string_view const ending :
         {std::string_view("]: "), std::string_view("): "), std::string_view("const: ")})
    {
        std::size_t const found = message.find(ending);
        if (found != std::string_view::npos)
        {
            end = std::min(end, found + ending.size());
        }
    }
    return end == std::string_view::npos ? message : message.substr(end);
}

} // namespace

CheckFailureLog::CheckFailureLog()
{
    google::AddLogSink(this);
}

CheckFailureLog::~CheckFailureLog()
{
    google::RemoveLogSink(this);
}

void CheckFailureLog::StopListening()
{
    std::lock_guard<std::mutex> const lock(m_mutex);
    m_isListening = false;
}

std::string CheckFailureLog::FirstFailure() const
{
    std::lock_guard<std::mutex> const lock(m_mutex);
    return m_firstFailure;
}

void CheckFailureLog::send(google::LogSeverity severity, char const* fullFilename, char const*, int line,
                           google::LogMessageTime const&, char const* message, std::size_t messageLength)
{
    bool const isFailure =
        severity == google::GLOG_ERROR && fullFilename == SESSION_FILE &&
        std::find(std::begin(FAILURE_LINES), std::end(FAILURE_LINES), line) != std::end(FAILURE_LINES);
    std::lock_guard<std::mutex> const lock(m_mutex);
    if (isFailure && m_isListening && m_firstFailure.empty())
    {
        m_firstFailure = WithoutSignature(std::string_view(message, messageLength));
    }
}

} // namespace Pelnar::Demo
