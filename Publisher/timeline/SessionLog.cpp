#include "Publisher/timeline/SessionLog.h"

#include <QRegularExpression>

#include <istream>
#include <map>
#include <string>

namespace Pelnar::Publisher
{
namespace
{

namespace Sites = App::Session::Sites;

constexpr std::size_t MAX_LINE_BYTES = 1u << 20;
constexpr int MAX_LINES = 10000000;

std::map<int, Core::LogSite const*> const& SitesByLine()
{
#define PELNAR_SITE_ENTRY(name, severity, line, prefix) {line, &Sites::name},
    static std::map<int, Core::LogSite const*> const sites = {PELNAR_SESSION_LOG_SITES(PELNAR_SITE_ENTRY)};
#undef PELNAR_SITE_ENTRY
    return sites;
}

/// Severity, date (with or without the year), time, thread, file and line.
QRegularExpression const& RecordPattern()
{
    static QRegularExpression const pattern(u"^[IWEF]\\d{4,8} (?<time>\\d\\d:\\d\\d:\\d\\d(?:\\.\\d+)?)\\s+\\d+ "
                                            "SparkleManager:(?<line>\\d+)\\] ?(?<text>.*)$"_s);
    return pattern;
}

} // namespace

SessionLog ReadSessionLog(std::istream& log)
{
    SessionLog result;
    std::string line(MAX_LINE_BYTES, '\0');
    for (int number = 1; number <= MAX_LINES && log.getline(line.data(), std::streamsize(line.size())); ++number)
    {
        std::streamsize const length = log.gcount() - (log.eof() ? 0 : 1); // without the line's end
        QString text = QString::fromUtf8(line.data(), int(length));
        text.chop(text.endsWith(u'\r') ? 1 : 0);
        QRegularExpressionMatch const match = RecordPattern().match(text);
        if (!match.hasMatch())
        {
            continue;
        }
        SessionRecord record{number, match.captured(u"time"_s), nullptr, match.captured(u"line"_s).toInt(),
                             match.captured(u"text"_s)};
        auto const site = SitesByLine().find(record.siteLine);
        QString const prefix = site == SitesByLine().end() ? QString() : QString::fromLatin1(site->second->prefix);
        bool const hasPrefix = prefix.isEmpty() || record.text.startsWith(prefix);
        if (site == SitesByLine().end() || !hasPrefix)
        {
            result.strangers.push_back(record);
            continue;
        }
        record.site = site->second;
        record.text = record.text.mid(prefix.size());
        if (!prefix.isEmpty() && record.text.startsWith(": "_l))
        {
            record.text = record.text.mid(2);
        }
        result.records.push_back(record);
    }
    return result;
}

QString OperationName(Core::LogSite const& site)
{
    QString name = QString::fromLatin1(site.prefix);
    if (name.startsWith("-["_l))
    {
        // "-[Class method:part:]"
        return name.mid(name.indexOf(u' ') + 1).chopped(1);
    }
    name.truncate(name.indexOf(u'('));
    return name.mid(name.lastIndexOf(u':') + 1);
}

} // namespace Pelnar::Publisher
