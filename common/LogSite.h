// LogSite.h: a named place in the log: severity, source file, line and the prefix of its message.
// Thread: any (glog's rules). Ownership: files and sites are objects of static duration and refer to text of static
// duration. The file and line of a record are part of its meaning and stay fixed while the code moves, so they are
// data here and never the compiler's.
#pragma once

#include <glog/logging.h>

#include <string_view>

namespace Pelnar::Core
{

/// A source file as records name it, with glog's answer for its verbosity.
class LogFile
{
public:
    /// \a path without extension, as it stands in the record; must outlive the process' last record.
    explicit constexpr LogFile(char const* path) : m_path(path) {}

    char const* Path() const { return m_path; }
    /// True when glog's verbosity for this file is 30 or more: `--v=30`, or `--vmodule=` with the path's last part.
    [[nodiscard]] bool IsProgressEnabled() const;

private:
    char const* m_path;
    // glog writes here the address of the level that rules this file, and keeps the entry in a list of its own.
    mutable google::SiteFlag m_flag{nullptr, nullptr, 0, nullptr};
};

enum class LogSeverity
{
    Progress, ///< VLOG(30)
    Warning,
    Error,
};

struct LogSite
{
    LogSeverity severity;
    LogFile const& file;
    int line;
    char const* prefix; ///< the writing function's signature; empty for a line without prefix
};

/// True when a record of \a site would be written. Ask before building a costly text.
[[nodiscard]] bool IsEnabled(LogSite const& site);

/// Writes one record, if the site is enabled: the prefix followed by ": ", unless the prefix is empty, then \a text
/// (UTF-8).
void Write(LogSite const& site, std::string_view text = {});

} // namespace Pelnar::Core
