#include "Publisher/files/FeedText.h"

#include "Publisher/Refusal.h"

#include <algorithm>

namespace Pelnar::Publisher
{
namespace
{

constexpr char BYTE_ORDER_MARK[] = "\xEF\xBB\xBF";

} // namespace

FeedText::FeedText(QString const& name, QByteArray const& bytes)
    : m_text(QString::fromUtf8(bytes.constData(), bytes.size())), m_hasMark(bytes.startsWith(BYTE_ORDER_MARK))
{
    // UTF-16 without a mark could be UTF-8 too, but XML has no zero.
    if (Bytes() != bytes || bytes.contains('\0'))
    {
        throw Refusal({name, 1, 0, u"is not UTF-8; only UTF-8 feeds can be changed"_s, u"convert the feed to UTF-8"_s});
    }
}

QString FeedText::LineEnd() const
{
    return m_text.contains("\r\n"_l) ? u"\r\n"_s : u"\n"_s;
}

void FeedText::Replace(TextRange const& range, QString const& text)
{
    if (m_text.midRef(range.start, range.end - range.start) != text)
    {
        auto const next = std::upper_bound(m_changes.begin(), m_changes.end(), range.start,
                                           [](int start, Change const& change) { return start < change.range.start; });
        m_changes.insert(next, {range, text});
    }
}

QStringList FeedText::Differences() const
{
    QStringList lines;
    for (Change const& change : m_changes)
    {
        QString const gone = m_text.mid(change.range.start, change.range.end - change.range.start).trimmed();
        for (auto const& [mark, text] : {std::pair("- ", gone), std::pair("+ ", change.text.trimmed())})
        {
            for (QString const& line : text.split(u'\n', Qt::SkipEmptyParts))
            {
                lines.append(QLatin1String(mark) + line.trimmed());
            }
        }
    }
    return lines;
}

QByteArray FeedText::Bytes() const
{
    QString result;
    int done = 0;
    for (Change const& change : m_changes)
    {
        result += m_text.midRef(done, change.range.start - done) + change.text;
        done = change.range.end;
    }
    result += m_text.midRef(done);
    return (m_hasMark ? BYTE_ORDER_MARK : QByteArray()) + result.toUtf8();
}

} // namespace Pelnar::Publisher
