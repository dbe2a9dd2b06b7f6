#include "Publisher/serve/RequestRules.h"

#include <QRegularExpression>

#include <algorithm>

#include <curl/curl.h>

namespace Pelnar::Publisher
{
namespace
{

QByteArray WithoutWeakSign(QByteArray const& tag)
{
    return tag.startsWith("W/") ? tag.mid(2) : tag;
}

} // namespace

QByteArray HostName(QByteArray const& header)
{
    static QRegularExpression const HOST(u"^(?:\\[([^\\]]*)\\]|([^:\\[]*?)\\.?)(?::\\d+)?$"_s);
    QRegularExpressionMatch const match = HOST.match(QString::fromLatin1(header));
    return (match.captured(1) + match.captured(2)).toLatin1().toLower();
}

bool HasVersion(Conditions const& conditions, QByteArray const& entityTag, qint64 changed)
{
    if (!conditions.noneMatch.isEmpty())
    {
        QList<QByteArray> const tags = conditions.noneMatch.split(',');
        return std::any_of(tags.begin(), tags.end(),
                           [&entityTag](QByteArray const& tag)
                           { return tag.trimmed() == "*" || WithoutWeakSign(tag.trimmed()) == entityTag; });
    }
    time_t const since = ::curl_getdate(conditions.modifiedSince.constData(), nullptr);
    return since >= 0 && changed <= since;
}

RangeKind RangeOf(QByteArray const& header, qint64 size, ByteRange& range)
{
    static QRegularExpression const RANGE(u"^bytes=(\\d*)-(\\d*)$"_s);
    QRegularExpressionMatch const match = RANGE.match(QString::fromLatin1(header));
    bool hasFirst = false;
    bool hasLast = false;
    qint64 const first = match.captured(1).toLongLong(&hasFirst);
    qint64 const last = match.captured(2).toLongLong(&hasLast);
    range = {0, size};
    if (hasFirst && (match.capturedLength(2) == 0 || (hasLast && last >= first)))
    {
        range = {first, hasLast ? std::min(size - 1, last) + 1 : size};
    }
    else if (match.capturedLength(1) == 0 && hasLast && last > 0)
    {
        range.first = std::max<qint64>(0, size - last);
    }
    else
    {
        return RangeKind::Whole;
    }
    return range.first < size ? RangeKind::Part : RangeKind::Unsatisfiable;
}

} // namespace Pelnar::Publisher
