#include "common/LogSite.h"

namespace Pelnar::Core
{
namespace
{

constexpr int PROGRESS_LEVEL = 30;

google::LogSeverity ToGlog(LogSeverity severity)
{
    switch (severity)
    {
    case LogSeverity::Progress:
        return google::GLOG_INFO;
    case LogSeverity::Warning:
        return google::GLOG_WARNING;
    case LogSeverity::Error:
        return google::GLOG_ERROR;
    }
    return google::GLOG_ERROR;
}

} // namespace

bool LogFile::IsProgressEnabled() const
{
    // The expansion of VLOG_IS_ON, with this file's name instead of the compiler's.
    return m_flag.level ? *m_flag.level >= PROGRESS_LEVEL
                        : google::InitVLOG3__(&m_flag, &FLAGS_v, m_path, PROGRESS_LEVEL);
}

bool IsEnabled(LogSite const& site)
{
    return site.severity != LogSeverity::Progress || site.file.IsProgressEnabled();
}

void Write(LogSite const& site, std::string_view text)
{
    if (!IsEnabled(site))
    {
        return;
    }
    google::LogMessage message(site.file.Path(), site.line, ToGlog(site.severity));
    if (*site.prefix)
    {
        message.stream() << site.prefix << ": ";
    }
    message.stream() << text;
}

} // namespace Pelnar::Core
