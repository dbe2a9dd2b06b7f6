#include "Publisher/serve/HttpRequest.h"

#include <QDateTime>
#include <QList>
#include <QLocale>

#include <algorithm>
#include <array>

namespace Pelnar::Publisher
{
namespace
{

QString PathOf(QByteArray const& target)
{
    if (!target.startsWith('/'))
    {
        return {};
    }
    QByteArray const path = QByteArray::fromPercentEncoding(target.mid(1, target.indexOf('?') - 1));
    return path.contains('\0') ? QString() : QString::fromUtf8(path);
}

/// Decimal digits only; -1 for anything else.
qint64 NumberOf(QByteArray const& text)
{
    bool const isDigits =
        !text.isEmpty() && std::all_of(text.begin(), text.end(), [](char c) { return c >= '0' && c <= '9'; });
    bool isNumber = false;
    qint64 const number = isDigits ? text.toLongLong(&isNumber) : -1;
    return isNumber ? number : -1;
}

struct NamedText
{
    char const* name;
    QByteArray HttpRequest::*text;
};

constexpr std::array TEXTS = {
    NamedText{"range", &HttpRequest::range},
    NamedText{"if-range", &HttpRequest::ifRange},
    NamedText{"if-none-match", &HttpRequest::ifNoneMatch},
    NamedText{"if-modified-since", &HttpRequest::ifModifiedSince},
};

QByteArray WithoutWeakSign(QByteArray const& tag)
{
    return tag.startsWith("W/") ? tag.mid(2) : tag;
}

} // namespace

std::optional<HttpRequest> ParseHttpRequest(QByteArray const& head)
{
    QList<QByteArray> const lines = head.split('\n');
    QList<QByteArray> const words = lines.front().trimmed().split(' ');
    if (words.size() != 3 || !words.at(2).startsWith("HTTP/1."))
    {
        return std::nullopt;
    }
    HttpRequest request;
    int hosts = 0;
    request.method = words.at(0);
    request.path = PathOf(words.at(1));
    for (QByteArray const& line : lines.mid(1))
    {
        int const colon = line.indexOf(':');
        QByteArray const name = line.left(colon).toLower();
        QByteArray const value = line.mid(colon + 1).trimmed();
        auto const text = std::find_if(TEXTS.begin(), TEXTS.end(),
                                       [&name](NamedText const& candidate) { return name == candidate.name; });
        if (text != TEXTS.end())
        {
            request.*(text->text) = value;
        }
        else if (name == "host")
        {
            request.host = value;
            ++hosts;
        }
    }
    request.isHostClear = hosts == 1 || (hosts == 0 && words.at(2) == "HTTP/1.0");
    return request;
}

QByteArray HostName(QByteArray const& header)
{
    bool const isBracketed = header.startsWith('[');
    int const colon = header.indexOf(':');
    int const end = isBracketed ? header.indexOf(']') + 1 : colon < 0 ? header.size() : colon;
    QByteArray name = header.left(end).toLower();
    QByteArray const rest = header.mid(end);
    bool const hasPort = rest.isEmpty() || (rest.startsWith(':') && NumberOf(rest.mid(1)) >= 0);
    if (isBracketed)
    {
        name = name.mid(1).chopped(1);
    }
    name.chop(name.endsWith('.') ? 1 : 0);
    return hasPort ? name : QByteArray();
}

bool HasVersion(HttpRequest const& request, QByteArray const& entityTag, qint64 changed)
{
    if (!request.ifNoneMatch.isEmpty())
    {
        QList<QByteArray> const tags = request.ifNoneMatch.split(',');
        return std::any_of(tags.begin(), tags.end(),
                           [&entityTag](QByteArray const& tag)
                           { return tag.trimmed() == "*" || WithoutWeakSign(tag.trimmed()) == entityTag; });
    }
    QDateTime since =
        QLocale::c().toDateTime(QString::fromLatin1(request.ifModifiedSince), u"ddd, dd MMM yyyy hh:mm:ss 'GMT'"_s);
    since.setTimeSpec(Qt::UTC);
    return since.isValid() && changed <= since.toSecsSinceEpoch();
}

RangeKind RangeOf(QByteArray const& header, qint64 size, ByteRange& range)
{
    range = {0, size};
    if (!header.startsWith("bytes=") || header.contains(','))
    {
        return RangeKind::Whole;
    }
    QByteArray const text = header.mid(6);
    int const dash = text.indexOf('-');
    qint64 const first = NumberOf(text.left(dash));
    qint64 const last = NumberOf(text.mid(dash + 1));
    bool const isToTheEnd = dash >= 0 && text.endsWith('-');
    if (dash == 0 && last > 0)
    {
        range.first = std::max<qint64>(0, size - last);
    }
    else if (dash > 0 && first >= 0 && (isToTheEnd || last >= first))
    {
        range.first = first;
        range.end = isToTheEnd ? size : std::min(size, last + 1);
    }
    else
    {
        return RangeKind::Whole;
    }
    return range.first < size ? RangeKind::Part : RangeKind::Unsatisfiable;
}

} // namespace Pelnar::Publisher
