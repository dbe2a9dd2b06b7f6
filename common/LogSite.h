// LogSite.h: a named place in the log: severity, source file, line and message prefix.
// Thread: any (glog's rules). Ownership: files and sites are objects of static duration and refer to text of static
// duration. The file and line of a record are part of the interface and stay fixed when the code moves. So they are
// data here and never come from the compiler.
#pragma once

#include <glog/logging.h>

#include <string_view>

namespace Pelnar::Core
{

/// A source file as named in records, with glog's verbosity for it.
class LogFile
{
public:
    /// \a path is without extension, as it appears in the record. It must outlive the last record of the process.
    explicit constexpr LogFile(char const* path) : m_path(path) {}

    char const* Path() const { return m_path; }
    /// True if glog's verbosity for this file is 30 or more: `--v=30`, or `--vmodule=` with the path's last part.
    [[nodiscard]] bool IsProgressEnabled() const;

private:
    char const* m_path;
    // glog writes the address of the level for this file here, and keeps the entry in its own list.
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
    char const* prefix; ///< the signature of the writing function; empty for a line without a prefix
};

/// True if a record of \a site would be written. Call it before you build an expensive text.
[[nodiscard]] bool IsEnabled(LogSite const& site);

/// Writes one record if the site is enabled: the prefix followed by ": ", unless the prefix is empty, then \a text
/// (UTF-8).
void Write(LogSite const& site, std::string_view text = {});

} // namespace Pelnar::Core
